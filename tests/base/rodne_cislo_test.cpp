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

TEST(RodneCislo, StrukturaJakSePise) {
    const std::vector<std::pair<const char*, bool>> pripady{{"85-01-01/123", true},
                                                            {"85-01-01/1234", true},
                                                            {"99-99-99/9999", true},
                                                            {"85-01-01/12", false},
                                                            {"85-01-01/12345", false},
                                                            {"850101/1234", false},
                                                            {"85-01-01-1234", false},
                                                            {"8x-01-01/1234", false},
                                                            {"85-01-01/123 ", false},
                                                            {" 85-01-01/123", false},
                                                            {"", false}};
    for (const auto& [rc, dobra] : pripady)
        EXPECT_EQ(base::rodne_cislo_ok(rc), dobra) << rc;
}

TEST(RodneCislo, DatumNarozeni) {
    const std::vector<std::pair<const char*, const char*>> pripady{{"85-01-31/1234", "1985-01-31"},
                                                                   {"85-51-31/1234", "1985-01-31"},
                                                                   {"53-12-01/123", "1953-12-01"},
                                                                   {"54-12-01/1234", "1954-12-01"},
                                                                   {"53-12-01/1234", "2053-12-01"},
                                                                   {"99-62-31/1234", "1999-12-31"},
                                                                   {"04-29-05/1234", "2004-09-05"},
                                                                   {"1579021234", "2015-09-02"},
                                                                   {"00-02-29/1234", "2000-02-29"},
                                                                   {"03-29-05/1234", ""},
                                                                   {"85-13-01/1234", ""},
                                                                   {"85-02-29/1234", ""},
                                                                   {"85-00-01/1234", ""},
                                                                   {"85-50-01/1234", ""},
                                                                   {"85-01-01/12", ""},
                                                                   {"85-01-01/12a4", ""},
                                                                   {"", ""}};
    for (const auto& [rc, datum] : pripady)
        EXPECT_EQ(base::datum_iso(base::rc2datum(rc)), datum) << rc;
}

}  // namespace
