// The register of workers worked by keys.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <fmt/format.h>
#include <gtest/gtest.h>

#include "firma_v_oknech.h"
#include "store/table.h"
#include "workers/unit6_registr.h"

namespace {

using namespace zkouska;

struct Registr : FirmaVOknech {
    Registr() {
        firma.vloz("Os_karty", "Cislo,Prijmeni,Jmeno,Zam_do\n14,Bývalý,Karel,31.1.2022\n");
        firma.vloz("Deti",
                   "Cislo_pracovnika,Jmeno,Prijmeni,Odpocitatelna_dan\n14,Ota,Bývalý,1267\n"
                   "14,Iva,Bývalá,1617\n");
        firma.session.zavri_spojeni();
    }
    /// The register, worked by the operator in its window.
    void ukaz(std::function<void(QWidget& okno)> prace) {
        workers::TForm6 form6(session, nullptr);
        form6.FormShow();
        v_okne(std::move(prace));
        obsluha.ukaz_modalne(form6);
    }
};

QTableView& tabulka(QWidget& okno, const char* jmeno = "mrizka") {
    return prvek<QTableView>(okno, jmeno);
}

QString bunka(QWidget& okno, int sloupec, const char* jmeno = "mrizka") {
    return tabulka(okno, jmeno).currentIndex().siblingAtColumn(sloupec).data().toString();
}

int radku(QWidget& okno, const char* jmeno = "mrizka") {
    return tabulka(okno, jmeno).model()->rowCount();
}

/// Answers the question that comes next; `potom` works the window that comes after it.
void odpovez(const char* otazka, const char* tlacitko,
             const std::function<void(QWidget&)>& potom = {}) {
    v_okne([=](QWidget& okno) {
        EXPECT_EQ(okno.property("text").toString(), otazka);
        if (potom) v_okne(potom);
        for (auto* volba : okno.findChildren<QAbstractButton*>())
            if (volba->text() == tlacitko) volba->click();
    });
}

TEST(OknoRegistru, PsaniVSeznamuFiltrujeAEnterVraciDoSeznamu) {
    Registr r;
    r.ukaz([](QWidget& okno) {
        EXPECT_EQ(okno.focusWidget(), &tabulka(okno));
        EXPECT_EQ(radku(okno), 4);
        QTest::keyClick(&tabulka(okno), 'b');
        EXPECT_EQ(okno.focusWidget(), &prvek<QLineEdit>(okno, "edJmeno"));
        QTest::keyClicks(okno.focusWidget(), "en");
        EXPECT_EQ(prvek<QLineEdit>(okno, "edJmeno").text(), "ben");
        EXPECT_EQ(bunka(okno, 1), "Beneš");
        EXPECT_EQ(prvek<QLabel>(okno, "pocet").text(), "Zobrazeno 1 z 4");
        QTest::keyClick(okno.focusWidget(), Qt::Key_Return);
        EXPECT_EQ(okno.focusWidget(), &tabulka(okno));
        klikni(okno, "acVse");
        EXPECT_EQ(radku(okno), 4);
        EXPECT_EQ(bunka(okno, 1), "Beneš") << "kurzor zůstal na pracovníkovi";
        tabulka(okno).setFocus();
        QTest::keyClick(&tabulka(okno), '1');
        QTest::keyClick(okno.focusWidget(), '4');
        EXPECT_EQ(bunka(okno, 1), "Bývalý");
        QTest::keyClick(okno.focusWidget(), 'x');
        EXPECT_EQ(bunka(okno, 1), "Bývalý") << "seznam zůstal";
        EXPECT_NE(prvek<QLabel>(okno, "chyba_filtru").text(), "");
        QTest::keyClick(&okno, Qt::Key_Escape);
    });
}

TEST(OknoRegistru, PracovnikPodKurzoremZustaneVidet) {
    Registr r;
    std::string karty = "Cislo,Prijmeni,Jmeno\n";
    for (int cislo = 100; cislo < 300; ++cislo)
        karty += fmt::format("{},Řada{},Jan\n", cislo, cislo);
    r.firma.vloz("Os_karty", karty);
    r.firma.session.zavri_spojeni();
    r.ukaz([](QWidget& okno) {
        QTest::keyClicks(&prvek<QLineEdit>(okno, "edCislo"), "250");
        EXPECT_EQ(radku(okno), 1);
        klikni(okno, "acVse");
        EXPECT_EQ(radku(okno), 204);
        EXPECT_EQ(bunka(okno, 0), "250");
        const QRect misto = tabulka(okno).visualRect(tabulka(okno).currentIndex());
        EXPECT_TRUE(tabulka(okno).viewport()->rect().contains(misto));
        QTest::keyClick(&okno, Qt::Key_Escape);
    });
}

TEST(OknoRegistru, ZaskrtnutiStrankyAHlediskaZKlavesnice) {
    Registr r;
    r.ukaz([](QWidget& okno) {
        auto& stranky = prvek<QTabWidget>(okno, "stranky");
        QTest::keyClick(&okno, Qt::Key_D, Qt::AltModifier);
        QTest::qWait(200);
        EXPECT_TRUE(prvek<QCheckBox>(okno, "scMajiDeti").isChecked());
        EXPECT_EQ(stranky.currentIndex(), 1);
        EXPECT_EQ(radku(okno), 1);
        EXPECT_EQ(radku(okno, "mrizka_deti"), 2);
        EXPECT_EQ(prvek<QLabel>(okno, "suma_odpocitatelnych").text(), "Zvýhodnění celkem: 2884 Kč");
        const QVariant barva = tabulka(okno).model()->index(0, 0).data(Qt::ForegroundRole);
        EXPECT_TRUE(barva.isValid()) << "bývalý pracovník je kreslen jinak";
        for (const int cekana : {2, 3, 4, 0}) {
            QTest::keyClick(&okno, Qt::Key_Tab, Qt::ControlModifier);
            EXPECT_EQ(stranky.currentIndex(), cekana);
        }
        auto& hodnota = prvek<QLineEdit>(okno, "edVolitelne2");
        EXPECT_FALSE(hodnota.isVisible());
        auto& hledisko = prvek<QComboBox>(okno, "cbVolitelne2");
        hledisko.setCurrentIndex(3);
        emit hledisko.activated(3);
        EXPECT_TRUE(hodnota.isVisible());
        EXPECT_EQ(okno.focusWidget(), &hodnota);
        QTest::keyClick(&okno, Qt::Key_Escape);
    });
}

TEST(OknoRegistru, DeletePatriSeznamuVeKteremJeFokus) {
    Registr r;
    r.ukaz([](QWidget& okno) {
        tabulka(okno).selectRow(3);
        prvek<QTabWidget>(okno, "stranky").setCurrentIndex(1);
        tabulka(okno, "mrizka_deti").setFocus();
        odpovez("Smazat záznam?", "&Ano");
        QTest::keyClick(&tabulka(okno, "mrizka_deti"), Qt::Key_Delete);
        EXPECT_EQ(radku(okno, "mrizka_deti"), 1);
        EXPECT_EQ(okno.focusWidget(), &tabulka(okno, "mrizka_deti"));
        odpovez("Opravdu chcete vypustit označeného pracovníka?", "&Ne");
        QTest::keyClick(&tabulka(okno), Qt::Key_Delete);
        EXPECT_EQ(radku(okno), 4);
        odpovez("Opravdu chcete vypustit označeného pracovníka?", "&Ano", [](QWidget& varovani) {
            EXPECT_TRUE(varovani.property("text").toString().startsWith("POZOR:"));
            QTest::keyClick(&varovani, Qt::Key_Return);
        });
        QTest::keyClick(&tabulka(okno), Qt::Key_Delete);
        EXPECT_EQ(radku(okno), 3);
        EXPECT_EQ(bunka(okno, 1), "Černý") << "soused";
        QTest::keyClick(&okno, Qt::Key_Escape);
    });
    EXPECT_EQ(r.firma.vypis("SELECT COUNT(*) AS P FROM Deti"), "0\n");
}

}  // namespace
