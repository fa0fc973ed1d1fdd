// `Velmar.ini` beside the program file, and the user's own one of a program in a folder that takes
// no writes.
#include "shell/velmar_ini.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include "base/slozky.h"
#include "base/soubory.h"
#include "support/docasna_slozka.h"

namespace {

namespace fs = std::filesystem;

/// A home of its own; the folder `program` exists and takes writes.
struct VelmarIni : testing::Test {
    zkouska::DocasnaSlozka slozka;
    const fs::path domov = slozka / "domov", program = slozka / "program";
    const shell::SlozkyProgramu jen_program{program, {}};
    const shell::SlozkyProgramu instalace{program, domov / ".config/zorv"};
    std::string puvodni_domov = base::domovska_slozka().string();

    VelmarIni() {
        fs::create_directories(program);
        setenv("HOME", domov.c_str(), 1);
        unsetenv("XDG_CONFIG_HOME");
    }
    ~VelmarIni() override { setenv("HOME", puvodni_domov.c_str(), 1); }
};

TEST_F(VelmarIni, VlastniSlozkuMaJenProgramVeSlozceBezZapisu) {
    EXPECT_EQ(shell::slozky_programu(program).vlastni, "");
    // A folder that is not there refuses writes even to the superuser.
    EXPECT_EQ(shell::slozky_programu(program / "neni").vlastni, domov / ".config/zorv");
    setenv("XDG_CONFIG_HOME", (slozka / "konfigurace").c_str(), 1);
    EXPECT_EQ(shell::slozky_programu(program / "neni").vlastni, slozka / "konfigurace/zorv");
    unsetenv("XDG_CONFIG_HOME");

    EXPECT_EQ(shell::slozka_pro_zapis(jen_program), program);
    EXPECT_FALSE(fs::exists(instalace.vlastni));
    EXPECT_EQ(shell::slozka_pro_zapis(instalace), instalace.vlastni);
    EXPECT_TRUE(fs::is_directory(instalace.vlastni));
}

TEST_F(VelmarIni, ChybejiciSouborMaVychoziHodnoty) {
    const auto vychozi = shell::cti_velmar_ini(jen_program);
    EXPECT_EQ(vychozi.font_size, 9);
    EXPECT_TRUE(vychozi.pamatovat_okna && vychozi.logovat);
    const struct {
        shell::SlozkyProgramu slozky;
        fs::path koren;
    } pripady[] = {{{"/opt/velmar", {}}, "/"},
                   {{"d:\\Velmar", {}}, "D:"},
                   {{"/opt/velmar", "/nekde"}, domov / "zorv-data"}};
    for (const auto& p : pripady)
        EXPECT_EQ(shell::cti_velmar_ini(p.slozky).root, p.koren) << p.slozky.programu;
}

TEST_F(VelmarIni, VlastniSouborVyhravaPoKlicichASpolecnyZustaneJakByl) {
    const std::string spolecny =
        "[Data]\nroot=/data\n[Vzhled]\nfont_size=12\n[Firma]\nmz=FIRMA22\n[System]\nlogovat=0\n";
    base::zapis_soubor(program / "Velmar.ini", spolecny);
    shell::zapis_velmar_ini(instalace, "Firma", "mz", "JINA22");
    shell::zapis_velmar_ini(instalace, "Vzhled", "pamatovat_okna", "0");

    const auto u_programu = shell::cti_velmar_ini(jen_program);
    EXPECT_EQ(u_programu.firma_mz, "FIRMA22");
    EXPECT_TRUE(u_programu.pamatovat_okna);
    const auto uzivatele = shell::cti_velmar_ini(instalace);
    EXPECT_EQ(uzivatele.firma_mz, "JINA22");
    EXPECT_FALSE(uzivatele.pamatovat_okna);
    EXPECT_EQ(uzivatele.root, "/data");
    EXPECT_EQ(uzivatele.font_size, 12);
    EXPECT_FALSE(uzivatele.logovat);
    EXPECT_EQ(base::precti_soubor(program / "Velmar.ini", 1000), spolecny);

    shell::zapis_velmar_ini(jen_program, "Firma", "mz", "TRETI22");
    EXPECT_EQ(shell::cti_velmar_ini(jen_program).firma_mz, "TRETI22");
}

}  // namespace
