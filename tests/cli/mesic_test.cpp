// A month's road on the command line: cards, gross items, pay run, pay sheet, explanation.
#include <csignal>

#include "tests/cli/prikaz.h"

namespace zkouska {

namespace {

bool ma(const std::string& text, const std::string& cast) {
    return text.find(cast) != std::string::npos;
}

/// An error output on which Ctrl-C is pressed as soon as the text appears.
class CtrlCPriTextu final : public std::stringbuf {
  public:
    explicit CtrlCPriTextu(std::string text) : text_(std::move(text)) {}

  protected:
    int sync() override {
        if (!stisknuto_ && ma(str(), text_)) {
            stisknuto_ = true;
            std::raise(SIGINT);
        }
        return 0;
    }

  private:
    std::string text_;
    bool stisknuto_ = false;
};

}  // namespace

class Mesic : public Prikaz {
  protected:
    Mesic() {
        zaloz_firmu("PEKARNA22");
        projde({"import", "Os_karty"}, k_karty);
        projde({"import", "Hrube01"}, k_hrube);
    }
    std::string vyplaceno(const std::string& mesic = "01") {
        return projde({"sql", "SELECT Cislo_pracovnika AS C, Hodnota AS H FROM Listin" + mesic +
                                  " WHERE Modul = 14 ORDER BY Cislo_pracovnika"});
    }
};

// 30000: social 1950, health 1350, tax 4500 - 2570. 12346: social 803, health 556, tax 1860.
TEST_F(Mesic, OdPolozekKeKVyplate) {
    const auto beh = spust({"vyplaty", "01"});
    ASSERT_EQ(beh.stav, 0) << beh.err;
    EXPECT_EQ(beh.err, "") << "průběh patří jen na obrazovku";
    EXPECT_TRUE(ma(beh.out, "Základní mzdové hodnoty  -  leden  2022")) << beh.out;
    EXPECT_EQ(vyplaceno(), "C,H\n7,24770\n12,9127\n");

    const auto listina = projde({"listina", "1", "--pracovnik", "7"});
    EXPECT_TRUE(ma(listina, "Pracovník 7  Žižková Anežka")) << listina;
    EXPECT_TRUE(ma(listina, "24 770")) << listina;
    EXPECT_FALSE(ma(listina, "Říha")) << listina;
    EXPECT_TRUE(ma(projde({"listina", "1"}), "33 897")) << "součet k výplatě";
    EXPECT_EQ(spust({"listina", "1", "--pracovnik", "8"}).stav, 1);

    const auto stav = projde({"firma", "stav"});
    for (const auto* hodnota : {"42 346", "4 659", "3 790", "33 897"})
        EXPECT_TRUE(ma(stav, hodnota)) << hodnota << '\n' << stav;
}

TEST_F(Mesic, ProcVysvetliCastkyAOznaciRozdily) {
    EXPECT_EQ(spust({"proc", "1", "7"}).stav, 1) << "listina ještě není";
    projde({"vyplaty", "1"});
    EXPECT_EQ(spust({"proc", "1", "8"}).stav, 1);

    const auto vse = projde({"proc", "1", "7"});
    EXPECT_TRUE(ma(vse, "(modul 14, sloupec 18): 24 770")) << vse;
    EXPECT_LT(vse.find("(modul 14"), vse.find("(modul 1,")) << vse;
    EXPECT_FALSE(ma(vse, "LIŠÍ SE") || ma(vse, "NENÍ:") || ma(vse, "NEVYCHÁZÍ")) << vse;
    const auto dan = projde({"proc", "1", "7", "--modul", "9"});
    EXPECT_TRUE(ma(dan, "1 930") && !ma(dan, "(modul 14")) << dan;

    // One relief has gone from the cards since the run, another has come.
    auto karty = k_karty;
    karty.replace(karty.find("2570"), 4, "0");
    karty.replace(karty.rfind(",0\n"), 3, ",2570\n");
    projde({"import", "Os_karty", "--nahradit"}, karty);
    const auto jinak = projde({"proc", "1", "7"});
    EXPECT_TRUE(ma(jinak, "LIŠÍ SE: uloženo 24 770, nyní vychází 22 200")) << jinak;
    EXPECT_TRUE(ma(jinak, "NYNÍ NEVYCHÁZÍ: uloženo 2 570")) << jinak;
    EXPECT_TRUE(
        ma(projde({"proc", "1", "12", "--modul", "66"}), "V LISTINĚ NENÍ: nyní vychází 2 570"));
    EXPECT_EQ(vyplaceno(), "C,H\n7,24770\n12,9127\n") << "vysvětlení nic nepíše";
}

TEST_F(Mesic, OpakovanyVypocetSePta) {
    projde({"vyplaty", "1"});
    const std::string otazka = "V měsíci 1 byly výplaty již zpracovány.";
    const struct {
        std::vector<std::string> slova;
        std::string vstup;
        cli::Terminaly terminaly;
        int stav;
    } pripady[] = {
        {{"vyplaty", "1"}, "a\n", {}, 3},
        {{"vyplaty", "1", "--ne"}, "", {}, 1},
        {{"vyplaty", "1"}, "", {.vstup = true, .chyby = true}, 3},
        {{"vyplaty", "1"}, "\n", {.vstup = true, .chyby = true}, 1},
        {{"vyplaty", "1"}, "ano\n", {.vstup = true, .chyby = true}, 0},
        {{"vyplaty", "1", "--ano"}, "", {}, 0},
    };
    for (const auto& p : pripady) {
        const auto vysledek = spust(p.slova, p.vstup, p.terminaly);
        EXPECT_EQ(vysledek.stav, p.stav) << p.vstup << vysledek.err;
        EXPECT_TRUE(ma(vysledek.err, otazka)) << vysledek.err;
        EXPECT_FALSE(ma(vysledek.err, "\r\n"));
        EXPECT_EQ(vyplaceno(), "C,H\n7,24770\n12,9127\n");
    }
}

TEST_F(Mesic, ZmenaHrubychMezdSmazeListinu) {
    projde({"vyplaty", "1"});
    EXPECT_EQ(spust({"import", "Hrube01"}, "Cislo_pracovnika,Kc_cel\n7,tisíc\n").stav, 1);
    EXPECT_EQ(projde({"import", "Hrube02"}, k_hrube), "Hrube02: zapsáno řádků 3.\n");
    EXPECT_EQ(vyplaceno(), "C,H\n7,24770\n12,9127\n") << "leden se nezměnil";

    const auto vysledek = spust({"import", "hrube01.db", "--nahradit"}, k_hrube);
    EXPECT_EQ(vysledek.stav, 0);
    EXPECT_TRUE(ma(vysledek.err, "byla vymazaná výplatní listina za  leden  2022.\n\n"))
        << vysledek.err;
    EXPECT_EQ(spust({"listina", "1"}).stav, 1);
    EXPECT_EQ(spust({"vyplaty", "1"}).stav, 0) << "bez otázky: listina už není";
}

TEST_F(Mesic, StrazMesiceOdmitneUzavrene) {
    projde({"ridici", "uzaverka.1", "5.2.2022"});
    projde({"ridici", "uzaverka.2", "5.3.2022"});
    for (const auto& [slova, text] :
         {std::pair<std::vector<std::string>, std::string>{
              {"vyplaty", "1"}, "je již uzavřen - výplaty nelze zpracovat bez povolení!"},
          {{"import", "Hrube01"}, "je již uzavřen - nelze do něho vstoupit bez povolení!"},
          {{"vyplaty", "5"}, "Soubor \"HRUBE05.DB\""}}) {
        const auto vysledek = spust(slova, k_hrube);
        EXPECT_EQ(vysledek.stav, 1) << text;
        EXPECT_TRUE(ma(vysledek.err, text)) << vysledek.err;
    }
    projde({"nastaveni", "System/VstupDoUzavrenychMesicu", "1"});
    EXPECT_EQ(spust({"vyplaty", "1"}).stav, 0);
}

TEST_F(Mesic, ZapornaVyplataZastaviMesic) {
    projde({"import", "Fixni"}, "Cislo_pracovnika,Sloupec,Kcs\n12,13,20000\n");
    const auto vysledek = spust({"vyplaty", "1"});
    EXPECT_EQ(vysledek.stav, 1);
    EXPECT_TRUE(ma(vysledek.err, "Nelze pokračovat")) << vysledek.err;
    EXPECT_TRUE(ma(vysledek.out, "PROHLÍŽÍME  ZÁPORNÉ  VÝPLATY")) << vysledek.out;
    EXPECT_TRUE(ma(vysledek.out, "-10 873") && !ma(vysledek.out, "Žižková")) << vysledek.out;
    EXPECT_EQ(spust({"listina", "1"}).stav, 1);
}

TEST_F(Mesic, CtrlCPrerusiMeziPracovniky) {
    std::ostringstream err;
    CtrlCPriTextu zachyceno("Pracovník 7");
    static_cast<std::ostream&>(err).rdbuf(&zachyceno);
    const auto vysledek = spust({"vyplaty", "1"}, "", {.chyby = true}, err);
    EXPECT_EQ(vysledek.stav, 1);
    EXPECT_TRUE(ma(zachyceno.str(), "Výpočet výplat byl přerušen.")) << zachyceno.str();
    EXPECT_FALSE(ma(zachyceno.str(), "Pracovník 12")) << zachyceno.str();
    EXPECT_EQ(spust({"listina", "1"}).stav, 1);
}

}  // namespace zkouska
