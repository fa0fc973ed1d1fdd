// Rows of gross wages found, corrected and summed on the keyboard in their windows.
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>
#include <gtest/gtest.h>

#include "firma_v_oknech.h"
#include "wages/unit43_vykony.h"
#include "wages/unit90_davky.h"

namespace {

using namespace zkouska;

QTableView& mrizka(QWidget& okno) {
    return prvek<QTableView>(okno, "mrizka");
}
QString bunka(QWidget& okno, int radek, int sloupec) {
    return mrizka(okno).model()->index(radek, sloupec).data().toString();
}
void napis(QWidget& okno, const char* pole, const char* text) {
    auto& vstup = prvek<QLineEdit>(okno, pole);
    vstup.setFocus();
    vstup.selectAll();
    QTest::keyClicks(&vstup, text);
}
/// After a window over this one was closed: keys and shortcuts go to the active window only.
void vrat_se(QWidget& okno) {
    okno.activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &okno; }));
}

/// January's column 1 asks for one value up to 99999 crowns; the pay sheet has been computed.
struct Opravy : FirmaVOknech {
    Opravy() {
        {
            store::Transaction transakce(firma.data());
            firma.data().execute(
                "UPDATE Ridici SET nadpis_1 = 'koruny', Min_1 = 0, Max_1 = 99999, var_vyp = 1 "
                "WHERE Modul = 1 AND Sloupec = 1");
            firma.data().execute(
                "UPDATE Hrube01 SET Kc1 = Kc_cel, Prijmeni = 'Beneš' "
                "WHERE Cislo_pracovnika = 2");
            transakce.commit();
        }
        firma.vloz("Listin01", "Cislo_pracovnika,Modul,Hodnota\n2,14,1\n");
        firma.session.zavri_spojeni();
    }
    /// Works in a window opened by a button of the entry, and leaves both by Escape. The sheet of
    /// the changed month goes away with a message.
    void ze_zadani(const char* tlacitko, std::function<void(QWidget& okno)> prace) {
        v_okne([tlacitko, prace](QWidget& zadani) {
            v_okne([prace](QWidget& okno) {
                prace(okno);
                QTest::keyClick(&okno, Qt::Key_Escape);
            });
            klikni(zadani, tlacitko);
            vrat_se(zadani);
            v_okne(
                [](QWidget& hlaska) {
                    EXPECT_TRUE(dynamic_cast<QMessageBox&>(hlaska).text().contains(
                        "byla vymazaná výplatní listina za  leden  2022"));
                    QTest::keyClick(&hlaska, Qt::Key_Return);
                },
                &zadani);
            QTest::keyClick(&zadani, Qt::Key_Escape);
        });
        form.proved_akci("acHrubeZorvNahrady");
    }
};

TEST(OknoOprav, RadekSeNajdeAOpraviKlavesami) {
    Opravy f;
    f.ze_zadani("acProhlizeni", [](QWidget& okno) {
        EXPECT_EQ(mrizka(okno).model()->rowCount(), 1) << "pracovník pod kurzorem";
        napis(okno, "pracovnik", "bene");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        ASSERT_EQ(mrizka(okno).model()->rowCount(), 1);
        EXPECT_EQ(bunka(okno, 0, 1), "2");
        v_okne([](QWidget& oprava) {
            EXPECT_EQ(prvek<QLabel>(oprava, "lbPuvodni").text(), "Zapsáno  40000,00 Kč");
            EXPECT_EQ(QApplication::focusWidget()->objectName(), "scHodnota1");
            napis(oprava, "scHodnota1", "450x000");
            zkratka(oprava, Qt::Key_F2);
            EXPECT_EQ(prvek<QListWidget>(oprava, "scChyby").item(0)->text(),
                      "Interval u 1: 0 až 99999.");
            napis(oprava, "scHodnota1", "45000,5");
            zkratka(oprava, Qt::Key_F2);
        });
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_EQ(bunka(okno, 0, 11), "45 000,50");
        EXPECT_EQ(okno.focusWidget(), &mrizka(okno));
    });
    f.session.zavri_spojeni();
    EXPECT_EQ(f.firma.vypis("SELECT Kc1, Kc_cel FROM Hrube01 WHERE Cislo_pracovnika = 2"),
              "45000.5|45000.5\n");
    EXPECT_FALSE(f.je_listina());
}

TEST(OknoOprav, ZeSumarizaceKPolozceAJejimuSmazani) {
    Opravy f;
    f.ze_zadani("acSumarizace", [](QWidget& okno) {
        EXPECT_EQ(bunka(okno, 0, 5), "120 000,00");
        auto& podle = prvek<QComboBox>(okno, "podle");
        podle.setFocus();
        QTest::keyClick(&podle, Qt::Key_Down);
        emit podle.activated(podle.currentIndex());
        EXPECT_EQ(mrizka(okno).model()->rowCount(), 3);
        mrizka(okno).setFocus();
        mrizka(okno).selectRow(1);
        v_okne([](QWidget& prohlizeni) {
            EXPECT_EQ(prvek<QLineEdit>(prohlizeni, "pracovnik").text(), "2");
            v_okne([](QWidget& otazka) {
                for (auto* tlacitko : otazka.findChildren<QAbstractButton*>())
                    if (tlacitko->text() == "&Ano") tlacitko->click();
            });
            QTest::keyClick(&mrizka(prohlizeni), Qt::Key_Delete);
            EXPECT_EQ(mrizka(prohlizeni).model()->rowCount(), 0);
            vrat_se(prohlizeni);
            QTest::keyClick(&prohlizeni, Qt::Key_Escape);
        });
        QTest::keyClick(&mrizka(okno), Qt::Key_Return);
        EXPECT_EQ(mrizka(okno).model()->rowCount(), 2);
        vrat_se(okno);
    });
    f.session.zavri_spojeni();
    EXPECT_EQ(f.firma.vypis("SELECT Cislo_pracovnika FROM Hrube01"), "1\n3\n");
}

TEST(OknoOprav, VyberVykonuADavkaPoPasmech) {
    FirmaVOknech f;
    wages::TForm43 vykony(f.session,
                          {"101....................5060", "210....................1019"});
    vykony.FormShow("");
    v_okne([](QWidget& okno) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_FALSE(okno.isVisible());
    });
    f.obsluha.ukaz_modalne(vykony);
    EXPECT_EQ(vykony.zvoleny, "210");

    wages::TForm90 davky(
        f.session,
        wages::text_davky(
            {wages::DruhDavky::nemoc, 1, "0101", "0801", 500, {3, 5, 0, 0}, {0, 200, 0, 0}, 0}));
    davky.FormShow();
    v_okne([](QWidget& okno) {
        EXPECT_EQ(QApplication::focusWidget()->objectName(), "scKcDenne1");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        napis(okno, "scKcDenne2", "25x0");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_EQ(prvek<QLabel>(okno, "lbCelkem").text(), "Celkem  1250,00 Kč");
        zkratka(okno, Qt::Key_F2);
    });
    f.obsluha.ukaz_modalne(davky);
    EXPECT_EQ(davky.celkem, 1250);
}

}  // namespace
