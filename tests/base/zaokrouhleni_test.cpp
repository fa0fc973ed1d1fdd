#include "base/zaokrouhleni.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <vector>

namespace {

using base::Castka;

struct Pripad {
    const base::Zaokrouhleni& jak;
    Castka castka;
    Castka ocekavano;
};

TEST(Zaokrouhleni, KazdyZpusobNaSvychHranicich) {
    const std::vector<Pripad> pripady{
        {base::na_koruny_k_sude, 2.5L, 2},
        {base::na_koruny_k_sude, 3.5L, 4},
        {base::na_koruny_k_sude, -2.5L, -2},
        {base::na_koruny_k_sude, 2.51L, 3},
        {base::na_halere_k_sude, 0.125L, 0.12L},
        {base::na_halere_k_sude, 0.375L, 0.38L},
        {base::na_koruny_nahoru, 650, 650},
        {base::na_koruny_nahoru, 650.000001L, 651},
        {base::na_koruny_nahoru, -0.5L, 0},
        {base::na_halere_nahoru, 204.435L, 204.44L},
        {base::na_halere_nahoru, 204.43L, 204.43L},
        {base::na_halere_nahoru, 10.0000009L, 10},
        {base::na_koruny_podil_podniku, 2480.00009L, 2480},
        {base::na_koruny_podil_podniku, 2480.001L, 2481},
        {base::sloupec_na_koruny, 100, 100},
        {base::sloupec_na_koruny, 100.001L, 100},
        {base::sloupec_na_koruny, 100.0011L, 101},
        {base::sloupec_na_koruny, 101.001L, 102},
        {base::zdravotni_na_koruny, 728.9999L, 729},
        {base::zdravotni_na_koruny, 729.00009L, 729},
        {base::zdravotni_na_koruny, 729.0002L, 730},
        {base::plat_na_koruny, 1234.5L, 1235},
        {base::plat_na_koruny, 1234.49L, 1234},
        {base::srazkova_na_koruny, 1499.9995L, 1500},
        {base::srazkova_na_koruny, 1499.998L, 1499},
        {base::zaklad_dane_na_sta, 100.005L, 100},
        {base::zaklad_dane_na_sta, 101, 200},
        {base::zaklad_dane_na_sta, 20000, 20000},
        {base::zaklad_dane_na_sta, 20001, 20100},
        {base::na_koruny_od_nuly, 2.5L, 3},
        {base::na_koruny_od_nuly, -2.5L, -3},
        {base::odriznout, 7.99L, 7},
        {base::odriznout, -7.99L, -7},
        {base::nezaokrouhlovat, 7.99L, 7.99L},
    };
    for (const auto& p : pripady)
        EXPECT_EQ(p.jak(p.castka), p.ocekavano) << p.jak.popis << " z " << p.castka;
}

TEST(Zaokrouhleni, ProcentoKtereDvojkovaSoustavaNeznaNepridaKorunu) {
    // The rates come from files as doubles.
    const struct {
        int zaklad;
        double procent;
        int koruny;
    } pripady[] = {{10000, 6.7, 670},  {10000, 7.1, 710},  {10001, 6.5, 651},
                   {20000, 6.5, 1300}, {30000, 7.1, 2130}, {16200, 4.5, 729}};
    for (const auto& p : pripady)
        EXPECT_EQ(base::na_koruny_nahoru(base::procenta(p.zaklad, p.procent)), p.koruny)
            << p.procent << " % z " << p.zaklad;
}

RC_GTEST_PROP(Zaokrouhleni, PojistneJeVzdyNejmensiDostatecnaKoruna, ()) {
    const auto zaklad = *rc::gen::inRange<long long>(0, 2'000'000);
    const auto setiny_procenta = *rc::gen::inRange<long long>(0, 3000);
    const auto presne = (zaklad * setiny_procenta + 9999) / 10000;
    const double procent = static_cast<double>(setiny_procenta) / 100;
    const auto castka = base::na_koruny_nahoru(base::procenta(zaklad, procent));
    RC_ASSERT(castka == static_cast<Castka>(presne));
}

TEST(Zaokrouhleni, ZaokrouhliNaMistaOdNulyNeboOrizne) {
    const struct {
        Castka castka;
        int mist;
        bool orizni;
        Castka ocekavano;
    } pripady[] = {{2.345L, 1, false, 2.3L}, {2.25L, 1, false, 2.3L}, {-2.25L, 1, false, -2.3L},
                   {2.29L, 1, true, 2.2L},   {150, -2, false, 200},   {149.99L, -2, false, 100},
                   {199, -2, true, 100},     {-0.5L, 0, false, -1}};
    for (const auto& p : pripady)
        EXPECT_EQ(base::zaokrouhli(p.castka, p.mist, p.orizni), p.ocekavano) << p.castka;
}

TEST(Zaokrouhleni, CastkySeRovnajiDoDesetinyHalere) {
    EXPECT_TRUE(base::je_nula(0.001L));
    EXPECT_TRUE(base::je_nula(-0.001L));
    EXPECT_FALSE(base::je_nula(0.0011L));
    EXPECT_EQ(base::porovnej_castky(10, 10.0009L), 0);
    EXPECT_EQ(base::porovnej_castky(10, 10.01L), 1);
    EXPECT_EQ(base::porovnej_castky(10.01L, 10), 2);
}

}  // namespace
