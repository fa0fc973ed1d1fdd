// A compensation computed from the command line without writing.
#include "tests/cli/prikaz.h"

namespace zkouska {

namespace {

/// Worker 7 with the calendar of eight hours and an average of 227,15; worker 12 with neither.
class Nahrada : public Prikaz {
  protected:
    void SetUp() override {
        zaloz_firmu("PEKARNA22");
        projde({"kalendar", "zakladni"});
        const auto soubor = slozka / "karty.csv";
        std::ofstream(soubor) << "Cislo,Prijmeni,Jmeno,tpd,Id_rpd,PdovH4min\n"
                                 "7,Žižková,Anežka,40,1,227.15\n12,Říha,Štěpán,40,,\n";
        projde({"import", "Os_karty", soubor.string()});
    }
    Vysledek nahrada(const std::vector<std::string>& volby) {
        std::vector<std::string> slova{"nahrada"};
        slova.insert(slova.end(), volby.begin(), volby.end());
        return spust(slova);
    }
};

TEST_F(Nahrada, VypiseFondyDnyACastky) {
    struct Pripad {
        std::vector<std::string> volby;
        std::vector<const char*> casti;
    };
    const Pripad pripady[] = {
        {{"7", "--typ", "nemoc", "--od", "24.1.2022", "--do", "28.2.2022"},
         {"Náhrada za nemoc: pracovník 7  Žižková Anežka, únor  2022",
          "kalendářních 28, pracovních 20", "1-14        32:00     122,67     3925,44",
          "15 a více  128:00", "výdělek 227,15, redukovaný 204,44", "Náhrada celkem: 3925,44 Kč"}},
        {{"7", "--typ", "NEMOC", "--od", "24.1.2022", "--do", "31.1.2022", "--mesic", "1",
          "--prumer", "100"},
         {"leden  2022", "redukovaný 90,00", "54,00     2592,00"}},
        {{"7", "--typ", "ocr", "--od", "7.2.2022", "--do", "13.2.2022"},
         {"Ošetřování", "pracovních 5", "40:00", "Náhrada celkem: 0,00 Kč"}},
        {{"7", "--typ", "karantena", "--od", "7.2.2022", "--do", "13.2.2022", "--proc"},
         {"    náhrada celkem = 4906,8  [na haléře nahoru]", "← Os_karty.PdovH4min",
          "1. hranice roku 2022 = 227,15", "§ 192 zák. č. 262/2006 Sb."}},
    };
    for (const Pripad& p : pripady) {
        const Vysledek v = nahrada(p.volby);
        EXPECT_EQ(v.stav, 0) << v.err;
        for (const char* cast : p.casti)
            EXPECT_NE(v.out.find(cast), std::string::npos) << cast << "\n" << v.out;
    }
    EXPECT_EQ(projde({"sql", "SELECT * FROM Nahrady"}).find("227"), std::string::npos);
}

TEST_F(Nahrada, ChybyJsouSrozumitelne) {
    struct Pripad {
        std::vector<std::string> volby;
        int stav;
        const char* chyba;
    };
    const Pripad pripady[] = {
        {{"8", "--typ", "nemoc", "--od", "1.2.2022", "--do", "2.2.2022"},
         1,
         "Pracovník 8 v kartotéce není."},
        {{"7", "--typ", "rýma", "--od", "1.2.2022", "--do", "2.2.2022"},
         2,
         "čekám nemoc, karantena, ocr nebo ppm, zadáno \"rýma\""},
        {{"7", "--typ", "nemoc", "--od", "30.2.2022", "--do", "2.3.2022"},
         2,
         "čekám den jako D.M.RRRR, zadáno \"30.2.2022\""},
        {{"7", "--typ", "nemoc", "--od", "1.2.2022", "--do", "2.2.2022", "--prumer", "sto"},
         2,
         "čekám koruny za hodinu, zadáno \"sto\""},
        {{"7", "--typ", "nemoc", "--od", "3.2.2022", "--do", "2.2.2022"},
         1,
         "<Trvání do> musí být větší nebo roven než <Trvání od>."},
        {{"7", "--typ", "nemoc", "--od", "1.2.2022", "--do", "2.3.2022", "--mesic", "2"},
         1,
         "Údaj <Trvání do> musí být do 28.2.2022."},
        {{"7", "--typ", "nemoc", "--od", "1.2.2022", "--do", "2.2.2022", "--mesic", "5"},
         1,
         "Doba od 1.2.2022 do 2.2.2022 nezasahuje do měsíce  květen  2022."},
        {{"12", "--typ", "nemoc", "--od", "1.2.2022", "--do", "2.2.2022"},
         0,
         "Nenalezen kalendář RPD aktálního roku."},
    };
    for (const Pripad& p : pripady) {
        const Vysledek v = nahrada(p.volby);
        EXPECT_EQ(v.stav, p.stav) << p.chyba;
        EXPECT_NE((v.err + v.out).find(p.chyba), std::string::npos) << p.chyba << "\n" << v.err;
    }
}

}  // namespace

}  // namespace zkouska
