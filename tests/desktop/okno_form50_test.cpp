// Blocked values worked in their two windows.
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>
#include <gtest/gtest.h>

#include "firma_v_oknech.h"
#include "payrun/unit50_blokace.h"

namespace {

using namespace zkouska;

/// Blocked values of January, workers 2 and 1 in the order of entry.
struct Blokace : FirmaVOknech {
    Blokace() {
        firma.vloz("Blok01", "Cislo_pracovnika,socialni_abs,dan_dif\n2,1000,-50\n1,,7\n");
        firma.session.zavri_spojeni();
    }
    /// The list of blocked values, worked by the operator in its window.
    void ukaz(std::function<void(QWidget& okno)> prace) {
        payrun::TForm50 seznam(session);
        seznam.FormShow();
        v_okne(std::move(prace));
        obsluha.ukaz_modalne(seznam);
    }
    std::string vypis() {
        return firma.vypis(
            "SELECT Cislo_pracovnika, socialni_abs, zdravotni_zaklad_dif, dan_dif FROM Blok01");
    }
};

/// Text of the current row's cell.
QString bunka(QWidget& okno, int sloupec) {
    auto& mrizka = prvek<QTableView>(okno, "mrizka");
    return mrizka.currentIndex().siblingAtColumn(sloupec).data().toString();
}

void napis(QWidget& okno, const char* pole, const char* text) {
    auto& vstup = prvek<QLineEdit>(okno, pole);
    vstup.setFocus();
    vstup.selectAll();
    QTest::keyClicks(&vstup, text);
}

TEST(OknoBlokace, NapsanaHodnotaJeVTabulceAOznacenaVSeznamu) {
    Blokace f;
    f.ukaz([](QWidget& okno) {
        EXPECT_EQ(bunka(okno, 0), "1");
        v_okne([](QWidget& veta) {
            EXPECT_EQ(veta.windowTitle(), "NOVÁ  HODNOTA  PRO  BLOKACI");
            EXPECT_EQ(QApplication::focusWidget()->objectName(), "Cislo_pracovnika");
            QTest::keyClicks(QApplication::focusWidget(), "3");
            napis(veta, "zdravotni_zaklad_dif", "-1x2-3,45678");
            EXPECT_EQ(prvek<QLineEdit>(veta, "zdravotni_zaklad_dif").text(), "-1234567");
            zkratka(veta, Qt::Key_F2);
        });
        zkratka(okno, Qt::Key_Insert);
        EXPECT_EQ(bunka(okno, 0), "3");
        EXPECT_EQ(prvek<QLabel>(okno, "zdravotni_zaklad_dif").text(), "-1234567");
        EXPECT_EQ(okno.focusWidget(), &prvek<QTableView>(okno, "mrizka"));
        QTest::keyClick(&okno, Qt::Key_Escape);
    });
    EXPECT_EQ(f.vypis(), "2|1000||-50\n1|||7\n3||-1234567|\n");
}

TEST(OknoBlokace, ZadanaHodnotaZmeniVysledekVypoctu) {
    FirmaVOknech f;
    const auto spocti = [](QWidget& okno) {
        zkratka(okno, Qt::Key_F2);
        QTest::keyClick(&okno, Qt::Key_Escape);
    };
    const auto dan_a_vyplata = [&] {
        f.session.zavri_spojeni();
        return f.firma.vypis(
            "SELECT Hodnota FROM Listin01 WHERE Cislo_pracovnika = 2 AND Modul IN (9, "
            "14)");
    };
    v_okne(spocti);
    EXPECT_TRUE(f.form.acVypocetVyplatExecute());
    EXPECT_EQ(dan_a_vyplata(), "6000\n29600\n");

    payrun::zaloz_soubor_pro_blokovani(f.session);
    payrun::TForm50 seznam(f.session);
    seznam.FormShow();
    v_okne([](QWidget& okno) {
        v_okne([](QWidget& veta) {
            napis(veta, "Cislo_pracovnika", "2");
            napis(veta, "dan_abs", "1000");
            zkratka(veta, Qt::Key_F2);
        });
        zkratka(okno, Qt::Key_Insert);
        QTest::keyClick(&okno, Qt::Key_Escape);
    });
    f.obsluha.ukaz_modalne(seznam);

    v_okne([&](QWidget& otazka) {
        v_okne(spocti);
        QTest::keyClick(&otazka, Qt::Key_A, Qt::AltModifier);
    });
    EXPECT_TRUE(f.form.acVypocetVyplatExecute());
    EXPECT_EQ(dan_a_vyplata(), "1000\n34600\n");
}

TEST(OknoBlokace, KurzorVybiraOpravovanyRadekAOdchodNicNezmeni) {
    Blokace f;
    f.ukaz([](QWidget& okno) {
        QTest::keyClick(&prvek<QTableView>(okno, "mrizka"), Qt::Key_Down);
        EXPECT_EQ(prvek<QLabel>(okno, "socialni_abs").text(), "1000");
        v_okne([](QWidget& veta) {
            EXPECT_EQ(prvek<QLineEdit>(veta, "Cislo_pracovnika").text(), "2");
            napis(veta, "socialni_abs", "5");
            QTest::keyClick(&veta, Qt::Key_Escape);
        });
        klikni(okno, "Button3");
        EXPECT_EQ(bunka(okno, 0), "2");
        EXPECT_EQ(prvek<QLabel>(okno, "socialni_abs").text(), "1000");
        QTest::keyClick(&okno, Qt::Key_Escape);
    });
    EXPECT_EQ(f.vypis(), "2|1000||-50\n1|||7\n");
}

TEST(OknoBlokace, VypusteniSePtaAPrazdnySeznamNemaCoOpravovat) {
    Blokace f;
    f.ukaz([](QWidget& okno) {
        for (int radku = 2; radku > 0; --radku) {
            v_okne([](QWidget& otazka) {
                EXPECT_EQ(dynamic_cast<QMessageBox&>(otazka).text(),
                          "Opravdu chcete vypustit označenou větu?");
                for (auto* tlacitko : otazka.findChildren<QAbstractButton*>())
                    if (tlacitko->text() == "&Ano") tlacitko->click();
            });
            klikni(okno, "Button4");
        }
        EXPECT_EQ(prvek<QTableView>(okno, "mrizka").model()->rowCount(), 0);
        EXPECT_FALSE(prvek<QPushButton>(okno, "Button3").isEnabled());
        EXPECT_FALSE(prvek<QPushButton>(okno, "Button4").isEnabled());
        QTest::keyClick(&okno, Qt::Key_Escape);
    });
    EXPECT_EQ(f.vypis(), "");
}

}  // namespace
