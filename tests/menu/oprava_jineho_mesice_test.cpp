// Entry of gross wages from which a row of another month was corrected.
#include <gtest/gtest.h>

#include "menu/akce_evidence.h"
#include "support/zkusebni_firma.h"
#include "wages/unit17_zadani.h"
#include "wages/unit18_prohlizeni.h"

namespace {

/// March is worked on, February is the last closed month; both have a pay sheet.
TEST(OpravaJinehoMesice, ListinuZtratiOpravenyIZadavanyMesic) {
    zkouska::ZkusebniFirma firma;
    firma.vloz("Os_karty", "Cislo,Prijmeni\n1,Nová\n");
    for (const char* mesic : {"02", "03"}) {
        firma.vloz(std::string("Hrube") + mesic,
                   "Cislo_pracovnika,Modul,Sloupec,Kc_cel\n1,1,1,5\n");
        firma.vloz(std::string("Listin") + mesic, "Cislo_pracovnika,Modul,Hodnota\n1,14,5\n");
    }
    firma.vloz("Listin01", "Cislo_pracovnika,Modul,Hodnota\n1,14,5\n");
    firma.session.mesic_v_poli = firma.session.aktivni_mesic = 3;
    firma.obsluha.pri_obrazovce = [&firma](base::Obrazovka& obecna) {
        if (auto* zadani = dynamic_cast<wages::TForm17*>(&obecna)) {
            zadani->acProhlizeni();
            zadani->acZpet();
            return;
        }
        auto& prohlizeni = dynamic_cast<wages::TForm18&>(obecna);
        prohlizeni.filtr.mesice = "2";
        prohlizeni.filtrExit();
        firma.obsluha.odpovez("Opravdu chcete smazat", true);
        prohlizeni.acSmazatExecute();
    };
    EXPECT_TRUE(menu::acHrubeZorvNahradyExecute(firma.session));
    EXPECT_EQ(firma.vypis("SELECT Kc_cel FROM Hrube02"), "");
    EXPECT_TRUE(firma.data().table_exists("Listin01"));
    EXPECT_FALSE(firma.data().table_exists("Listin02"));
    EXPECT_FALSE(firma.data().table_exists("Listin03"));
    ASSERT_EQ(firma.obsluha.hlasky.size(), 3U);
    EXPECT_EQ(firma.obsluha.hlasky[0], "Vstupujete do uzavřeného měsíce!");
    EXPECT_NE(firma.obsluha.hlasky[1].find("listina za  únor  2022"), std::string::npos);
    EXPECT_NE(firma.obsluha.hlasky[2].find("listina za  březen  2022"), std::string::npos);
}

}  // namespace
