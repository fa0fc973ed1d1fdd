// The amounts and days of the tables were worked out by hand from a calendar of the year.
#include "wages/nahrada_vypocet.h"

#include <fmt/format.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

namespace {

using base::Castka;
using base::Datum;

wages::KalendareNahrady osmihodinove(int rok, bool s_minulym) {
    wages::KalendareNahrady kalendare;
    kalendare.aktualni = wages::zakladni_kalendar(rok, 480);
    if (s_minulym) {
        kalendare.rok_minuleho = rok - 1;
        kalendare.minuly = wages::zakladni_kalendar(rok - 1, 480);
    }
    return kalendare;
}

constexpr int h(int hodin) {
    return hodin * 60;
}

TEST(Nahrada, FondyADnyPodleObdobi) {
    struct Pripad {
        const char* co;
        Datum od, do_;
        int mesic, rok;
        bool minuly;
        int a, b, c, kalendarnich, pracovnich;
    };
    const Pripad pripady[] = {
        {"týden v únoru", {2022, 2, 7}, {2022, 2, 13}, 2, 2022, false, 0, h(40), 0, 7, 5},
        {"14. den je poslední",
         {2022, 2, 1},
         {2022, 2, 28},
         2,
         2022,
         false,
         0,
         h(80),
         h(80),
         28,
         20},
        {"od víkendu", {2022, 2, 5}, {2022, 2, 8}, 2, 2022, false, 0, h(16), 0, 4, 2},
        {"přes měsíc, platí se jen únor",
         {2022, 1, 20},
         {2022, 2, 28},
         2,
         2022,
         false,
         0,
         h(16),
         h(144),
         28,
         20},
        {"poslední den čekací doby",
         {2019, 6, 28},
         {2019, 6, 30},
         6,
         2019,
         false,
         h(8),
         0,
         0,
         3,
         1},
        {"30.6.2019 ještě s čekací dobou",
         {2019, 6, 30},
         {2019, 7, 12},
         7,
         2019,
         false,
         h(24),
         h(48),
         0,
         12,
         9},
        {"1.7.2019 bez čekací doby",
         {2019, 7, 1},
         {2019, 7, 12},
         7,
         2019,
         false,
         0,
         h(72),
         0,
         12,
         9},
        {"režim 2013 s 21 dny",
         {2013, 10, 1},
         {2013, 10, 31},
         10,
         2013,
         false,
         h(24),
         h(96),
         h(56),
         31,
         22},
        {"od prosince s kalendářem",
         {2021, 12, 27},
         {2022, 1, 14},
         1,
         2022,
         true,
         0,
         h(40),
         h(40),
         14,
         10},
        {"od prosince bez kalendáře",
         {2021, 12, 27},
         {2022, 1, 14},
         1,
         2022,
         false,
         0,
         h(40),
         h(40),
         14,
         10},
        {"obráceně zadané", {2022, 2, 8}, {2022, 2, 7}, 2, 2022, false, 0, 0, 0, 0, 0},
    };
    for (const Pripad& p : pripady) {
        SCOPED_TRACE(p.co);
        const auto f = wages::fondy_nahrady(p.od, p.do_, p.mesic, p.rok,
                                            osmihodinove(p.rok, p.minuly), nullptr);
        EXPECT_EQ(f.a, p.a);
        EXPECT_EQ(f.b, p.b);
        EXPECT_EQ(f.c, p.c);
        EXPECT_EQ(f.kalendarnich, p.kalendarnich);
        EXPECT_EQ(f.pracovnich, p.pracovnich);
    }
}

TEST(Nahrada, CekaciDenPoKonciNahradyJdeDoObouFondu) {
    // The worker works Sundays only: his third working day is the 16th calendar day.
    wages::KalendareNahrady kalendare;
    for (const int den : {6, 13, 20, 27})
        kalendare.aktualni[0][static_cast<std::size_t>(den - 1)] = 60;
    const auto f = wages::fondy_nahrady({2019, 1, 5}, {2019, 1, 31}, 1, 2019, kalendare, nullptr);
    EXPECT_EQ(f.a, 180);
    EXPECT_EQ(f.b, 0);
    EXPECT_EQ(f.c, 120);
}

TEST(Nahrada, KalendarMinulehoRokuSLetosnimRokemNicNezapocte) {
    auto kalendare = osmihodinove(2022, false);
    kalendare.rok_minuleho = 2022;
    const auto f = wages::fondy_nahrady({2022, 2, 7}, {2022, 2, 13}, 2, 2022, kalendare, nullptr);
    EXPECT_EQ(f.b, 0);
    EXPECT_EQ(f.kalendarnich, 0);
}

TEST(Nahrada, RedukovanyVydelekNaHranicich) {
    struct Pripad {
        int rok;
        Castka prumer, redukovany;
    };
    const Pripad pripady[] = {
        {2022, 100, 90},          {2022, 227.15L, 204.44L},  // 204,435 nahoru
        {2022, 227.16L, 204.45L},                            // 204,435 nahoru + 0,006 nahoru
        {2022, 340.55L, 272.48L},                            // 204,44 + 68,04
        {2022, 340.58L, 272.49L},                            // + 0,009 nahoru
        {2022, 681.10L, 374.65L},                            // 204,44 + 68,04 + 102,165 nahoru
        {2022, 5000, 374.65L},    {2009, 200, 165.32L},      // 135,927 nahoru + 29,382 nahoru
        {2014, 151.38L, 136.25L}, {2015, 155.40L, 139.86L}, {2016, 157.68L, 141.92L},
        {2017, 164.85L, 148.37L}, {2018, 175, 157.5L},      {2019, 190.75L, 171.68L},
        {2020, 203.35L, 183.02L}, {2021, 206.85L, 186.17L}, {2023, 300, 0},
    };
    for (const Pripad& p : pripady) {
        SCOPED_TRACE(testing::Message() << p.rok << ": " << static_cast<double>(p.prumer));
        const auto vysledek = wages::redukovany_vydelek(p.prumer, p.rok, nullptr);
        ASSERT_TRUE(vysledek);
        EXPECT_NEAR(static_cast<double>(*vysledek), static_cast<double>(p.redukovany), 1e-9);
    }
    EXPECT_FALSE(wages::redukovany_vydelek(0, 2022, nullptr));
}

/// Twelve-hour shifts: two days of work, two days off, all year long.
wages::KalendareNahrady dvanactky(int rok) {
    wages::KalendareNahrady kalendare;
    const auto prvni = base::poradi_dne({rok, 1, 1});
    for (int mesic = 1; mesic <= 12; ++mesic)
        for (int den = 1; den <= base::dni_v_mesici(mesic, rok); ++den)
            if ((base::poradi_dne({rok, mesic, den}) - prvni) % 4 < 2)
                kalendare.aktualni[static_cast<std::size_t>(mesic - 1)]
                                  [static_cast<std::size_t>(den - 1)] = h(12);
    return kalendare;
}

// The expected values come from a walk over the same days written apart from this code, in Python,
// with its own list of holidays.
TEST(Nahrada, DlouheNeschopnostiPresMesiceARoky) {
    const auto jen_letos = [](int rok, int minut) {
        wages::KalendareNahrady k;
        k.aktualni = wages::zakladni_kalendar(rok, minut);
        return k;
    };
    const auto s_minulym = [&](int rok, int minut) {
        wages::KalendareNahrady k = jen_letos(rok, minut);
        k.rok_minuleho = rok - 1;
        k.minuly = wages::zakladni_kalendar(rok - 1, minut);
        return k;
    };
    struct Pripad {
        const char* co;
        Datum od, do_;
        wages::KalendareNahrady kalendare;
        const char* fondy;  ///< A, B, C in minutes, calendar days, working days
    };
    const Datum leden24{2022, 1, 24}, unor24{2020, 2, 24}, prosinec29{2018, 12, 29};
    const Pripad pripady[] = {
        {"tři měsíce, leden", leden24, {2022, 1, 31}, jen_letos(2022, 480), "0 2880 0 8 6"},
        {"tři měsíce, únor", leden24, {2022, 2, 28}, jen_letos(2022, 480), "0 1920 7680 28 20"},
        {"tři měsíce, březen", leden24, {2022, 3, 11}, jen_letos(2022, 480), "0 0 4320 11 9"},
        {"přestupný únor", unor24, {2020, 2, 29}, jen_letos(2020, 480), "0 2400 0 6 5"},
        {"přes 29. únor", unor24, {2020, 3, 15}, jen_letos(2020, 480), "0 2400 2400 15 10"},
        {"přes Velikonoce",
         {2022, 4, 11},
         {2022, 4, 30},
         jen_letos(2022, 480),
         "0 3840 2400 20 13"},
        {"jen neděle", {2022, 5, 1}, {2022, 5, 1}, jen_letos(2022, 480), "0 0 0 1 0"},
        {"minulý rok 7:30", {2021, 12, 20}, {2022, 1, 31}, s_minulym(2022, 450), "0 0 9450 31 21"},
        // Only the last day of December was worked, so two waiting days are left for January.
        {"čekací den v minulém roce",
         prosinec29,
         {2019, 1, 20},
         s_minulym(2019, 480),
         "960 2880 2400 20 13"},
        // December read from the calendar of 2019, where it has two working days.
        {"bez minulého kalendáře",
         prosinec29,
         {2019, 1, 20},
         jen_letos(2019, 480),
         "480 3360 2400 20 13"},
        {"počátek v režimu 21 dnů",
         {2013, 12, 30},
         {2014, 1, 31},
         s_minulym(2014, 450),
         "450 4950 4500 31 22"},
        {"počátek před červencem 2019",
         {2019, 6, 27},
         {2019, 7, 31},
         jen_letos(2019, 480),
         "480 2880 7200 31 22"},
        {"směny bez čekacích dnů",
         {2022, 4, 3},
         {2022, 4, 20},
         dvanactky(2022),
         "0 5760 1440 18 10"},
        {"směny s čekacími dny",
         {2019, 2, 3},
         {2019, 2, 28},
         dvanactky(2019),
         "2160 2880 4320 26 13"},
    };
    for (const Pripad& p : pripady) {
        const auto f =
            wages::fondy_nahrady(p.od, p.do_, p.do_.mesic, p.do_.rok, p.kalendare, nullptr);
        EXPECT_EQ(fmt::format("{} {} {} {} {}", f.a, f.b, f.c, f.kalendarnich, f.pracovnich),
                  p.fondy)
            << p.co;
    }
}

RC_GTEST_PROP(Nahrada, ZaplacenyCasNepresahneKalendarMesice, ()) {
    const int od = *rc::gen::inRange(0, 300);
    const int delka = *rc::gen::inRange(1, 80);
    const int mesic = *rc::gen::inRange(1, 13);
    const Datum prvni = base::posun_dny({2022, 1, 1}, od);
    const auto kalendare = osmihodinove(2022, false);
    const auto f = wages::fondy_nahrady(prvni, base::posun_dny(prvni, delka - 1), mesic, 2022,
                                        kalendare, nullptr);
    RC_ASSERT(f.a == 0);
    RC_ASSERT(f.b + f.c == f.pracovnich * 480);
    RC_ASSERT(f.kalendarnich ==
              base::vyloucene_dny(mesic, 2022, prvni, base::posun_dny(prvni, delka - 1)));
}

}  // namespace
