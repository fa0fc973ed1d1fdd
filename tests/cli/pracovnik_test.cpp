// Workers on the command line: the list by the register's filters, a card, the check of cards.
#include "tests/cli/prikaz.h"

namespace zkouska {

namespace {

bool ma(const std::string& text, const std::string& cast) {
    return text.find(cast) != std::string::npos;
}

}  // namespace

class PracovniciPrikazem : public Prikaz {
  protected:
    PracovniciPrikazem() {
        zaloz_firmu("PEKARNA22");
        projde({"import", "Zdr_poj"}, "Cislo,Nazev,Kod_zp\n1,Všeobecná,111\n");
        projde({"import", "Os_karty"},
               "Cislo,Prijmeni,Jmeno,Titul,Dat_nar_text,Dat_nar_cislo,Rodne_cislo,Zam_do,tpd,"
               "Cislo_zdrav_poj,Jaka_dan,CSSZ103,Volit_1,Volit_2,Id_rpd,Rocni_zuctovani\n"
               "12,Říha,Štěpán,Ing.,1.1.1990,19900101,,,40,1,1,2,5,0,1,true\n"
               "7,Žižková,Anežka,,2.3.1980,19800302,80-53-02/0009,31.1.2022,20,1,1,,5,1,0,false\n"
               "3,Říha,Adam,,4.5.1985,19850504,,,40,1,2,,6,0,0,false\n");
    }
    /// Numbers of the workers listed, in their order.
    std::string cisla(std::vector<std::string> volby) {
        volby.insert(volby.begin(), "pracovnici");
        volby.insert(volby.end(), {"--format", "csv"});
        std::istringstream radky(projde(volby));
        std::string vysledek, radek;
        for (std::getline(radky, radek); std::getline(radky, radek);)
            vysledek += radek.substr(0, radek.find(',')) + " ";
        return vysledek;
    }
};

TEST_F(PracovniciPrikazem, SeznamPodleFiltruKartoteky) {
    const struct {
        std::vector<std::string> volby;
        const char* cisla;
    } pripady[] = {
        {{}, "3 7 12 "},
        {{"--trideni", "prijmeni"}, "3 12 7 "},
        {{"--trideni", "jmeno"}, "3 7 12 "},
        {{"--trideni", "vek"}, "7 3 12 "},
        {{"--aktivni"}, "3 12 "},
        {{"--rocni"}, "12 "},
        {{"--bez-kalendare"}, "3 7 "},
        {{"--deti"}, ""},
        {{"--epodani"}, ""},
        {{"--cislo", "7"}, "7 "},
        {{"--jmeno", "říh"}, "3 12 "},
        {{"--volit", "1=5"}, "7 12 "},
        {{"--volit", "1=5", "--volit", "2=1"}, "7 "},
        {{"--volit", "1=5", "--volit", "1=6"}, ""},
    };
    for (const auto& p : pripady)
        EXPECT_EQ(cisla(p.volby), p.cisla) << (p.volby.empty() ? "" : p.volby[0]);
    for (const char* spatne : {"11=1", "1", "1=x", "0=1"})
        EXPECT_EQ(spust({"pracovnici", "--volit", spatne}).stav, 2) << spatne;
    EXPECT_EQ(spust({"pracovnici", "--trideni", "plat"}).stav, 2);
    EXPECT_TRUE(ma(projde({"pracovnici", "--format", "tabulka"}), "Žižková   Anežka"));
    EXPECT_TRUE(ma(projde({"pracovnici", "--format", "json", "--cislo", "12"}), "\"Říha\""));
}

TEST_F(PracovniciPrikazem, KartaJakoTextSPopiskyATextySeznamu) {
    const auto karta = projde({"pracovnik", "12"});
    for (const char* cast : {"Pracovník 12 - Ing. Štěpán Říha", "Osobní data", "Ženatý / Vdaná",
                             "platí zálohu měsíční sazbou dle zadání"})
        EXPECT_TRUE(ma(karta, cast)) << cast << '\n' << karta;
    EXPECT_FALSE(ma(karta, "Rodné příjmení"));
    EXPECT_TRUE(ma(projde({"pracovnik", "12", "--vse"}), "Rodné příjmení"));
    EXPECT_EQ(spust({"pracovnik", "99"}).stav, 1);
    EXPECT_EQ(spust({"pracovnik"}).stav, 2);
}

TEST_F(PracovniciPrikazem, KontrolaKaretPoImportuRekneCoByReklaKarta) {
    const auto jedna = spust({"pracovnik", "12", "--over"});
    EXPECT_EQ(jedna.stav, 0) << jedna.out;
    EXPECT_EQ(jedna.out, "Zkontrolováno karet: 1, s chybou: 0, upozornění: 0.\n");
    projde({"import", "Os_karty"},
           "Cislo,Prijmeni,Jmeno,Jaka_dan,Odp_poplatnik,tpd\n8,Bez,,2,1,40\n");
    const auto vsechny = spust({"pracovnik", "--over"});
    EXPECT_EQ(vsechny.stav, 1);
    EXPECT_EQ(vsechny.out,
              "7 - Anežka Žižková\n  upozornění: Rodné číslo není dělitelné jedenácti.\n"
              "8 - Bez\n  1 Chybí jméno pracovníka.\n  Chybné datum narození.\n"
              "  2  U zadaného kódu pro daň\n     nesmí být sleva na dani.\n"
              "  2 Chybí číslo zdr. poj.\n"
              "Zkontrolováno karet: 4, s chybou: 1, upozornění: 1.\n");
}

}  // namespace zkouska
