#include "wages/polozka_hrube.h"

#include <gtest/gtest.h>

namespace {

using base::Castka;
using Chyby = std::vector<std::string>;

/// A column that asks for everything; values 1 to 4 from -10 to 1000.
wages::SloupecHrube uplny_sloupec() {
    wages::SloupecHrube s;
    s.jake_dny = s.jake_hodiny = 1;
    s.datum = s.stredisko = s.vykon = s.stroj = true;
    for (auto& hodnota : s.hodnoty)
        hodnota = {"hodnota", 0, -10, 1000, 0};
    s.var_vyp = 1;
    return s;
}

wages::ZadaniPolozky spravne() {
    return {"5", "40", "0703", "12", "001", "17", {"1", "2", "3", "4"}, ""};
}

// Performance 001 allows the centres 12 and 50 to 60, 002 only the centre 7.
const wages::CiselnikyPolozky k_ciselniky{
    {"00112..................5060", "00207......................"}, {"000017"}};

TEST(PolozkaHrube, KontrolaVPevnemPoradi) {
    struct Pripad {
        const char* co;
        void (*zmen)(wages::ZadaniPolozky&);
        Chyby chyby;
    };
    using Z = wages::ZadaniPolozky;
    const Pripad pripady[] = {
        {"v pořádku", [](Z&) {}, {}},
        {"opravy zápornými hodnotami",
         [](Z& z) { z.dny = "-5", z.hodiny = "-40", z.hodnoty[0] = "-10"; },
         {}},
        {"vše prázdné",
         [](Z& z) { z = {}; },
         {"Nezadali jste dny.", "Nezadali jste hodiny.", "Nezadali jste datum.",
          "Není zadané středisko.", "Nezadali jste výkon.", "Nezadali jste číslo stroje.",
          "Nezadali jste první hodnotu.", "Nezadali jste druhou hodnotu.",
          "Nezadali jste třetí hodnotu.", "Nezadali jste čtvrtou hodnotu."}},
        {"zkouší se zaokrouhlené dny", [](Z& z) { z.dny = "31,4", z.hodiny = "500,4"; }, {}},
        {"o půl víc",
         [](Z& z) { z.dny = "31,5", z.hodiny = "-500,6"; },
         {"Chybně zadané dny.", "Chybně zadané hodiny."}},
        {"datum jiného měsíce projde", [](Z& z) { z.datum = "2812"; }, {}},
        {"datum, které není", [](Z& z) { z.datum = "2902"; }, {"Chybně zadané datum."}},
        {"tři číslice", [](Z& z) { z.datum = "703"; }, {"Chybně zadané datum."}},
        {"středisko z rozsahu", [](Z& z) { z.stredisko = "60"; }, {}},
        {"středisko mimo", [](Z& z) { z.stredisko = "61"; }, {"Výkon nemá povolené středisko."}},
        {"výkon bez rozsahu", [](Z& z) { z.vykon = "2"; }, {"Výkon nemá povolené středisko."}},
        {"neznámý výkon", [](Z& z) { z.vykon = "003"; }, {"Výkon není povolen."}},
        {"stroj nula projde", [](Z& z) { z.stroj = "0"; }, {}},
        {"neznámý stroj", [](Z& z) { z.stroj = "18"; }, {"Chybně zadané číslo stroje."}},
        {"meze včetně",
         [](Z& z) {
             z.hodnoty = {"1000", "-10", "1000,0", "0"};
         },
         {}},
        {"za mezemi",
         [](Z& z) { z.hodnoty[0] = "1000,01", z.hodnoty[3] = "-10,01"; },
         {"Interval u 1: -10 až 1000.", "Interval u 4: -10 až 1000."}},
    };
    for (const Pripad& p : pripady) {
        SCOPED_TRACE(p.co);
        auto zadani = spravne();
        p.zmen(zadani);
        EXPECT_EQ(
            wages::Udelej_kontrolu_bezneho_tiskopisu(uplny_sloupec(), zadani, k_ciselniky, 2022),
            p.chyby);
    }
    EXPECT_EQ(wages::Udelej_kontrolu_bezneho_tiskopisu({}, {}, k_ciselniky, 2022), Chyby{});
}

TEST(PolozkaHrube, CelkemPodleVarianty) {
    struct Pripad {
        int varianta;
        std::array<std::string, 4> hodnoty;
        Castka celkem;
    };
    const Pripad pripady[] = {
        {1, {"7,5", "2", "3", "4"}, 7.5L},     {2, {"1", "7,5", "3", "4"}, 7.5L},
        {3, {"1", "2", "7,5", "4"}, 7.5L},     {4, {"1", "2", "3", "7,5"}, 7.5L},
        {5, {"12,5", "8", "", ""}, 100},       {6, {"150", "33", "", ""}, 49.5L},
        {7, {"150", "8", "25", ""}, 300},      {8, {"3", "4", "5", "6"}, 42},
        {9, {"10", "20", "25", ""}, 250},      {10, {"2", "3", "4", ""}, 24},
        {11, {"7", "2", "3", "1,25"}, 11.75L}, {12, {"200", "50", "10", ""}, 10},
        {0, {"1", "2", "3", "4"}, 0},          {13, {"1", "2", "3", "4"}, 0},
        {5, {"0,25", "0,5", "", ""}, 0.12L},  // 0,125 to the even heller
        {5, {"0,75", "0,5", "", ""}, 0.38L},  // 0,375
        {11, {"10", "3", "1", "0"}, 3.33L},    {1, {"-150,25", "", "", ""}, -150.25L},
    };
    auto sloupec = uplny_sloupec();
    for (const Pripad& p : pripady) {
        SCOPED_TRACE(testing::Message() << "varianta " << p.varianta << " " << p.hodnoty[0]);
        sloupec.var_vyp = p.varianta;
        wages::ZadaniPolozky zadani;
        zadani.hodnoty = p.hodnoty;
        EXPECT_EQ(base::porovnej_castky(wages::proved_vypocet_na_beznem_tiskopisu(sloupec, zadani),
                                        p.celkem),
                  0);
    }
}

TEST(PolozkaHrube, HodnotaBezNadpisuSeNepocita) {
    auto sloupec = uplny_sloupec();
    sloupec.var_vyp = 8;
    sloupec.hodnoty[2].nadpis = "  ";
    wages::ZadaniPolozky zadani;
    zadani.hodnoty = {"3", "4", "5", "6"};
    EXPECT_EQ(wages::proved_vypocet_na_beznem_tiskopisu(sloupec, zadani), 12);
}

TEST(PolozkaHrube, DatumSeDoplniAktualnimMesicem) {
    EXPECT_EQ(wages::uprav_datum("7", 3), "0703");
    EXPECT_EQ(wages::uprav_datum("17", 12), "1712");
    EXPECT_EQ(wages::uprav_datum("170", 3), "170");
    EXPECT_EQ(wages::uprav_datum("", 3), "");
    EXPECT_TRUE(wages::Spravne_datum("2902", 2024));
    EXPECT_FALSE(wages::Spravne_datum("0013", 2022));
    EXPECT_FALSE(wages::Spravne_datum("7.3.", 2022));
}

}  // namespace
