// The main window: its actions, the month, the choice of a company.
#include "desktop/okno_form1.h"

#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QSpinBox>
#include <gtest/gtest.h>

#include "base/soubory.h"
#include "desktop/rok_okno.h"
#include "firma_v_oknech.h"
#include "menu/akce.h"
#include "shell/nova_firma.h"

namespace {

using namespace zkouska;

struct HlavniOkno : FirmaVOknech {
    desktop::OknoForm1 okno{form, session};
    HlavniOkno() {
        okno.otevri();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&okno));
    }
    QString krok() { return prvek<QLabel>(okno, "dalsi_krok").text(); }
};

TEST(HlavniOkno, KazdaAkceJeVNabidceAKazdaSPopiskemMaTlacitko) {
    HlavniOkno h;
    for (const menu::Akce& akce : menu::vsechny_akce()) {
        auto* polozka = h.okno.findChild<QAction*>(akce.nazev);
        ASSERT_NE(polozka, nullptr) << akce.nazev;
        EXPECT_EQ(polozka->shortcut(), QKeySequence(akce.zkratka)) << akce.nazev;
        EXPECT_EQ(h.okno.findChild<QPushButton*>(akce.nazev) != nullptr, *akce.popisek != '\0')
            << akce.nazev;
    }
}

TEST(HlavniOkno, VypocetZTlacitkaZmeniPrehledRoku) {
    HlavniOkno h;
    EXPECT_EQ(h.krok(), "Leden: zadány hrubé mzdy, vypočtěte výplaty");
    v_okne([](QWidget& vypocet) {
        klikni(vypocet, "Button2");
        QTest::keyClick(&vypocet, Qt::Key_Escape);
    });
    klikni(h.okno, "acVypocetVyplat");
    EXPECT_TRUE(h.je_listina());
    EXPECT_TRUE(h.krok().startsWith("Leden: výplaty spočteny")) << h.krok().toStdString();
}

TEST(HlavniOkno, KlepnutiNaMesicHoVybereProAkce) {
    HlavniOkno h;
    auto& rok = prvek<QWidget>(h.okno, "rok");
    QTest::mouseClick(&rok, Qt::LeftButton, {}, {rok.width() - 20, rok.height() / 2});
    EXPECT_EQ(prvek<QSpinBox>(h.okno, "mesic").value(), 12);
    EXPECT_EQ(h.form.mesic, 12);
}

TEST(HlavniOkno, BehemVyberuFirmySeAkceOdmitneAVybranaFirmaSeOtevre) {
    HlavniOkno h;
    auto& firmy = prvek<QComboBox>(h.okno, "ComboBox1");
    EXPECT_FALSE(firmy.isVisible());
    klikni(h.okno, "acZmenitFirmu_firma");
    ASSERT_TRUE(firmy.isVisible());
    firmy.hidePopup();
    EXPECT_EQ(firmy.currentText(), "FIRMA22");
    EXPECT_FALSE(prvek<QWidget>(h.okno, "lbFirma").isVisible());
    QString zprava;
    v_okne([&](QWidget& okno) {
        zprava = okno.property("text").toString();
        QTest::keyClick(&okno, Qt::Key_Return);
    });
    klikni(h.okno, "acPracovnici");
    EXPECT_EQ(zprava, "Nejdříve vyberte firmu.");

    std::filesystem::create_directories(h.session.slozka_programu);
    emit firmy.textActivated("FIRMA22");
    EXPECT_FALSE(firmy.isVisible());
    EXPECT_TRUE(prvek<QLabel>(h.okno, "lbFirma").text().startsWith("FIRMA22"));
}

/// The main window with two more companies, its list of companies open.
struct VyberFirmy : HlavniOkno {
    QComboBox& firmy = prvek<QComboBox>(okno, "ComboBox1");

    VyberFirmy() {
        for (const char* nazev : {"GAMA22", "ZETA22"})
            EXPECT_EQ(shell::zaloz_slozku_firmy(session.koren_dat, nazev, {nazev, "1"}), "");
        std::filesystem::create_directories(session.slozka_programu);
        otevri_seznam();
    }
    void otevri_seznam() {
        QTest::keyClick(&okno, Qt::Key_M, Qt::AltModifier);
        ASSERT_TRUE(QTest::qWaitFor([this] { return firmy.view()->isVisible(); }));
    }
};

TEST(VyberFirmy, SipkyChodiEnterVybere) {
    VyberFirmy v;
    QStringList firmy;
    for (int i = 0; i < v.firmy.count(); ++i)
        firmy += v.firmy.itemText(i);
    EXPECT_EQ(firmy, (QStringList{"FIRMA22", "GAMA22", "ZETA22"}));
    QTest::keyClick(v.firmy.view(), Qt::Key_Down);
    EXPECT_EQ(v.session.firma, "") << "šipka ještě nevybírá";
    v_okne([](QWidget& struktura) { zkratka(struktura, Qt::Key_Escape); });
    QTest::keyClick(v.firmy.view(), Qt::Key_Return);
    EXPECT_EQ(v.session.firma, "GAMA22");
    EXPECT_FALSE(v.firmy.isVisible());
}

TEST(VyberFirmy, EscapeVratiFirmuAProgramBezi) {
    VyberFirmy v;
    for (const bool zavreny_seznam : {false, true}) {
        QTest::keyClick(v.firmy.view(), Qt::Key_Down);
        if (zavreny_seznam) v.firmy.hidePopup();
        QWidget& kam = zavreny_seznam ? static_cast<QWidget&>(v.firmy) : *v.firmy.view();
        QTest::keyClick(&kam, Qt::Key_Escape);
        EXPECT_EQ(v.session.firma, "FIRMA22");
        EXPECT_FALSE(v.form.zavreno);
        EXPECT_TRUE(v.krok().startsWith("Leden")) << "přehled roku je zpět";
        if (!zavreny_seznam) v.otevri_seznam();
    }
}

TEST(HlavniOkno, NabidkySeOtevirajiPismenemAKazdeJeJine) {
    HlavniOkno h;
    QStringList pismena{"Alt+M", "Alt+S"};
    for (const QAction* nabidka : h.okno.menuBar()->actions()) {
        const QString pismeno = QKeySequence::mnemonic(nabidka->text()).toString();
        EXPECT_NE(pismeno, "") << nabidka->text().toStdString();
        EXPECT_FALSE(pismena.contains(pismeno)) << nabidka->text().toStdString();
        pismena += pismeno;
    }
}

TEST(HlavniOkno, RestartJeVNabidceAZavreProgram) {
    HlavniOkno h;
    auto& restart = prvek<QAction>(h.okno, "acRestart");
    EXPECT_EQ(restart.text().remove('&'), "Restart");
    const auto spoustec = h.session.slozka_programu / "RestartZorv.exe";
    std::filesystem::create_directories(spoustec.parent_path());
    base::zapis_soubor(spoustec, "x");
    restart.trigger();
    EXPECT_FALSE(h.okno.isVisible());
    EXPECT_EQ(h.form.spustit_po_zavreni, spoustec.string());
}

TEST(HlavniOkno, EscapeKonci) {
    HlavniOkno h;
    QTest::keyClick(&h.okno, Qt::Key_Escape);
    EXPECT_TRUE(h.form.zavreno);
    EXPECT_FALSE(h.okno.isVisible());
}

TEST(RokOkno, CastkyVKorunachAVTisicich) {
    const struct {
        base::Castka castka;
        const char *koruny, *tisice;
    } pripady[] = {{0, "", ""},
                   {499, "499", "0"},
                   {120400, "120\u00a0400", "120"},
                   {-120400, "-120\u00a0400", "-120"},
                   {1234567, "1\u00a0234\u00a0567", "1\u00a0235"}};
    for (const auto& p : pripady) {
        EXPECT_EQ(desktop::v_jednotkach(p.castka, false), p.koruny);
        EXPECT_EQ(desktop::v_jednotkach(p.castka, true), p.tisice);
    }
}

}  // namespace
