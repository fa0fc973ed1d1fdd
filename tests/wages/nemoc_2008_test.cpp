// Benefits before 2009; amounts worked out by hand.
#include "wages/nemoc_2008.h"

#include <gtest/gtest.h>

#include "base/text.h"

namespace {

using base::Castka;
using wages::DruhDavky;

const wages::SazbyDavek k_sazby{{0, 60, 66, 72}, 60, 550, 790};

TEST(Nemoc2008, DenniZaklad) {
    struct Pripad {
        Castka prumer, zaklad;
    };
    for (const Pripad& p : {Pripad{500, 450},
                            {500.2L, 451},  // 450,18 + 0,4999
                            {550, 495},
                            {600, 525},  // 495 + 30
                            {601, 526},  // 495 + 30,6 + 0,4999
                            {790, 639},
                            {791, 639}}) {  // above the second limit nothing is added
        EXPECT_EQ(wages::spocitej_denni_prumer(p.prumer, k_sazby), p.zaklad)
            << static_cast<double>(p.prumer);
    }
}

TEST(Nemoc2008, DnyPasemACastky) {
    struct Pripad {
        const char* co;
        DruhDavky druh;
        wages::DenMesic od, do_;
        bool jen_mesic, osamela;
        std::array<int, 4> dnu;
        int pracovnich;
        Castka celkem;
    };
    // Base 450: 270, 297 and 324 crowns a day of bands 2 to 4, 0,49 never reaches a crown more.
    const Pripad pripady[] = {
        {"celou dobu",
         DruhDavky::nemoc,
         {1, 1},
         {6, 3},
         false,
         false,
         {3, 27, 30, 5},
         4,
         27 * 270 + 30 * 297 + 5 * 324},
        {"jen měsíc",
         DruhDavky::nemoc,
         {1, 1},
         {6, 3},
         true,
         false,
         {0, 0, 1, 5},
         4,
         297 + 5 * 324},
        {"přes konec roku", DruhDavky::nemoc, {30, 12}, {2, 1}, false, false, {3, 1, 0, 0}, 0, 270},
        {"ošetřování", DruhDavky::ocr, {1, 3}, {20, 3}, false, false, {9, 0, 0, 0}, 14, 9 * 270},
        {"ošetřování osamělé",
         DruhDavky::ocr,
         {1, 3},
         {20, 3},
         false,
         true,
         {16, 0, 0, 0},
         14,
         16 * 270},
    };
    for (const Pripad& p : pripady) {
        SCOPED_TRACE(p.co);
        const auto d = wages::vypocti_davku(
            {p.druh, p.od, p.do_, p.jen_mesic, 3, 2022, 500, p.osamela}, k_sazby);
        EXPECT_EQ(d.dnu, p.dnu);
        EXPECT_EQ(d.pracovnich, p.pracovnich);
        EXPECT_EQ(d.celkem, p.celkem);
    }
}

TEST(Nemoc2008, TextRadkuDrziPozice) {
    wages::ObsahDavky obsah{DruhDavky::nemoc,   123, "2802", "0303", 512.5L, {3, 1, 0, 12},
                            {0, 270, 297, 324}, 0};
    const std::string text = wages::text_davky(obsah);
    EXPECT_EQ(text, "N 12328020303   512,50  3  1     0   270  0   297 12   324");
    EXPECT_EQ(base::pocet_znaku(text), 58U);
    obsah.druh = DruhDavky::ppm;
    obsah.kalendarnich = 28;
    EXPECT_EQ(wages::text_davky(obsah), "P 123 28");
}

TEST(Nemoc2008, KalendarniDnyRadku) {
    const std::string text = "N 12328020303   512,50  3  1     0   270  0     0  0     0";
    EXPECT_EQ(wages::kalendarni_dny_radku(text, 2, 2022), 1);
    EXPECT_EQ(wages::kalendarni_dny_radku(text, 3, 2022), 3);
    EXPECT_EQ(wages::kalendarni_dny_radku(text, 4, 2022), 0);
    EXPECT_EQ(wages::kalendarni_dny_radku("O   120120301", 1, 2022), 3);  // from December
    EXPECT_EQ(wages::kalendarni_dny_radku("P 123 28", 3, 2022), 0);
    EXPECT_EQ(wages::kalendarni_dny_radku("N   130020303", 3, 2022), 0);  // 30 February
}

}  // namespace
