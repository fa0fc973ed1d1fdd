#include "desktop/okno_form20.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTableView>

#include "base/castky_text.h"
#include "desktop/klavesy_tabulky.h"
#include "desktop/model_seznamu.h"
#include "desktop/prvky.h"
#include "desktop/text_qt.h"
#include "desktop/vzhled.h"

namespace desktop {

namespace {

constexpr QSize k_velikost{820, 560};

QString nebo_nic(base::Castka castka) {
    return base::je_nula(castka) ? QString() : do_qt(base::castka_prosta(castka));
}

}  // namespace

OknoForm20::OknoForm20(wages::TForm20& form, const shell::Session&, QWidget* rodic)
    : Okno(form, rodic), form_(form) {
    setWindowTitle(do_qt(form.nadpis));
    setSizeGripEnabled(true);
    resize(k_velikost);
    obsah().addWidget(podle_ceho());
    obsah().addWidget(tabulka(), 1);
    auto* soucty = udaj(vazba(), "lbSoucty", form.lbSoucty);
    jako_dulezity(*soucty);
    obsah().addWidget(soucty);
    tlacitka();
    odchod(form.zavreno, [&form] { form.acZpetExecute(); });
    vazba().fokus(*this, form.fokus);
}

QWidget* OknoForm20::podle_ceho() {
    auto* panel = new QWidget;
    auto* vedle_sebe = new QHBoxLayout(panel);
    vedle_sebe->setContentsMargins(0, 0, 0, 0);
    auto* vyber = new QComboBox;
    vyber->setObjectName("podle");
    vyber->setAccessibleName("sečíst podle");
    for (const char* jak : wages::k_podle_ceho)
        vyber->addItem(QString::fromUtf8(jak));
    vazba().pri_obnove([this, vyber] { vyber->setCurrentIndex(static_cast<int>(form_.podle)); });
    connect(vyber, &QComboBox::activated, this,
            [this](int index) { form_.zvol(static_cast<wages::PodleCeho>(index)); });
    auto* popisek = new QLabel("Se&číst:");
    popisek->setBuddy(vyber);
    vedle_sebe->addWidget(popisek);
    vedle_sebe->addWidget(vyber);
    vedle_sebe->addStretch(1);
    return panel;
}

QWidget* OknoForm20::tabulka() {
    auto* tabulka = new QTableView;
    tabulka->setObjectName("mrizka");
    tabulka->setAccessibleName("součty hrubých mezd");
    const auto r = [this](std::size_t i) -> const wages::RadekSumarizace& {
        return form_.radky.at(i);
    };
    auto* model = new ModelSeznamu(
        {{"Číslo", 6, true, [r](std::size_t i) { return QString::number(r(i).klic); }},
         {"Text", 0, false, [r](std::size_t i) { return do_qt(r(i).text); }},
         {"Položek", 8, true, [r](std::size_t i) { return QString::number(r(i).soucet.pocet); }},
         {"Dny", 9, true, [r](std::size_t i) { return nebo_nic(r(i).soucet.dny); }},
         {"Hodiny", 10, true, [r](std::size_t i) { return nebo_nic(r(i).soucet.hodiny); }},
         {"Koruny", 14, true,
          [r](std::size_t i) { return do_qt(base::castka_s_oddelovaci(r(i).soucet.koruny)); }}},
        [this] { return form_.radky.size(); }, [](std::size_t, int, int) { return QVariant(); },
        tabulka);
    nasad_model(*tabulka, *model);
    vazba().pri_obnove([this, model, ukazano = 0U]() mutable {
        if (ukazano == form_.vydani) return;
        ukazano = form_.vydani;
        model->obnov();
    });
    vazba().radek(*tabulka, form_.radek, [this](int novy) { form_.vyber_radek(novy); });
    connect(tabulka, &QTableView::doubleClicked, this, [this] { form_.acPolozkyExecute(); });
    (new KlavesyPrvku(*tabulka))
        ->na(Qt::Key_Return, [this] { form_.acPolozkyExecute(); })
        .na(Qt::Key_Enter, [this] { form_.acPolozkyExecute(); });
    return tabulka;
}

void OknoForm20::tlacitka() {
    const auto pri_radku = [this] { return form_.je_radek(); };
    vazba().povolene(tlacitko(
                         "&Položky", "acPolozky", [this] { form_.acPolozkyExecute(); }, Qt::Key_F2),
                     pri_radku);
    vazba().povolene(tlacitko(
                         "&Tisk", "acTisk", [this] { form_.acTiskExecute(); }, Qt::Key_F6),
                     pri_radku);
    vazba().povolene(tlacitko("&Export CSV", "acExport", [this] { form_.acExportExecute(); }),
                     pri_radku);
    tlacitko("&Zpět", "acZpet", [this] { form_.acZpetExecute(); });
}

}  // namespace desktop
