// Import, export and reading by SQL.
#include "base/soubory.h"
#include "tests/cli/prikaz.h"

namespace zkouska {

class Tabulky : public Prikaz {
  protected:
    Tabulky() { zaloz_firmu("PEKARNA22"); }
};

TEST_F(Tabulky, CoSeVlozilo_SeZaseVypise) {
    const auto soubor = slozka / "karty.csv";
    base::zapis_soubor(soubor, k_karty);
    EXPECT_EQ(projde({"import", "os_KARTY.db", soubor.string()}), "Os_karty: zapsáno řádků 2.\n");
    const auto vypis = projde({"export", "Os_karty"});
    projde({"import", "Os_karty", "--nahradit"}, vypis);
    EXPECT_EQ(projde({"export", "OS_KARTY.DB"}), vypis);
    EXPECT_NE(projde({"export", "Os_karty", "--format", "json"}).find("\"Štěpán\""),
              std::string::npos);

    EXPECT_EQ(projde({"sql", "SELECT Prijmeni, Cislo FROM Os_karty ORDER BY Prijmeni"}),
              "Prijmeni,Cislo\nŘíha,12\nŽižková,7\n");
    EXPECT_EQ(spust({"sql", "SELECT Prijmeni, Cislo FROM Os_karty"}, "", {.vystup = true}).out,
              "Prijmeni  Cislo\n────────  ─────\nŽižková       7\nŘíha         12\n");
    EXPECT_EQ(projde({"sql", "SELECT Adr1 FROM Setup"}), "Adr1\nPekárna Žďár\n");
}

TEST_F(Tabulky, VadnyImportNicNezmeni) {
    projde({"import", "Os_karty"}, k_karty);
    const struct {
        std::string tabulka, csv;
        std::vector<std::string> v_textu;
    } pripady[] = {
        {"Os_karty", "Cislo,Prijmeni\n20,Dobrý\nxx,Špatný\n", {"řádek 3", "Cislo", "celé číslo"}},
        {"Os_karty", "Cislo,Osamela_osoba\n20,možná\n", {"řádek 2", "Osamela_osoba"}},
        {"Os_karty",
         "Cislo,Jmeno\n20,Jméno delší než dvacet znaků\n",
         {"Jmeno", "nejvýše 20 znaků"}},
        {"Os_karty", "Cislo,Vek\n20,30\n", {"Vek"}},
        {"Os_karty", "Cislo,Jmeno\n20,\"bez konce\n", {"2"}},
        {"Hrube02", "Cislo_pracovnika,Kc_cel\n7,1 000\n", {"řádek 2", "Kc_cel", "číslo"}},
    };
    for (const auto& pripad : pripady) {
        const auto vysledek = spust({"import", pripad.tabulka, "-", "--nahradit"}, pripad.csv);
        EXPECT_EQ(vysledek.stav, 1) << pripad.csv << vysledek.err;
        for (const auto& text : pripad.v_textu)
            EXPECT_NE(vysledek.err.find(text), std::string::npos) << text << ": " << vysledek.err;
    }
    EXPECT_EQ(projde({"sql", "SELECT COUNT(*) AS N FROM Os_karty"}), "N\n2\n");
    EXPECT_EQ(spust({"export", "Hrube02"}).stav, 1) << "vadný import nezaloží tabulku měsíce";

    const auto chybi = spust({"import", "Os_karty", (slozka / "neni.csv").string()});
    EXPECT_EQ(chybi.stav, 4);
    EXPECT_NE(chybi.err.find("neni.csv"), std::string::npos) << chybi.err;
}

TEST_F(Tabulky, SqlJenCte) {
    projde({"import", "Os_karty"}, k_karty);
    const struct {
        std::string dotaz;
        int stav;
    } pripady[] = {
        {"DELETE FROM Os_karty", 1},
        {"UPDATE Os_karty SET Cislo = 1", 1},
        {"INSERT INTO Os_karty (Cislo) VALUES (1)", 1},
        {"SELECT a.Cislo FROM Os_karty a LEFT OUTER JOIN Setup s ON a.Prijmeni = s.Adr1", 1},
        {"DROP TABLE Os_karty", 2},
        {"SELECT * FROM Os_karty; DELETE FROM Os_karty", 2},
    };
    for (const auto& pripad : pripady) {
        const auto vysledek = spust({"sql", pripad.dotaz});
        EXPECT_EQ(vysledek.stav, pripad.stav) << pripad.dotaz << ": " << vysledek.err;
        EXPECT_EQ(vysledek.out, "") << pripad.dotaz;
    }
    EXPECT_EQ(projde({"sql", "SELECT COUNT(*) AS N FROM Os_karty"}), "N\n2\n");
}

}  // namespace zkouska
