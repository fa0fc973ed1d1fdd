// What holds for every window: it opens, its inputs have names for assistive tools, and nothing is
// cut off on a small screen.
#include "desktop/okna.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <gtest/gtest.h>

#include "base/chyba.h"
#include "desktop/okno_form1.h"
#include "desktop/poloha_okna.h"
#include "desktop/snimky.h"
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

void zkontroluj(QWidget& okno) {
    QApplication::processEvents();
    EXPECT_LE(okno.width(), k_maly_monitor.width());
    EXPECT_LE(okno.height(), k_maly_monitor.height() - k_titulek_a_lista);
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
        const QRect v_okne(prvek->mapTo(&okno, QPoint(0, 0)), prvek->size());
        EXPECT_TRUE(okno.rect().contains(v_okne)) << popis(prvek);
    }
}

TEST(VsechnaOkna, OtevrouSeMajiPristupneNazvyANicNeniUriznute) {
    FirmaVOknech f;
    for (const desktop::DruhOkna& druh : desktop::vsechna_okna()) {
        SCOPED_TRACE(druh.obrazovka);
        const desktop::Ukazka* ukazka = nullptr;
        for (const auto& jedna : desktop::ukazky()) {
            if (jedna.obrazovka == druh.obrazovka) ukazka = &jedna;
        }
        ASSERT_NE(ukazka, nullptr) << "okno nemá ukázku";
        const auto obrazovka = ukazka->priprav(f.session);
        const auto okno = desktop::vyrob_okno(*obrazovka, f.session, nullptr);
        ASSERT_NE(okno, nullptr);
        okno->show();
        zkontroluj(*okno);
        EXPECT_FALSE(okno->windowTitle().isEmpty());
    }
}

TEST(VsechnaOkna, HlavniOknoSeVejdeNaMalyMonitor) {
    FirmaVOknech f;
    desktop::OknoForm1 okno(f.form, f.session);
    okno.otevri();
    okno.resize(k_maly_monitor.width(), k_maly_monitor.height() - k_titulek_a_lista);
    zkontroluj(okno);
}

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

TEST(PametOken, OknoSeOtevreKdeBylo) {
    const DocasnaSlozka slozka;
    const QByteArray puvodni = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", QByteArray::fromStdString(slozka.cesta().string()));
    FirmaVOknech f;
    QWidget okno;
    okno.setObjectName("TForm99");
    okno.setGeometry(40, 50, 300, 200);
    for (const bool pamatovat : {false, true}) {
        f.session.velmar.pamatovat_okna = pamatovat;
        const desktop::PametOken pamet(f.session);
        pamet.uloz(okno);
        QWidget dalsi;
        dalsi.setObjectName("TForm99");
        dalsi.setGeometry(1, 2, 110, 120);
        pamet.obnov(dalsi);
        EXPECT_EQ(dalsi.geometry() == okno.geometry(), pamatovat);
    }
    puvodni.isNull() ? qunsetenv("XDG_DATA_HOME") : qputenv("XDG_DATA_HOME", puvodni);
}

TEST(Chyby, ChybaZObsluhyUdalostiSeOhlasiAProgramBeziDal) {
    auto puvodni = aplikace().ohlas_chybu;
    std::string hlaseni;
    aplikace().ohlas_chybu = [&](const std::string& text) { hlaseni = text; };
    QTimer::singleShot(0, &aplikace(), [] { throw base::ChybaDat("Tabulka chybí."); });
    QApplication::processEvents();
    EXPECT_EQ(hlaseni, "V programu nastala tato chyba:\r\n\r\nTabulka chybí.");
    EXPECT_FALSE(aplikace().ukoncena());
    aplikace().ohlas_chybu = puvodni;
}

}  // namespace
