// What holds for the controls of every window: the keyboard reaches each of them, no two answer to
// the same letter, and what is typed goes into the screen.
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTabBar>
#include <gtest/gtest.h>
#include <map>
#include <set>

#include "desktop/okna.h"
#include "desktop/okno_form1.h"
#include "firma_v_oknech.h"

namespace {

using namespace zkouska;

std::string popis(const QWidget* prvek) {
    return std::string(prvek->metaObject()->className()) + " " +
           desktop::z_qt(prvek->objectName()) + " " +
           desktop::z_qt(prvek->property("text").toString());
}

bool je_ovladaci(const QWidget* prvek) {
    // The editor and the arrows of a composed control belong to it.
    for (const QWidget* nad = prvek->parentWidget(); nad; nad = nad->parentWidget()) {
        if (qobject_cast<const QAbstractSpinBox*>(nad) || qobject_cast<const QComboBox*>(nad) ||
            qobject_cast<const QAbstractItemView*>(nad) || qobject_cast<const QTabBar*>(nad) ||
            qobject_cast<const QLineEdit*>(nad)) {
            return false;
        }
    }
    return qobject_cast<const QLineEdit*>(prvek) || qobject_cast<const QAbstractSpinBox*>(prvek) ||
           qobject_cast<const QComboBox*>(prvek) || qobject_cast<const QAbstractButton*>(prvek) ||
           qobject_cast<const QAbstractItemView*>(prvek) ||
           qobject_cast<const QPlainTextEdit*>(prvek);
}

std::vector<QWidget*> ovladaci_prvky(const QWidget& okno) {
    std::vector<QWidget*> prvky;
    for (QWidget* prvek : okno.findChildren<QWidget*>()) {
        if (prvek->isVisible() && prvek->isEnabled() && je_ovladaci(prvek)) prvky.push_back(prvek);
    }
    return prvky;
}

/// The controls that got the focus while Tab was pressed around the window.
std::set<const QWidget*> projdi_tabulatorem(QWidget& okno) {
    okno.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&okno));
    std::set<const QWidget*> navstivene;
    QWidget* prvni = nullptr;
    constexpr int k_nejvice_kroku = 400;
    for (int i = 0; i < k_nejvice_kroku; ++i) {
        QTest::keyClick(okno.focusWidget() ? okno.focusWidget() : &okno, Qt::Key_Tab);
        QWidget* fokus = QApplication::focusWidget();
        if (!fokus || fokus == prvni) break;
        if (!prvni) prvni = fokus;
        for (const QWidget* w = fokus; w; w = w->parentWidget())
            navstivene.insert(w);
    }
    return navstivene;
}

/// Radio buttons of a group take the focus by arrows from the chosen one.
bool dosazitelny_sipkou(const QWidget* prvek, const std::set<const QWidget*>& navstivene) {
    if (!qobject_cast<const QRadioButton*>(prvek)) return false;
    const auto skupina = prvek->parentWidget()->findChildren<QRadioButton*>();
    return std::ranges::any_of(skupina, [&](auto* jiny) { return navstivene.contains(jiny); });
}

void over_dosazitelnost(QWidget& okno) {
    const auto navstivene = projdi_tabulatorem(okno);
    for (QWidget* prvek : ovladaci_prvky(okno)) {
        const auto* tlacitko = qobject_cast<QAbstractButton*>(prvek);
        const bool zkratkou = tlacitko && !tlacitko->shortcut().isEmpty();
        EXPECT_TRUE(zkratkou || navstivene.contains(prvek) || dosazitelny_sipkou(prvek, navstivene))
            << "klávesnice nedosáhne na " << popis(prvek);
    }
}

void over_mnemoniky(const QWidget& okno) {
    std::map<QString, std::string> pouzite;
    for (const QWidget* prvek : okno.findChildren<QWidget*>()) {
        const auto* popisek = qobject_cast<const QLabel*>(prvek);
        const bool s_pismenem =
            qobject_cast<const QAbstractButton*>(prvek) || (popisek && popisek->buddy());
        if (!s_pismenem || !prvek->isVisible()) continue;
        const QKeySequence pismeno = QKeySequence::mnemonic(prvek->property("text").toString());
        if (pismeno.isEmpty()) continue;
        const auto [druhe, nove] = pouzite.emplace(pismeno.toString(), popis(prvek));
        EXPECT_TRUE(nove) << pismeno.toString().toStdString() << ": " << popis(prvek) << " a "
                          << druhe->second;
    }
}

/// What an input shows.
QString hodnota(const QWidget* prvek) {
    if (auto* zaskrtavatko = qobject_cast<const QCheckBox*>(prvek)) {
        return zaskrtavatko->isChecked() ? "ano" : "ne";
    }
    if (auto* vyber = qobject_cast<const QComboBox*>(prvek)) return vyber->currentText();
    if (auto* cislo = qobject_cast<const QAbstractSpinBox*>(prvek)) return cislo->text();
    if (auto* pole = qobject_cast<const QLineEdit*>(prvek)) return pole->text();
    return {};
}

/// Changes an input by a key; false when it cannot be changed so.
bool zmen(QWidget* prvek) {
    const QString puvodni = hodnota(prvek);
    prvek->setFocus();
    if (qobject_cast<QCheckBox*>(prvek)) {
        QTest::keyClick(prvek, Qt::Key_Space);
    } else if (auto* pole = qobject_cast<QLineEdit*>(prvek)) {
        if (pole->isReadOnly()) return false;
        QTest::keyClick(pole, Qt::Key_A, Qt::ControlModifier);
        for (const char* text : {"2", "10", "x"}) {
            if (pole->text() == puvodni) QTest::keyClicks(pole, text);
        }
    } else if (qobject_cast<QComboBox*>(prvek) || qobject_cast<QAbstractSpinBox*>(prvek)) {
        QTest::keyClick(prvek, Qt::Key_Up);
        if (hodnota(prvek) == puvodni) QTest::keyClick(prvek, Qt::Key_Down);
    }
    return hodnota(prvek) != puvodni;
}

class Ovladani : public testing::TestWithParam<std::size_t> {
  protected:
    TichaFirma f;
    const desktop::Ukazka& ukazka = desktop::ukazky().at(GetParam());
    std::shared_ptr<base::Obrazovka> obrazovka = priprav();

    /// The month is computed first: some screens show its pay sheet.
    std::shared_ptr<base::Obrazovka> priprav() {
        const auto vypocet = std::ranges::find(desktop::ukazky(), std::string_view("TForm21"),
                                               &desktop::Ukazka::obrazovka);
        vypocet->priprav(f.relace);
        return ukazka.priprav(f.relace);
    }
    std::unique_ptr<desktop::Okno> okno() {
        auto nove = desktop::vyrob_okno(*obrazovka, f.relace, nullptr);
        nove->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(nove.get()));
        return nove;
    }
};

TEST_P(Ovladani, KlavesniceDosahneNaVseAPismenaSeNepletou) {
    const auto okno = this->okno();
    over_dosazitelnost(*okno);
    over_mnemoniky(*okno);
}

// A window made anew from the same screen shows what was typed into the first one.
TEST_P(Ovladani, CoSeNapiseJeVObrazovce) {
    // These only show or hide a part of the window.
    const std::set<QString> jen_vzhled{"organizace_viditelna"};
    QStringList zmenene;
    {
        const auto prvni = okno();
        for (QWidget* prvek : ovladaci_prvky(*prvni)) {
            if (jen_vzhled.contains(prvek->objectName()) || !prvek->isVisible()) continue;
            if (!zmen(prvek)) continue;
            EXPECT_FALSE(prvek->objectName().isEmpty()) << popis(prvek);
            zmenene += prvek->objectName();
            const QString psano = hodnota(prvek);
            const auto znovu = desktop::vyrob_okno(*obrazovka, f.relace, nullptr);
            znovu->obnov();
            const auto* stejny = znovu->findChild<QWidget*>(prvek->objectName());
            ASSERT_NE(stejny, nullptr);
            EXPECT_EQ(hodnota(stejny), psano) << "obrazovka neví o " << popis(prvek);
        }
    }
    RecordProperty("zmeneno", zmenene.join(" ").toStdString());
}

// A clerk who leaves a window open must not keep another program from its work.
TEST_P(Ovladani, OtevreneOknoNebraniJinemuProgramuZapisovat) {
    const auto okno = this->okno();
    store::Connection jiny(f.relace.cesta_dat);
    store::Transaction zapis(jiny);
    jiny.execute("UPDATE Os_karty SET Jmeno = 'Jiné' WHERE Cislo = 1");
    EXPECT_NO_THROW(zapis.commit());
}

INSTANTIATE_TEST_SUITE_P(
    Okna, Ovladani, testing::Range<std::size_t>(0, desktop::ukazky().size()), [](const auto& okno) {
        const auto& u = desktop::ukazky().at(okno.param);
        std::string jmeno = std::string(u.obrazovka) + u.dodatek;
        std::replace_if(
            jmeno.begin(), jmeno.end(),
            [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); }, '_');
        return jmeno;
    });

TEST(OvladaniHlavnihoOkna, KlavesniceDosahneNaVseAPismenaSeNepletou) {
    TichaFirma f;
    desktop::OknoForm1 okno(f.hlavni, f.relace);
    okno.otevri();
    over_dosazitelnost(okno);
    over_mnemoniky(okno);
}

}  // namespace
