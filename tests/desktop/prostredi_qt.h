// What every test of windows needs: the application on the offscreen platform and helpers that act
// as the operator while a window is open.
#pragma once

#include <QDialog>
#include <QTest>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>

#include "desktop/aplikace.h"
#include "desktop/obsluha_qt.h"
#include "desktop/text_qt.h"

namespace zkouska {

/// The one application of the test binary.
desktop::Aplikace& aplikace();

/// How many hundredths of a second a window may take to open; a busy machine needs many.
inline constexpr int k_cekani_na_okno = 2000;

/// Runs when another modal window than now has opened; one must come within the wait. After a
/// failure all windows are closed, so that the test ends.
inline void v_okne(std::function<void(QWidget& okno)> prace,
                   QWidget* dosud = QApplication::activeModalWidget(),
                   int pokusu = k_cekani_na_okno) {
    QTimer::singleShot(
        pokusu == k_cekani_na_okno ? 0 : 10, &aplikace(), [=, prace = std::move(prace)] {
            QWidget* okno = QApplication::activeModalWidget();
            if (okno == dosud && pokusu > 0) {
                v_okne(prace, dosud, pokusu - 1);
                return;
            }
            if (okno && okno != dosud) {
                // Keys go to the field with the focus, which an inactive window does not have. Qt's
                // own wait takes a window for active as soon as the one below it is.
                EXPECT_TRUE(QTest::qWaitFor([=] { return QApplication::activeWindow() == okno; }));
                prace(*okno);
            } else {
                ADD_FAILURE() << "žádné okno se neotevřelo";
            }
            if (testing::Test::HasFailure()) aplikace().ukonci();
        });
}

template <class Prvek>
Prvek& prvek(QWidget& okno, const char* jmeno) {
    auto* nalezeny = okno.findChild<Prvek*>(jmeno);
    if (!nalezeny) throw std::runtime_error(std::string("v okně není prvek ") + jmeno);
    return *nalezeny;
}

inline void klikni(QWidget& okno, const char* tlacitko) {
    QTest::mouseClick(&prvek<QWidget>(okno, tlacitko), Qt::LeftButton);
}

/// A shortcut of a button, with a moment for what follows from it.
inline void zkratka(QWidget& okno, Qt::Key klavesa) {
    QTest::keyClick(&okno, klavesa);
    QTest::qWait(30);
}

}  // namespace zkouska
