#include "base/ini.h"

#include <gtest/gtest.h>

#include "base/soubory.h"
#include "support/docasna_slozka.h"

namespace {

using base::IniSoubor;

constexpr std::string_view k_ini =
    "; nastavení mezd\n"
    "# druhá poznámka\n"
    "\n"
    "[Legislativa]\n"
    "; sazba\n"
    "proc_soc2 = 24.8\n"
    "cizi radek bez rovnitka\n"
    "\n"
    "[Cizi]\n"
    "Klic=Hodnota s = uvnitř\n"
    "; úplně poslední\n";

TEST(Ini, CteBezOhleduNaVelikostAOkolniMezery) {
    const auto ini = IniSoubor::z_textu(k_ini, "");
    EXPECT_EQ(ini.hodnota("legislativa", "PROC_SOC2"), "24.8");
    EXPECT_EQ(ini.hodnota("Cizi", "klic"), "Hodnota s = uvnitř");
    EXPECT_EQ(ini.hodnota("Cizi", "proc_soc2"), std::nullopt);
    EXPECT_EQ(ini.hodnota("Legislativa", "; sazba"), std::nullopt);
    EXPECT_EQ(ini.klice("Legislativa"), std::vector<std::string>{"proc_soc2"});
}

TEST(Ini, NezmenenySouborSeZapiseBajtPoBajtu) {
    EXPECT_EQ(IniSoubor::z_textu(k_ini, "").text(), k_ini);
    EXPECT_EQ(IniSoubor::z_textu("[A]\r\nb=1\r\n", "").text(), "[A]\r\nb=1\r\n");
}

TEST(Ini, ZapisMeniJenSvujRadek) {
    auto ini = IniSoubor::z_textu(k_ini, "");
    ini.nastav("LEGISLATIVA", "Proc_Soc2", "25");
    ini.nastav("Legislativa", "novy", "ano");
    ini.nastav("Okna", "Top", "5");
    EXPECT_EQ(ini.text(),
              "; nastavení mezd\n# druhá poznámka\n\n[Legislativa]\n; sazba\nproc_soc2=25\n"
              "cizi radek bez rovnitka\nnovy=ano\n\n[Cizi]\nKlic=Hodnota s = uvnitř\n"
              "; úplně poslední\n\n[Okna]\nTop=5\n");
}

TEST(Ini, ZapisDrziKonceRadkuSouboru) {
    auto ini = IniSoubor::z_textu("[A]\r\nb=1\r\n", "");
    ini.nastav("A", "c", "2");
    EXPECT_EQ(ini.text(), "[A]\r\nb=1\r\nc=2\r\n");
}

TEST(Ini, ZalomeniVHodnoteNezaloziDalsiKlic) {
    auto ini = IniSoubor::z_textu("", "");
    ini.nastav("A", "b", "1\r\nc=2");
    EXPECT_EQ(ini.hodnota("A", "c"), std::nullopt);
    EXPECT_EQ(ini.hodnota("A", "b"), "1  c=2");
}

TEST(Ini, MazaniNechaPoznamkyDalsiSekce) {
    auto ini = IniSoubor::z_textu("[A]\na=1\nb=2\n\n; k sekci B\n[B]\nc=3\n", "");
    ini.smaz_klic("a", "B");
    EXPECT_EQ(ini.text(), "[A]\na=1\n\n; k sekci B\n[B]\nc=3\n");
    ini.smaz_sekci("a");
    EXPECT_EQ(ini.text(), "\n; k sekci B\n[B]\nc=3\n");
}

TEST(Ini, PomocneRutinyNadSouborem) {
    const zkouska::DocasnaSlozka slozka;
    const auto soubor = slozka / "Nastaveni.ini";
    EXPECT_EQ(base::cti_ini_text(soubor, "A", "b", "výchozí"), "výchozí");
    base::zapis_ini_text(soubor, "A", "b", "Žižkov");
    base::zapis_ini_cislo(soubor, "A", "n", -12);
    base::zapis_ini_logicke(soubor, "A", "l", true);
    EXPECT_EQ(base::cti_ini_text(soubor, "A", "b", ""), "Žižkov");
    EXPECT_EQ(base::cti_ini_cislo(soubor, "A", "n", 0), -12);
    EXPECT_EQ(base::cti_ini_cislo(soubor, "A", "b", 7), 7);
    EXPECT_TRUE(base::cti_ini_logicke(soubor, "A", "l", false));
    for (const auto& [slovo, hodnota] :
         {std::pair("ANO", true), {"True", true}, {"ne", false}, {"0", false}}) {
        base::zapis_ini_text(soubor, "A", "l", slovo);
        EXPECT_EQ(base::cti_ini_logicke(soubor, "A", "l", !hodnota), hodnota) << slovo;
    }
    EXPECT_TRUE(base::cti_ini_logicke(soubor, "A", "b", true));
}

TEST(Ini, SeznamNahradiCelouSekci) {
    const zkouska::DocasnaSlozka slozka;
    const auto soubor = slozka / "seznam.ini";
    base::zapis_seznam_do_ini(soubor, "S", "polozka", {"a", "b", "c"});
    base::zapis_seznam_do_ini(soubor, "S", "polozka", {"ž", "y"});
    EXPECT_EQ(base::cti_seznam_z_ini(soubor, "s"), (std::vector<std::string>{"ž", "y"}));
    EXPECT_EQ(base::cti_ini_text(soubor, "S", "polozka2", ""), "y");
}

TEST(Ini, StarySouborVKodoveStranceSePrecte) {
    const zkouska::DocasnaSlozka slozka;
    base::zapis_soubor(slozka / "stary.ini", "[A]\nb=k\xF9\xF2\n");
    EXPECT_EQ(base::cti_ini_text(slozka / "stary.ini", "A", "b", ""), "kůň");
}

}  // namespace
