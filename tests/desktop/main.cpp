// Starts the application of the tests on a small monitor; no display is needed.
#include <gtest/gtest.h>

#include "desktop/vzhled.h"
#include "prostredi_qt.h"

namespace zkouska {

desktop::Aplikace& aplikace() {
    return dynamic_cast<desktop::Aplikace&>(*QCoreApplication::instance());
}

}  // namespace zkouska

int main(int pocet, char** argumenty) {
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" ZORV_TEST_DATA "/monitor.json");
    testing::InitGoogleTest(&pocet, argumenty);
    const desktop::Aplikace jedina(pocet, argumenty);
    zkouska::aplikace().ohlas_chybu = [](const std::string& text) {
        ADD_FAILURE() << text;
        zkouska::aplikace().ukonci();
    };
    desktop::nastav_vzhled(zkouska::aplikace(), 0, 9);
    return RUN_ALL_TESTS();
}
