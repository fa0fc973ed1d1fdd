// A pay run worked in its window.
#include <QCheckBox>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QTableView>
#include <gtest/gtest.h>

#include "firma_v_oknech.h"

namespace {

using namespace zkouska;

TEST(OknoVypoctu, VypocetUkazeVysledkyAListinaStoji) {
    FirmaVOknech f;
    v_okne([](QWidget& okno) {
        EXPECT_EQ(prvek<QLabel>(okno, "scMesic").text(), "leden  2022");
        EXPECT_FALSE(prvek<QPushButton>(okno, "Button3").isVisible());
        klikni(okno, "Button2");
        EXPECT_TRUE(prvek<QWidget>(okno, "vysledky").isVisible());
        EXPECT_FALSE(prvek<QListWidget>(okno, "scChyby").isVisible());
        bool hrube = false, organizace = false;
        for (const QLabel* popisek : okno.findChildren<QLabel*>()) {
            hrube |= popisek->text() == "120000.00" && popisek->isVisible();
            organizace |= popisek->text() == "Sociální pojištění:" && popisek->isVisible();
        }
        EXPECT_TRUE(hrube);
        EXPECT_FALSE(organizace) << "odvody organizace jsou nejdříve skryté";
        prvek<QCheckBox>(okno, "organizace_viditelna").click();
        QTest::keyClick(&okno, Qt::Key_Escape);
    });
    EXPECT_TRUE(f.form.acVypocetVyplatExecute());
    EXPECT_TRUE(f.je_listina());
}

TEST(OknoVypoctu, PreruseniMeziDvemaPracovnikyListinuZrusi) {
    FirmaVOknech f;
    QString kdo_se_pocital;
    v_okne([&](QWidget& okno) {
        // Runs when the run lets events in for the first time.
        QTimer::singleShot(0, &okno, [&] {
            kdo_se_pocital = prvek<QLabel>(okno, "prubeh").text();
            EXPECT_EQ(prvek<QProgressBar>(okno, "ProgressBar1").maximum(), 3);
            EXPECT_FALSE(prvek<QPushButton>(okno, "Button1").isEnabled());
            QTest::keyClick(&okno, Qt::Key_Escape);
            EXPECT_TRUE(okno.isVisible()) << "běžící výpočet se zavřením neopustí";
            klikni(okno, "Button3");
        });
        klikni(okno, "Button2");
        EXPECT_FALSE(okno.isVisible());
    });
    EXPECT_TRUE(f.form.acVypocetVyplatExecute());
    EXPECT_EQ(kdo_se_pocital, "A: Pracovník 1");
    EXPECT_FALSE(f.je_listina());
}

TEST(OknoVypoctu, ZapornaVyplataSeProhlizi) {
    FirmaVOknech f("3,13,90000\n");
    v_okne([](QWidget& okno) {
        klikni(okno, "Button2");
        EXPECT_TRUE(prvek<QLabel>(okno, "nelze_pokracovat").isVisible());
        EXPECT_EQ(prvek<QListWidget>(okno, "scChyby").count(), 1);
        v_okne([](QWidget& prohlizeni) {
            EXPECT_EQ(prohlizeni.windowTitle(), "PROHLÍŽÍME  ZÁPORNÉ  VÝPLATY");
            EXPECT_GT(prvek<QTableView>(prohlizeni, "vety").model()->rowCount(), 0);
            QTest::keyClick(&prohlizeni, Qt::Key_Escape);
        });
        klikni(okno, "BitBtn1");
        QTest::keyClick(&okno, Qt::Key_Escape);
    });
    EXPECT_TRUE(f.form.acVypocetVyplatExecute());
    EXPECT_FALSE(f.je_listina());
}

}  // namespace
