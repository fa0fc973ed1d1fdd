// Wage settings worked on the keyboard, and the list of closings.
#include "desktop/okno_form14.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QTabWidget>
#include <QTableView>
#include <gtest/gtest.h>
#include <map>

#include "firma_v_oknech.h"
#include "paysheet/unit14_pole.h"

namespace {

using namespace zkouska;

struct Nastaveni : FirmaVOknech {
    /// Opens the settings from the main form; true when `prace` left both files as they were.
    bool otevri(std::function<void(QWidget&)> prace) {
        const shell::RidiciZorv zaznam = ze_souboru();
        const shell::Nastaveni hodnoty = z_ini();
        v_okne(std::move(prace));
        EXPECT_TRUE(form.proved_akci("acNastaveniParametru"));
        return shell::bajty(zaznam) == shell::bajty(ze_souboru()) &&
               vypis(hodnoty) == vypis(z_ini());
    }
    shell::RidiciZorv ze_souboru() { return shell::cti_ridici_zorv(session.soubor_ridici_zorv()); }
    shell::Nastaveni z_ini() { return shell::cti_nastaveni(session.soubor_nastaveni(), 2022, 0); }
    static std::string vypis(const shell::Nastaveni& nastaveni) {
        std::string text;
        for (const auto& klic : shell::vypis_nastaveni(nastaveni))
            text += klic.klic + "=" + klic.hodnota + "\n";
        return text;
    }
};

int ukazana(QWidget& okno) {
    return prvek<QTabWidget>(okno, "stranky").currentIndex();
}

void prejdi(QWidget& okno, paysheet::Stranka stranka) {
    prvek<QTabWidget>(okno, "stranky").setCurrentIndex(static_cast<int>(stranka));
}

/// Overwrites a field of the page that is shown.
void napis(QWidget& okno, const char* jmeno, const char* text) {
    auto& pole = prvek<QLineEdit>(okno, jmeno);
    ASSERT_TRUE(pole.isVisible()) << jmeno;
    pole.setFocus();
    pole.selectAll();
    QTest::keyClick(&pole, Qt::Key_Delete);
    // keyClicks knows only ASCII.
    for (const QChar znak : QString(text))
        QTest::sendKeyEvent(QTest::Click, &pole, Qt::Key_unknown, znak, Qt::NoModifier);
}

/// Does what brings a message, and confirms it. A button's shortcut presses it a while later.
void potvrd_zpravu(QWidget& okno, const QString& ceka, const std::function<void()>& cin) {
    bool prisla = false;
    v_okne([&prisla, ceka](QWidget& zprava) {
        prisla = true;
        EXPECT_EQ(dynamic_cast<QMessageBox&>(zprava).text(), ceka);
        QTest::keyClick(&zprava, Qt::Key_Return);
    });
    cin();
    EXPECT_TRUE(QTest::qWaitFor([&prisla] { return prisla; }));
    // No window manager gives the focus back here.
    okno.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&okno));
}

void uloz_se_zpravou(QWidget& okno, const QString& ceka) {
    potvrd_zpravu(okno, ceka, [&okno] { QTest::keyClick(&okno, Qt::Key_F2); });
}

TEST(OknoNastaveni, NapsaneHodnotyVsechStranekSkonciVObouSouborech) {
    Nastaveni n;
    EXPECT_FALSE(n.otevri([](QWidget& okno) {
        EXPECT_TRUE(okno.windowTitle().startsWith("Nastavení mezd - FIRMA22"));
        EXPECT_EQ(QApplication::focusWidget(), &prvek<QLineEdit>(okno, "scMinimalniMzda"));
        napis(okno, "scMinimalniMzda", "17300");
        napis(okno, "Edit13", "7,1");
        prvek<QComboBox>(okno, "scKodSazbyPojistneho").setFocus();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        prejdi(okno, paysheet::Stranka::zakladni_parametry);
        napis(okno, "Edit1", "2");
        napis(okno, "Edit3", "Příplatek");
        EXPECT_TRUE(prvek<QCheckBox>(okno, "scNemocenskeDavky").isChecked());
        prvek<QCheckBox>(okno, "scNemocenskeDavky").click();
        potvrd_zpravu(okno,
                      "Povolujete vstup do uzavřených měsíců a jste zodpovědní za korektnost "
                      "prováděných akcí!",
                      [&okno] { prvek<QCheckBox>(okno, "scVstupDoUzavrenychMesicu").click(); });
        prejdi(okno, paysheet::Stranka::pojisteni_dane_uctovani);
        napis(okno, "scNejdou78", "5");
        prejdi(okno, paysheet::Stranka::cssz);
        auto& okres = prvek<QComboBox>(okno, "scCsszOkres");
        okres.setFocus();
        QTest::keyClicks(&okres, "110");
        napis(okno, "scCsszVs", "12345678901");
        QTest::keyClick(&okno, Qt::Key_F2);
    }));
    const shell::RidiciZorv zaznam = n.ze_souboru();
    EXPECT_EQ(zaznam.proc_soc_pracovnik, 7.1);
    EXPECT_EQ(zaznam.sloupec_staly_plat, 2);
    EXPECT_EQ(zaznam.text_os_oh[0], "Příplatek");
    EXPECT_FALSE(zaznam.proplaci_davky);
    const shell::Nastaveni nastaveni = n.z_ini();
    EXPECT_EQ(nastaveni.MinimalniMzda, 17300);
    EXPECT_EQ(nastaveni.KodSazbyPojistneho, 2);
    EXPECT_TRUE(nastaveni.VstupDoUzavrenychMesicu);
    EXPECT_EQ(nastaveni.nejde_do_pojisteni[0][7], 5);
    EXPECT_EQ(nastaveni.cssz_okres, "110");
    EXPECT_EQ(nastaveni.cssz_vs, "1234567890") << "desáté místo je poslední";
}

TEST(OknoNastaveni, OdmitnutaHodnotaPrepneNaSvouStrankuAPoleANicSeNezapise) {
    Nastaveni n;
    EXPECT_TRUE(n.otevri([](QWidget& okno) {
        prejdi(okno, paysheet::Stranka::pojisteni_dane_uctovani);
        napis(okno, "scPenzijni32", "7");
        prejdi(okno, paysheet::Stranka::zakladni_parametry);
        napis(okno, "Edit1", "3");
        prejdi(okno, paysheet::Stranka::cssz);

        uloz_se_zpravou(okno, "Sloupec pro stálý plat neodpovídá modulu č. 1.");
        EXPECT_EQ(ukazana(okno), 1);
        EXPECT_EQ(okno.focusWidget(), &prvek<QWidget>(okno, "Edit1"));
        napis(okno, "Edit1", "1");

        uloz_se_zpravou(okno, "U platby pro penzijní fond musíte zadat obě hodnoty nebo žádnou.");
        EXPECT_EQ(ukazana(okno), 2);
        EXPECT_EQ(okno.focusWidget(), &prvek<QWidget>(okno, "scPenzijni33"));
        EXPECT_TRUE(okno.isVisible());
        QTest::keyClick(&okno, Qt::Key_Escape);
        EXPECT_FALSE(okno.isVisible());
    }));
}

TEST(OknoNastaveni, EnterJdePoPolichAFiltrPousti) {
    Nastaveni n;
    EXPECT_TRUE(n.otevri([](QWidget& okno) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_EQ(okno.focusWidget(), &prvek<QWidget>(okno, "scSazbaOCR"));
        struct Pripad {
            const char *pole, *psano, *zbude;
        };
        for (const auto& [pole, psano, zbude] :
             {Pripad{"scSazbaOCR", "-6a5,25", "65,25"}, Pripad{"scMinimalniMzda", "1,5x", "15"},
              Pripad{"Edit18", "12345", "1234"}}) {
            napis(okno, pole, psano);
            EXPECT_EQ(prvek<QLineEdit>(okno, pole).text(), zbude) << pole;
        }
        prejdi(okno, paysheet::Stranka::zakladni_parametry);
        napis(okno, "Edit51", "Středisko číslo dvacet dva");
        EXPECT_EQ(prvek<QLineEdit>(okno, "Edit51").text().size(), 20);
        EXPECT_TRUE(prvek<QLineEdit>(okno, "Edit46").toolTip().startsWith("Zadejte:\n     v proc"));
        QTest::keyClick(&okno, Qt::Key_Escape);
    }));
}

TEST(OknoNastaveni, KazdePoleTabulkyStojiJednouNaSveStrance) {
    std::map<std::string, paysheet::Stranka> kde;
    for (const desktop::BlokNastaveni& blok : desktop::rozlozeni_nastaveni()) {
        for (const auto& radek : blok.radky) {
            for (const std::string& ovladac : radek.ovladace)
                EXPECT_TRUE(kde.emplace(ovladac, blok.stranka).second) << ovladac;
        }
    }
    for (const paysheet::PoleNastaveni& pole : paysheet::pole_nastaveni()) {
        const auto misto = kde.find(pole.ovladac);
        ASSERT_NE(misto, kde.end()) << pole.ovladac;
        EXPECT_EQ(misto->second, pole.stranka) << pole.ovladac;
    }
}

TEST(OknoUzaverek, UkazeMesiceSDatemUzavreni) {
    FirmaVOknech f;
    shell::RidiciZorv zaznam = f.session.ridici_zorv;
    zaznam.uzaverka[11] = "10.1.2023";
    shell::zapis_zaznam(f.session.soubor_ridici_zorv(), shell::bajty(zaznam));
    v_okne([](QWidget& okno) {
        EXPECT_TRUE(okno.windowTitle().startsWith("Uzávěrky - FIRMA22"));
        const QAbstractItemModel& mesice = *prvek<QTableView>(okno, "mesice").model();
        ASSERT_EQ(mesice.rowCount(), 12);
        EXPECT_EQ(mesice.headerData(1, Qt::Horizontal).toString(), "Datum uzavření");
        EXPECT_EQ(mesice.index(0, 1).data().toString(), "");
        EXPECT_EQ(mesice.index(11, 0).data().toString(), "prosinec  2022");
        EXPECT_EQ(mesice.index(11, 1).data().toString(), "10.1.2023");
        QTest::keyClick(&okno, Qt::Key_Escape);
    });
    EXPECT_TRUE(f.form.proved_akci("acUzaverky"));
}

}  // namespace
