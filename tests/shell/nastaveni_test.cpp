// The year's settings: defaults, the file kept as others left it, refusal of what is no number.
#include "shell/nastaveni.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "base/ini.h"
#include "base/soubory.h"
#include "support/docasna_slozka.h"

namespace {

using zkouska::DocasnaSlozka;

std::string hodnota(const shell::Nastaveni& n, const std::string& klic) {
    for (const auto& k : shell::vypis_nastaveni(n)) {
        if (k.klic == klic) return k.hodnota;
    }
    return "(klíč není)";
}

TEST(Nastaveni, ChybejiciSouborDavaVychoziHodnoty) {
    const DocasnaSlozka slozka;
    const auto n = shell::cti_nastaveni(slozka / "Nastaveni.ini", 2022, 25.0);
    for (const auto& [klic, text] : std::initializer_list<std::pair<const char*, const char*>>{
             {"proc_soc2", "24.8"},
             {"MinimalniMzda", "16200"},
             {"DruhyPilirPrac", "3.5"},
             {"DruhyPilirPF", "5"},
             {"SazbaNemocenskeho_61vice", "72"},
             {"SazbaPPM", "69"},
             {"SlevaNaDani_Mesicni_Zakladni", "2570"},
             {"BonusMaximalni_Mesicni", "5025"},
             {"max_vz_soc", "1867728"},
             {"max_vz_zdr", "99999999"},
             {"hodnota_3_8", "0"},
             {"preneseno_z_vr", "0"},
             {"tydnu_dovolene", "5"},
             {"VstupDoUzavrenychMesicu", "0"},
             {"cssz_okres", ""},
             {"EmailNotifikace", "@"},
             {"limit_vydelku_srazkova", "3500"}}) {
        EXPECT_EQ(hodnota(n, klic), text) << klic;
    }
    EXPECT_EQ(shell::vypis_nastaveni(n).size(), 28U + 24U + 6U);
    EXPECT_FALSE(std::filesystem::exists(slozka / "Nastaveni.ini")) << "čtení nic nezakládá";
}

TEST(Nastaveni, SazbaZamestnavateleSeRidiRokem) {
    const DocasnaSlozka slozka;
    const auto soubor = slozka / "Nastaveni.ini";
    EXPECT_EQ(shell::cti_nastaveni(soubor, 2018, 25.0).proc_soc2, 25.0L);
    EXPECT_EQ(shell::cti_nastaveni(soubor, 2019, 25.0).proc_soc2, 24.8L);
    base::zapis_soubor(soubor, "[Legislativa]\nproc_soc2=23,3\n");
    EXPECT_EQ(shell::cti_nastaveni(soubor, 2018, 25.0).proc_soc2, 23.3L);
}

TEST(Nastaveni, ZapisVratiVsechnyKliceACiziObsahNecha) {
    const DocasnaSlozka slozka;
    const auto soubor = slozka / "Nastaveni.ini";
    base::zapis_soubor(soubor,
                       "; poznámka účetní\n[Data_Form117]\nrozvrh=1\n\n[Legislativa2009]\n"
                       "MinimalniMzda=15200\nNeznamy=něco\n");
    auto n = shell::cti_nastaveni(soubor, 2022, 25.0);
    EXPECT_EQ(n.MinimalniMzda, 15200);
    n.nejde_do_pojisteni[2][7] = 19;
    n.DruhyPilirPrac = 3.25L;
    n.VstupDoUzavrenychMesicu = true;
    n.EmailNotifikace = "mzdy@firma.cz";
    shell::zapis_nastaveni(soubor, n);

    const std::string text = base::precti_soubor(soubor, 100000);
    EXPECT_NE(text.find("poznámka účetní"), std::string::npos);
    EXPECT_EQ(base::cti_ini_text(soubor, "Data_Form117", "rozvrh", ""), "1");
    EXPECT_EQ(base::cti_ini_text(soubor, "Legislativa2009", "Neznamy", ""), "něco");
    EXPECT_EQ(base::cti_ini_text(soubor, "Nejde_do_pojisteni", "hodnota_3_8", ""), "19");
    EXPECT_EQ(base::cti_ini_text(soubor, "DruhyPilir", "DruhyPilirPrac", ""), "3.25");
    EXPECT_EQ(base::cti_ini_text(soubor, "System", "VstupDoUzavrenychMesicu", ""), "1");
    const auto vypis = shell::vypis_nastaveni(shell::cti_nastaveni(soubor, 2022, 25.0));
    const auto puvodni = shell::vypis_nastaveni(n);
    for (std::size_t i = 0; i < vypis.size(); ++i) {
        EXPECT_EQ(vypis[i].hodnota, puvodni[i].hodnota) << vypis[i].klic;
        EXPECT_FALSE(vypis[i].vyznam.empty());
    }
}

RC_GTEST_PROP(NastaveniVlastnosti, CoSeZapiseToSePrecte, ()) {
    const DocasnaSlozka slozka;
    shell::Nastaveni n;
    n.proc_soc2 = static_cast<base::Castka>(*rc::gen::inRange(0, 1000000)) / 1000;
    n.max_vz_soc = *rc::gen::arbitrary<int>();
    for (auto& radek : n.nejde_do_pojisteni) {
        for (auto& sloupec : radek)
            sloupec = *rc::gen::arbitrary<std::int16_t>();
    }
    shell::zapis_nastaveni(slozka / "n.ini", n);
    const auto zpet = shell::cti_nastaveni(slozka / "n.ini", 2022, 25.0);
    RC_ASSERT(hodnota(zpet, "proc_soc2") == hodnota(n, "proc_soc2"));
    RC_ASSERT(zpet.max_vz_soc == n.max_vz_soc);
    RC_ASSERT(zpet.nejde_do_pojisteni == n.nejde_do_pojisteni);
}

TEST(Nastaveni, NecislovaHodnotaJeChybaSUplnymMistem) {
    const DocasnaSlozka slozka;
    const auto soubor = slozka / "Nastaveni.ini";
    struct Radek {
        const char *sekce, *klic, *hodnota;
    };
    for (const Radek& r : {Radek{"Legislativa", "proc_soc2", "24,8 %"},
                           {"Legislativa2009", "MinimalniMzda", "16.200"},
                           {"Legislativa2009", "max_vz_soc", "99999999999"},
                           {"Nejde_do_pojisteni", "hodnota_1_1", "40000"},
                           {"System", "VstupDoUzavrenychMesicu", "někdy"}}) {
        std::filesystem::remove(soubor);
        base::zapis_ini_text(soubor, r.sekce, r.klic, r.hodnota);
        try {
            shell::cti_nastaveni(soubor, 2022, 25.0);
            ADD_FAILURE() << r.klic << " prošel";
        } catch (const base::ChybaDat& e) {
            const std::string text = e.what();
            for (const char* cast : {"Nastaveni.ini", r.sekce, r.klic, r.hodnota, "očekává se"}) {
                EXPECT_NE(text.find(cast), std::string::npos) << text;
            }
        }
    }
}

TEST(Nastaveni, KlicSeNastaviPodleSekceANazvu) {
    shell::Nastaveni n;
    EXPECT_EQ(shell::nastav_klic(n, "legislativa", "PROC_SOC2", "21,5"), "");
    EXPECT_EQ(n.proc_soc2, 21.5L);
    EXPECT_EQ(shell::nastav_klic(n, "Nejde_do_pojisteni", "hodnota_2_3", "12"), "");
    EXPECT_EQ(n.nejde_do_pojisteni[1][2], 12);
    EXPECT_EQ(shell::nastav_klic(n, "System", "VstupDoUzavrenychMesicu", "ano"), "");
    EXPECT_TRUE(n.VstupDoUzavrenychMesicu);
    EXPECT_NE(shell::nastav_klic(n, "Legislativa2009", "MinimalniMzda", "mnoho"), "");
    EXPECT_EQ(n.MinimalniMzda, 16200);
    EXPECT_NE(shell::nastav_klic(n, "Legislativa", "MinimalniMzda", "1"), "") << "jiná sekce";
}

TEST(Nastaveni, StupenInvalidityPodleVyseSlevy) {
    shell::Nastaveni n;
    n.SlevaNaDani_Mesicni_CastecneInvalidni = 210;
    n.SlevaNaDani_Mesicni_PlneInvalidni = 420;
    n.SlevaNaDani_Mesicni_ZTPP = 1345;
    for (const auto& [castka, stupen] : std::initializer_list<std::pair<base::Castka, int>>{
             {0, 0}, {210, 1}, {420, 2}, {1345, 3}, {1765, 4}, {630, 255}, {-210, 255}}) {
        EXPECT_EQ(shell::stupen_invalidity_z_slevy(n, castka), stupen) << castka;
    }
}

}  // namespace
