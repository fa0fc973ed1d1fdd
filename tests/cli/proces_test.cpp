// The built program as its users start it: exit status and the standard streams.
#include <cstdio>
#include <fmt/format.h>
#include <sys/wait.h>

#include "base/soubory.h"
#include "store/connection.h"
#include "tests/cli/prikaz.h"

namespace zkouska {

namespace {

/// Runs the program through the shell; its error output joins the output.
Vysledek spust_program(const std::string& argumenty) {
    FILE* roura = popen(("\"" ZORVCTL "\" " + argumenty + " 2>&1").c_str(), "r");
    if (!roura) return {-1, "", "popen"};
    Vysledek vysledek;
    char cast[4096];
    for (std::size_t n; (n = fread(cast, 1, sizeof cast, roura)) > 0;)
        vysledek.out.append(cast, n);
    const int konec = pclose(roura);
    vysledek.stav = WIFEXITED(konec) ? WEXITSTATUS(konec) : -1;
    return vysledek;
}

}  // namespace

TEST(Proces, StavyAVstupProgramu) {
    const DocasnaSlozka slozka;
    base::zapis_soubor(slozka / "karty.csv", k_karty);
    base::zapis_soubor(slozka / "hrube.csv", k_hrube);
    const std::string spolecne = "--root \"" + slozka.cesta().string() + "\" --firma pekarna22 ";
    const auto soubor = [&](const char* jmeno) { return " < " + (slozka / jmeno).string(); };
    const struct {
        std::string argumenty;
        int stav;
        std::string v_textu;
    } pripady[] = {
        {"firma zaloz PEKARNA22", 0, "PEKARNA22"},
        {"import Os_karty" + soubor("karty.csv"), 0, "zapsáno řádků 2"},
        {"import Hrube01 -" + soubor("hrube.csv"), 0, "zapsáno řádků 3"},
        {"vyplaty 1 </dev/null", 0, "leden  2022"},
        {"vyplaty 1 </dev/null", 3, "byly výplaty již zpracovány"},
        {"vyplaty 2 </dev/null", 1, "HRUBE02.DB"},
        {"vyplaty", 2, "MESIC"},
        {"import Os_karty /neni/tu.csv", 4, "/neni/tu.csv"},
        {"listina 1", 0, "24 770"},
    };
    for (const auto& p : pripady) {
        const auto vysledek = spust_program(spolecne + p.argumenty);
        EXPECT_EQ(vysledek.stav, p.stav) << p.argumenty << '\n' << vysledek.out;
        EXPECT_NE(vysledek.out.find(p.v_textu), std::string::npos) << p.argumenty << '\n'
                                                                   << vysledek.out;
    }
}

TEST(Proces, ObsazenaFirmaSeOdmitneSlovyAPoUvolneniProjde) {
    const DocasnaSlozka slozka;
    base::zapis_soubor(slozka / "karty.csv", k_karty);
    base::zapis_soubor(slozka / "hrube.csv", k_hrube);
    const std::string spolecne = "--root \"" + slozka.cesta().string() + "\" --firma PEKARNA22 ";
    ASSERT_EQ(spust_program(spolecne + "firma zaloz PEKARNA22").stav, 0);
    for (const auto& [tabulka, soubor] :
         {std::pair{"Os_karty", "karty.csv"}, std::pair{"Hrube01", "hrube.csv"}}) {
        const std::string cesta = (slozka / soubor).string();
        ASSERT_EQ(spust_program(fmt::format("{}import {} {}", spolecne, tabulka, cesta)).stav, 0);
    }
    store::Connection data(slozka / "PEKARNA22" / "Zorv");
    {
        const store::Transaction jiny_program(data);
        const auto odmitnuto = spust_program(spolecne + "vyplaty 1 </dev/null");
        EXPECT_EQ(odmitnuto.stav, 4);
        EXPECT_NE(odmitnuto.out.find("právě používá jiný program"), std::string::npos)
            << odmitnuto.out;
        EXPECT_EQ(spust_program(spolecne + "firma stav").stav, 4) << "čeká i otevření firmy";
        EXPECT_FALSE(data.table_exists("Listin01"));
    }
    EXPECT_EQ(spust_program(spolecne + "vyplaty 1 </dev/null").stav, 0);
    EXPECT_TRUE(data.table_exists("Listin01"));
}

}  // namespace zkouska
