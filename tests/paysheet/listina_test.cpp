// Making a month's pay sheet and sums over the sheets that exist.
#include "paysheet/listina.h"

#include <filesystem>
#include <gtest/gtest.h>

#include "support/zkusebni_firma.h"

namespace {

using zkouska::ZkusebniFirma;

constexpr const char* k_hlavicka = "Mesic,Cislo_pracovnika,Modul,Hodnota\n";

TEST(VyplatniListina, OpakovaneZalozeniZacinaPrazdnouListinou) {
    ZkusebniFirma firma;
    firma.session.zpracovavany_mesic = 3;
    EXPECT_TRUE(paysheet::is_prazdne_listin(firma.session, 3)) << "listina není";
    paysheet::zaloz_vyplatni_listinu(firma.session, 1);
    EXPECT_TRUE(paysheet::is_prazdne_listin(firma.session, 3)) << "listina bez řádků";
    firma.vloz("Listin03", std::string(k_hlavicka) + "3,7,2,100\n");
    EXPECT_FALSE(paysheet::is_prazdne_listin(firma.session, 3));
    paysheet::zaloz_vyplatni_listinu(firma.session, 2);
    EXPECT_TRUE(firma.data().table_exists("Listin03"));
    EXPECT_TRUE(paysheet::is_prazdne_listin(firma.session, 3));
    firma.vloz("Listin03", std::string(k_hlavicka) + "3,7,2,100\n");
    EXPECT_EQ(firma.vypis("SELECT Pocitadlo FROM Listin03"), "1\n");
}

TEST(VyplatniListina, SouctySeBerouZListinKtereJsou) {
    ZkusebniFirma firma;
    firma.vloz("Listin01", std::string(k_hlavicka) + "1,7,2,1000\n1,7,2,500\n1,8,2,9\n1,7,9,77\n");
    firma.vloz("Listin03", std::string(k_hlavicka) + "3,7,2,20\n3,9,3,4\n3,7,9,-77\n");
    firma.vloz("Listin04", std::string(k_hlavicka) + "4,7,2,\n");
    const auto soucet = [&](int cislo, int modul, int od, int do_) {
        return paysheet::soucet_hodnot_listin(firma.session, cislo, modul, do_, od);
    };
    EXPECT_EQ(soucet(7, 2, 1, 12), 1520.0L);
    EXPECT_EQ(soucet(7, 2, 2, 3), 20.0L);
    EXPECT_EQ(soucet(7, 2, 5, 12), 0.0L) << "žádná listina";
    EXPECT_EQ(soucet(7, 9, 1, 3), 0.0L);
    EXPECT_EQ(soucet(10, 2, 1, 12), 0.0L) << "žádný řádek";

    struct Radek {
        int od_prac, do_prac, mesic_od, mesic_do, modul_od, modul_do;
        base::Castka soucet;
    };
    for (const Radek& r : {Radek{1, 999999, 1, 12, 2, 2, 1529},
                           {7, 7, 1, 12, 2, 3, 1520},
                           {8, 9, 1, 3, 2, 3, 13},
                           {7, 9, 3, 3, 2, 3, 24},
                           {1, 6, 1, 12, 1, 99, 0}}) {
        EXPECT_EQ(paysheet::zjisti_listin(firma.session, r.od_prac, r.do_prac, false, r.mesic_do,
                                          r.mesic_od, r.modul_do, r.modul_od),
                  r.soucet);
    }
}

TEST(VyplatniListina, MinulyRokSeCteZJehoSlozky) {
    ZkusebniFirma minula("FIRMA21");
    minula.vloz("Listin12", std::string(k_hlavicka) + "12,7,14,12345\n");
    minula.session.zavri_spojeni();
    ZkusebniFirma firma("FIRMA22");
    const auto loni = [&] {
        return paysheet::zjisti_listin(firma.session, 7, 7, true, 12, 1, 14, 14);
    };
    EXPECT_EQ(loni(), 0.0L) << "loňská složka není";
    std::filesystem::copy(minula.slozka / "FIRMA21", firma.slozka / "FIRMA21",
                          std::filesystem::copy_options::recursive);
    EXPECT_EQ(loni(), 12345.0L);
}

}  // namespace
