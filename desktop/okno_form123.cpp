#include "desktop/okno_form123.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "base/datum.h"
#include "base/klavesy.h"
#include "desktop/prvky.h"
#include "desktop/text_qt.h"

namespace desktop {

namespace {

constexpr int k_cislic = 6, k_mesicu = 12;

QComboBox* mesice(Vazba& vazba, const char* jmeno, const char* nazev, int& mesic) {
    auto* vyber = new QComboBox;
    vyber->setObjectName(jmeno);
    vyber->setAccessibleName(nazev);
    vyber->setMaxVisibleItems(k_mesicu);
    for (int m = 1; m <= k_mesicu; ++m)
        vyber->addItem(do_qt(base::mesic_slovy(m, 0)));
    vazba.vyber(*vyber, mesic);
    return vyber;
}

void pridej(QGridLayout& mrizka, int radek, int sloupec, const char* text, QWidget* prvek) {
    auto* popisek = new QLabel(text);
    popisek->setBuddy(prvek);
    mrizka.addWidget(popisek, radek, sloupec);
    mrizka.addWidget(prvek, radek, sloupec + 1, Qt::AlignLeft);
}

}  // namespace

OknoForm123::OknoForm123(wages::TForm123& form, const shell::Session& session, QWidget* rodic)
    : Okno(form, rodic) {
    setWindowTitle(do_qt("Přehled náhrad za pracovní neschopnost - " + session.firma));
    auto* mrizka = new QGridLayout;
    pridej(*mrizka, 0, 0, "Měsíc &od:", mesice(vazba(), "mesic_od", "měsíc od", form.mesic_od));
    pridej(*mrizka, 0, 2, "&do:", mesice(vazba(), "mesic_do", "měsíc do", form.mesic_do));
    auto* vsichni = new QCheckBox("&Všichni pracovníci");
    vsichni->setObjectName("vsichni");
    vsichni->setAccessibleName("všichni pracovníci");
    vazba().zaskrtavatko(*vsichni, form.vsichni, [&form] { form.vsichniClick(); });
    mrizka->addWidget(vsichni, 1, 0, 1, 4);
    auto* cislo = ciselne_pole("cislo", "číslo pracovníka", k_cislic);
    vazba().pole(
        *cislo, form.cislo,
        [](char znak, std::string_view text) {
            return base::hlidej_cele_cislo_klavesy(znak, text, base::ZnamenkoRezim::bez_minus,
                                                   k_cislic);
        },
        [&form] { form.cisloExit(); });
    vazba().povolene(*cislo, [&form] { return !form.vsichni; });
    pridej(*mrizka, 2, 0, "Čí&slo pracovníka:", cislo);
    QLabel* kdo = udaj(vazba(), "kdo", form.kdo);
    kdo->setMinimumWidth(kdo->fontMetrics().averageCharWidth() * 30);
    mrizka->addWidget(kdo, 2, 2, 1, 3);
    mrizka->setColumnStretch(4, 1);
    obsah().addLayout(mrizka);
    tlacitko(
        "&Tisk", "acTisk", [&form] { form.acTiskExecute(); }, Qt::Key_F2);
    tlacitko("&Zpět", "acZpet", [&form] { form.acZpetExecute(); });
    odchod(form.zavreno, [&form] { form.acZpetExecute(); });
    vazba().fokus(*this, form.fokus);
}

}  // namespace desktop
