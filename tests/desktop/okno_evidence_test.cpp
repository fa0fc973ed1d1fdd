// Work calendars, code lists and attendance worked on the keyboard in their windows.
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>
#include <gtest/gtest.h>

#include "firma_v_oknech.h"

namespace {

using namespace zkouska;

QTableView& mrizka(QWidget& okno) {
    return prvek<QTableView>(okno, "mrizka");
}

QString bunka(QWidget& okno, int radek, int sloupec) {
    return mrizka(okno).model()->index(radek, sloupec).data().toString();
}

/// Types into the field with the focus.
void pis(const char* text) {
    QTest::keyClicks(QApplication::focusWidget(), text);
}
void klavesa(Qt::Key klavesa) {
    QTest::keyClick(QApplication::focusWidget(), klavesa);
}

QString fokus() {
    return QApplication::focusWidget()->objectName();
}

/// After a window over this one was closed: keys and shortcuts go to the active window only.
void vrat_se(QWidget& okno) {
    okno.activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &okno; }));
}

/// The next modal window is a question with the text; Yes is pressed.
void odpovez_ano(const char* cast_textu) {
    v_okne([cast_textu](QWidget& otazka) {
        EXPECT_TRUE(dynamic_cast<QMessageBox&>(otazka).text().contains(cast_textu));
        for (auto* tlacitko : otazka.findChildren<QAbstractButton*>())
            if (tlacitko->text() == "&Ano") tlacitko->click();
    });
}

/// Opens the action's window, works in it and leaves it by Escape.
void otevri(FirmaVOknech& f, const char* akce, std::function<void(QWidget& okno)> prace) {
    v_okne([prace = std::move(prace)](QWidget& okno) {
        prace(okno);
        QTest::keyClick(&okno, Qt::Key_Escape);
    });
    f.form.proved_akci(akce);
}

TEST(OknoKalendare, NovyKalendarZapsanyEnterem) {
    FirmaVOknech f;
    otevri(f, "acPracovniKalendar", [](QWidget& okno) {
        EXPECT_FALSE(prvek<QPushButton>(okno, "acOpravit").isEnabled());
        EXPECT_FALSE(prvek<QPushButton>(okno, "acVybrat").isEnabled());
        v_okne([](QWidget& editor) {
            EXPECT_EQ(fokus(), "Nazev");
            pis("Smeny");
            auto& treti = prvek<QLineEdit>(editor, "den_3");
            treti.setFocus();
            pis("7x,30");
            // Monday the 3rd to Monday the 10th: over the weekend nothing is written.
            for (int den = 3; den < 10; ++den)
                klavesa(Qt::Key_Return);
            EXPECT_EQ(fokus(), "den_10");
            EXPECT_EQ(prvek<QLineEdit>(editor, "den_7").text(), "7:30");
            EXPECT_EQ(prvek<QLineEdit>(editor, "den_8").text(), "0:00");
            EXPECT_EQ(prvek<QLineEdit>(editor, "den_10").text(), "7:30");
            EXPECT_EQ(prvek<QLabel>(editor, "soucet_mesice").text(), "45:00");
            auto& mesice = prvek<QComboBox>(editor, "mesic");
            mesice.setFocus();
            klavesa(Qt::Key_Down);
            emit mesice.activated(mesice.currentIndex());
            EXPECT_FALSE(prvek<QLineEdit>(editor, "den_29").isVisible());
            EXPECT_TRUE(prvek<QLineEdit>(editor, "den_28").isVisible());
            EXPECT_EQ(prvek<QLabel>(editor, "soucet_mesice").text(), "0:00");
            zkratka(editor, Qt::Key_F2);
        });
        zkratka(okno, Qt::Key_Insert);
        EXPECT_EQ(bunka(okno, 0, 2) + bunka(okno, 0, 3), "Smeny45:00");
        EXPECT_EQ(okno.focusWidget(), &mrizka(okno));
    });
    EXPECT_EQ(f.firma.vypis("SELECT Rok, Nazev FROM Rpd"), "2022|Smeny\n");
}

TEST(OknoKalendare, DalsiAkceASmazaniKlavesou) {
    FirmaVOknech f;
    otevri(f, "acPracovniKalendar", [](QWidget& okno) {
        auto* nabidka = prvek<QPushButton>(okno, "dalsi_akce").menu();
        ASSERT_NE(nabidka, nullptr);
        const auto akce = nabidka->actions();
        ASSERT_EQ(akce.size(), 3);
        EXPECT_FALSE(akce[2]->isEnabled()) << "není co kopírovat";
        akce[1]->trigger();
        EXPECT_EQ(mrizka(okno).model()->rowCount(), 2);
        EXPECT_TRUE(akce[2]->isEnabled());
        odpovez_ano("Smazat vybraný záznam?");
        mrizka(okno).setFocus();
        zkratka(okno, Qt::Key_Delete);
        EXPECT_EQ(mrizka(okno).model()->rowCount(), 1);
    });
    EXPECT_EQ(f.firma.vypis("SELECT Nazev FROM Rpd"), "Základní 8:00 hodin\n");
}

TEST(OknoCiselniku, PojistovnySeNabidnouPridaSeHledaSeASmaze) {
    FirmaVOknech f;
    v_okne([](QWidget& otazka) {
        for (auto* tlacitko : otazka.findChildren<QAbstractButton*>())
            if (tlacitko->text() == "&Ano") tlacitko->click();
        v_okne(
            [](QWidget& okno) {
                EXPECT_EQ(mrizka(okno).model()->rowCount(), 7);
                v_okne([](QWidget& veta) {
                    EXPECT_EQ(fokus(), "Cislo");
                    pis("5x1");
                    klavesa(Qt::Key_Return);
                    pis("Fond");
                    zkratka(veta, Qt::Key_F2);
                });
                zkratka(okno, Qt::Key_Insert);
                EXPECT_EQ(mrizka(okno).currentIndex().row(), 7);
                v_okne([](QWidget& veta) {
                    auto& banka = prvek<QLineEdit>(veta, "Kod_banky");
                    banka.setFocus();
                    pis("0100");
                    zkratka(veta, Qt::Key_F2);
                });
                QTest::keyClick(&mrizka(okno), Qt::Key_Return);
                EXPECT_EQ(bunka(okno, 7, 3), "0100");
                vrat_se(okno);
                auto& hledat = prvek<QLineEdit>(okno, "hledat");
                QTest::keyClicks(&hledat, "zdr");
                EXPECT_EQ(mrizka(okno).model()->rowCount(), 6);
                EXPECT_EQ(prvek<QLabel>(okno, "pocet").text(), "6 z 8 položek");
                hledat.selectAll();
                QTest::keyClick(&hledat, Qt::Key_Delete);  // of the text, not of the row
                emit mrizka(okno).horizontalHeader()->sectionClicked(0);
                EXPECT_EQ(bunka(okno, 0, 0), "51");
                mrizka(okno).setFocus();
                mrizka(okno).selectRow(7);
                odpovez_ano("Smazat vybraný záznam?");
                zkratka(okno, Qt::Key_Delete);
                EXPECT_EQ(mrizka(okno).model()->rowCount(), 7);
                QTest::keyClick(&okno, Qt::Key_Escape);
            },
            nullptr);
    });
    f.form.proved_akci("acPojistovnyFondy");
    EXPECT_EQ(f.firma.vypis("SELECT Cislo, Kod_banky FROM Zdr_poj WHERE Cislo IN (1,2,51) ORDER BY "
                            "Cislo"),
              "2|\n51|100\n");
}

TEST(OknoCiselniku, StrojASazbaExternihoVstupu) {
    FirmaVOknech f;
    const struct {
        const char *akce, *prvni, *posledni, *dotaz, *vysledek;
        int poli;
    } pripady[] = {
        {"acStroje", "101", "20,505", "SELECT Stroj, Sazba FROM Stroje", "101|20.505\n", 6},
        {"acExterniVstup", "7", "Rezani", "SELECT Cislo_prace, Text FROM Vstup_ex", "7|Rezani\n",
         3}};
    for (const auto& p : pripady) {
        otevri(f, p.akce, [&p](QWidget& okno) {
            v_okne([&p](QWidget& veta) {
                pis(p.prvni);
                for (int i = 1; i < p.poli; ++i)
                    klavesa(Qt::Key_Return);
                pis(p.posledni);
                zkratka(veta, Qt::Key_F2);
            });
            zkratka(okno, Qt::Key_Insert);
        });
        f.session.zavri_spojeni();
        EXPECT_EQ(f.firma.vypis(p.dotaz), p.vysledek);
    }
}

TEST(OknoDochazky, HodinyAKodyZapsaneKlavesami) {
    FirmaVOknech f;
    otevri(f, "acEvidenceDochazky", [](QWidget& okno) {
        EXPECT_EQ(mrizka(okno).model()->columnCount(), 2 + 31 + 4);
        auto& prijmeni = prvek<QLineEdit>(okno, "prijmeni");
        prijmeni.setFocus();
        pis("bene");
        EXPECT_EQ(mrizka(okno).model()->rowCount(), 1);
        v_okne([](QWidget& list) {
            EXPECT_EQ(fokus(), "Hod1");
            EXPECT_FALSE(prvek<QGroupBox>(list, "kody").isVisible());
            klavesa(Qt::Key_Down);
            klavesa(Qt::Key_Down);
            pis("7,5");
            klavesa(Qt::Key_Return);
            EXPECT_EQ(fokus(), "Typ3");
            EXPECT_TRUE(prvek<QGroupBox>(list, "kody").isVisible());
            klavesa(Qt::Key_Down);
            pis("dn!");
            EXPECT_EQ(prvek<QLineEdit>(list, "Typ4").text(), "N");
            zkratka(list, Qt::Key_F5);
            EXPECT_EQ(prvek<QLineEdit>(list, "Suma_neodprac").text(), "30");
            zkratka(list, Qt::Key_F2);
        });
        QTest::keyClick(&mrizka(okno), Qt::Key_Return);
        EXPECT_EQ(bunka(okno, 0, 4), "7,5");
        klikni(okno, "acOdpracovanoNepritomnost");
        EXPECT_EQ(bunka(okno, 0, 5), "N");
        klikni(okno, "acVse");
        EXPECT_EQ(mrizka(okno).model()->rowCount(), 3);
    });
    EXPECT_EQ(f.firma.vypis("SELECT Cislo_pracovnika, Mesic, Hod3, Typ4, Suma_hod FROM Dochazka"),
              "2|1|7.5|N|7.5\n");
}

}  // namespace
