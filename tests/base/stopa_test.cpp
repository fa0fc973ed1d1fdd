#include "base/stopa.h"

#include <gtest/gtest.h>

namespace {

using base::Stopa;

TEST(Stopa, KrokOdkazujeNaPuvodSvychVstupu) {
    Stopa stopa;
    const int zaklad = stopa.krok("základ sociálního pojištění")
                           .udaj("druh", "1", "Os_karty.Jake_socialni")
                           .vysledek("socialni_zaklad", 20000);
    const int pojistne = stopa.krok("sociální pojištění")
                             .z("základ", "socialni_zaklad", 20000)
                             .nastaveni("sazba %", 6.5, "rid_zorv.idx proc_soc_pracovnik")
                             .zaokrouhleni(base::na_koruny_nahoru)
                             .predpis("§ 7 zák. č. 589/1992 Sb.")
                             .vysledek("socialni_kc", 1300);
    EXPECT_EQ(stopa.kroky()[static_cast<std::size_t>(pojistne)].vstupy[0].krok, zaklad);
    EXPECT_EQ(stopa.strom(pojistne),
              "sociální pojištění = 1300  [na koruny nahoru]  (§ 7 zák. č. 589/1992 Sb.)\n"
              "├─ základ = 20000: základ sociálního pojištění\n"
              "│  └─ druh = 1  ← Os_karty.Jake_socialni\n"
              "└─ sazba % = 6,5  ← rid_zorv.idx proc_soc_pracovnik\n");
}

TEST(Stopa, SoucetOdkazujeNaSvePrispevky) {
    Stopa stopa;
    stopa.zacni_soucet("srazky_soucet", "srážky celkem");
    stopa.krok("sociální pojištění").vysledek("socialni_kc", 1300);
    stopa.pricti("srazky_soucet", "sociální", "socialni_kc", 1300);
    stopa.pricti("srazky_soucet", "spoření", "Fixni.Kcs", 200.5L);
    EXPECT_EQ(stopa.strom(stopa.krok_promenne("srazky_soucet", 1500.5L)),
              "srážky celkem = 1500,5\n"
              "├─ sociální = 1300: sociální pojištění\n"
              "└─ spoření = 200,5  ← Fixni.Kcs\n");
}

TEST(Stopa, SoucetPoDalsimPrispevkuJeNovyKrok) {
    Stopa stopa;
    stopa.zacni_soucet("hruba_mzda", "hrubá mzda");
    stopa.pricti("hruba_mzda", "sloupec 1", "Hrube01", 100);
    const int drive = stopa.krok_promenne("hruba_mzda", 100);
    EXPECT_EQ(stopa.krok_promenne("hruba_mzda", 100), drive);
    stopa.pricti("hruba_mzda", "sloupec 2", "Hrube01", 50);
    const int potom = stopa.krok_promenne("hruba_mzda", 150);
    EXPECT_NE(potom, drive);
    EXPECT_EQ(stopa.kroky()[static_cast<std::size_t>(potom)].vstupy.size(), 2U);
}

TEST(Stopa, PosledniZapisRozhodujeCoPromennaJe) {
    Stopa stopa;
    stopa.zacni_soucet("x", "součet");
    stopa.pricti("x", "část", "Hrube01", 1);
    const int krok = stopa.krok("blokovaná hodnota").vysledek("x", 5);
    EXPECT_EQ(stopa.krok_promenne("x", 5), krok);
    stopa.pricti("x", "další", "Hrube01", 2);
    EXPECT_EQ(stopa.strom(stopa.krok_promenne("x", 7)),
              "blokovaná hodnota = 7\n"
              "├─ dosavadní hodnota = 5: blokovaná hodnota\n"
              "└─ další = 2  ← Hrube01\n");
}

TEST(Stopa, PodruheSeNaKrokJenOdkaze) {
    Stopa stopa;
    stopa.krok("základ").udaj("z karty", "1", "Os_karty").vysledek("z", 10);
    const int k =
        stopa.krok("rozdíl").z("menšenec", "z", 10).z("menšitel", "z", 10).vysledek("r", 0);
    EXPECT_EQ(stopa.strom(k),
              "rozdíl = 0\n"
              "├─ menšenec = 10: základ\n"
              "│  └─ z karty = 1  ← Os_karty\n"
              "└─ menšitel = 10: základ  (viz výše)\n");
}

TEST(Stopa, NeznamyKrokNemaStrom) {
    Stopa stopa;
    EXPECT_EQ(stopa.krok_promenne("nic", 0), -1);
    EXPECT_EQ(stopa.strom(-1), "");
    EXPECT_EQ(stopa.strom(0), "");
}

}  // namespace
