// What holds for every window: it opens, its inputs have names for assistive tools, and nothing is
// cut off on a small screen; what large letters push out of it comes in sight with the focus.
#include "desktop/okna.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <gtest/gtest.h>

#include "base/chyba.h"
#include "base/soubory.h"
#include "desktop/okno_form1.h"
#include "desktop/poloha_okna.h"
#include "desktop/posuvny_obsah.h"
#include "desktop/vzhled.h"
#include "firma_v_oknech.h"

namespace {

using namespace zkouska;

constexpr QSize k_maly_monitor{1366, 768};
constexpr int k_titulek_a_lista = 68;  ///< window frame and the desktop's own bar

bool je_vstup(const QWidget* prvek) {
    if (qobject_cast<const QHeaderView*>(prvek)) return false;
    // The editor inside a spin box or a combo box speaks through its owner.
    if (qobject_cast<const QAbstractSpinBox*>(prvek->parentWidget()) ||
        qobject_cast<const QComboBox*>(prvek->parentWidget())) {
        return false;
    }
    return qobject_cast<const QLineEdit*>(prvek) || qobject_cast<const QAbstractSpinBox*>(prvek) ||
           qobject_cast<const QComboBox*>(prvek) || qobject_cast<const QCheckBox*>(prvek) ||
           qobject_cast<const QAbstractItemView*>(prvek);
}

std::string popis(const QWidget* prvek) {
    return std::string(prvek->metaObject()->className()) + " " +
           desktop::z_qt(prvek->objectName()) + " " +
           desktop::z_qt(prvek->property("text").toString());
}

/// Letters of another size than those of the other tests.
struct Pismo {
    explicit Pismo(int bodu) { desktop::nastav_vzhled(aplikace(), 0, bodu); }
    ~Pismo() { desktop::nastav_vzhled(aplikace(), 0, k_bezne); }
    Pismo(const Pismo&) = delete;
    Pismo& operator=(const Pismo&) = delete;
    static constexpr int k_bezne = 9, k_velke = 14, k_obri = 20;
};

/// The content's part of the window that is seen.
QRect videt(const desktop::PosuvnyObsah& obsah) {
    return {-obsah.widget()->pos(), obsah.viewport()->size()};
}

void over_ze_fokus_prijde_do_pohledu(QWidget& okno) {
    const auto* obsah = okno.findChild<desktop::PosuvnyObsah*>();
    ASSERT_NE(obsah, nullptr);
    okno.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&okno));
    for (QWidget* prvek : obsah->widget()->findChildren<QWidget*>()) {
        if (!prvek->isVisible() || !prvek->isEnabled()) continue;
        if (!je_vstup(prvek) && !qobject_cast<QAbstractButton*>(prvek)) continue;
        if (prvek->focusPolicy() == Qt::NoFocus || prvek->focusProxy()) continue;
        prvek->setFocus();
        const QRect misto(prvek->mapTo(obsah->widget(), QPoint(0, 0)), prvek->size());
        EXPECT_EQ(videt(*obsah) & misto,
                  QRect(misto.topLeft(), misto.size().boundedTo(videt(*obsah).size())))
            << popis(prvek);
    }
}

void zkontroluj(QWidget& okno, int pismo) {
    QApplication::processEvents();
    EXPECT_LE(okno.width(), k_maly_monitor.width());
    EXPECT_LE(okno.height(), k_maly_monitor.height() - k_titulek_a_lista);
    const auto* obsah = okno.findChild<desktop::PosuvnyObsah*>();
    ASSERT_NE(obsah, nullptr);
    if (pismo == Pismo::k_bezne) {
        EXPECT_TRUE(videt(*obsah).contains(obsah->widget()->rect()));
    }
    for (const QWidget* prvek : okno.findChildren<QWidget*>()) {
        if (!prvek->isVisible() || prvek->isWindow()) continue;
        if (je_vstup(prvek)) {
            EXPECT_FALSE(prvek->accessibleName().isEmpty()) << popis(prvek);
        }
        const bool text =
            qobject_cast<const QLabel*>(prvek) || qobject_cast<const QAbstractButton*>(prvek);
        if (!text || prvek->property("text").toString().isEmpty()) continue;
        EXPECT_GE(prvek->width(), prvek->minimumSizeHint().width()) << popis(prvek);
        EXPECT_GE(prvek->height(), prvek->minimumSizeHint().height()) << popis(prvek);
        const QWidget& celek = obsah->widget()->isAncestorOf(prvek) ? *obsah->widget() : okno;
        const QRect v_celku(prvek->mapTo(&celek, QPoint(0, 0)), prvek->size());
        EXPECT_TRUE(celek.rect().contains(v_celku)) << popis(prvek);
    }
    over_ze_fokus_prijde_do_pohledu(okno);
}

TEST(VsechnaOkna, KazdeMaUkazku) {
    for (const desktop::DruhOkna& druh : desktop::vsechna_okna()) {
        EXPECT_TRUE(std::ranges::any_of(desktop::ukazky(), [&](const desktop::Ukazka& u) {
            return u.obrazovka == druh.obrazovka;
        })) << druh.obrazovka;
    }
}

class OknaPriPismu : public testing::TestWithParam<int> {
  protected:
    Pismo pismo{GetParam()};
};

TEST_P(OknaPriPismu, OtevrouSeMajiPristupneNazvyANicNeniUriznute) {
    TichaFirma f;
    const auto vypocet = std::ranges::find(desktop::ukazky(), std::string_view("TForm21"),
                                           &desktop::Ukazka::obrazovka);
    vypocet->priprav(f.relace);  // some screens show the month's pay sheet
    for (const desktop::Ukazka& ukazka : desktop::ukazky()) {
        SCOPED_TRACE(std::string(ukazka.obrazovka) + ukazka.dodatek);
        std::shared_ptr<base::Obrazovka> obrazovka;
        EXPECT_NO_THROW(obrazovka = ukazka.priprav(f.relace));
        if (!obrazovka) continue;
        const auto okno = desktop::vyrob_okno(*obrazovka, f.relace, nullptr);
        ASSERT_NE(okno, nullptr);
        okno->show();
        zkontroluj(*okno, GetParam());
        EXPECT_FALSE(okno->windowTitle().isEmpty());
    }
}

TEST_P(OknaPriPismu, HlavniOknoSeVejdeNaMalyMonitor) {
    FirmaVOknech f;
    desktop::OknoForm1 okno(f.form, f.session);
    okno.otevri();
    zkontroluj(okno, GetParam());
}

INSTANTIATE_TEST_SUITE_P(Bodu, OknaPriPismu,
                         testing::Values(Pismo::k_bezne, Pismo::k_velke, Pismo::k_obri));

TEST(Obsluha, OtazkaMaPredvolenoNe) {
    aplikace();
    desktop::ObsluhaQt obsluha;
    v_okne([](QWidget& okno) {
        EXPECT_EQ(okno.property("text").toString(), "První\ndruhý");
        QTest::keyClick(&okno, Qt::Key_Return);
    });
    EXPECT_FALSE(obsluha.otazka_ano_ne("První\r\ndruhý", "Nadpis"));
    v_okne([](QWidget& okno) { QTest::keyClick(&okno, Qt::Key_Escape); });
    EXPECT_FALSE(obsluha.otazka_ano_ne("?", "Nadpis"));
    v_okne([](QWidget& okno) {
        for (auto* tlacitko : okno.findChildren<QAbstractButton*>()) {
            if (tlacitko->text() == "&Ano") tlacitko->click();
        }
    });
    EXPECT_TRUE(obsluha.otazka_ano_ne("?", "Nadpis"));
}

TEST(Obsluha, OznameniNecekaAZmiziKlepnutimNeboCasem) {
    desktop::ObsluhaQt obsluha;
    for (const bool klepnutim : {true, false}) {
        obsluha.ukaz_hlasku("Spouštím Zorv...", klepnutim ? 0 : 1);
        QWidget* oznameni = nullptr;
        for (QWidget* okno : QApplication::topLevelWidgets()) {
            if (okno->objectName() == "TFHlaska") oznameni = okno;
        }
        ASSERT_NE(oznameni, nullptr);
        EXPECT_TRUE(oznameni->isVisible());
        if (klepnutim) QTest::mouseClick(oznameni, Qt::LeftButton);
        EXPECT_TRUE(QTest::qWaitFor([oznameni] { return !oznameni->isVisible(); }, 3000));
    }
}

/// The user's own folder of one test.
struct SlozkaUzivatele {
    DocasnaSlozka slozka;
    SlozkaUzivatele() {
        qputenv("XDG_DATA_HOME", QByteArray::fromStdString(slozka.cesta().string()));
    }
    ~SlozkaUzivatele() {
        puvodni_.isNull() ? qunsetenv("XDG_DATA_HOME") : qputenv("XDG_DATA_HOME", puvodni_);
    }
    SlozkaUzivatele(const SlozkaUzivatele&) = delete;
    SlozkaUzivatele& operator=(const SlozkaUzivatele&) = delete;

  private:
    QByteArray puvodni_ = qgetenv("XDG_DATA_HOME");
};

TEST(PametOken, OknoSeOtevreKdeBylo) {
    const SlozkaUzivatele uzivatel;
    FirmaVOknech f;
    const QRect misto(40, 50, 700, 480);
    for (const bool pamatovat : {false, true}) {
        f.session.velmar.pamatovat_okna = pamatovat;
        const auto otevri = [&](std::function<void(QWidget&)> prace) {
            v_okne([prace](QWidget& okno) {
                prace(okno);
                QTest::keyClick(&okno, Qt::Key_Escape);
            });
            f.form.acUzaverkyExecute();
        };
        otevri([&](QWidget& okno) { okno.setGeometry(misto); });
        otevri([&](QWidget& okno) { EXPECT_EQ(okno.geometry() == misto, pamatovat); });
    }
}

TEST(PametOken, OknoZVetsihoMonitoruSeVratiNaTento) {
    const base::PolohaOkna mimo[] = {
        {false, 1200, 2500, 700, 480}, {false, -300, -900, 700, 480}, {false, 0, 0, 3000, 2000}};
    for (const base::PolohaOkna& poloha : mimo) {
        QDialog okno;
        desktop::umisti_okno(okno, poloha);
        EXPECT_TRUE(okno.screen()->availableGeometry().contains(okno.geometry()))
            << poloha.vlevo << " " << poloha.nahore;
    }
}

TEST(Log, OtevreneOknoMaRadekVDenikuKdyzSeLoguje) {
    const SlozkaUzivatele uzivatel;
    FirmaVOknech f;
    const auto denik = uzivatel.slozka / "Velmar/Logy/2022/Zorv_TFStavProjektu_2022.log";
    for (const bool logovat : {false, true}) {
        f.session.velmar.logovat = logovat;
        v_okne([](QWidget& okno) { QTest::keyClick(&okno, Qt::Key_Escape); });
        f.form.acUzaverkyExecute();
        EXPECT_EQ(std::filesystem::exists(denik), logovat);
    }
    EXPECT_EQ(base::precti_soubor(denik, 1000), "0115080000 FormShow\n");
}

/// Takes over what the application reports; puts the former ways back.
struct Hlaseni {
    std::vector<std::string> texty;
    std::vector<base::ZaznamChyby> zaznamy;

    Hlaseni() {
        aplikace().ohlas_chybu = [this](const std::string& text) { texty.push_back(text); };
        aplikace().zapis_chybu = [this](const base::ZaznamChyby& z) { zaznamy.push_back(z); };
    }
    ~Hlaseni() {
        aplikace().ohlas_chybu = puvodni_;
        aplikace().zapis_chybu = nullptr;
    }
    Hlaseni(const Hlaseni&) = delete;
    Hlaseni& operator=(const Hlaseni&) = delete;

  private:
    std::function<void(const std::string&)> puvodni_ = aplikace().ohlas_chybu;
};

TEST(Chyby, ChybaZUdalostiSeOhlasiZapiseAProgramBeziDal) {
    const Hlaseni hlaseni;
    QDialog okno;
    okno.setObjectName("TForm99");
    auto* ramec = new QWidget(&okno);
    auto* tlacitko = new QPushButton(ramec);
    tlacitko->setObjectName("btOK");
    QObject::connect(tlacitko, &QPushButton::clicked, tlacitko,
                     [] { throw base::ChybaDat("Tabulka chybí."); });
    okno.show();
    QTest::mouseClick(tlacitko, Qt::LeftButton);
    EXPECT_EQ(hlaseni.texty,
              std::vector<std::string>{"V programu nastala tato chyba:\r\n\r\nTabulka chybí."});
    ASSERT_EQ(hlaseni.zaznamy.size(), 1U);
    EXPECT_EQ(hlaseni.zaznamy[0].trida, "base::ChybaDat");
    EXPECT_EQ(hlaseni.zaznamy[0].text, "Tabulka chybí.");
    EXPECT_EQ(hlaseni.zaznamy[0].vlastnici, "btOK->TForm99");
    EXPECT_FALSE(aplikace().ukoncena());
}

TEST(Chyby, ObsazenaDatabazeNeniChybaProgramu) {
    const Hlaseni hlaseni;
    aplikace().proved([] { throw store::StoreBusy("Počkejte."); });
    EXPECT_EQ(hlaseni.texty, std::vector<std::string>{"Počkejte."});
    EXPECT_TRUE(hlaseni.zaznamy.empty());
}

}  // namespace
