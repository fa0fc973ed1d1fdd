// A child and fixed items typed into their windows by keyboard alone.
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <gtest/gtest.h>

#include "firma_v_oknech.h"
#include "workers/unit11_fixni_polozky.h"
#include "workers/unit12_fixni_polozka.h"
#include "workers/unit13_fixni_pracovnika.h"
#include "workers/unit75_oprava_korun.h"
#include "workers/unit9_dite.h"

namespace {

using namespace zkouska;

/// Types into the field with the focus and goes on by Enter.
void napis_a_dal(QWidget& okno, const char* text) {
    for (const QChar znak : desktop::do_qt(text)) {
        QTest::sendKeyEvent(QTest::Click, okno.focusWidget(), Qt::Key_unknown, QString(znak),
                            Qt::NoModifier);
    }
    QTest::keyClick(okno.focusWidget(), Qt::Key_Return);
}

std::string fokus(const QWidget& okno) {
    return desktop::z_qt(okno.focusWidget()->objectName());
}

TEST(OknoDitete, NoveDiteNapsaneKlavesami) {
    FirmaVOknech f;
    workers::TForm9 dite(f.session, 0, 2);
    dite.FormShow();
    v_okne([](QWidget& okno) {
        EXPECT_EQ(okno.windowTitle(), "Dítě");
        EXPECT_EQ(fokus(okno), "Jmeno");
        for (const char* text : {"Eva", "Nováková", "Žďár", "15-51-02/1234567", ""})
            napis_a_dal(okno, text);
        EXPECT_EQ(prvek<QLineEdit>(okno, "Rodne_cislo").text(), "15-51-02/1234");
        EXPECT_EQ(prvek<QLineEdit>(okno, "Datum_narozeni").text(), "2.1.2015");
        EXPECT_EQ(fokus(okno), "Poradi");
        QTest::keyClick(okno.focusWidget(), Qt::Key_Up);
        EXPECT_EQ(prvek<QLabel>(okno, "zakonna_castka").text(), "podle zákona 1860 Kč");
        QTest::keyClick(okno.focusWidget(), Qt::Key_Return);
        prvek<QLineEdit>(okno, "Odpocitatelna_dan").selectAll();
        QTest::keyClicks(okno.focusWidget(), "1860");
        zkratka(okno, Qt::Key_F2);
    });
    f.obsluha.ukaz_modalne(dite);
    EXPECT_TRUE(dite.ulozeno);
    EXPECT_EQ(f.firma.vypis("SELECT Cislo_pracovnika, Prijmeni, Jmeno, Bydliste, Rodne_cislo,"
                            " Datum_narozeni, Poradi, Odpocitatelna_dan FROM Deti"),
              "2|Nováková|Eva|Žďár|15-51-02/1234|2015-01-02|2|1860\n");
}

struct FixniVOknech : FirmaVOknech {
    using FirmaVOknech::FirmaVOknech;
    std::string vypis() {
        return firma.vypis(
            "SELECT Cislo_pracovnika, Sloupec, Kcs, Ucet, Kod_banky, Variabilni,"
            " Konstantni, Specificky FROM Fixni");
    }
};

TEST(OknoFixniPolozky, SrazkaPracovnikaSUctemKteryNesouhlasi) {
    FixniVOknech f;
    workers::TForm13 polozka(f.session, 0, 2);
    polozka.FormShow();
    v_okne([](QWidget& okno) {
        EXPECT_EQ(prvek<QLabel>(okno, "jmeno_pracovnika").text(), "Beneš Petr");
        EXPECT_FALSE(prvek<QLineEdit>(okno, "Cislo_pracovnika").isEnabled());
        EXPECT_EQ(fokus(okno), "Sloupec");
        EXPECT_FALSE(prvek<QLineEdit>(okno, "Ucet").isEnabled());
        for (const char* text : {"13", "-500", "19-2000145398", "0800", "rrrrMM", "558"})
            napis_a_dal(okno, text);
        EXPECT_EQ(prvek<QLabel>(okno, "text_sloupce").text(), "ostatní srážky - sloupec 13");
        EXPECT_EQ(fokus(okno), "Specificky");
        v_okne([](QWidget& otazka) {
            EXPECT_TRUE(dynamic_cast<QMessageBox&>(otazka).text().contains("19-2000145398"));
            QTest::keyClick(&otazka, Qt::Key_Escape);
        });
        zkratka(okno, Qt::Key_F2);
        EXPECT_EQ(fokus(okno), "Ucet");
        // Shortcuts act in an active window only; a real desktop makes it so when a dialog closes.
        okno.activateWindow();
        EXPECT_TRUE(QTest::qWaitFor([&okno] { return okno.isActiveWindow(); }));
        prvek<QLineEdit>(okno, "Ucet").selectAll();
        napis_a_dal(okno, "19-2000145399");
        zkratka(okno, Qt::Key_F2);
    });
    f.obsluha.ukaz_modalne(polozka);
    EXPECT_EQ(f.vypis(), "2|13|500|19-2000145399|800|rrrrMM|558|\n");
}

TEST(OknoFixniPolozky, NaSeznamuSePridavaInsertemASpojeniSeDosadiZArchivu) {
    FixniVOknech f("3,13,100\n");
    workers::TForm11 seznam(f.session);
    seznam.FormShow();
    v_okne([](QWidget& okno) {
        EXPECT_EQ(fokus(okno), "mrizka");
        v_okne([](QWidget& veta) {
            for (const char* text : {"1", "14", "250", "35", "0100", "7", "308"})
                napis_a_dal(veta, text);
            klikni(veta, "acArchivuj");
            prvek<QLineEdit>(veta, "Ucet").clear();
            EXPECT_EQ(prvek<QListWidget>(veta, "archiv").currentRow(), 0);
            klikni(veta, "acDosad");
            EXPECT_EQ(prvek<QLineEdit>(veta, "Ucet").text(), "35");
            zkratka(veta, Qt::Key_F2);
        });
        QTest::keyClick(okno.focusWidget(), Qt::Key_Insert);
        EXPECT_EQ(prvek<QTableView>(okno, "mrizka").currentIndex().siblingAtColumn(3).data(),
                  "Adamová Jana");
        prvek<QLineEdit>(okno, "sloupec_od").setFocus();
        QTest::keyClicks(okno.focusWidget(), "14");
        EXPECT_EQ(prvek<QTableView>(okno, "mrizka").model()->rowCount(), 1);
        EXPECT_EQ(prvek<QLabel>(okno, "lbOmezeni").text(), "OMEZENÍ:  sloupce 14 až 99");
        QTest::keyClick(&okno, Qt::Key_Escape);
    });
    f.obsluha.ukaz_modalne(seznam);
    EXPECT_EQ(f.vypis(), "3|13|100|||||\n1|14|250|35|100|7|308|\n");
}

TEST(OknoOpravyKorun, PiseSeRovnouDoMrizkyAEnterJdeNaDalsiRadek) {
    FixniVOknech f("1,13,100\n2,13,200\n3,13,300\n");
    workers::TForm75 oprava(f.session, {}, workers::TrideniFixnich::sloupec_pracovnik);
    oprava.FormShow();
    v_okne([&f](QWidget& okno) {
        auto& mrizka = prvek<QTableView>(okno, "mrizka");
        EXPECT_EQ(mrizka.currentIndex().data(), "100");
        const auto prepis = [&okno](const char* text) {
            QTest::keyClicks(okno.focusWidget(), QString(text[0]));
            QTest::keyClicks(okno.focusWidget(), text + 1);
            QTest::keyClick(okno.focusWidget(), Qt::Key_Return);
        };
        prepis("1-5x0");
        EXPECT_EQ(f.vypis(), "1|13|150|||||\n2|13|200|||||\n3|13|300|||||\n") << "ukládá se hned";
        EXPECT_EQ(mrizka.currentIndex().row(), 1);
        QTest::keyClick(okno.focusWidget(), Qt::Key_Return);
        prepis("0");
        EXPECT_EQ(mrizka.currentIndex().data(), "0");
        // Only the crowns can be typed over.
        mrizka.setCurrentIndex(mrizka.model()->index(0, 1));
        QTest::keyClicks(&mrizka, "9");
        EXPECT_EQ(okno.focusWidget(), &mrizka);
        QTest::keyClick(&mrizka, Qt::Key_Escape);
    });
    f.obsluha.ukaz_modalne(oprava);
    EXPECT_TRUE(oprava.zavreno);
    EXPECT_EQ(f.vypis(), "1|13|150|||||\n2|13|200|||||\n3|13|0|||||\n");
}

}  // namespace
