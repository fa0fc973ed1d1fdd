// Rules of single steps that a whole month shows only in unusual data.
#include <gtest/gtest.h>

#include "base/text.h"
#include "payrun/vypocet_mesice.h"

namespace zkouska {
namespace {

class PracovnikMesice : public testing::Test {
  protected:
    ZkusebniFirma firma;
    void karta(const std::string& pole, const std::string& hodnoty) {
        firma.vloz("Os_karty", "Cislo,Prijmeni,Jmeno,Jake_socialni,Jake_zdravotni,Jaka_dan,tpd," +
                                   pole + "\n1,Novák,Jan,1,1,1,40," + hodnoty + "\n");
    }
    void hrube(const std::string& radky) {
        firma.vloz("Hrube01", "Cislo_pracovnika,Modul,Sloupec,Kc_cel\n" + radky);
    }
    void fixni(const std::string& radky) {
        firma.vloz("Fixni", "Cislo_pracovnika,Sloupec,Kcs\n" + radky);
    }
};

TEST_F(PracovnikMesice, BonusSeZkousiNaCelouHrubouINaturalniMzdu) {
    // Half of the minimum wage is 8100; column 2 is left out of the tax, yet counts for the test.
    firma.session.nastaveni.nejde_do_pojisteni[2][0] = 2;
    karta("Odp_poplatnik", "2570");
    firma.vloz("Deti", "Cislo_pracovnika,Jmeno,Rodne_cislo,Odpocitatelna_dan\n1,Eva,1,1267\n");
    hrube("1,1,1,4000\n1,1,2,4000\n1,3,4,100\n");
    EXPECT_TRUE(spocti_mesic(firma).empty());
    EXPECT_EQ(hodnota(firma, 1, 9), "-1267");
    hrube("1,3,4,-0.5\n");
    EXPECT_TRUE(spocti_mesic(firma).empty());
    EXPECT_EQ(hodnota(firma, 1, 9), "");
}

TEST_F(PracovnikMesice, DruhaKartaCislaBerePrumerPrvni) {
    karta("PdovD4min", "1111");
    karta("PdovD4min", "2222");
    hrube("1,1,1,1000\n");
    EXPECT_TRUE(spocti_mesic(firma).empty());
    EXPECT_EQ(firma.vypis("SELECT COUNT(*) FROM Listin01 WHERE Modul = 89 AND Poznamka LIKE "
                          "\"% 1111    0\""),
              "2\n");
}

TEST_F(PracovnikMesice, BezRadkuNeniDanAniSrazkaAleZalohaAno) {
    karta("Odp_poplatnik", "2570");
    fixni("1,13,500\n");
    EXPECT_TRUE(spocti_mesic(firma).empty());
    EXPECT_EQ(listina(firma), "");
    fixni("1,17,300\n");
    EXPECT_EQ(spocti_mesic(firma), std::vector<std::string>{"Pracovník  č.  1:   -300  Kč"});
}

TEST_F(PracovnikMesice, PrazdnySloupecFixnichSeNebereAPrazdnyModulNicNezapise) {
    karta("Odp_poplatnik", "");
    fixni("1,,500\n");
    hrube("1,,1,9999\n1,1,1,1000\n");
    EXPECT_TRUE(spocti_mesic(firma).empty());
    EXPECT_EQ(hodnota(firma, 1, 2), "1000");
    EXPECT_EQ(hodnota(firma, 1, 10), "-");
}

TEST_F(PracovnikMesice, HalereSeSectouPresne) {
    // 1001,3 + 0,2 is a tie in decimals only; 0,1 + 0,2 + 0,7 make a whole crown of the tax base.
    karta("Odp_poplatnik", "");
    hrube("1,1,1,19999\n1,3,4,0.1\n1,3,4,0.2\n1,3,5,0.7\n1,5,7,1001.3\n1,5,8,0.2\n");
    EXPECT_TRUE(spocti_mesic(firma).empty());
    EXPECT_EQ(hodnota(firma, 1, 63), "20000");
    // 19999 + 1001,5 - 1301 - 901 - 3000 = 15798,5
    EXPECT_EQ(hodnota(firma, 1, 14), "15798");
    EXPECT_EQ(hodnota(firma, 1, 6), "21000");
}

TEST_F(PracovnikMesice, DlouhaPoznamkaSloucenehoZakladuSeUsekne) {
    karta("Odp_poplatnik", "");
    firma.vloz("Os_karty",
               "Cislo,Jake_socialni,Jake_zdravotni,Jaka_dan,tpd,Kdo_plati_dan\n"
               "2,1,1,1,40,1\n3,1,1,1,40,1\n4,1,1,1,40,1\n");
    hrube("1,1,1,1000\n2,1,1,1000\n3,1,1,1000\n4,1,1,1000\n");
    EXPECT_TRUE(spocti_mesic(firma).empty());
    EXPECT_EQ(hodnota(firma, 1, 63), "4000");
    const std::string text = poznamka(firma, 1, 63);
    EXPECT_EQ(base::pocet_znaku(text), 100U) << text;
    EXPECT_EQ(text.substr(0, 46), "1  (od pracovníka 000002        1000,00  Kč)");
}

}  // namespace
}  // namespace zkouska
