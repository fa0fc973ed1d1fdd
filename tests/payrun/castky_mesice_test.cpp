// Small amounts of the month: blocked values, shortening, binary noise, merged taxation.
#include <gtest/gtest.h>

#include "base/text.h"
#include "payrun/blok.h"
#include "payrun/kraceni.h"
#include "payrun/sloucene_zdaneni.h"

namespace payrun {
namespace {

TEST(BlokovanaHodnota, PevnaNeboRozdil) {
    struct Pripad {
        BlokovanaHodnota blok;
        Castka vypocteno, vysledek;
        const char* znacka;
    };
    const Pripad pripady[] = {
        {{0, 0}, 2000.5L, 2000.5L, ""},
        {{1000, 50}, 2000, 1050, "blok"},
        {{1000, 0}, 2000, 1000, "blok"},
        {{0, -100}, 2000, 1900, "blok"},
        {{-7, 0}, 2000, -7, "blok"},
        {{100, -100}, 2000, 0, "blok"},
        {{2147483647, 2147483647}, 0, 4294967294.0L, "blok"},
    };
    for (const Pripad& p : pripady) {
        const VybranaHodnota v = vyber_hodnotu(p.blok, p.vypocteno);
        EXPECT_EQ(v.hodnota, p.vysledek) << p.blok.abs << ", " << p.blok.dif;
        EXPECT_STREQ(v.znacka, p.znacka);
    }
}

TEST(Kraceni, PlatPodleFonduHodin) {
    struct Pripad {
        Castka plat, fond, odpracovano, castka;
    };
    const Pripad pripady[] = {
        {20000, 168, 84, 10000}, {20000, 168, 168, 20000}, {20000, 168, 0, 0},
        {20000, 0, 80, 0},       {10001, 168, 84, 5001},    // 5000,5
        {10000, 3, 1, 3333},     {10000, 168, -84, -4999},  // přičte se půl a odřízne
    };
    for (const Pripad& p : pripady) {
        EXPECT_EQ(zkracena_castka(p.plat, p.fond, p.odpracovano), p.castka)
            << static_cast<double>(p.plat) << " / " << static_cast<double>(p.fond);
    }
    EXPECT_EQ(hodiny_za_dny(21, 37.5L), 157.5L);
    EXPECT_EQ(dny_za_hodiny(100, 40), 12.5L);
    EXPECT_EQ(dny_za_hodiny(100, 37.5L), 1333 / 100.0L);
}

TEST(PenzijniFond, PodilNeboKoruny) {
    const std::pair<Castka, Castka> pripady[] = {
        {0.03L, 600}, {0.0333L, 666}, {0.9985L, 19970}, {0.9995L, 0.9995L},
        {1, 1},       {500, 500},     {0, 0},
    };
    for (const auto& [sazba, castka] : pripady) {
        EXPECT_EQ(prispevek_penzijniho_fondu(sazba, 20000), castka) << static_cast<double>(sazba);
    }
}

TEST(BinarniSum, SoucetHaleruJePresny) {
    // In binary 1001,3 + 0,2 falls short of the tie, and 0,1 + 0,2 + 0,7 short of a crown.
    EXPECT_EQ(bez_sumu(z_ulozeneho(1001.3) + z_ulozeneho(0.2)), 1001.5L);
    EXPECT_EQ(base::odriznout(bez_sumu(Castka{0.1} + 0.2 + 0.7)), 1);
    EXPECT_EQ(z_ulozeneho(0.1), 0.1L);
    EXPECT_EQ(z_ulozeneho(1.0 / 3), Castka{1.0 / 3});
    EXPECT_EQ(z_ulozeneho(-24350.55), -24350.55L);
}

TEST(SlouceneZdaneni, PolozkaJePevnyTextASpotrebujeSeJednou) {
    SlouceneZdaneni sloucene;
    sloucene.pridej(12, 7, 5000, 5000.4L);
    sloucene.pridej(13, 8, 100, 100);
    sloucene.pridej(14, 7, -20, -20);
    EXPECT_EQ(sloucene.polozky()[0], "000012000007        5000,00        5000,40        5000,00");
    EXPECT_EQ(base::pocet_znaku(sloucene.polozky()[2]), 57U);

    const std::vector<Pripis> pripisy = sloucene.odeber_pro(7);
    ASSERT_EQ(pripisy.size(), 2U);
    EXPECT_EQ(pripisy[0].cislo, "000012");
    EXPECT_EQ(pripisy[0].zaklad_textem, "        5000,00");
    EXPECT_EQ(pripisy[0].zaklad, 5000);
    EXPECT_EQ(pripisy[0].prijem, 5000.4L);
    EXPECT_EQ(pripisy[1].zaklad, -20);
    EXPECT_EQ(sloucene.polozky()[0], "@");
    EXPECT_TRUE(sloucene.odeber_pro(7).empty());

    const std::vector<std::string> hlasky{"Chybná kombinace pro zdanění:", "     000013 - 000008"};
    EXPECT_EQ(sloucene.hlasky_o_nespotrebovanych(), hlasky);
    EXPECT_EQ(sloucene.hlasky_o_nespotrebovanych(13), hlasky);
    EXPECT_TRUE(sloucene.hlasky_o_nespotrebovanych(12).empty());
}

}  // namespace
}  // namespace payrun
