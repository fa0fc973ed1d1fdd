// Columns of the pay sheet changed on the keyboard: the list and the editor of one column.
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTableView>
#include <gtest/gtest.h>

#include "firma_v_oknech.h"
#include "paysheet/sloupce.h"

namespace {

using namespace zkouska;

/// Opens the list from the main form and the editor of column `sloupec`; `po_navratu` sees the
/// list again.
void oprav(FirmaVOknech& f, int sloupec, std::function<void(QWidget& okno)> prace,
           std::function<void(QWidget& seznam)> po_navratu = {}) {
    v_okne([=](QWidget& seznam) {
        auto& mrizka = prvek<QTableView>(seznam, "mrizka");
        for (int i = 1; i < sloupec; ++i)
            QTest::keyClick(&mrizka, Qt::Key_Down);
        v_okne(prace);
        zkratka(seznam, Qt::Key_F2);
        if (po_navratu) po_navratu(seznam);
        QTest::keyClick(&seznam, Qt::Key_Escape);
    });
    f.form.acNastaveniVLExecute();
}

/// Overwrites the field that has the focus and goes on by Enter.
void napis(const char* text) {
    QWidget* pole = QApplication::focusWidget();
    ASSERT_NE(qobject_cast<QLineEdit*>(pole), nullptr);
    QTest::keyClick(pole, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(pole, Qt::Key_Delete);
    for (const QChar znak : desktop::do_qt(text)) {
        // QTest's own keys are ASCII only.
        QKeyEvent stisk(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, QString(znak));
        QApplication::sendEvent(pole, &stisk);
    }
    QTest::keyClick(pole, Qt::Key_Return);
}

TEST(OknoSloupce, NapsanyTextIHodnotaSeUloziASeznamJeUkaze) {
    FirmaVOknech f;
    oprav(
        f, 2,
        [](QWidget& okno) {
            EXPECT_EQ(prvek<QLabel>(okno, "sloupec").text(), "2");
            EXPECT_FALSE(prvek<QLineEdit>(okno, "Min_1").isEnabled());
            prvek<QLineEdit>(okno, "text").setFocus();
            napis("úkolová mzda");
            auto& vypocet = prvek<QComboBox>(okno, "scVypocet");
            EXPECT_EQ(vypocet.currentIndex(), -1);
            vypocet.setFocus();
            QTest::keyClick(&vypocet, Qt::Key_Home);
            prvek<QCheckBox>(okno, "scVykon").click();
            prvek<QLineEdit>(okno, "nadpis_1").setFocus();
            napis("kusů");
            // Enter walks through the fields that the caption has opened.
            for (const char* hodnota : {"12", "-5", "99", "2,25"})
                napis(hodnota);
            zkratka(okno, Qt::Key_F2);
        },
        [](QWidget& seznam) {
            const auto radek = prvek<QTableView>(seznam, "mrizka").currentIndex();
            EXPECT_EQ(radek.siblingAtColumn(3).data().toString(), "úkolová mzda");
            EXPECT_EQ(prvek<QLabel>(seznam, "nadpis_1").text(), "kusů");
            EXPECT_EQ(prvek<QLabel>(seznam, "standardne_1").text(), "2,25");
            EXPECT_EQ(prvek<QLabel>(seznam, "min_2").text(), "...");
            EXPECT_EQ(prvek<QLabel>(seznam, "vypocet").text(), "dosadit hodnotu 1");
            EXPECT_EQ(prvek<QLabel>(seznam, "vykon").text(), "ANO");
        });
    EXPECT_EQ(paysheet::sloupec_slovy(f.session, 2), "úkolová mzda");
    EXPECT_EQ(f.firma.vypis("SELECT nadpis_1, predrazeno_1, Min_1, Max_1, Konstanta_1, var_vyp, "
                            "Vykon, Stroj FROM Ridici WHERE Sloupec = 2"),
              "kusů|12|-5|99|2.25|1|true|false\n");
}

TEST(OknoSloupce, SpatnePredrazeniSeOdmitneAFokusJeUNeho) {
    FirmaVOknech f;
    const std::string puvodni = f.firma.vypis("SELECT * FROM Ridici");
    oprav(f, 1, [](QWidget& okno) {
        prvek<QLineEdit>(okno, "nadpis_2").setFocus();
        napis("hodin");
        napis("13");
        v_okne([](QWidget& zprava) {
            EXPECT_EQ(dynamic_cast<QMessageBox&>(zprava).text(),
                      "Údaj \"předřadit\" u \"druhé hodnoty\" neodpovídá.");
            QTest::keyClick(&zprava, Qt::Key_Return);
        });
        zkratka(okno, Qt::Key_F2);
        EXPECT_EQ(okno.focusWidget(), &prvek<QWidget>(okno, "predrazeno_2"));
        okno.activateWindow();
        ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &okno; }));
        napis("12");
        zkratka(okno, Qt::Key_F2);
        EXPECT_TRUE(okno.isVisible()) << "bez výpočtu se neukládá";
        // A caption emptied and stored at once takes its value's fields with it.
        auto& nadpis = prvek<QLineEdit>(okno, "nadpis_2");
        nadpis.setFocus();
        QTest::keyClick(&nadpis, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&nadpis, Qt::Key_Delete);
        zkratka(okno, Qt::Key_F2);
        EXPECT_EQ(prvek<QLineEdit>(okno, "predrazeno_2").text(), "");
        QTest::keyClick(&okno, Qt::Key_Escape);
    });
    EXPECT_EQ(f.firma.vypis("SELECT * FROM Ridici"), puvodni);
}

TEST(OknoSloupce, PanelyUkazujiCoPatriKModulu) {
    FirmaVOknech f;
    struct Ocekavani {
        int sloupec;
        bool hodnoty, znacky, text;
    };
    for (const Ocekavani& o : {Ocekavani{1, true, false, true},
                               {3, false, false, true},
                               {6, false, false, false},
                               {13, false, true, true}}) {
        SCOPED_TRACE(o.sloupec);
        oprav(
            f, o.sloupec,
            [o](QWidget& okno) {
                EXPECT_EQ(prvek<QLineEdit>(okno, "text").isEnabled(), o.text);
                EXPECT_EQ(prvek<QWidget>(okno, "detail").isVisible(), o.hodnoty);
                QTest::keyClick(&okno, Qt::Key_Escape);
            },
            [o](QWidget& seznam) {
                EXPECT_EQ(prvek<QWidget>(seznam, "panel_hodnot").isVisible(), o.hodnoty);
                EXPECT_EQ(prvek<QWidget>(seznam, "panel_znacek").isVisible(), o.znacky);
                EXPECT_EQ(prvek<QLabel>(seznam, "modul_1").text(), "1 až 2");
            });
    }
}

}  // namespace
