// One new worker from nothing to the pay sheet, as a clerk enters him: card, child, two fixed
// items, pay run; everything by keys.
#include <QCheckBox>
#include <QLineEdit>
#include <QTabWidget>
#include <QTableView>
#include <gtest/gtest.h>

#include "firma_v_oknech.h"

namespace {

using namespace zkouska;

/// Texts typed one after another, each into the field to which Enter has led.
void pis(std::initializer_list<const char*> texty) {
    for (const char* text : texty) {
        QTest::keyClicks(QApplication::focusWidget(), text);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }
}

/// Shortcuts act in an active window only; a real desktop makes it so when a dialog closes.
void aktivuj(QWidget& okno) {
    okno.activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&okno] { return okno.isActiveWindow(); }));
}

/// Insert on a list of the register; the form that opens is worked by `prace`.
void pridej(QWidget& registr, const char* seznam, std::function<void(QWidget&)> prace) {
    auto& tabulka = prvek<QTableView>(registr, seznam);
    tabulka.setFocus();
    v_okne(std::move(prace));
    QTest::keyClick(&tabulka, Qt::Key_Insert);
    aktivuj(registr);
}

void vypln_kartu(QWidget& karta) {
    pis({"15", "", "Josef", "Horak", "Ing.", "", "71-05-14/1010", "14.5.1971"});
    zkratka(karta, Qt::Key_F6);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "Cislo_zdrav_poj");
    QTest::keyClicks(QApplication::focusWidget(), "1");
    prvek<QCheckBox>(karta, "Podepsal_prohlaseni").click();
    prvek<QLineEdit>(karta, "PROHLASENI_MESICE").setFocus();
    pis({"1-12"});
    zkratka(karta, Qt::Key_F2);
}

TEST(NovyPracovnik, OdPrazdneKartyAzPoVyplatniListinu) {
    FirmaVOknech f;
    f.firma.vloz("Zdr_poj", "Cislo,Nazev,Kod_zp\n1,Všeobecná,111\n");
    f.firma.session.zavri_spojeni();
    v_okne([](QWidget& registr) {
        pridej(registr, "mrizka", vypln_kartu);
        auto& seznam = prvek<QTableView>(registr, "mrizka");
        EXPECT_EQ(seznam.currentIndex().siblingAtColumn(1).data().toString(), "Horak");
        QTest::keyClick(&registr, Qt::Key_Tab, Qt::ControlModifier);
        pridej(registr, "mrizka_deti", [](QWidget& dite) {
            pis({"Eva", "Horakova", "Brno", "15-51-02/1234"});
            zkratka(dite, Qt::Key_F2);
        });
        EXPECT_EQ(prvek<QTableView>(registr, "mrizka_deti").model()->rowCount(), 1);
        prvek<QTabWidget>(registr, "stranky").setCurrentIndex(0);
        for (const auto& [sloupec, koruny] : {std::pair{"13", "500"}, std::pair{"14", "250"}}) {
            pridej(registr, "mrizka_fixni", [=](QWidget& polozka) {
                pis({sloupec, koruny});
                zkratka(polozka, Qt::Key_F2);
            });
        }
        EXPECT_EQ(prvek<QTableView>(registr, "mrizka_fixni").model()->rowCount(), 2);
        QTest::keyClick(&registr, Qt::Key_Escape);
    });
    EXPECT_TRUE(f.form.proved_akci("acPracovnici"));

    f.firma.vloz("Hrube01", "Cislo_pracovnika,Modul,Sloupec,Kc_cel\n15,1,1,30000\n");
    f.firma.session.zavri_spojeni();
    v_okne([](QWidget& vypocet) {
        klikni(vypocet, "Button2");
        QTest::keyClick(&vypocet, Qt::Key_Escape);
    });
    EXPECT_TRUE(f.form.acVypocetVyplatExecute());
    // Insurance 1950 and 1350, tax 4500 - 2570 - 1267 for the child, deductions 500 and 250.
    EXPECT_EQ(f.firma.vypis("SELECT Modul, Sloupec, Hodnota FROM Listin01 "
                            "WHERE Cislo_pracovnika = 15 AND Modul IN (7, 8, 9, 10, 14) "
                            "ORDER BY Modul, Sloupec"),
              "7|10|1950\n8|11|1350\n9|12|663\n10|13|500\n10|14|250\n14|18|25287\n");
}

}  // namespace
