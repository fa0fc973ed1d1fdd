// Gross items typed into the window of entry, from the main form and back.
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTableView>
#include <gtest/gtest.h>

#include "firma_v_oknech.h"
#include "wages/unit17_zadani.h"

namespace {

using namespace zkouska;

/// January 2022 with a pay sheet made; columns 71 (days, hours, a date, two values), 73 in kind, 74
/// quarantine.
struct ZadaniVOkne : FirmaVOknech {
    ZadaniVOkne() {
        firma.vloz(
            "Ridici",
            "Modul,Sloupec,text,Jake_dny,Jake_hodiny,Datum,nadpis_1,predrazeno_1,Min_1,Max_1,"
            "nadpis_2,predrazeno_2,Min_2,Max_2,Konstanta_2,var_vyp\n"
            "1,71,úkol,1,1,true,hodin,2,-500,500,sazba,7,0,999,150,5\n"
            "3,73,naturální,,,false,Kč,0,0,9999,,,,,,1\n"
            "4,74,karanténa,,,false,,,,,,,,,,\n");
        firma.vloz("Listin01", "Cislo_pracovnika,Modul,Hodnota\n1,14,100\n");
        store::Transaction transakce(firma.data());
        firma.data().execute("DELETE FROM Ridici WHERE Sloupec < 71");
        firma.data().execute("UPDATE Os_karty SET tpd = 40");
        transakce.commit();
        firma.session.zavri_spojeni();
    }
};

void napis_a_enter(const char* jmeno, const char* text) {
    ASSERT_EQ(QApplication::focusWidget()->objectName(), jmeno);
    QTest::keyClicks(QApplication::focusWidget(), text);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
}

void dolu() {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
}

TEST(OknoZadani, PolozkaKazdehoDruhuKlavesami) {
    ZadaniVOkne f;
    f.session.mesic_v_poli = 1;
    v_okne([&](QWidget& okno) {
        ASSERT_EQ(QApplication::focusWidget()->objectName(), "pracovnici");
        dolu();  // the second worker
        zkratka(okno, Qt::Key_F11);
        napis_a_enter("scDny", "5,x0");  // the letter is refused
        EXPECT_EQ(prvek<QLineEdit>(okno, "scHodiny").text(), "40");
        napis_a_enter("scHodiny", "");
        napis_a_enter("scDatum", "7");
        EXPECT_EQ(prvek<QLineEdit>(okno, "scDatum").text(), "0701");
        EXPECT_EQ(QApplication::focusWidget()->objectName(), "scHodnota1");
        EXPECT_EQ(prvek<QLineEdit>(okno, "scHodnota1").text(), "40");
        napis_a_enter("scHodnota1", "600");
        EXPECT_TRUE(prvek<QListWidget>(okno, "scChyby").isVisible());
        EXPECT_FALSE(prvek<QPushButton>(okno, "Button2").isEnabled());
        zkratka(okno, Qt::Key_F2);  // refused
        prvek<QLineEdit>(okno, "scHodnota1").setFocus();
        napis_a_enter("scHodnota1", "40");
        EXPECT_EQ(prvek<QLineEdit>(okno, "scHodnota2").text(), "150");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(prvek<QLabel>(okno, "lbCelkem").text(), "Celkem  6000,00 Kč");
        zkratka(okno, Qt::Key_F2);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), "pracovnici");

        zkratka(okno, Qt::Key_F10);
        dolu();
        zkratka(okno, Qt::Key_F11);
        napis_a_enter("scHodnota1", "320");
        zkratka(okno, Qt::Key_F2);

        zkratka(okno, Qt::Key_F10);
        dolu();
        zkratka(okno, Qt::Key_F11);
        ASSERT_EQ(QApplication::focusWidget()->objectName(), "scKarantena");
        QTest::keyClicks(QApplication::focusWidget(), "5180");
        zkratka(okno, Qt::Key_F2);
        v_okne([](QWidget& hlaska) { QTest::keyClick(&hlaska, Qt::Key_Return); }, nullptr);
        QTest::keyClick(&okno, Qt::Key_Escape);
    });
    EXPECT_TRUE(f.form.proved_akci("acHrubeZorvNahrady"));
    EXPECT_FALSE(f.je_listina()) << "listina změněného měsíce se maže";
    f.session.zavri_spojeni();
    EXPECT_EQ(f.firma.vypis("SELECT Cislo_pracovnika, Modul, Sloupec, Dny_od, Hod_od, Datum, Kc1, "
                            "Kc2, Kc_cel FROM Hrube01 WHERE Sloupec > 70 ORDER BY Pocitadlo"),
              "2|1|71|5|40|07.01.|40|150|6000\n"
              "2|3|73||||320||320\n"
              "2|4|74||||||5180\n");
}

TEST(OknoZadani, BezZmenyListinaZustane) {
    ZadaniVOkne f;
    v_okne([](QWidget& okno) { QTest::keyClick(&okno, Qt::Key_Escape); });
    EXPECT_TRUE(f.form.proved_akci("acHrubeZorvNahrady"));
    EXPECT_TRUE(f.je_listina());
}

}  // namespace
