// The worker's card worked by keys: a new worker from nothing to saved, messages that lead to their
// fields, calendars, the picker of workers, the progress of the cascade.
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <gtest/gtest.h>

#include "firma_v_oknech.h"
#include "workers/unit7_karta.h"

namespace {

using namespace zkouska;

struct KartaVOkne : FirmaVOknech {
    KartaVOkne() {
        firma.vloz("Zdr_poj", "Cislo,Nazev,Kod_zp\n1,Všeobecná,111\n51,Fond,\n");
        firma.session.zavri_spojeni();
    }
    /// The card of that `Pocitadlo` (0 a new one), worked by the operator in its window.
    void ukaz(std::int64_t pocitadlo, std::function<void(QWidget& okno)> prace) {
        workers::TForm7 karta(session,
                              [](shell::Session&) -> std::optional<workers::ZvolenyKalendar> {
                                  return workers::ZvolenyKalendar{4, 2022, "Ranní"};
                              });
        pocitadlo == 0 ? karta.acPridatExecute() : karta.acOpravitExecute(pocitadlo);
        karta.FormShow();
        v_okne(std::move(prace));
        obsluha.ukaz_modalne(karta);
    }
};

std::string fokus() {
    return desktop::z_qt(QApplication::focusWidget()->objectName());
}

/// Texts typed one after another, each into the field to which Enter has led.
void pis(std::initializer_list<const char*> texty) {
    for (const char* text : texty) {
        QTest::keyClicks(QApplication::focusWidget(), text);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }
}

QStringList zpravy(QWidget& okno) {
    auto& seznam = prvek<QListWidget>(okno, "chyby");
    QStringList texty;
    for (int i = 0; seznam.isVisible() && i < seznam.count(); ++i)
        texty += seznam.item(i)->text();
    return texty;
}

QString text(QWidget& okno, const char* pole) {
    return prvek<QLineEdit>(okno, pole).text();
}

TEST(OknoKarty, NovyPracovnikOdPrazdneKartyPoUlozeniJenKlavesami) {
    KartaVOkne f;
    f.ukaz(0, [](QWidget& okno) {
        EXPECT_EQ(okno.windowTitle(), "Nový záznam");
        EXPECT_EQ(fokus(), "Cislo");
        pis({"x15", "", "Josef", "Horak", "Ing.", "", "71-05-14/1010", "14,5,1971", "Brno"});
        EXPECT_EQ(okno.windowTitle(), "15 - Ing. Josef Horak");
        EXPECT_EQ(text(okno, "Cislo"), "15");
        EXPECT_EQ(text(okno, "Dat_nar_text"), "14.5.1971");
        EXPECT_EQ(prvek<QComboBox>(okno, "CSSZ102").currentText(), "Muž");
        pis({"", "", "", "", "28000"});
        EXPECT_EQ(fokus(), "Os_oh_1");
        EXPECT_EQ(zpravy(okno), QStringList{"2 Chybí číslo zdr. poj."});
        EXPECT_FALSE(prvek<QPushButton>(okno, "acUlozit").isEnabled());

        prvek<QTabWidget>(okno, "stranky").setCurrentIndex(1);
        prvek<QCheckBox>(okno, "Duchodce").setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_EQ(fokus(), "Student");
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_EQ(fokus(), "Osamela_osoba");

        prvek<QTabWidget>(okno, "stranky").setCurrentIndex(0);
        zkratka(okno, Qt::Key_F6);
        EXPECT_EQ(prvek<QTabWidget>(okno, "stranky").currentIndex(), 1);
        EXPECT_EQ(fokus(), "Cislo_zdrav_poj");
        QTest::keyClicks(QApplication::focusWidget(), "1");
        // Stored from inside the field that was just mended.
        zkratka(okno, Qt::Key_F2);
    });
    EXPECT_EQ(f.firma.vypis("SELECT Jmeno, Prijmeni, Titul, Rodne_cislo, Dat_nar_text, "
                            "Misto_narozeni, Staly_plat, tpd, Cislo_zdrav_poj, CSSZ102, "
                            "Odp_poplatnik, Duchodce, Student FROM Os_karty WHERE Cislo = 15"),
              "Josef|Horak|Ing.|71-05-14/1010|14.5.1971|Brno|28000|40|1|M|2570|true|false\n");
}

TEST(OknoKarty, ZpravyANapovedyVedouNaUdajKlepnutimIEnterem) {
    KartaVOkne f;
    f.ukaz(1, [](QWidget& okno) {
        auto& seznam = prvek<QListWidget>(okno, "chyby");
        EXPECT_EQ(zpravy(okno),
                  (QStringList{"Chybné datum narození.", "1 Chybí týdenní prac. doba.",
                               "2 Chybí číslo zdr. poj."}));
        QTest::mouseClick(seznam.viewport(), Qt::LeftButton, {},
                          seznam.visualItemRect(seznam.item(1)).center());
        EXPECT_EQ(fokus(), "tpd");
        QTest::keyClicks(QApplication::focusWidget(), "40");
        prvek<QTabWidget>(okno, "stranky").setCurrentIndex(1);
        prvek<QLineEdit>(okno, "Kdo_plati_dan").setFocus();
        QTest::keyClicks(QApplication::focusWidget(), "77");
        seznam.setFocus();
        ASSERT_EQ(seznam.count(), 3);
        EXPECT_EQ(seznam.item(2)->text(), "Pracovník 77, který má mzdu zdaňovat, neexistuje.");
        EXPECT_NE(seznam.item(2)->foreground(), seznam.item(1)->foreground());
        seznam.setCurrentRow(0);
        QTest::keyClick(&seznam, Qt::Key_Return);
        EXPECT_EQ(fokus(), "Dat_nar_text");
        QTest::keyClick(&okno, Qt::Key_Escape);
    });
    EXPECT_EQ(f.firma.vypis("SELECT tpd, Kdo_plati_dan FROM Os_karty WHERE Cislo = 1"), "|\n");
}

TEST(OknoKarty, KalendarKlavesouInsertAPlatceDaneZeSeznamu) {
    KartaVOkne f;
    f.ukaz(1, [](QWidget& okno) {
        auto& kalendar = prvek<QLineEdit>(okno, "Id_rpd");
        kalendar.setFocus();
        QTest::keyClick(&kalendar, Qt::Key_Insert);
        EXPECT_EQ(kalendar.text(), "2022  (Ranní)");
        klikni(okno, "btRpdX");
        EXPECT_EQ(kalendar.text(), "vyberte klepnutím zde");
        QTest::mouseClick(&kalendar, Qt::LeftButton);
        EXPECT_EQ(kalendar.text(), "2022  (Ranní)");

        prvek<QTabWidget>(okno, "stranky").setCurrentIndex(1);
        v_okne([](QWidget& vyber) {
            QTest::keyClicks(QApplication::focusWidget(), "r");
            EXPECT_EQ(prvek<QTableView>(vyber, "pracovnici").model()->rowCount(), 2);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        });
        klikni(okno, "btKdoPlatiDan");
        EXPECT_EQ(text(okno, "Kdo_plati_dan"), "3");
        EXPECT_EQ(prvek<QLabel>(okno, "jmeno_platce_dane").text(), "Černý Ivo");
        okno.activateWindow();
        EXPECT_TRUE(QTest::qWaitFor([&okno] { return QApplication::activeWindow() == &okno; }));

        auto& sazba = prvek<QLineEdit>(okno, "penz_fond_podnik_sazba");
        auto& napoveda = prvek<QWidget>(okno, "napoveda_sazby_pf");
        EXPECT_FALSE(napoveda.isVisible());
        sazba.setFocus();
        EXPECT_TRUE(napoveda.isVisible());
        prvek<QTabWidget>(okno, "stranky").setCurrentIndex(5);
        prvek<QLineEdit>(okno, "CSSZ101").setFocus();
        EXPECT_FALSE(napoveda.isVisible());
        pis({"cz"});
        EXPECT_EQ(fokus(), "CSSZ105");
        EXPECT_EQ(prvek<QLineEdit>(okno, "CSSZ105").selectedText(), "CZ");
        QTest::keyClick(&okno, Qt::Key_Escape);
    });
}

TEST(OknoKarty, PrubehOpravVOstatnichSouborechJeVidet) {
    KartaVOkne f;
    f.firma.data();
    {
        store::Transaction zmena(f.firma.data());
        f.firma.data().execute(
            "UPDATE Os_karty SET Dat_nar_text = '1.1.1980', tpd = 40, Cislo_zdrav_poj = 1");
        zmena.commit();
    }
    f.firma.session.zavri_spojeni();
    bool videno = false;
    f.ukaz(1, [&videno](QWidget& okno) {
        EXPECT_FALSE(prvek<QProgressBar>(okno, "postup").isVisible());
        prvek<QLineEdit>(okno, "Titul").setFocus();
        QTest::keyClicks(QApplication::focusWidget(), "Mgr.");
        QTimer::singleShot(0, &okno, [&] {
            videno = prvek<QProgressBar>(okno, "postup").isVisible() &&
                     prvek<QLabel>(okno, "postup_text").text().startsWith("Opravuji ");
        });
        QTest::keyClick(&okno, Qt::Key_F2);
    });
    EXPECT_TRUE(videno);
    EXPECT_EQ(f.firma.vypis("SELECT Titul FROM Os_karty WHERE Cislo = 1"), "Mgr.\n");
}

}  // namespace
