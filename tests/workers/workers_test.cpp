// The child's benefit, the insurers, the averages kept on the card.
#include <gtest/gtest.h>

#include "support/zkusebni_firma.h"
#include "workers/pojistovny.h"
#include "workers/prumery.h"
#include "workers/zvyhodneni.h"

namespace {

TEST(Zvyhodneni, NaDitePodlePoradiAObdobi) {
    const struct {
        int mesic, rok, prvni, druhe, treti;
    } pripady[] = {{12, 1999, 0, 0, 0},
                   {1, 2000, 1117, 1117, 1117},
                   {12, 2014, 1117, 1117, 1117},
                   {1, 2015, 1117, 1317, 1417},
                   {4, 2016, 1117, 1317, 1417},
                   {5, 2016, 1117, 1417, 1717},
                   {6, 2017, 1117, 1417, 1717},
                   {7, 2017, 1117, 1617, 2017},
                   {1, 2018, 1267, 1617, 2017},
                   {12, 2021, 1267, 1617, 2017},
                   {1, 2022, 1267, 1860, 2320},
                   {12, 2022, 1267, 1860, 2320},
                   {1, 2023, 0, 0, 0}};
    for (const auto& p : pripady) {
        SCOPED_TRACE(std::to_string(p.mesic) + "/" + std::to_string(p.rok));
        EXPECT_EQ(workers::mesicni_zvyhodneni_na_dite(1, p.mesic, p.rok), p.prvni);
        EXPECT_EQ(workers::mesicni_zvyhodneni_na_dite(2, p.mesic, p.rok), p.druhe);
        EXPECT_EQ(workers::mesicni_zvyhodneni_na_dite(3, p.mesic, p.rok), p.treti);
        EXPECT_EQ(workers::mesicni_zvyhodneni_na_dite(7, p.mesic, p.rok), p.treti);
    }
}

TEST(Pojistovny, SeznamPodleCislaAJmenoZNej) {
    zkouska::ZkusebniFirma firma;
    firma.vloz("Zdr_poj", "Cislo,Nazev\n11,Vojenská\n1,Všeobecná\n11,Druhá stejného čísla\n");
    const auto pojistovny = workers::Nacti_pojistovny(firma.session);
    EXPECT_EQ(pojistovny,
              (std::vector<std::string>{"01Všeobecná", "11Vojenská", "11Druhá stejného čísla"}));
    EXPECT_EQ(workers::Jmeno_pojistovny(pojistovny, 1), "Všeobecná");
    EXPECT_EQ(workers::Jmeno_pojistovny(pojistovny, 11), "Vojenská");
    EXPECT_EQ(workers::Jmeno_pojistovny(pojistovny, 0), "neznámá pojišťovna");
}

TEST(Prumery, MesicCtePredchoziCtvrtleti) {
    zkouska::ZkusebniFirma firma;
    firma.vloz("Os_karty",
               "Cislo,Prijmeni,PdovD4min,PdovD1akt,PdovD2akt,PdovD3akt,"
               "PdovH4min,PdovH1akt,PdovH2akt,PdovH3akt\n"
               "7,Nováková,1000,1100.5,1200,1300,125,137.56,150,162.5\n"
               "8,Bez průměrů,,,,,,,,\n");
    const struct {
        int mesic;
        double denni, hodinovy;
    } pripady[] = {{1, 1000, 125}, {3, 1000, 125},    {4, 1100.5, 137.56}, {7, 1200, 150},
                   {9, 1200, 150}, {10, 1300, 162.5}, {12, 1300, 162.5}};
    for (const auto& p : pripady) {
        using workers::DruhPrumeru;
        const auto prumer = [&](int cislo, DruhPrumeru druh) {
            return workers::prumer_na_dovolenou(firma.session, cislo, druh, p.mesic);
        };
        EXPECT_EQ(prumer(7, DruhPrumeru::denni), p.denni) << p.mesic;
        EXPECT_EQ(prumer(7, DruhPrumeru::hodinovy), p.hodinovy) << p.mesic;
        EXPECT_EQ(prumer(8, DruhPrumeru::denni), 0);
        EXPECT_EQ(prumer(99, DruhPrumeru::hodinovy), 0);
    }
}

}  // namespace
