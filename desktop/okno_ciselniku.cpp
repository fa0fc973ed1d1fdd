#include "desktop/okno_ciselniku.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <algorithm>

#include "desktop/mrizka_seznamu.h"
#include "desktop/prvky.h"
#include "desktop/text_qt.h"

namespace desktop {

namespace {

constexpr int k_nejmene_znaku_pole = 4;

std::vector<SloupecMrizky> sloupce_mrizky(const workers::PopisCiselniku& popis) {
    std::vector<SloupecMrizky> sloupce;
    for (const workers::PoleCiselniku& pole : popis.pole)
        sloupce.push_back({pole.pole, pole.nadpis});
    return sloupce;
}

/// The longest text takes the room left over; -1 when there are numbers alone.
int nejdelsi_text(const workers::PopisCiselniku& popis) {
    int nejdelsi = -1, znaku = 0;
    for (int i = 0; i < static_cast<int>(popis.pole.size()); ++i) {
        const workers::PoleCiselniku& pole = popis.pole[static_cast<std::size_t>(i)];
        if (pole.druh == workers::DruhPole::text && pole.znaku > znaku) {
            nejdelsi = i;
            znaku = pole.znaku;
        }
    }
    return nejdelsi;
}

}  // namespace

OknoCiselniku::OknoCiselniku(workers::Ciselnik& form, const shell::Session&, QWidget* rodic)
    : Okno(form, rodic) {
    setWindowTitle(do_qt(form.nadpis));
    setSizeGripEnabled(true);
    resize(static_cast<int>(form.popis().pole.size()) * 60 + 520, 460);
    obsah().addWidget(hledani(form));
    obsah().addWidget(mrizka(form), 1);
    tlacitka(form);
    odchod(form.zavreno, [&form] { form.acZpetExecute(); });
    vazba().fokus(*this, form.fokus);
}

QWidget* OknoCiselniku::hledani(workers::Ciselnik& form) {
    auto* panel = new QWidget;
    auto* vedle_sebe = new QHBoxLayout(panel);
    vedle_sebe->setContentsMargins(0, 0, 0, 0);
    auto* hledat = new QLineEdit;
    hledat->setObjectName("hledat");
    hledat->setAccessibleName("hledat");
    hledat->setClearButtonEnabled(true);
    vazba().pole(*hledat, form.hledat);
    connect(hledat, &QLineEdit::textEdited, this, [&form] { form.zmena_hledani(); });
    auto* nadpis_hledani = new QLabel("&Hledat:");
    nadpis_hledani->setBuddy(hledat);
    auto* trideni = new QComboBox;
    trideni->setObjectName("trideni");
    trideni->setAccessibleName("třídit podle");
    for (const workers::PoleCiselniku& pole : form.popis().pole)
        trideni->addItem(do_qt(pole.nadpis));
    connect(trideni, &QComboBox::activated, this, [&form](int pole) { form.zmena_trideni(pole); });
    vazba().pri_obnove([trideni, &form] { trideni->setCurrentIndex(form.trideni); });
    auto* nadpis_trideni = new QLabel("Třídit &podle:");
    nadpis_trideni->setBuddy(trideni);
    vedle_sebe->addWidget(nadpis_hledani);
    vedle_sebe->addWidget(hledat, 1);
    vedle_sebe->addWidget(nadpis_trideni);
    vedle_sebe->addWidget(trideni);
    vedle_sebe->addStretch(1);
    vedle_sebe->addWidget(udaj(vazba(), "pocet", form.pocet));
    return panel;
}

QTableView* OknoCiselniku::mrizka(workers::Ciselnik& form) {
    auto* tabulka =
        new MrizkaSeznamu(vazba(), form, sloupce_mrizky(form.popis()), do_qt(form.popis().nadpis),
                          [&form] { form.acOpravitExecute(); });
    tabulka->roztahni(nejdelsi_text(form.popis()));
    QHeaderView* zahlavi = tabulka->horizontalHeader();
    zahlavi->setSectionsClickable(true);
    zahlavi->setSortIndicatorShown(true);
    connect(zahlavi, &QHeaderView::sectionClicked, this,
            [&form](int pole) { form.zmena_trideni(pole); });
    vazba().pri_obnove([zahlavi, &form] {
        zahlavi->setSortIndicator(form.trideni,
                                  form.sestupne ? Qt::DescendingOrder : Qt::AscendingOrder);
    });
    return tabulka;
}

void OknoCiselniku::tlacitka(workers::Ciselnik& form) {
    const auto je_veta = [&form] { return form.je_veta(); };
    tlacitko(
        "Př&idat", "acPridat", [&form] { form.acPridatExecute(); }, Qt::Key_Insert);
    vazba().povolene(tlacitko(
                         "&Opravit", "acOpravit", [&form] { form.acOpravitExecute(); }, Qt::Key_F2),
                     je_veta);
    vazba().povolene(tlacitko("&Kopírovat", "acKopirovat", [&form] { form.acKopirovatExecute(); }),
                     je_veta);
    vazba().povolene(
        tlacitko(
            "&Smazat", "acSmazat", [&form] { form.acSmazatExecute(); }, Qt::Key_Delete),
        je_veta);
    tlacitko("&Tisk", "acTisk", [&form] { form.acTiskExecute(); });
    tlacitko("&Zpět", "acZpet", [&form] { form.acZpetExecute(); });
}

OknoVetyCiselniku::OknoVetyCiselniku(workers::VetaCiselniku& form, const shell::Session&,
                                     QWidget* rodic)
    : Okno(form, rodic) {
    setWindowTitle(do_qt(form.nadpis + " - " + form.popis().nadpis));
    auto* pole_pod_sebou = new QFormLayout;
    for (std::size_t i = 0; i < form.popis().pole.size(); ++i) {
        const workers::PoleCiselniku& popis = form.popis().pole[i];
        auto* pole = new QLineEdit;
        pole->setObjectName(popis.pole);
        pole->setAccessibleName(do_qt(popis.nadpis));
        const int znaku = std::max(popis.znaku, k_nejmene_znaku_pole) + 2;
        pole->setFixedWidth(pole->fontMetrics().horizontalAdvance(QString(znaku, '0')));
        vazba().pole(*pole, form.hodnoty[i], [&form, i](char znak, std::string_view text) {
            return form.povol_klavesu(i, znak, text);
        });
        pole_pod_sebou->addRow(popis.popisek, pole);
    }
    obsah().addLayout(pole_pod_sebou);
    obsah().addStretch(1);
    tlacitko(
        "&Uložit", "acUlozit", [&form] { form.acUlozitExecute(); }, Qt::Key_F2);
    tlacitko("&Zpět", "acZpet", [&form] { form.acZpetExecute(); });
    odchod(form.zavreno, [&form] { form.acZpetExecute(); });
    vazba().fokus(*this, form.fokus);
}

}  // namespace desktop
