#include "payrun/dan.h"

#include <gtest/gtest.h>

namespace payrun {
namespace {

TEST(ZakladDane, ZaokrouhlujeSeNaStaNahoru) {
    const std::pair<Castka, Castka> pripady[] = {
        {-500, -500}, {0, 0},         {99, 99},       {100, 100},       {101, 200},
        {200, 200},   {20000, 20000}, {20001, 20100}, {155644, 155700},
    };
    for (const auto& [zaklad, zaokrouhleny] : pripady) {
        EXPECT_EQ(zaokrouhleny_zaklad(zaklad), zaokrouhleny) << static_cast<double>(zaklad);
    }
}

TEST(Dan, SrazkovaNeboZalohovaPodleKoduAPrijmu) {
    struct Pripad {
        JakaDan kod;
        Castka zaklad, prijem, dan;
        const char* text;
    };
    const Pripad pripady[] = {
        {JakaDan::zaloha, 20001, 20001, 3015, "zálohová     20001     20100"},
        {JakaDan::zaloha, 10, 10, 2, "zálohová        10        10"},  // 1,5 od nuly
        {JakaDan::zaloha, 1234567, 1234567, 271507, "zálohová   1234567   1234600"},
        {JakaDan::zaloha, -1, -1, 0, ""},
        {JakaDan::dohoda, 10000, 10000, 1500, "srážková     10000     10000"},
        {JakaDan::dohoda, 10000, 10000.01L, 1500, "zálohová     10000     10000"},
        {JakaDan::dohoda, 9999, 9999, 1499, "srážková      9999      9999"},  // 1499,85
        {JakaDan::autor, 7000, 7000, 1050, "srážková      7000      7000"},
        {JakaDan::autor, 7000, 7000.0009L, 1050, "srážková      7000      7000"},
        {JakaDan::autor, 7001, 7001, 0, "srážková      7001      7001"},
        {JakaDan::statutar, 3500, 3500, 525, "srážková      3500      3500"},
        {JakaDan::statutar, 3501, 3501, 540, "zálohová      3501      3600"},
        {JakaDan::neplati, 30000, 30000, 0, ""},
        {static_cast<JakaDan>(0), 30000, 30000, 0, ""},
        {static_cast<JakaDan>(6), 30000, 30000, 0, ""},
    };
    for (const Pripad& p : pripady) {
        SCOPED_TRACE(testing::Message() << "kód " << static_cast<int>(p.kod) << ", příjem "
                                        << static_cast<double>(p.prijem));
        const DanPredSlevou d = dan_kc(p.kod, p.zaklad, p.prijem, 3500, nullptr);
        EXPECT_EQ(d.dan, p.dan);
        EXPECT_EQ(d.text, p.text);
    }
}

TEST(Dan, VyssiSazbaNadHranici) {
    struct Pripad {
        Castka zaklad, z15, z23, d15, d23;
    };
    const Pripad pripady[] = {
        {155600, 155600, 0, 23340, 0},
        {155644, 155644, 56, 23347, 13},  // základ se zaokrouhlí na 155700
        {200000, 155644, 44356, 23347, 10202},
    };
    for (const Pripad& p : pripady) {
        const DanPredSlevou d = dan_kc(JakaDan::zaloha, p.zaklad, p.zaklad, 3500, nullptr);
        EXPECT_TRUE(d.zalohova);
        EXPECT_EQ(d.dilci.zaklad_15, p.z15);
        EXPECT_EQ(d.dilci.zaklad_23, p.z23);
        EXPECT_EQ(d.dilci.dan_15, p.d15);
        EXPECT_EQ(d.dilci.dan_23, p.d23);
        EXPECT_EQ(d.dan, p.d15 + p.d23);
    }
    EXPECT_FALSE(dan_kc(JakaDan::dohoda, 5000, 5000, 3500, nullptr).zalohova);
}

TEST(Bonus, MeziDolniAHorniHranici) {
    struct Pripad {
        Castka dan, prijem, vysledek;
        int minimalni_mzda = 16200;
    };
    const Pripad pripady[] = {
        {500, 0, 500},
        {-1267, 20000, -1267},
        {-49, 20000, 0},
        {-50, 20000, -50},
        {-6000, 20000, -5025},
        {-5025, 20000, -5025},
        {-1267, 8100, -1267},
        {-1267, 8099.998L, 0},
        {-1267, 8100, -1267, 16201},  // polovina celočíselně
    };
    for (const Pripad& p : pripady) {
        EXPECT_EQ(dan_po_pravidlech_bonusu(p.dan, p.prijem, p.minimalni_mzda, 5025), p.vysledek)
            << static_cast<double>(p.dan) << " při příjmu " << static_cast<double>(p.prijem);
    }
}

TEST(StupenInvalidity, PodleMistaCastky) {
    const std::array<std::int16_t, 3> castky{210, 420, 1345};
    const std::pair<int, const char*> pripady[] = {{0, ""},     {210, "1"},  {420, "2"},
                                                   {1345, "3"}, {1765, "3"}, {1, "3"}};
    for (const auto& [castka, stupen] : pripady) {
        EXPECT_STREQ(Stupen_invalidity(castka, castky), stupen) << castka;
    }
}

TEST(OtazkaNaSlevy, VyjmenujeJenZadaneSlevy) {
    EXPECT_EQ(text_slev({}), "");
    EXPECT_EQ(text_slev({0, -5, 0, 0.001L}), "");
    EXPECT_EQ(text_slev({2570, 210, 335, 1267}),
              "\r\n-  2570  Kč  na poplatníka\r\n-  210  Kč  na invaliditu"
              "\r\n-  1267  Kč  na děti\r\n-  335  Kč  odpočitatelné ostatní");
    EXPECT_EQ(otazka_na_slevy(7, "Novák", "Jan", "\r\n-  335  Kč  odpočitatelné ostatní"),
              "Pracovník č. 7 - Novák Jan\r\n"
              "pracovní poměr netrvá celý měsíc, ale pracovník má zadané slevy na dani:\r\n"
              "\r\n-  335  Kč  odpočitatelné ostatní\r\n\r\n"
              "Přiznáme mu tyto slevy na dani?\r\n\r\n"
              "Zadáte-li \"ANO\", pak se pracovníkovi tyto slevy na dani přiznají.\r\n\r\n"
              "Zadáte-li \"NE\", pak se pracovníkovi slevy na dani nepřiznají,\r\n"
              "i když je v osobní kartě má zadané.\r\n");
}

TEST(OdborovyPrispevek, PodilKorunyNeboNic) {
    struct Pripad {
        int cislo;
        double sazba1, sazba2;
        Castka cisty, prispevek;
    };
    const Pripad pripady[] = {
        {1, 0.01, 50, 15555, 155},
        {1, 0.015, 50, 20000, 300},  // 0,015 není v binární soustavě
                                     // přesně
        {1, 0.29, 50, 100, 29},
        {1, 0, 50, 15555, 0},  // druhý interval se už nezkouší
        {1, 1, 50, 15555, 1},
        {100, 75, 50, 15555, 75},
        {101, 75, 50, 15555, 50},
        {101, 75, 0.02, 15555, 311},
        {201, 75, 50, 15555, 0},
        {1, 0.01, 0, -250, -2},
    };
    for (const Pripad& p : pripady) {
        shell::RidiciZorv ridici;
        ridici.os_interval1_od = 1;
        ridici.os_interval1_do = 100;
        ridici.os_interval2_od = 50;  // překrývá první interval
        ridici.os_interval2_do = 200;
        ridici.os_sazba1 = p.sazba1;
        ridici.os_sazba2 = p.sazba2;
        EXPECT_EQ(odborovy_prispevek(p.cislo, p.cisty, ridici, nullptr), p.prispevek)
            << "pracovník " << p.cislo << ", sazba " << p.sazba1;
    }
}

}  // namespace
}  // namespace payrun
