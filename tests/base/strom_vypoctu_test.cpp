// The explanation of an amount as a tree of nodes.
#include "base/strom_vypoctu.h"

#include <gtest/gtest.h>

namespace {

using base::DruhUzlu;
using base::Stopa;
using base::StromVypoctu;

TEST(StromVypoctu, UzelKteryUzBylSeRozbaliNaPozadani) {
    Stopa stopa;
    const int zaklad =
        stopa.krok("základ").udaj("plat", 100, "Os_karty.Staly_plat").vysledek("z", 100);
    stopa.krok("pojistné")
        .z("základ", "z", 100)
        .nastaveni("sazba", 7, "rid_zorv.idx proc_soc_pracovnik")
        .vysledek("p", 7);
    const int koren = stopa.krok("celkem")
                          .z("pojistné", "p", 7)
                          .z("základ", "z", 100)
                          .konstanta("krát", 2)
                          .vetev("bez zálohy")
                          .vysledek("c", 107);
    StromVypoctu strom(stopa, koren);
    ASSERT_EQ(strom.uzel(0).vetve.size(), 4U);
    const int znovu = strom.uzel(0).vetve[1];
    EXPECT_EQ(strom.uzel(znovu).krok, zaklad);
    EXPECT_TRUE(strom.uzel(znovu).znovu);
    EXPECT_TRUE(strom.uzel(znovu).vetve.empty());
    EXPECT_TRUE(strom.ma_vetve(znovu));
    for (int krat = 0; krat < 2; ++krat)
        strom.rozbal(znovu);
    ASSERT_EQ(strom.uzel(znovu).vetve.size(), 1U);
    EXPECT_EQ(strom.uzel(strom.uzel(znovu).vetve[0]).zdroj, "Os_karty.Staly_plat");
    EXPECT_EQ(strom.uzel(strom.uzel(0).vetve[2]).druh, DruhUzlu::konstanta);
    EXPECT_EQ(strom.uzel(strom.uzel(0).vetve[3]).druh, DruhUzlu::poznamka);
    EXPECT_FALSE(strom.ma_vetve(strom.uzel(0).vetve[3]));
    EXPECT_TRUE(StromVypoctu(stopa, -1).uzly().empty());
}

TEST(StromVypoctu, DosazenaHodnotaJeUdajBezVetvi) {
    Stopa stopa;
    stopa.krok("sazba").konstanta("z", 1).vysledek("sazba", 100);
    stopa.dosad("sazba", 120, "zadáno ručně");
    const StromVypoctu strom(stopa,
                             stopa.krok("celkem").z("hodina", "sazba", 120).vysledek("c", 120));
    const base::UzelVypoctu& hodina = strom.uzel(strom.uzel(0).vetve.at(0));
    EXPECT_EQ(hodina.druh, DruhUzlu::udaj);
    EXPECT_EQ(hodina.nazev + ", " + hodina.pravidlo + ", " + hodina.hodnota,
              "hodina, zadáno ručně, 120");
    EXPECT_TRUE(hodina.vetve.empty());
}

}  // namespace
