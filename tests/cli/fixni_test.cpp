// Fixed items and children on the command line.
#include "tests/cli/prikaz.h"

namespace zkouska {

namespace {

bool ma(const std::string& text, const std::string& cast) {
    return text.find(cast) != std::string::npos;
}

}  // namespace

class FixniADeti : public Prikaz {
  protected:
    FixniADeti() {
        zaloz_firmu("PEKARNA22");
        projde({"import", "Os_karty"}, k_karty);
        projde({"import", "Fixni"},
               "Cislo_pracovnika,Sloupec,Kcs,Ucet,Kod_banky,Variabilni,Konstantni\n"
               "12,13,1500,19-2000145399,800,123,558\n7,13,250,NE,,,\n7,7,300,,,,\n");
        projde({"import", "Deti"},
               "Cislo_pracovnika,Prijmeni,Jmeno,Rodne_cislo,Odpocitatelna_dan\n"
               "7,Žižka,Jan,15-01-02/1234,1267\n");
        std::filesystem::copy(std::filesystem::path(ZORV_SOURCE_DIR) / "Sablony",
                              program / "Sablony", std::filesystem::copy_options::recursive);
    }
};

TEST_F(FixniADeti, SeznamSOmezenimPoradimASoucty) {
    const auto vse = projde({"fixni"});
    EXPECT_TRUE(ma(vse, "BEZ  OMEZENÍ") && ma(vse, "Říha Štěpán")) << vse;
    EXPECT_TRUE(ma(vse, "19-2000145399/0800  VS 123  KS 0558")) << vse;
    EXPECT_LT(vse.find("dávky sloupec - 7"), vse.find("ostatní srážky")) << vse;
    const auto podle_pracovnika =
        projde({"fixni", "--trideni", "pracovnik", "--sloupce", "13", "--pracovnici", ":12"});
    EXPECT_TRUE(ma(podle_pracovnika, "OMEZENÍ: pracovníci 1 až 12,   sloupce 13 až 13"));
    EXPECT_FALSE(ma(podle_pracovnika, "dávky")) << podle_pracovnika;
    EXPECT_LT(podle_pracovnika.find("250"), podle_pracovnika.find("1 500"));
    const auto soucty = projde({"fixni", "--sumarizace"});
    EXPECT_TRUE(ma(soucty, "1 750") && !ma(soucty, "Říha")) << soucty;
    for (const char* rozsah : {"", ":", "a:2", "1:2:3", "-1"})
        EXPECT_EQ(spust({"fixni", "--sloupce=" + std::string(rozsah)}).stav, 2) << rozsah;
    EXPECT_EQ(spust({"fixni", "--trideni", "jmeno"}).stav, 2);
}

TEST_F(FixniADeti, SestavyJakoTextAJakoPdf) {
    EXPECT_TRUE(ma(projde({"fixni", "--sestava"}), "Sloupec 13"));
    EXPECT_TRUE(ma(projde({"deti"}), "Žižka Jan, rod.č. 15-01-02/1234"));
    for (const char* sloveso : {"fixni", "deti"}) {
        const auto pdf = slozka / (std::string(sloveso) + ".pdf");
        projde({sloveso, "--pdf", pdf.string()});
        std::ifstream soubor(pdf, std::ios::binary);
        std::string zacatek(4, ' ');
        soubor.read(zacatek.data(), 4);
        EXPECT_EQ(zacatek, "%PDF");
    }
}

}  // namespace zkouska
