// The main window: its actions, the month, the choice of a company.
#include "desktop/okno_form1.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <gtest/gtest.h>

#include "desktop/rok_okno.h"
#include "firma_v_oknech.h"
#include "menu/akce.h"

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
    QTest::mouseClick(&rok, Qt::LeftButton, {}, {rok.width() * 7 / 24, rok.height() / 2});
    EXPECT_EQ(prvek<QSpinBox>(h.okno, "mesic").value(), 4);
    EXPECT_EQ(h.form.mesic, 4);
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

TEST(HlavniOkno, EscapeKonci) {
    HlavniOkno h;
    QTest::keyClick(&h.okno, Qt::Key_Escape);
    EXPECT_TRUE(h.form.zavreno);
    EXPECT_FALSE(h.okno.isVisible());
}

TEST(RokOkno, TisiceKorun) {
    EXPECT_EQ(desktop::tisice(0), "");
    EXPECT_EQ(desktop::tisice(499), "0 tis.");
    EXPECT_EQ(desktop::tisice(120400), "120 tis.");
    EXPECT_EQ(desktop::tisice(1234567), "1\u00a0235 tis.");
}

}  // namespace
