#include "desktop/okno_form50.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>
#include <fmt/format.h>

#include "desktop/prvky.h"
#include "desktop/rozlozeni_blokace.h"
#include "desktop/text_qt.h"

namespace desktop {

namespace {

/// Captions of the grid, shorter than those of the panel.
constexpr std::array<const char*, payrun::k_druhy_blokace.size()> k_kratce{
    "soc. základ", "soc. poj.", "zdr. základ", "zdr. poj.", "dílčí základ", "sražená daň"};

/// The rows without the table's own key.
store::Rows vety_blokace(const store::Rows& vety) {
    store::Rows nove{{"pracovník"}, {}};
    std::vector<int> zdroje{vety.column("Cislo_pracovnika")};
    for (std::size_t i = 0; i < k_kratce.size(); ++i) {
        const std::string pole = payrun::k_druhy_blokace[i].pole;
        for (const auto& [pripona, popisek] :
             {std::pair{"_abs", "absolutně"}, std::pair{"_dif", "rozdíl"}}) {
            zdroje.push_back(vety.column(pole + pripona));
            nove.columns.push_back(fmt::format("{}\n{}", k_kratce[i], popisek));
        }
    }
    for (const store::Row& veta : vety.rows) {
        store::Row& nova = nove.rows.emplace_back();
        for (const int zdroj : zdroje)
            nova.push_back(veta.at(static_cast<std::size_t>(zdroj)));
    }
    return nove;
}

QLabel* castka(Vazba& vazba, const std::string& jmeno, const std::string& hodnota) {
    QLabel* popisek = udaj(vazba, jmeno, hodnota);
    popisek->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    popisek->setMinimumWidth(popisek->fontMetrics().horizontalAdvance("-00000000"));
    return popisek;
}

}  // namespace

OknoForm50::OknoForm50(payrun::TForm50& form, const shell::Session&, QWidget* rodic)
    : Okno(form, rodic) {
    setWindowTitle(do_qt(form.nadpis));
    setSizeGripEnabled(true);
    resize(1330, 460);
    auto* vedle_sebe = new QHBoxLayout;
    vedle_sebe->addWidget(mrizka(form), 1);
    vedle_sebe->addWidget(hodnoty(form));
    obsah().addLayout(vedle_sebe, 1);
    tlacitka(form);
    odchod(form.zavreno, [&form] { form.Button1Click(); });
    vazba().fokus(*this, form.fokus);
}

QWidget* OknoForm50::mrizka(payrun::TForm50& form) {
    auto* tabulka = new QTableView;
    tabulka->setObjectName("mrizka");
    tabulka->setAccessibleName("blokované hodnoty");
    tabulka->verticalHeader()->hide();
    vazba().pri_obnove([this, &form] { vety_ = vety_blokace(form.vety); });
    vazba().tabulka(*tabulka, vety_);
    vazba().radek(*tabulka, form.radek, [&form](int novy) { form.vyber_radek(novy); });
    connect(tabulka, &QTableView::doubleClicked, this, [&form] { form.Button3Click(); });
    return tabulka;
}

QWidget* OknoForm50::hodnoty(const payrun::TForm50& form) {
    auto* panel = new QGroupBox("vybraný řádek");
    (new QVBoxLayout(panel))
        ->addWidget(
            rozlozeni_blokace([this, &form](const std::string& jmeno, const std::string& popis,
                                            std::size_t druh, bool rozdil) {
                const auto& [abs, dif] = form.hodnoty[druh];
                QLabel* hodnota = castka(vazba(), jmeno, rozdil ? dif : abs);
                hodnota->setAccessibleName(do_qt(popis));
                return hodnota;
            }));
    return panel;
}

void OknoForm50::tlacitka(payrun::TForm50& form) {
    const auto je_veta = [&form] { return form.radek >= 0; };
    QPushButton& nova = tlacitko(
        "+", "Button2", [&form] { form.Button2Click(); }, Qt::Key_Insert);
    nova.setAccessibleName("nová blokovaná hodnota");
    QPushButton& opravit = tlacitko(
        "&Opravit", "Button3", [&form] { form.Button3Click(); }, Qt::Key_F2);
    vazba().povolene(opravit, je_veta);
    QPushButton& vypustit = tlacitko(
        "-", "Button4", [&form] { form.Button4Click(); }, Qt::Key_Delete);
    vypustit.setAccessibleName("vypustit blokovanou hodnotu");
    vazba().povolene(vypustit, je_veta);
    tlacitko("&Zpět", "Button1", [&form] { form.Button1Click(); });
}

}  // namespace desktop
