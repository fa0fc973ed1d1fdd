// Keys of a list: what they do, and that with Ctrl or Alt they belong to somebody else.
#include "desktop/klavesy_tabulky.h"

#include <QLineEdit>
#include <gtest/gtest.h>

#include "prostredi_qt.h"

namespace {

using namespace zkouska;

TEST(KlavesySeznamu, PridajiOpraviASmazouJenBezPrepinacu) {
    const struct {
        Qt::Key klavesa;
        Qt::KeyboardModifiers prepinace;
        const char* udela;
    } pripady[] = {
        {Qt::Key_Insert, {}, "pridat"},
        {Qt::Key_Insert, Qt::KeypadModifier, "pridat"},
        {Qt::Key_Return, {}, "opravit"},
        {Qt::Key_Enter, Qt::KeypadModifier, "opravit"},
        {Qt::Key_F2, {}, "opravit"},
        {Qt::Key_Delete, {}, "smazat"},
        {Qt::Key_Insert, Qt::ControlModifier, ""},
        {Qt::Key_Return, Qt::AltModifier, ""},
        {Qt::Key_Delete, Qt::ControlModifier, ""},
    };
    QDialog okno;
    auto* seznam = new QWidget(&okno);
    std::string udelano;
    const auto metoda = [&udelano](const char* co) { return [&udelano, co] { udelano += co; }; };
    desktop::klavesy_seznamu(*seznam, metoda("pridat"), metoda("opravit"), metoda("smazat"));
    okno.show();
    for (const auto& p : pripady) {
        QTest::keyClick(seznam, p.klavesa, p.prepinace);
        EXPECT_EQ(std::exchange(udelano, ""), p.udela) << p.klavesa << " " << p.prepinace;
    }
}

TEST(KlavesyPrvku, PismenaPisiDoPoleJenBezPrepinacu) {
    QDialog okno;
    auto* seznam = new QWidget(&okno);
    auto* pole = new QLineEdit("dosud", &okno);
    (new desktop::KlavesyPrvku(*seznam))->psani([pole](QChar znak) {
        return znak.isLetter() ? pole : nullptr;
    });
    okno.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&okno));
    QTest::keyClick(seznam, Qt::Key_C, Qt::ControlModifier);
    QTest::keyClick(seznam, Qt::Key_5);
    EXPECT_EQ(pole->text(), "dosud");
    QTest::keyClick(seznam, Qt::Key_B);
    EXPECT_EQ(pole->text(), "b") << "první písmeno nahradí, co v poli bylo";
    EXPECT_TRUE(pole->hasFocus());
}

}  // namespace
