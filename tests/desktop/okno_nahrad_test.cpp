// A sickness typed into the window of gross-wage entry, and the window of its printed list.
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <gtest/gtest.h>

#include "firma_v_oknech.h"
#include "wages/kalendar.h"
#include "wages/unit17_zadani.h"

namespace {

using namespace zkouska;

/// January 2022; the first worker has a calendar of eight hours and an average.
struct Neschopnost : FirmaVOknech {
    Neschopnost() {
        std::string nazvy = "Rok,Nazev", hodnoty = "2022,K";
        const wages::RokKalendare kalendar = wages::zakladni_kalendar(2022, 480);
        for (std::size_t m = 0; m < kalendar.size(); ++m) {
            nazvy += ",Fond" + std::to_string(m + 1);
            hodnoty += "," + wages::mesic_na_text(kalendar[m]);
        }
        firma.vloz("Rpd", nazvy + "\n" + hodnoty + "\n");
        firma.vloz("Ridici", "Modul,Sloupec,text\n5,77,náhrada nemoc\n");
        store::Transaction transakce(firma.data());
        firma.data().execute("UPDATE Os_karty SET Id_rpd = 1, PdovH4min = 227.15 WHERE Cislo = 1");
        transakce.commit();
        firma.session.zavri_spojeni();
        session.zpracovavany_mesic = 1;
        session.nastaveni.NahradaNemocSloupec = 77;
    }
};

QString text(QWidget& okno, const char* jmeno) {
    return prvek<QLineEdit>(okno, jmeno).text();
}

/// Types into the field that has the focus, which has to be the one named.
void napis_a_enter(const char* jmeno, const char* text) {
    ASSERT_EQ(QApplication::focusWidget()->objectName(), jmeno);
    QTest::keyClicks(QApplication::focusWidget(), text);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
}

TEST(OknoNahrad, NeschopnostSeNapiseKlavesamiAUlozi) {
    Neschopnost f;
    wages::TForm17 form(f.session, {});
    ASSERT_TRUE(form.FormShow());
    v_okne([&](QWidget& okno) {
        while (form.zvoleny()->sloupec != 77) {
            zkratka(okno, Qt::Key_F10);
            const int pred = form.sloupec;
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
            ASSERT_NE(form.sloupec, pred) << "sloupec náhrady není v nabídce";
        }
        zkratka(okno, Qt::Key_F11);
        napis_a_enter("scCisloDokladu", "A 7");
        EXPECT_FALSE(prvek<QTreeWidget>(okno, "strom").isVisible());
        napis_a_enter("scTrvaniOd", "24,1,2022");
        napis_a_enter("scTrvaniDo", "31.1.2022");
        EXPECT_EQ(text(okno, "scDnuKalendarnich") + "/" + text(okno, "scDnuPracovnich"), "8/6");
        EXPECT_EQ(text(okno, "scFondB") + " " + text(okno, "scCelkovaNahrada"), "48:00 5888,16");
        auto& strom = prvek<QTreeWidget>(okno, "strom");
        EXPECT_TRUE(strom.isVisible());
        ASSERT_EQ(strom.topLevelItemCount(), 1);
        EXPECT_EQ(strom.topLevelItem(0)->text(0), "náhrada celkem");

        auto& hodinova = prvek<QLineEdit>(okno, "scHodNahradaB");
        hodinova.setFocus();
        QTest::keyClicks(&hodinova, "100x,5");  // over the selected text, the letter is refused
        QTest::keyClick(&hodinova, Qt::Key_Return);
        EXPECT_EQ(text(okno, "scNahradaB") + " " + text(okno, "scCelkovaNahrada"),
                  "4824,00 4824,00");
        zkratka(okno, Qt::Key_F2);
        EXPECT_EQ(text(okno, "scTrvaniOd"), "");
        EXPECT_EQ(QApplication::focusWidget()->objectName(), "scCisloDokladu");
        QTest::keyClick(&okno, Qt::Key_Escape);
    });
    f.obsluha.ukaz_modalne(form);
    f.session.zavri_spojeni();
    EXPECT_EQ(f.firma.vypis("SELECT Cislo_pracovnika, Modul, Sloupec, Dny_neod, Hod_neod, Kc_cel "
                            "FROM Hrube01 WHERE Modul = 5"),
              "1|5|77|6|48|4824\n");
    EXPECT_EQ(f.firma.vypis("SELECT Cislo_dokladu, Trvani_od, Trvani_do, Fond_B, Hod_nahrada_B, "
                            "Celkova_nahrada FROM Nahrady"),
              "A 7|2022-01-24|2022-01-31|48:00|100.5|4824\n");
    EXPECT_FALSE(form.zmeneno);
}

TEST(OknoNahrad, PrehledVedeKSestaveATiskSamNic) {
    Neschopnost f;
    wages::TForm17 form(f.session, {});
    ASSERT_TRUE(form.FormShow());
    v_okne([](QWidget& okno) {
        v_okne([](QWidget& prehled) {
            EXPECT_EQ(prehled.windowTitle(), "Přehled náhrad za pracovní neschopnost - FIRMA22");
            EXPECT_FALSE(prvek<QPushButton>(prehled, "acTisk").isEnabled());
            QTest::keyClick(&prvek<QWidget>(prehled, "mrizka"), Qt::Key_Return);  // read only
            v_okne([](QWidget& tisk) {
                auto& cislo = prvek<QLineEdit>(tisk, "cislo");
                EXPECT_FALSE(cislo.isEnabled());
                QTest::keyClick(&tisk, Qt::Key_V, Qt::AltModifier);
                QTest::qWait(200);  // the box shows itself pressed first
                EXPECT_TRUE(cislo.isEnabled());
                napis_a_enter("cislo", "2");
                EXPECT_EQ(prvek<QLabel>(tisk, "kdo").text(), "Beneš Petr");
                QTest::keyClick(&tisk, Qt::Key_Escape);
            });
            klikni(prehled, "acSestava");
            QTest::keyClick(&prehled, Qt::Key_Escape);
        });
        klikni(okno, "acNahrady");
        QTest::keyClick(&okno, Qt::Key_Escape);
    });
    f.obsluha.ukaz_modalne(form);
}

}  // namespace
