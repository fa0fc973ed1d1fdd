// The first structure, typed on the keyboard.
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <gtest/gtest.h>

#include "menu/unit1_hlavni.h"
#include "prostredi_qt.h"
#include "shell/nova_firma.h"
#include "store/query.h"
#include "support/docasna_slozka.h"

namespace {

using namespace zkouska;

/// A company as the accounting module leaves it, opened by a face with real windows.
struct NovaFirma {
    DocasnaSlozka koren;
    desktop::ObsluhaQt obsluha;
    base::PevneHodiny hodiny{{{2022, 1, 15}, 8, 0, 0}};
    base::SystemovaNahoda nahoda;
    shell::Session session{{obsluha, hodiny, nahoda}, koren / "program"};
    menu::TForm1 form{session};

    NovaFirma() {
        EXPECT_EQ(shell::zaloz_slozku_firmy(koren.cesta(), "FIRMA22", {"Zkušební", "1"}), "");
        session.koren_dat = koren.cesta();
        session.firma = "FIRMA22";
        session.velmar.pamatovat_okna = false;
        obsluha.pripoj(session);
        aplikace();
    }
};

QWidget* prvek_s_fokusem() {
    return QApplication::focusWidget();
}

/// Overwrites the field that has the focus and goes on by Enter.
void napis(const char* text) {
    auto* pole = qobject_cast<QLineEdit*>(prvek_s_fokusem());
    ASSERT_NE(pole, nullptr);
    pole->selectAll();
    QTest::keyClick(pole, Qt::Key_Delete);
    QTest::keyClicks(pole, text);
    QTest::keyClick(pole, Qt::Key_Return);
}

TEST(OknoStruktury, NapsanaStrukturaSeUloziDoSouboruITabulky) {
    NovaFirma f;
    v_okne([](QWidget& okno) {
        EXPECT_EQ(okno.windowTitle(), "struktura výplatní listiny");
        prvek<QLineEdit>(okno, "pole1").setFocus();
        // Module 3 left out: everything behind it moves two columns up.
        for (const char* cislo : {"1", "2", "3", "", "", "4", "5", "6", "7", "8", "9", "10", "11",
                                  "12", "13", "14", "15", "16"}) {
            napis(cislo);
        }
        EXPECT_TRUE(prvek<QPushButton>(okno, "btOK").isEnabled());
        v_okne([](QWidget& zprava) {
            EXPECT_EQ(dynamic_cast<QMessageBox&>(zprava).text(),
                      "Parametry pro projekt mezd podle Vašich požadavků byly založeny.");
            QTest::keyClick(&zprava, Qt::Key_Return);
        });
        QTest::keyClick(&okno, Qt::Key_F2);
    });
    ASSERT_TRUE(f.form.zaloz_soubory());
    EXPECT_TRUE(std::filesystem::exists(f.session.soubor_ridici_zorv()));
    EXPECT_EQ(f.session.ridici_zorv.modul3_od, 0);
    EXPECT_EQ(f.session.ridici_zorv.modul14, 16);
    store::Query q(f.session.data(), "SELECT COUNT(*) AS Pocet FROM Ridici");
    q.open();
    EXPECT_EQ(q.integer("Pocet"), 16);
}

TEST(OknoStruktury, ChybaSeUkazePoOpusteniPoleANelzeUlozit) {
    NovaFirma f;
    v_okne([](QWidget& okno) {
        auto& tlacitko = prvek<QPushButton>(okno, "btOK");
        EXPECT_TRUE(tlacitko.isEnabled());
        prvek<QLineEdit>(okno, "pole3").setFocus();
        napis("9");
        EXPECT_EQ(prvek_s_fokusem(), okno.findChild<QLineEdit*>("pole4")) << "Enter jde dál";
        EXPECT_FALSE(tlacitko.isEnabled());
        auto& chyby = prvek<QListWidget>(okno, "scChyby");
        EXPECT_TRUE(chyby.isVisible());
        ASSERT_EQ(chyby.count(), 2);
        EXPECT_EQ(chyby.item(0)->text(), "Nenavazuje modul 2.");
        zkratka(okno, Qt::Key_F2);
        EXPECT_TRUE(okno.isVisible()) << "uložit nejde ani zkratkou";
        QTest::keyClick(&okno, Qt::Key_Escape);
    });
    EXPECT_FALSE(f.form.zaloz_soubory());
    EXPECT_FALSE(std::filesystem::exists(f.session.soubor_ridici_zorv()));
}

TEST(OknoStruktury, PoleBereNejvyseDveCisliceIPriVlozeni) {
    NovaFirma f;
    v_okne([](QWidget& okno) {
        auto& pole = prvek<QLineEdit>(okno, "pole5");
        struct Pripad {
            const char* psano;
            const char* zbude;
        };
        for (const auto& [psano, zbude] :
             {Pripad{"123", "12"}, Pripad{"-4", "4"}, Pripad{"a7,b", "7"}}) {
            pole.clear();
            QTest::keyClicks(&pole, psano);
            EXPECT_EQ(pole.text(), zbude) << psano;
        }
        for (const char* vlozeno : {"987", "č", "1-"}) {
            pole.clear();
            pole.insert(vlozeno);
            EXPECT_EQ(pole.text(), "") << "vložený text filtr odmítne celý";
        }
        QTest::keyClick(&okno, Qt::Key_Escape);
    });
    EXPECT_FALSE(f.form.zaloz_soubory());
}

}  // namespace
