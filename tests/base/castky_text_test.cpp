#include "base/castky_text.h"

#include <gtest/gtest.h>

namespace {

using base::Castka;

TEST(CastkyText, DoSloupceMezeraJenPredMiliony) {
    const struct {
        int sirka, mist;
        Castka castka;
        const char *text, *bez_mezery;
    } pripady[] = {
        {12, 2, -1234567.5L, "-1 234567.50", "-1 234567.50"},
        {0, 2, 1234567.89L, "1 234567.89", "1 234567.89"},
        {12, 2, 123456.78L, "   123456.78", "   123456.78"},
        {5, 2, 1234567.89L, "1 234567.89", "1 234567.89"},
        {10, 0, 1234567, "  1 234567", "   1234567"},
        {8, 0, 123456, "  123456", "  123456"},
        {0, 0, 12345678, "12 345678", "12345678"},
        {0, 0, -1234567, "-1 234567", "-1234567"},
        {8, 2, 0, "    0.00", "    0.00"},
        {0, 2, -0.00005L, "0.00", "0.00"},
        {0, 2, 99.995L, "100.00", "100.00"},
        {0, 1, 99.995L, "100.0", "100.0"},
    };
    for (const auto& p : pripady) {
        EXPECT_EQ(base::castka_do_sloupce(p.sirka, p.mist, p.castka), p.text);
        EXPECT_EQ(base::castka_do_sloupce_bez_mezery(p.sirka, p.mist, p.castka), p.bez_mezery);
    }
}

TEST(CastkyText, OstatniPodoby) {
    EXPECT_EQ(base::castka_s_carkou(15, 2, 20000), "       20000,00");
    EXPECT_EQ(base::castka_s_carkou(10, 2, -7.5L), "     -7,50");
    EXPECT_EQ(base::nula_jako_tecky(0), "... ");
    EXPECT_EQ(base::nula_jako_tecky(-3), "-3");
    EXPECT_EQ(base::castka_nebo_tecky(0.001L), "...   ");
    EXPECT_EQ(base::castka_nebo_tecky(0.01L), "0.01");
    EXPECT_EQ(base::cislo_pro_export(12.34L), "12.3");
    EXPECT_EQ(base::cislo_pro_export(-0.01L), "0.0");
}

TEST(CastkyText, ProstaAOddelovana) {
    const struct {
        Castka castka;
        const char *prosta, *oddelovana;
    } pripady[] = {{0, "0", "0,00"},
                   {-0.0L, "0", "0,00"},
                   {1500, "1500", "1 500,00"},
                   {-1234567.5L, "-1234567,5", "-1 234 567,50"},
                   {-123, "-123", "-123,00"},
                   {227.15, "227,15", "227,15"},
                   {1234.567L, "1234,567", "1234,567"},
                   {0.0000001L, "0", "0,00"}};
    for (const auto& p : pripady) {
        EXPECT_EQ(base::castka_prosta(p.castka), p.prosta);
        EXPECT_EQ(base::castka_s_oddelovaci(p.castka), p.oddelovana);
    }
}

}  // namespace
