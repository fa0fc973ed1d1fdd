#include "base/klavesy.h"

#include <gtest/gtest.h>

namespace {

using Rezim = base::ZnamenkoRezim;

TEST(Klavesy, CeleCislo) {
    const struct {
        char znak;
        const char* text;
        Rezim rezim;
        bool projde;
    } pripady[] = {{'5', "", Rezim::bez_minus, true},
                   {'5', "123", Rezim::bez_minus, false},
                   {'a', "", Rezim::bez_minus, false},
                   {',', "1", Rezim::bez_minus, false},
                   {'-', "", Rezim::bez_minus, false},
                   {'-', "", Rezim::minus_na_zacatku, true},
                   {'-', "1", Rezim::minus_na_zacatku, false},
                   {'5', "", Rezim::minus_povinne, false},
                   {'-', "", Rezim::minus_povinne, true},
                   {'5', "-12", Rezim::minus_povinne, true},
                   {'5', "-123", Rezim::minus_povinne, false},
                   {base::k_backspace, "123", Rezim::bez_minus, true},
                   {base::k_enter, "", Rezim::minus_povinne, true}};
    for (const auto& p : pripady)
        EXPECT_EQ(base::hlidej_cele_cislo_klavesy(p.znak, p.text, p.rezim, 3), p.projde)
            << "'" << p.znak << "' za \"" << p.text << "\"";
}

TEST(Klavesy, DesetinneCislo) {
    const struct {
        char znak;
        const char* text;
        bool projde;
    } pripady[] = {
        {'1', "12", true},   {'1', "123", false},  {',', "123", true},           {'.', "1", true},
        {'.', "1,5", false}, {'7', "123,4", true}, {'7', "1,45", false},         {'-', "", true},
        {'-', "1", false},   {'e', "1", false},    {base::k_enter, "1,45", true}};
    for (const auto& p : pripady)
        EXPECT_EQ(
            base::hlidej_desetinne_cislo_klavesy(p.znak, p.text, Rezim::minus_na_zacatku, 3, 2),
            p.projde)
            << "'" << p.znak << "' za \"" << p.text << "\"";
    EXPECT_FALSE(base::hlidej_desetinne_cislo_klavesy(',', "1", Rezim::bez_minus, 3, 0));
    EXPECT_FALSE(base::hlidej_desetinne_cislo_klavesy(',', "", Rezim::minus_povinne, 3, 2));
}

TEST(Klavesy, DelkaVeZnacich) {
    EXPECT_TRUE(base::hlidej_delku_klavesy('a', "kůň", 4));
    EXPECT_FALSE(base::hlidej_delku_klavesy('a', "kůň", 3));
    EXPECT_TRUE(base::hlidej_delku_klavesy(base::k_backspace, "kůň", 3));
}

}  // namespace
