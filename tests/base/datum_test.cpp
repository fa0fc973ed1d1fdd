#include "base/datum.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <vector>

namespace {

using base::Datum;

TEST(Datum, DnyVMesici) {
    EXPECT_EQ(base::dni_v_mesici(2, 2024), 29);
    EXPECT_EQ(base::dni_v_mesici(2, 2023), 28);
    EXPECT_EQ(base::dni_v_mesici(2, 2100), 29);  // the rule stops at four
    EXPECT_EQ(base::dni_v_mesici_z_tabulky(2, 2100), 28);
    EXPECT_EQ(base::dni_v_mesici_z_tabulky(2, 2000), 29);
    EXPECT_EQ(base::dni_v_mesici(4, 2022), 30);
    EXPECT_EQ(base::dni_v_mesici(0, 2022), 0);
    EXPECT_EQ(base::dni_v_mesici(13, 2022), 0);
}

TEST(Datum, MesicSlovy) {
    EXPECT_EQ(base::mesic_slovy(1, 0), "leden");
    EXPECT_EQ(base::mesic_slovy(12, 2022), "prosinec  2022");
    EXPECT_EQ(base::mesic_slovy(13, 0), "???");
    EXPECT_EQ(base::mesic_slovy(0, 2022), "???  2022");
}

TEST(Datum, DatumOkHlidaTvarIMeze) {
    const std::vector<std::pair<const char*, bool>> pripady{
        {"1.2.2022", true},   {"01.02.2022", true},  {"29.2.2000", true},  {"29.2.2023", false},
        {"31.4.2022", false}, {"1.2.2050", true},    {"1.2.2051", false},  {"31.12.1899", false},
        {"1.1.1900", true},   {"29.2.1900", false},  {"1.2.22", false},    {"1.13.2022", false},
        {"0.1.2022", false},  {"001.2.2022", false}, {"1.2.2022.", false}, {"1-2-2022", false},
        {"", false},          {"..2022", false},     {" 1.2.2022", false}, {"1.2.2022 ", false}};
    for (const auto& [text, ok] : pripady)
        EXPECT_EQ(base::datum_ok(text), ok) << text;
}

TEST(Datum, DatumDdmmrr) {
    const std::vector<std::pair<const char*, bool>> pripady{
        {"290200", true},  {"290223", false}, {"311299", true},  {"320122", false},
        {"011322", false}, {"000122", false}, {"1.1.22", false}, {"01012", false}};
    for (const auto& [text, ok] : pripady)
        EXPECT_EQ(base::datum_ddmmrr_ok(text), ok) << text;
}

TEST(Datum, TextovePodoby) {
    const Datum den{2022, 3, 5};
    EXPECT_EQ(base::datum_z_textu("5.3.2022"), den);
    EXPECT_EQ(base::datum_textem(den), "5.3.2022");
    EXPECT_EQ(base::dopln_nuly_data("5.3.2022"), "05.03.2022");
    EXPECT_EQ(base::dopln_nuly_data("dosud"), "dosud");
    EXPECT_EQ(base::datum_jako_cislo(5, 3, 2022), 20220305);
    EXPECT_EQ(base::datum_jako_cislo("5.3.2022"), 20220305);
    EXPECT_EQ(base::datum_jako_cislo(""), 0);
    EXPECT_EQ(base::datum_iso(den), "2022-03-05");
    EXPECT_EQ(base::datum_iso({}), "");
    EXPECT_EQ(base::datum_textem({}), "");
}

RC_GTEST_PROP(Datum, DenSeVratiZKazdePodoby, ()) {
    const auto poradi = *rc::gen::inRange<std::int64_t>(-25567, 29585);  // 1900 to 2050
    const Datum den = base::z_poradi(poradi);
    RC_ASSERT(base::je_platne(den));
    RC_ASSERT(base::poradi_dne(den) == poradi);
    RC_ASSERT(base::datum_z_textu(base::datum_textem(den)) == den);
    RC_ASSERT(base::datum_z_iso(base::datum_iso(den)) == den);
    RC_ASSERT(base::den_v_tydnu(base::posun_dny(den, 7)) == base::den_v_tydnu(den));
    const base::DatumCas cas{den, 23, 59, 58};
    RC_ASSERT(base::datum_cas_z_iso(base::datum_cas_iso(cas)) == cas);
}

TEST(Datum, IsoJePrisne) {
    for (const char* text :
         {"2022-3-05", "2022-02-29", "2022/03/05", "2022-03-05 ", "", "20220305"})
        EXPECT_FALSE(base::datum_z_iso(text)) << text;
    for (const char* text : {"2022-03-05", "2022-03-05T24:00:00", "2022-03-05T12:60:00",
                             "2022-03-05T12:00", "2022-03-05X12:00:00", "2022-02-30T12:00:00"})
        EXPECT_FALSE(base::datum_cas_z_iso(text)) << text;
    EXPECT_EQ(base::datum_cas_z_iso("2022-03-05 06:07:08"),
              (base::DatumCas{{2022, 3, 5}, 6, 7, 8}));
}

TEST(Datum, VylouceneDnyUvnitrMesice) {
    const struct {
        Datum od, do_;
        int dnu;
    } pripady[] = {{{2022, 2, 27}, {2022, 3, 2}, 2},
                   {{2022, 1, 1}, {2022, 12, 31}, 28},
                   {{2022, 2, 5}, {2022, 2, 5}, 1},
                   {{2022, 3, 1}, {2022, 3, 5}, 0},
                   {{2022, 2, 10}, {2022, 2, 9}, 0},
                   {{2022, 1, 1}, {2022, 1, 31}, 0},
                   {{2021, 12, 20}, {2022, 2, 1}, 1},
                   {{}, {2022, 2, 3}, 3},
                   {{2022, 2, 1}, {}, 0}};
    for (const auto& p : pripady)
        EXPECT_EQ(base::vyloucene_dny(2, 2022, p.od, p.do_), p.dnu) << base::datum_iso(p.od);
}

TEST(Datum, PracovniDnyMeziPocitajiOdNasledujicihoDnePoDenZaKoncem) {
    // 7 November 2022 is a Monday.
    const struct {
        int od, do_, dnu;
    } pripady[] = {{7, 7, 1},   {7, 10, 4},  {7, 11, 4}, {11, 11, 0},
                   {11, 13, 1}, {6, 19, 10}, {8, 7, 0}};
    for (const auto& p : pripady)
        EXPECT_EQ(base::pracovni_dny_mezi({2022, 11, p.od}, {2022, 11, p.do_}), p.dnu)
            << p.od << " až " << p.do_;
    EXPECT_EQ(base::pracovni_dny_mezi({}, {2022, 11, 7}), 0);
}

TEST(Datum, PracovniDnyMesiceSvatkyNevynechaji) {
    EXPECT_EQ(base::pracovni_dny_mesice(11, 2022), 22);
    EXPECT_EQ(base::pracovni_dny_mesice(2, 2021), 20);
    EXPECT_EQ(base::pracovni_dny_mesice(1, 2022), 21);
}

TEST(Datum, Svatky) {
    const struct {
        Datum den;
        bool svatek;
    } pripady[] = {{{2022, 4, 18}, true},   {{2022, 4, 15}, true},   {{2016, 3, 25}, true},
                   {{2015, 4, 3}, false},   {{2015, 4, 6}, true},    {{2022, 1, 1}, true},
                   {{2022, 11, 17}, true},  {{2022, 11, 18}, false}, {{2023, 1, 1}, false},
                   {{2008, 12, 24}, false}, {{2009, 4, 13}, true},   {{2009, 12, 26}, true},
                   {{2010, 5, 1}, false},   {{2010, 12, 24}, true},  {{2010, 4, 5}, true},
                   {{2011, 12, 26}, true},  {{2011, 1, 1}, false},   {{2012, 9, 28}, true},
                   {{2012, 10, 28}, false}, {{2012, 11, 17}, false}, {{2013, 7, 6}, false},
                   {{2013, 10, 28}, true},  {{2014, 9, 28}, true}};
    for (const auto& p : pripady)
        EXPECT_EQ(base::je_svatek(p.den), p.svatek) << base::datum_iso(p.den);
}

TEST(Datum, KazdyRokMaSvujPocetSvatku) {
    const std::vector<int> pocty{12, 8, 7, 9, 9, 12, 12, 13, 13, 13, 13, 13, 13, 13};
    for (int rok = 2009; rok <= 2022; ++rok) {
        int svatku = 0;
        for (Datum d{rok, 1, 1}; d.rok == rok; d = base::posun_dny(d, 1))
            svatku += base::je_svatek(d) ? 1 : 0;
        EXPECT_EQ(svatku, pocty[static_cast<std::size_t>(rok - 2009)]) << rok;
    }
}

TEST(Datum, CasNaMinuty) {
    const std::vector<std::pair<const char*, int>> pripady{
        {"8:00", 480}, {"7:30", 450}, {"0:05", 5}, {"120:15", 7215}, {"", 0},     {"8", 0},
        {":30", 0},    {"8:", 0},     {"8:60", 0}, {"-1:00", 0},     {"a:00", 0}, {"8:00:00", 0}};
    for (const auto& [text, minut] : pripady)
        EXPECT_EQ(base::cas_na_minuty(text), minut) << text;
}

}  // namespace
