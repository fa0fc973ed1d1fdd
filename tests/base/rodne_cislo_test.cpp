#include "base/rodne_cislo.h"

#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace {

TEST(RodneCislo, BezLomitka) {
    EXPECT_EQ(base::rc_bez_lomitka("850101/1234"), "8501011234");
    EXPECT_EQ(base::rc_bez_lomitka("85-01-01/1234"), "8501011234");
}

TEST(RodneCislo, PohlaviZeCtvrtehoAPatehoZnaku) {
    const std::vector<std::pair<const char*, const char*>> pripady{
        {"85.01.01", "M"}, {"85.12.01", "M"}, {"85.51.01", "Ž"}, {"85.62.01", "Ž"},
        {"85.13.01", "0"}, {"85.00.01", "0"}, {"85.63.01", "0"}, {"85.50.01", "0"},
        {"85.21.01", "0"}, {"85.0x.01", "0"}, {"85.5", "0"},     {"", "0"}};
    for (const auto& [rc, pohlavi] : pripady)
        EXPECT_EQ(base::pohlavi_z_rc(rc), pohlavi) << rc;
}

TEST(RodneCislo, DatumPrehodiCisliceJakStoji) {
    const std::vector<std::pair<const char*, const char*>> pripady{{"311230", "2030-12-31"},
                                                                   {"311231", "1931-12-31"},
                                                                   {"010100", "2000-01-01"},
                                                                   {"995599", "1999-55-99"},
                                                                   {"   ", ""},
                                                                   {"", ""}};
    for (const auto& [text, datum] : pripady)
        EXPECT_EQ(base::datum_z_rc(text), datum) << text;
}

}  // namespace
