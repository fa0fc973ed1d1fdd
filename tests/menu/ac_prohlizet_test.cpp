// "Prohlížení mezd" from the main menu.
#include <gtest/gtest.h>

#include "menu/unit1_hlavni.h"
#include "payrun/unit133_prohlizeni_mezd.h"
#include "support/zkusebni_firma.h"

namespace {

TEST(ProhlizeniMezdZNabidky, OtevreMesicZPoleAMesicBezListinyJenOznami) {
    zkouska::ZkusebniFirma firma;
    firma.vloz("Listin03", "Mesic,Cislo_pracovnika,Modul,Hodnota\n3,7,14,100\n");
    menu::TForm1 form(firma.session);
    std::string nadpis;
    firma.obsluha.pri_obrazovce = [&](base::Obrazovka& obrazovka) {
        nadpis = dynamic_cast<payrun::TForm133&>(obrazovka).nadpis;
    };
    form.mesic = 3;
    EXPECT_TRUE(form.proved_akci("acProhlizetZakladniSoubory"));
    EXPECT_EQ(nadpis, "Prohlížení mezd - březen  2022");
    nadpis.clear();
    form.mesic = 4;
    EXPECT_FALSE(form.proved_akci("acProhlizetZakladniSoubory"));
    EXPECT_EQ(nadpis, "");
    ASSERT_EQ(firma.obsluha.hlasky.size(), 1U);
    EXPECT_EQ(firma.obsluha.hlasky[0],
              "Výplatní listina za  duben  2022 neexistuje, nejprve zpracujte výplaty.");
}

}  // namespace
