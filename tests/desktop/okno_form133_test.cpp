// The pay-sheet browser worked by keys, up to a blocked value that changes the next pay run.
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <gtest/gtest.h>

#include "desktop/okno_form1.h"
#include "firma_v_oknech.h"
#include "payrun/unit133_prohlizeni_mezd.h"

namespace {

using namespace zkouska;

struct Prohlizeni : FirmaVOknech {
    Prohlizeni() { vypocti(); }
    /// The pay run of January by keys; `po_vypoctu` looks at its results.
    void vypocti(std::function<void(QWidget& okno)> po_vypoctu = {}) {
        const auto vypocet = [=](QWidget& okno) { proved_vypocet(okno, po_vypoctu); };
        if (je_listina()) {
            v_okne([=](QWidget& otazka) {
                v_okne(vypocet);
                QTest::keyClick(&otazka, Qt::Key_A, Qt::AltModifier);
            });
        } else {
            v_okne(vypocet);
        }
        EXPECT_TRUE(form.acVypocetVyplatExecute());
    }
    static void proved_vypocet(QWidget& okno, const std::function<void(QWidget&)>& po_vypoctu) {
        zkratka(okno, Qt::Key_F2);
        EXPECT_TRUE(prvek<QWidget>(okno, "vysledky").isVisible());
        if (po_vypoctu) po_vypoctu(okno);
        QTest::keyClick(&okno, Qt::Key_Escape);
    }
    /// The browser of January, worked by the operator in its window.
    void ukaz(std::function<void(QWidget& okno)> prace) {
        payrun::TForm133 prohlizeni(session, 1);
        prohlizeni.FormShow();
        v_okne(std::move(prace));
        obsluha.ukaz_modalne(prohlizeni);
    }
};

void zkratka_ctrl(QWidget& okno, Qt::Key klavesa) {
    QTest::keyClick(okno.focusWidget() ? okno.focusWidget() : &okno, klavesa, Qt::ControlModifier);
    QTest::qWait(200);
}

QString mezery(const char* castka) {
    return QString::fromUtf8(castka).replace(' ', QChar(0x00a0));
}

QTreeWidget& strom(QWidget& okno) {
    auto& pohled = prvek<QTreeWidget>(okno, "vysvetleni");
    EXPECT_TRUE(QTest::qWaitFor([&] { return pohled.topLevelItemCount() > 0; }));
    return pohled;
}

/// Text of the current row's cell.
QString bunka(QWidget& okno, const char* tabulka, int sloupec) {
    return prvek<QTableView>(okno, tabulka)
        .currentIndex()
        .siblingAtColumn(sloupec)
        .data()
        .toString();
}

TEST(OknoProhlizeni, KlavesyVedouOdPracovnikaPresRadekKVysvetleni) {
    Prohlizeni f;
    f.ukaz([](QWidget& okno) {
        EXPECT_EQ(okno.focusWidget()->objectName(), "pracovnici");
        EXPECT_EQ(prvek<QLabel>(okno, "pracovnik").text(), "1  Adamová Jana");
        EXPECT_EQ(bunka(okno, "radky", 2), "k výplatě");
        EXPECT_EQ(strom(okno).topLevelItem(0)->text(0), "k výplatě");
        QTest::keyClick(okno.focusWidget(), Qt::Key_Down);
        EXPECT_EQ(prvek<QLabel>(okno, "pracovnik").text(), "2  Beneš Petr");
        EXPECT_EQ(prvek<QLabel>(okno, "hruba_pracovnika").text(), mezery("40 000,00"));
        QTest::keyClick(&okno, Qt::Key_F10);
        EXPECT_EQ(okno.focusWidget()->objectName(), "radky");
        QTest::keyClick(okno.focusWidget(), Qt::Key_Home, Qt::ControlModifier);
        EXPECT_EQ(bunka(okno, "radky", 0), "1");
        QTest::keyClick(&okno, Qt::Key_F11);
        EXPECT_EQ(okno.focusWidget()->objectName(), "vysvetleni");
        QTreeWidgetItem* koren = strom(okno).topLevelItem(0);
        EXPECT_EQ(koren->text(1), mezery("40 000"));
        EXPECT_GT(koren->childCount(), 0);
        QTest::keyClick(okno.focusWidget(), Qt::Key_Left);
        EXPECT_FALSE(koren->isExpanded());
        zkratka_ctrl(okno, Qt::Key_C);
        EXPECT_NE(QGuiApplication::clipboard()->text().indexOf("Hrube01.Kc_cel"), -1);
        QTest::keyClick(&okno, Qt::Key_F9);
        zkratka_ctrl(okno, Qt::Key_C);
        EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith("Číslo\tPříjmení\tJméno\t"));
        QTest::keyClick(&okno, Qt::Key_Escape);
    });
}

TEST(OknoProhlizeni, FiltrVybiraPriPsaniAVRozbalenemStromuSeRozepiseIOpakovanyKrok) {
    Prohlizeni f;
    f.ukaz([](QWidget& okno) {
        auto& filtr = prvek<QLineEdit>(okno, "filtr");
        filtr.setFocus();
        QTest::keyClicks(&filtr, "ivo");
        EXPECT_EQ(prvek<QTableView>(okno, "pracovnici").model()->rowCount(), 1);
        EXPECT_EQ(prvek<QLabel>(okno, "pracovnik").text(), "3  Černý Ivo");
        EXPECT_EQ(prvek<QLabel>(okno, "hruba_vsech").text(), mezery("50 000,00"));
        strom(okno).expandAll();
        QTreeWidgetItem* znovu = nullptr;
        for (QTreeWidgetItemIterator it(&strom(okno)); *it; ++it) {
            if ((*it)->text(2).endsWith("rozepsáno výše") &&
                (*it)->childIndicatorPolicy() == QTreeWidgetItem::ShowIndicator)
                znovu = *it;
        }
        ASSERT_NE(znovu, nullptr);
        EXPECT_GT(znovu->childCount(), 0);
        klikni(okno, "btX");
        EXPECT_EQ(prvek<QTableView>(okno, "pracovnici").model()->rowCount(), 3);
        EXPECT_EQ(prvek<QLabel>(okno, "pracovnik").text(), "3  Černý Ivo");
        QTest::keyClick(&okno, Qt::Key_Escape);
    });
}

TEST(OknoProhlizeni, BlokovanaHodnotaZProhlizeniZmeniPristiVypocet) {
    Prohlizeni f;
    const std::string pred =
        f.firma.vypis("SELECT Hodnota FROM Listin01 WHERE Cislo_pracovnika = 2 AND Modul = 14");
    f.firma.session.zavri_spojeni();
    f.ukaz([](QWidget& okno) {
        strom(okno);
        QTest::keyClick(okno.focusWidget(), Qt::Key_Down);
        v_okne([](QWidget& seznam) {
            EXPECT_EQ(seznam.objectName(), "TForm50");
            v_okne([](QWidget& veta) {
                QTest::keyClicks(QApplication::focusWidget(), "2");
                auto& socialni = prvek<QLineEdit>(veta, "socialni_abs");
                socialni.setFocus();
                QTest::keyClicks(&socialni, "1000");
                zkratka(veta, Qt::Key_F2);
            });
            zkratka(seznam, Qt::Key_Insert);
            QTest::keyClick(&seznam, Qt::Key_Escape);
        });
        zkratka(okno, Qt::Key_F7);
        auto& rozdil = prvek<QLabel>(okno, "rozdil");
        EXPECT_TRUE(QTest::qWaitFor([&] { return rozdil.isVisible(); }));
        EXPECT_TRUE(rozdil.text().startsWith("Karta nebo zadání se od výpočtu změnily: "))
            << rozdil.text().toStdString();
        QTest::keyClick(&okno, Qt::Key_Escape);
    });
    f.vypocti([](QWidget& vypocet) {
        v_okne([](QWidget& okno) {
            EXPECT_EQ(okno.objectName(), "TForm133");
            QTest::keyClick(&okno, Qt::Key_Escape);
        });
        zkratka_ctrl(vypocet, Qt::Key_P);
    });
    const std::string po =
        f.firma.vypis("SELECT Hodnota FROM Listin01 WHERE Cislo_pracovnika = 2 AND Modul = 14");
    // 6.5 % of 40000 is 2600; now 1000 is taken.
    EXPECT_EQ(std::stoi(po), std::stoi(pred) + 1600);
    EXPECT_EQ(
        f.firma
            .vypis(
                "SELECT Hodnota, Poznamka FROM Listin01 WHERE Cislo_pracovnika = 2 AND Modul = 7")
            .substr(0, 5),
        "1000|");
}

TEST(OknoProhlizeni, MesicNaPrehleduRokuSeOtevreEnteremIDvojimKlepnutim) {
    Prohlizeni f;
    desktop::OknoForm1 hlavni(f.form, f.session);
    hlavni.otevri();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&hlavni));
    auto& rok = prvek<QWidget>(hlavni, "rok");
    rok.setFocus();
    QTest::keyClick(&rok, Qt::Key_Right);
    EXPECT_EQ(f.form.mesic, 2);
    QTest::keyClick(&rok, Qt::Key_Left);
    QString otevrene;
    const auto ocekavej = [&] {
        v_okne([&](QWidget& okno) {
            otevrene = okno.windowTitle();
            QTest::keyClick(&okno, Qt::Key_Escape);
        });
    };
    ocekavej();
    QTest::keyClick(&rok, Qt::Key_Return);
    EXPECT_EQ(otevrene, "Prohlížení mezd - leden  2022");
    prvek<QSpinBox>(hlavni, "mesic").setValue(5);
    otevrene.clear();
    ocekavej();
    QTest::mouseDClick(&rok, Qt::LeftButton, {}, {rok.width() / 8, rok.height() / 2});
    EXPECT_EQ(otevrene, "Prohlížení mezd - leden  2022");
}

}  // namespace
