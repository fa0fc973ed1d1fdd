// The year at a glance: state, sums and the next step of every month.
#include "menu/prehled_roku.h"

#include <gtest/gtest.h>

#include "support/zkusebni_firma.h"

namespace {

using Stav = menu::PrehledMesice::Stav;

constexpr const char* k_listina = "Mesic,Cislo_pracovnika,Modul,Sloupec,Hodnota\n";

/// A month's sheet, its rows "worker,module,column,value".
void vloz_listinu(zkouska::ZkusebniFirma& firma, int mesic, const std::vector<std::string>& radky) {
    std::string csv = k_listina;
    for (const std::string& radek : radky)
        csv += std::to_string(mesic) + "," + radek + "\n";
    firma.vloz(mesic < 10 ? "Listin0" + std::to_string(mesic) : "Listin" + std::to_string(mesic),
               csv);
}

TEST(PrehledRoku, StavMesicePlyneZPolozekListinyAUzaverky) {
    zkouska::ZkusebniFirma firma;
    firma.session.ridici_zorv.uzaverka[0] = "9.2.2022";
    firma.session.ridici_zorv.uzaverka[5] = "   ";
    vloz_listinu(firma, 1, {"7,14,18,100"});
    firma.vloz("Hrube02", "Mesic,Cislo_pracovnika,Modul\n2,7,1\n2,8,1\n");
    vloz_listinu(firma, 2, {"7,2,6,1", "7,14,18,1"});
    firma.vloz("Hrube03", "Mesic,Cislo_pracovnika,Modul\n3,7,1\n");
    vloz_listinu(firma, 3, {});
    firma.vloz("Hrube04", "Mesic,Cislo_pracovnika,Modul\n");

    const auto rok = menu::prehled_roku(firma.session);
    const struct {
        Stav stav;
        int radku, pracovniku;
    } cekano[] = {{Stav::uzavreno, 0, 1}, {Stav::spocteno, 2, 1}, {Stav::zadano, 1, 0},
                  {Stav::nic, 0, 0},      {Stav::nic, 0, 0},      {Stav::nic, 0, 0}};
    for (std::size_t i = 0; i < std::size(cekano); ++i) {
        EXPECT_EQ(rok[i].mesic, static_cast<int>(i) + 1);
        EXPECT_EQ(rok[i].stav, cekano[i].stav) << "měsíc " << i + 1;
        EXPECT_EQ(rok[i].radku, cekano[i].radku) << "měsíc " << i + 1;
        EXPECT_EQ(rok[i].pracovniku, cekano[i].pracovniku) << "měsíc " << i + 1;
    }
    EXPECT_EQ(rok[11].mesic, 12);
}

// Social: 24,8 % of the sum 20002 is 4960,496, so 4961 (worker by worker it would be 2481 twice).
// Health: 9 % of 10001 is 900,09, so 901 for each of the two.
TEST(PrehledRoku, NakladFirmyMaSocialniZeSouctuAZdravotniPoPracovnicich) {
    zkouska::ZkusebniFirma firma;
    vloz_listinu(firma, 1,
                 {"7,2,6,10001", "7,61,0,10001", "7,62,0,10001", "7,7,8,651", "7,14,18,8450",
                  "8,2,6,10001", "8,61,0,10001", "8,62,0,10001", "8,14,18,8450"});
    const auto leden = menu::prehled_roku(firma.session)[0];
    EXPECT_EQ(leden.pracovniku, 2);
    EXPECT_EQ(leden.hruba, 20002);
    EXPECT_EQ(leden.cista, 16900);
    EXPECT_EQ(leden.naklad, 20002 + 4961 + 901 + 901);
}

// Worker 7 saves the whole pay in column 14; a deduction of another worker there, or of his in
// another column, is no pay.
TEST(PrehledRoku, SporenaVyplataPatriDoCiste) {
    zkouska::ZkusebniFirma firma;
    firma.vloz("Os_karty", "Cislo,Cely_plat_sporit\n7,14\n8,0\n");
    vloz_listinu(firma, 1,
                 {"7,14,18,0", "7,10,14,15000", "7,10,15,300", "8,14,18,9000", "8,10,14,500"});
    const auto leden = menu::prehled_roku(firma.session)[0];
    EXPECT_EQ(leden.cista, 24000);
    EXPECT_EQ(leden.pracovniku, 2) << "i výplata 0 je výplata";
}

TEST(PrehledRoku, FirmaBezTabulekMaPrazdnyRok) {
    zkouska::ZkusebniFirma firma;
    store::Transaction zmena(firma.data());
    firma.data().delete_table("Os_karty");
    zmena.commit();
    for (const auto& mesic : menu::prehled_roku(firma.session))
        EXPECT_EQ(mesic.stav, Stav::nic);
}

TEST(DalsiKrok, RidiSePrvnimNeuzavrenymMesicem) {
    std::array<menu::PrehledMesice, 12> rok;
    rok[0].stav = Stav::uzavreno;
    rok[1].stav = Stav::spocteno;
    rok[2].stav = Stav::zadano;
    const struct {
        int mesic;
        const char* veta;
    } pripady[] = {{2, "Únor: výplaty spočteny, zkontrolujte je a uzavřete měsíc"},
                   {3, "Březen: zadány hrubé mzdy, vypočtěte výplaty"},
                   {12, "Prosinec: zadejte hrubé mzdy"},
                   {13, "Všechny měsíce jsou uzavřeny, proveďte roční převod"}};
    for (const auto& p : pripady)
        EXPECT_EQ(menu::dalsi_krok(rok, p.mesic), p.veta);
}

}  // namespace
