// OknoForm17: pages of compensations, of the quarantine allowance and of the benefits before 2009.
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/klavesy.h"
#include "desktop/okno_form17.h"
#include "desktop/panel_nahrad.h"
#include "desktop/prvky.h"
#include "desktop/text_qt.h"
#include "desktop/vzhled.h"

namespace desktop {

namespace {

void s_popiskem(QGridLayout& mrizka, int radek, int sloupec, const char* nazev, QLineEdit* pole) {
    auto* popisek = new QLabel(nazev);
    popisek->setBuddy(pole);
    mrizka.addWidget(popisek, radek, sloupec);
    mrizka.addWidget(pole, radek, sloupec + 1, Qt::AlignLeft);
}

/// Whole numbers without a sign.
Vazba::Filtr cislice(int nejvic) {
    return [nejvic](char znak, std::string_view text) {
        return base::hlidej_cele_cislo_klavesy(znak, text, base::ZnamenkoRezim::bez_minus, nejvic);
    };
}

/// Crowns with two decimals.
bool znak_castky(char znak, std::string_view text) {
    return base::hlidej_desetinne_cislo_klavesy(znak, text, base::ZnamenkoRezim::minus_na_zacatku,
                                                6, 2);
}

}  // namespace

QWidget* OknoForm17::stranka_karantena() {
    auto* stranka = new QWidget;
    auto* svisle = new QVBoxLayout(stranka);
    auto* nadpis = new QLabel("> Karanténa příspěvek");
    jako_nadpis(*nadpis);
    auto* mrizka = new QGridLayout;
    auto* pole = ciselne_pole("scKarantena", "hodnota příspěvku", 8);
    vazba().pole(*pole, form_.karantena_kc, cislice(7));
    connect(pole, &QLineEdit::textEdited, this, [this] { form_.karantenaKeyUp(); });
    pri_vstupu(*pole, [] {});
    s_popiskem(*mrizka, 0, 0, "Hodnota příspěvku (Kč)", pole);
    auto* kalkulacka = new QPushButton("Kalkulačka ČSS&Z");
    kalkulacka->setObjectName("kalkulacka_cssz");
    kalkulacka->setAutoDefault(false);
    vazba().tlacitko(*kalkulacka, [this] { form_.kalkulacka_cssz(); });
    mrizka->addWidget(kalkulacka, 0, 2);
    mrizka->setColumnStretch(3, 1);
    svisle->addWidget(nadpis);
    svisle->addLayout(mrizka);
    svisle->addStretch(1);
    return stranka;
}

QWidget* OknoForm17::stranka_nahrady() {
    return new PanelNahrad(vazba(), form_.nahrady,
                           [this](wages::PoleNahrad pole) { form_.nahradyExit(pole); });
}

QWidget* OknoForm17::stranka_nemoci() {
    wages::StrankaNemoci& n = form_.nemoc;
    auto* stranka = new QWidget;
    auto* svisle = new QVBoxLayout(stranka);
    auto* nadpis = new QLabel("Nemoc 2008");
    jako_nadpis(*nadpis);
    auto* mrizka = new QGridLayout;
    const auto pole = [this](const char* jmeno, const char* nazev, std::string& hodnota, int znaku,
                             Vazba::Filtr filtr, Vazba::Metoda po_opusteni) {
        auto* nove = ciselne_pole(jmeno, nazev, znaku);
        vazba().pole(*nove, hodnota, std::move(filtr), std::move(po_opusteni));
        pri_vstupu(*nove, [] {});
        return nove;
    };
    const auto kontrola = [this] { form_.poleExit(); };
    s_popiskem(*mrizka, 0, 0, "Číslo dokladu",
               pole("scDoklad", "číslo dokladu", n.scDoklad, 5, cislice(4), kontrola));
    s_popiskem(*mrizka, 1, 0, "První den (ddmm)",
               pole("scOd", "první den", n.scOd, 5, cislice(4), [this] { form_.nemocOdExit(); }));
    s_popiskem(*mrizka, 1, 2, "poslední",
               pole("scDo", "poslední den", n.scDo, 5, cislice(4), kontrola));
    auto* prumer = pole("scPrumer", "denní průměr", n.scPrumer, 9, znak_castky, kontrola);
    vazba().povolene(*prumer, [&n] { return n.castky_povolene; });
    s_popiskem(*mrizka, 2, 0, "Denní průměr", prumer);
    mrizka->addWidget(udaj(vazba(), "lbPrumer", n.lbPrumer), 2, 2);
    auto* druh = new QComboBox;
    druh->setObjectName("druh");
    druh->setAccessibleName("druh dávky");
    druh->addItems({"nemoc", "O Č R", "PPM"});
    vazba().pri_obnove([this, druh] { druh->setCurrentIndex(static_cast<int>(form_.nemoc.druh)); });
    connect(druh, &QComboBox::activated, this, [this](int index) {
        form_.nemoc.druh = static_cast<wages::DruhDavky>(index);
        form_.poleExit();
    });
    auto* proplatit = new QComboBox;
    proplatit->setObjectName("proplatit");
    proplatit->setAccessibleName("proplatit");
    proplatit->addItems({"celou dobu", "jen měsíc " + do_qt(form_.nadpis)});
    vazba().pri_obnove(
        [this, proplatit] { proplatit->setCurrentIndex(form_.nemoc.jen_mesic ? 1 : 0); });
    connect(proplatit, &QComboBox::activated, this, [this](int index) {
        form_.nemoc.jen_mesic = index == 1;
        form_.poleExit();
    });
    mrizka->addWidget(new QLabel("Druh"), 3, 0);
    mrizka->addWidget(druh, 3, 1);
    mrizka->addWidget(new QLabel("Proplatit"), 3, 2);
    mrizka->addWidget(proplatit, 3, 3);
    // The period: its two days and which of them are paid, with their labels.
    for (const auto& [radek, sloupec] : {std::pair(1, 0), {1, 1}, {1, 2}, {1, 3}, {3, 2}, {3, 3}}) {
        vazba().viditelne(*mrizka->itemAtPosition(radek, sloupec)->widget(),
                          [&n] { return !n.dny_se_zadavaji(); });
    }
    auto* dny =
        pole("scDnyKalendarni", "kalendářní dny", n.scDnyKalendarni, 4, cislice(3), kontrola);
    auto* pracovni =
        pole("scDnyPracovni", "pracovní dny", n.scDnyPracovni, 4, cislice(3), kontrola);
    for (QWidget* prvek : {dny, pracovni})
        vazba().povolene(*prvek, [&n] { return n.dny_se_zadavaji(); });
    s_popiskem(*mrizka, 4, 0, "Kalendářní dny", dny);
    s_popiskem(*mrizka, 4, 2, "pracovní", pracovni);
    auto* k_vyplate = pole("scKVyplate", "k výplatě", n.scKVyplate, 8, znak_castky, kontrola);
    vazba().povolene(*k_vyplate, [this] { return form_.nemoc.castky_povolene; });
    s_popiskem(*mrizka, 5, 0, "K výplatě", k_vyplate);
    mrizka->setColumnStretch(4, 1);
    svisle->addWidget(nadpis);
    svisle->addLayout(mrizka);
    svisle->addWidget(vysledky_nemoci());
    svisle->addStretch(1);
    return stranka;
}

QWidget* OknoForm17::vysledky_nemoci() {
    auto* panel = new QGroupBox("Dny a částky podle pásem");
    auto* mrizka = new QGridLayout(panel);
    int sloupec = 0;
    for (const char* nadpis : {"Dny", "počet", "Kč denně", "Kč"})
        mrizka->addWidget(new QLabel(nadpis), 0, sloupec++);
    for (std::size_t i = 0; i < form_.nemoc.pasma.size(); ++i) {
        wages::StrankaNemoci::Pasmo& p = form_.nemoc.pasma[i];
        sloupec = 0;
        for (const std::string* text : {&p.popisek, &p.dnu, &p.kc_denne, &p.kc})
            mrizka->addWidget(udaj(vazba(), "pasmo", *text), static_cast<int>(i) + 1, sloupec++);
    }
    const int posledni = static_cast<int>(form_.nemoc.pasma.size()) + 1;
    mrizka->addWidget(new QLabel("Celkem"), posledni, 0);
    mrizka->addWidget(udaj(vazba(), "celkem", form_.nemoc.scKVyplate), posledni, 3);
    mrizka->setColumnStretch(4, 1);
    vazba().viditelne(*panel, [this] { return form_.nemoc.vysledky_viditelne; });
    return panel;
}

}  // namespace desktop
