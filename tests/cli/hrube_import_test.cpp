// Items of a file: checked as at entry, all or none, the pay sheet of the month goes.
#include "tests/cli/prikaz.h"

namespace zkouska {

class HrubeImport : public Prikaz {
  protected:
    HrubeImport() {
        zaloz_firmu("PEKARNA22");
        projde({"import", "Os_karty"}, k_karty);
        projde({"import", "Ridici", "--nahradit"},
               "Modul,Sloupec,text,Jake_dny,Jake_hodiny,nadpis_1,predrazeno_1,Min_1,Max_1,nadpis_2,"
               "predrazeno_2,Min_2,Max_2,Konstanta_2,var_vyp\n"
               "1,1,hodinová mzda,1,1,hodin,2,0,300,sazba,7,0,999,150,5\n");
    }
    std::string hrube() {
        return projde({"sql",
                       "SELECT Cislo_pracovnika AS C, Hod_od, Kc_cel FROM Hrube01 ORDER BY "
                       "Pocitadlo"});
    }
};

TEST_F(HrubeImport, ZapiseVseAZrusiVyplatniListinu) {
    EXPECT_EQ(projde({"hrube", "import", "1"},
                     "Cislo_pracovnika,Sloupec,Dny,Hodnota_2\n7,1,20,\n12,1,10,\"200,5\"\n"),
              "Zapsáno položek 2, celkem 40 040 Kč.\n");
    EXPECT_EQ(hrube(), "C,Hod_od,Kc_cel\n7,160,24000\n12,80,16040\n");
    projde({"vyplaty", "1"});

    const auto druhy = spust({"hrube", "import", "1"}, "Cislo_pracovnika,Sloupec,Dny\n7,1,1\n");
    EXPECT_EQ(druhy.stav, 0);
    EXPECT_NE(druhy.err.find("byla vymazaná výplatní listina za  leden"), std::string::npos)
        << druhy.err;
    EXPECT_EQ(spust({"listina", "1"}).stav, 1);
}

TEST_F(HrubeImport, SChybouNezapiseNic) {
    const auto vysledek =
        spust({"hrube", "import", "1"}, "Cislo_pracovnika,Sloupec,Dny\n7,1,20\n8,1,20\n12,1,40\n");
    EXPECT_EQ(vysledek.stav, 1);
    EXPECT_EQ(vysledek.err,
              "vstup, řádek 3: pole Cislo_pracovnika: pracovník \"8\" není v souboru.\n"
              "vstup, řádek 4: Chybně zadané dny. Interval u 1: 0 až 300.\n");
    EXPECT_EQ(spust({"export", "Hrube01"}).stav, 1) << "tabulka měsíce se nezaložila";
    EXPECT_EQ(spust({"hrube", "import", "13"}, "").stav, 2);
}

}  // namespace zkouska
