#include "payrun/vysvetleni.h"

#include <gtest/gtest.h>

#include "payrun/vypocet_mesice.h"

namespace zkouska {
namespace {

class Vysvetlovani : public testing::Test {
  protected:
    ZkusebniFirma firma;
    void SetUp() override {
        firma.vloz("Os_karty",
                   "Cislo,Prijmeni,Jmeno,Jake_socialni,Jake_zdravotni,Jaka_dan,tpd,Kdo_plati_dan,"
                   "Odp_poplatnik,Zam_od\n"
                   "1,Bartoš,Adam,1,1,1,40,2,,\n2,Černá,Božena,1,1,1,40,,2570,\n"
                   "3,Dolejš,Cyril,1,1,5,40,,,\n4,Erben,Dan,1,1,1,40,,2570,10.1.2022\n");
        firma.vloz("Hrube01",
                   "Cislo_pracovnika,Modul,Sloupec,Kc_cel\n1,1,1,5000\n2,1,1,10000.4\n"
                   "2,1,1,2000\n2,3,4,100.5\n3,1,1,8000\n4,1,1,30000\n");
        firma.vloz("Fixni", "Cislo_pracovnika,Sloupec,Kcs\n2,13,300\n2,17,1000\n");
    }
    payrun::VysvetlenyRadek radek(const payrun::Vysvetleni& v, int modul) {
        for (const auto& r : v.radky) {
            if (r.modul == modul) return r;
        }
        ADD_FAILURE() << "chybí řádek modulu " << modul;
        return {};
    }
    void zmen(const char* sql) {
        store::Transaction t(firma.data());
        firma.data().execute(sql);
        t.commit();
    }
};

TEST_F(Vysvetlovani, StromSahaAzKRadkumHrubychMezd) {
    firma.obsluha.odpovez("Erben", false);
    ASSERT_TRUE(spocti_mesic(firma).empty());
    const payrun::Vysvetleni v = payrun::vysvetli_pracovnika(firma.session, 1, 2);
    EXPECT_EQ(v.jmeno, "Černá Božena");
    EXPECT_TRUE(v.pracovnik_nalezen && v.listina_existuje);
    const std::string strom = v.stopa.strom(radek(v, 14).krok);
    for (const char* cast :
         {"k výplatě", "hrubá mzda = 12001", "Hrube01.Kc_cel, Pocitadlo 2",
          "Hrube01.Kc_cel, Pocitadlo 3", "sociální pojištění pracovníka",
          "rid_zorv.idx proc_soc_pracovnik", "zdravotní pojištění pracovníka",
          "Os_karty.Odp_poplatnik", "Fixni.Kcs, Pocitadlo 1", "Fixni.Kcs, Pocitadlo 2",
          "od pracovníka 000001 = 5000", "základ pracovníka č. 1", "Hrube01.Kc_cel, Pocitadlo 1",
          "Hrube01.Kc_cel, Pocitadlo 4", "§ 38h"}) {
        EXPECT_NE(strom.find(cast), std::string::npos) << cast << "\n" << strom;
    }
    // A stored row that lost a fraction tells how.
    const std::string naturalni = v.stopa.strom(radek(v, 3).krok);
    EXPECT_NE(naturalni.find("polovina k sudé"), std::string::npos) << naturalni;
}

TEST_F(Vysvetlovani, OpakovanyDilciZakladSouhlasiISOdpovediNaOtazku) {
    for (const bool ano : {true, false}) {
        firma.obsluha.odpovez("Erben", ano);
        ASSERT_TRUE(spocti_mesic(firma).empty());
        for (int cislo = 1; cislo <= 4; ++cislo) {
            const payrun::Vysvetleni v = payrun::vysvetli_pracovnika(firma.session, 1, cislo);
            EXPECT_FALSE(v.radky.empty());
            for (const auto& r : v.radky)
                EXPECT_TRUE(r.souhlasi) << cislo << ": " << r.modul;
        }
        // Worker 3 pays no tax and repeats the partial base of worker 2.
        EXPECT_EQ(radek(payrun::vysvetli_pracovnika(firma.session, 1, 3), 91).vypocteno, 17200);
    }
}

TEST_F(Vysvetlovani, ZmenaPoVypoctuJeVidet) {
    firma.obsluha.odpovez("Erben", false);
    ASSERT_TRUE(spocti_mesic(firma).empty());
    const std::string pred = listina(firma);
    zmen("UPDATE Hrube01 SET Kc_cel = 9000 WHERE Cislo_pracovnika = 3");
    zmen("UPDATE Fixni SET Sloupec = 14 WHERE Sloupec = 13");
    const payrun::VysvetlenyRadek hruba =
        radek(payrun::vysvetli_pracovnika(firma.session, 1, 3), 2);
    EXPECT_FALSE(hruba.souhlasi);
    EXPECT_EQ(hruba.vypocteno, 9000);
    EXPECT_EQ(hruba.ulozeno, 8000);
    int jen_vypoctene = 0, jen_ulozene = 0;
    for (const auto& r : payrun::vysvetli_pracovnika(firma.session, 1, 2).radky) {
        jen_vypoctene += r.vypocteno && !r.ulozeno ? 1 : 0;
        jen_ulozene += !r.vypocteno && r.ulozeno ? 1 : 0;
    }
    EXPECT_EQ(jen_vypoctene, 1);
    EXPECT_EQ(jen_ulozene, 1);
    EXPECT_EQ(listina(firma), pred) << "vysvětlení nic nezapisuje";
}

TEST_F(Vysvetlovani, NeznamyPracovnikMesicBezListinyAChyby) {
    priprav_mesic(firma, 1);
    EXPECT_FALSE(payrun::vysvetli_pracovnika(firma.session, 1, 99).pracovnik_nalezen);
    zmen("UPDATE Os_karty SET Kdo_plati_dan = 99 WHERE Cislo = 1");
    const payrun::Vysvetleni v = payrun::vysvetli_pracovnika(firma.session, 1, 1);
    const std::vector<std::string> ceka{"Chybná kombinace pro zdanění:", "     000001 - 000099"};
    EXPECT_EQ(v.chyby, ceka);
    EXPECT_FALSE(radek(v, 2).ulozeno);
    zmen("UPDATE Fixni SET Kcs = 99999 WHERE Sloupec = 13");
    const std::vector<std::string> zaporna{"Pracovník  č.  2:   -90330  Kč"};
    EXPECT_EQ(payrun::vysvetli_pracovnika(firma.session, 1, 2).chyby, zaporna);
}

}  // namespace
}  // namespace zkouska
