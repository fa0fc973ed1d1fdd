// Wrong arguments, help, and where root and company are taken from.
#include <stdlib.h>

#include "base/slozky.h"
#include "base/soubory.h"
#include "tests/cli/prikaz.h"

namespace zkouska {

using Pouziti = Prikaz;

TEST_F(Pouziti, SpatneArgumentyKonciStavem2) {
    zaloz_firmu("PEKARNA22");
    const struct {
        std::vector<std::string> slova;
        std::string v_textu;
    } pripady[] = {
        {{}, "Chybí sloveso"},
        {{"firma"}, "Chybí sloveso"},
        {{"vyplata", "1"}, "Podobné: vyplaty"},
        {{"vyplaty"}, "Chybí povinný argument MESIC"},
        {{"vyplaty", "0"}, "čekám měsíc 1 až 12"},
        {{"vyplaty", "13"}, "čekám měsíc 1 až 12"},
        {{"vyplaty", "leden"}, "zadáno \"leden\""},
        {{"vyplaty", "001"}, "čekám měsíc"},
        {{"vyplaty", "1", "2"}, "nadbytečný argument: 2"},
        {{"vyplaty", "1", "--ano", "--ne"}, "--ne"},
        {{"vyplaty", "1", "--datum", "1.2.2022"}, "RRRR-MM-DD"},
        {{"vyplaty", "1", "--datum", "2022-02-30"}, "RRRR-MM-DD"},
        {{"listina", "1", "--pracovnik", "-3"}, "--pracovnik"},
        {{"listina", "1", "--pracovnik"}, "potřebuje jednu hodnotu"},
        {{"proc", "1"}, "CISLO"},
        {{"proc", "1", "1000000"}, "čekám číslo 1 až 999999"},
        {{"export", "Os_karty", "--format", "xml"}, "csv nebo json"},
        {{"export", "Os_kraty"}, "Podobné: Os_karty"},
        {{"import", "Hrube13"}, "mzdy neznají"},
        {{"nastaveni", "Legislativa2009/MinimalniMzd"}, "Legislativa2009/MinimalniMzda"},
        {{"ridici", "sloupec_os_oh.6", "1"}, "sloupec_os_oh.5"},
        {{"sql", "SELECT * FROM Neznama"}, "Neznama"},
        {{"sql", "SELECT FROM"}, ""},
        {{"sql", "SELECT * FROM Os_karty WHERE Cislo = :cislo"}, ":cislo"},
        {{"firma", "zaloz", "JINA22", "--struktura", "1 2 3"}, "čekám 18 čísel"},
        {{"firma", "zaloz", "JINA22", "--struktura", "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 x"},
         "čekám 18 čísel"},
        {{"firma", "zaloz", "JINA22", "--struktura",
          "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 100"},
         "čekám 18 čísel"},
        {{"firma", "stav", "--firma", "PEKARNY22"}, "Podobné: PEKARNA22"},
    };
    for (const auto& pripad : pripady) {
        const auto vysledek = spust(pripad.slova);
        const auto co = testing::PrintToString(pripad.slova);
        EXPECT_EQ(vysledek.stav, 2) << co << vysledek.err;
        EXPECT_NE(vysledek.err.find(pripad.v_textu), std::string::npos) << co << vysledek.err;
        EXPECT_EQ(vysledek.out, "") << co;
    }
    EXPECT_EQ(projde({"firma", "seznam"}), "PEKARNA22\n");
}

TEST_F(Pouziti, NapovedaJeCesky) {
    const auto program_sam = projde({"--help"});
    for (const auto* text :
         {"Použití: zorvctl [VOLBY] SLOVESO", "--root SLOZKA", "vyplaty", "Návratový stav"})
        EXPECT_NE(program_sam.find(text), std::string::npos) << program_sam;
    const auto vyplaty = projde({"vyplaty", "--help"});
    EXPECT_NE(vyplaty.find("MESIC (povinné)"), std::string::npos) << vyplaty;
    for (const auto* anglicky : {"Usage", "Options", "Positionals", "Subcommand", "REQUIRED"}) {
        EXPECT_EQ((program_sam + vyplaty).find(anglicky), std::string::npos) << anglicky;
    }
}

TEST_F(Pouziti, KorenAFirmaPlatiZVelmarIni) {
    zaloz_firmu("PEKARNA22");
    base::zapis_soubor(program / "Velmar.ini",
                       "[Data]\nroot=" + koren.string() + "\n[Firma]\nmz=pekarna22\n");
    std::istringstream in;
    std::ostringstream out, err;
    const std::string cesta = (program / "zorvctl").string();
    EXPECT_EQ(cli::hlavni({cesta, "firma", "stav"}, in, out, err), 0) << err.str();
    EXPECT_NE(out.str().find("PEKARNA22  |  2022  |  Pekárna Žďár"), std::string::npos)
        << out.str();

    EXPECT_EQ(cli::hlavni({cesta, "--root", (slozka / "jinde").string(), "firma", "seznam"}, in,
                          out, err),
              4);
    EXPECT_NE(err.str().find("není složka"), std::string::npos) << err.str();
}

// As an installed program: its folder takes no writes, so everything goes to the user's home.
TEST_F(Pouziti, InstalovanyProgramZakladaDataVDomovskeSlozce) {
    const std::string domov = base::domovska_slozka().string();
    setenv("HOME", slozka.cesta().c_str(), 1);
    const std::string cesta = (slozka / "neni" / "zorvctl").string();
    const auto stav = [&](std::vector<std::string> slova) {
        slova.insert(slova.begin(), cesta);
        std::istringstream in;
        std::ostringstream out, err;
        return cli::hlavni(slova, in, out, err);
    };
    EXPECT_EQ(stav({"firma", "seznam"}), 4);
    EXPECT_EQ(stav({"--root", (slozka / "jinde").string(), "firma", "zaloz", "PEKARNA22"}), 4);
    EXPECT_EQ(stav({"firma", "zaloz", "PEKARNA22"}), 0);
    EXPECT_EQ(stav({"firma", "zaloz", "PEKARNA23"}), 0);
    EXPECT_TRUE(std::filesystem::is_directory(slozka / "zorv-data" / "PEKARNA23"));
    EXPECT_FALSE(std::filesystem::exists(slozka / "jinde"));
    setenv("HOME", domov.c_str(), 1);
}

TEST_F(Pouziti, BezFirmySeNicNeotevre) {
    const auto vysledek = spust({"tabulky"});
    EXPECT_EQ(vysledek.stav, 2);
    EXPECT_NE(vysledek.err.find("Nejdříve vyberte firmu."), std::string::npos) << vysledek.err;
}

}  // namespace zkouska
