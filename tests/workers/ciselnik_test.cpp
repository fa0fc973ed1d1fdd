// Code lists worked through their screens: insurers and funds, machines, external input.
#include <gtest/gtest.h>

#include "report/nahled.h"
#include "report/text.h"
#include "support/zkusebni_firma.h"
#include "workers/ciselnik_veta.h"
#include "workers/pojistovny.h"
#include "workers/unit15_stroje.h"
#include "workers/unit26_pojistovny.h"
#include "workers/unit74_externi_vstup.h"

namespace {

using workers::TextyPoli;
using workers::VetaCiselniku;

struct Ciselniky : testing::Test {
    zkouska::ZkusebniFirma firma;

    /// The next record form gets the texts and is saved; `po` looks at it.
    void vyplni(TextyPoli hodnoty, std::function<void(VetaCiselniku&)> po = {}) {
        firma.obsluha.pri_obrazovce = [hodnoty = std::move(hodnoty),
                                       po = std::move(po)](base::Obrazovka& obrazovka) {
            auto& veta = dynamic_cast<VetaCiselniku&>(obrazovka);
            veta.hodnoty = hodnoty;
            veta.acUlozitExecute();
            if (po) po(veta);
            if (!veta.zavreno) veta.acZpetExecute();
        };
    }
    std::string posledni_hlaska() const {
        return firma.obsluha.hlasky.empty() ? "" : firma.obsluha.hlasky.back();
    }
    template <class Form>
    static std::string prvni_sloupec(const Form& form) {
        std::string vse;
        for (const auto& veta : form.vety.rows)
            vse += veta[1].as_text() + " ";
        return vse;
    }
};

TEST_F(Ciselniky, PrazdnySeznamNabidnePojistovnyJenJednou) {
    workers::TForm26 form(firma.session);
    firma.obsluha.odpovez("Doplnit zdravotní pojišťovny České republiky?", false);
    form.FormShow();
    EXPECT_FALSE(form.je_veta());
    firma.obsluha.odpovez("Doplnit zdravotní pojišťovny České republiky?", true);
    form.FormShow();
    EXPECT_EQ(firma.vypis("SELECT Cislo, Kod_zp FROM Zdr_poj ORDER BY Cislo"),
              "1|111\n2|201\n3|205\n4|207\n5|209\n6|211\n7|213\n");
    EXPECT_EQ(workers::Jmeno_pojistovny(workers::Nacti_pojistovny(firma.session), 5),
              "Zaměstnanecká pojišťovna Škoda");
    EXPECT_EQ(form.pocet, "7 položek");
    form.FormShow();
}

TEST_F(Ciselniky, NovaOpravaKopie) {
    firma.vloz("Zdr_poj", "Cislo,Nazev\n51,Fond\n");
    workers::TForm26 form(firma.session);
    form.FormShow();
    vyplni({"1", " Všeobecná ", "19-2000145399", "0800", "123", "558", "", "111"});
    form.acPridatExecute();
    EXPECT_EQ(posledni_hlaska(), "");
    EXPECT_EQ(form.hodnota_radku("Nazev").as_text(), "Všeobecná") << "kurzor stojí na nové";
    EXPECT_EQ(form.hodnota_radku("Kod_banky").as_text(), "0800");
    EXPECT_EQ(firma.vypis("SELECT * FROM Zdr_poj WHERE Cislo = 1"),
              "2|1|Všeobecná|19-2000145399|800|123|558||111\n");

    firma.obsluha.pri_obrazovce = [](base::Obrazovka& obrazovka) {
        auto& veta = dynamic_cast<VetaCiselniku&>(obrazovka);
        EXPECT_EQ(veta.nadpis, "Oprava záznamu");
        EXPECT_EQ(veta.hodnoty,
                  (TextyPoli{"1", "Všeobecná", "19-2000145399", "0800", "123", "0558", "", "111"}));
        veta.hodnoty[1] = "VZP";
        veta.hodnoty[3] = "";
        veta.acUlozitExecute();
    };
    form.acOpravitExecute();
    EXPECT_EQ(firma.vypis("SELECT Nazev, Kod_banky FROM Zdr_poj WHERE Cislo = 1"), "VZP|\n");

    vyplni({"2", "Kopie", "", "", "", "", "", ""});
    form.acKopirovatExecute();
    EXPECT_EQ(prvni_sloupec(form), "1 2 51 ");
    firma.obsluha.pri_obrazovce = [](base::Obrazovka& obrazovka) {
        dynamic_cast<VetaCiselniku&>(obrazovka).acZpetExecute();
    };
    form.acPridatExecute();
    EXPECT_EQ(form.hodnota_radku("Cislo").as_integer(), 2) << "po odchodu kurzor nezmizí";
    EXPECT_EQ(form.vety.rows.size(), 3U);
}

TEST_F(Ciselniky, CoSeNeulozi) {
    firma.vloz("Zdr_poj", "Cislo,Nazev\n1,Všeobecná\n");
    workers::TForm26 form(firma.session);
    form.FormShow();
    const struct {
        TextyPoli hodnoty;
        const char *hlaseni, *fokus;
    } pripady[] = {
        {{"", "", "", "", "", "", "", ""}, "Údaj <Číslo> musí být vyplněn.", "Cislo"},
        {{"100", "", "", "", "", "", "", ""}, "Údaj <Číslo> smí mít nejvýše 2 znaků.", "Cislo"},
        {{"1", "Druhá", "", "", "", "", "", ""}, "Číslo 1 už v seznamu je.", "Cislo"},
        {{"2", "", "", "osm", "", "", "", "1x1"}, "Údaj <Kód banky> je \"osm\"", "Kod_banky"},
        {{"2", "Zdraví 🙂", "", "", "", "", "", ""}, "Údaj <Název> je", "Nazev"}};
    for (const auto& p : pripady) {
        vyplni(p.hodnoty, [&](VetaCiselniku& veta) {
            EXPECT_FALSE(veta.ulozeno || veta.zavreno);
            EXPECT_EQ(veta.fokus, p.fokus);
        });
        form.acPridatExecute();
        EXPECT_EQ(posledni_hlaska().find(p.hlaseni), 0U) << posledni_hlaska();
        EXPECT_NE(posledni_hlaska().find("\r\n\r\nOpravte chyby a zkuste údaje uložit znovu."),
                  std::string::npos);
    }
    EXPECT_NE(firma.obsluha.hlasky[3].find("<Kód ZP>"), std::string::npos) << "všechny najednou";
    EXPECT_EQ(form.vety.rows.size(), 1U);
}

TEST_F(Ciselniky, PochybnyUcetSeDaUlozitPoOtazce) {
    workers::TForm26 form(firma.session);
    firma.obsluha.odpovez("Doplnit", false);
    form.FormShow();
    for (const bool ano : {false, true}) {
        vyplni({"1", "VZP", "1234567", "0710", "", "", "", "111"});
        firma.obsluha.odpovez("účet \"1234567\" neodpovídá kontrole modulo 11", ano);
        form.acPridatExecute();
        EXPECT_EQ(form.je_veta(), ano);
    }
}

TEST_F(Ciselniky, SmazaniAZmenaCislaVarujePredPouzitim) {
    firma.vloz("Zdr_poj", "Cislo,Nazev\n1,A\n2,B\n51,F\n2,B podruhé\n");
    firma.vloz("Os_karty",
               "Cislo,Prijmeni,Jmeno,Cislo_zdrav_poj,Cislo_penz_fondu\n7,Žižková,Anežka,1,51\n"
               "8,Malá,Eva,2,\n");
    workers::TForm26 form(firma.session);
    form.FormShow();
    firma.obsluha.odpovez("- číslo 1 má na kartě pracovník 7 Žižková Anežka", false);
    form.acSmazatExecute();
    EXPECT_EQ(form.vety.rows.size(), 4U);
    form.vyber_radek(1);
    firma.obsluha.odpovez("Smazat vybraný záznam?", true);
    form.acSmazatExecute();
    EXPECT_EQ(firma.obsluha.otazky.back(), "Smazat vybraný záznam?") << "číslo 2 má i jiná věta";
    EXPECT_EQ(prvni_sloupec(form), "1 2 51 ");
    form.vyber_radek(2);
    vyplni({"52", "F", "", "", "", "", "", ""});
    firma.obsluha.odpovez("číslo 51 má na kartě pracovník 7", false);
    form.acOpravitExecute();
    EXPECT_EQ(prvni_sloupec(form), "1 2 51 ");
    firma.obsluha.odpovez("číslo 51 má na kartě pracovník 7", true);
    form.acOpravitExecute();
    EXPECT_EQ(prvni_sloupec(form), "1 2 52 ");
}

TEST_F(Ciselniky, StrojVHrubychMzdachVarujeNepouzityNe) {
    firma.vloz("Stroje", "Stroj,Sazba\n101,20.5\n205,30\n");
    firma.vloz("Hrube01", "Cislo_pracovnika,Modul,Sloupec,Stroj\n7,1,1,101\n7,1,1,101\n");
    firma.vloz("Hrube03", "Cislo_pracovnika,Modul,Sloupec,Stroj\n7,1,1,101\n");
    workers::TForm15 form(firma.session);
    form.FormShow();
    firma.obsluha.odpovez(
        "- stroj 101 je v hrubých mzdách za leden (řádků: 2)\r\n- stroj 101 je v "
        "hrubých mzdách za březen (řádků: 1)",
        true);
    form.acSmazatExecute();
    EXPECT_EQ(prvni_sloupec(form), "205 ");
    firma.obsluha.odpovez("Smazat vybraný záznam?", true);
    form.acSmazatExecute();
    EXPECT_EQ(firma.obsluha.otazky.back(), "Smazat vybraný záznam?");
    EXPECT_FALSE(form.je_veta());
    vyplni({"0", "", "", "", "", ""});
    form.acPridatExecute();
    EXPECT_EQ(posledni_hlaska().find("Údaj <Stroj> musí být v intervalu 1 - 999999."), 0U);
}

TEST_F(Ciselniky, TrideniHledaniATisk) {
    workers::zaloz_soubor_pro_externi_vstup(firma.session);
    workers::zaloz_soubor_pro_externi_vstup(firma.session);
    firma.vloz("Vstup_ex",
               "Cislo_prace,Sazba,Text\n30,9.5,Řezání\n4,100,chlazení\n200,,Hoblování\n");
    workers::TForm74 form(firma.session);
    form.FormShow();
    EXPECT_EQ(prvni_sloupec(form), "4 30 200 ");
    form.zmena_trideni(2);
    EXPECT_EQ(prvni_sloupec(form), "200 4 30 ") << "ch je za h";
    EXPECT_EQ(form.hodnota_radku("Cislo_prace").as_integer(), 4) << "kurzor jde s větou";
    form.zmena_trideni(1);
    EXPECT_EQ(prvni_sloupec(form), "200 30 4 ");
    form.zmena_trideni(1);
    EXPECT_EQ(prvni_sloupec(form), "4 30 200 ");
    const std::pair<const char*, const char*> hledani[] = {
        {"ŘEZ", "30 "}, {"0", "4 30 200 "}, {"9,5", "30 "}, {"ování", "200 "}, {"nic", ""}};
    for (const auto& [text, zbyde] : hledani) {
        form.hledat = text;
        form.zmena_hledani();
        EXPECT_EQ(prvni_sloupec(form), zbyde) << text;
    }
    EXPECT_EQ(form.pocet, "0 z 3 položek");
    form.hledat = "l";
    form.zmena_hledani();
    std::string text;
    firma.obsluha.pri_obrazovce = [&](base::Obrazovka& obrazovka) {
        text = report::jako_text(dynamic_cast<report::TFUsrPrev&>(obrazovka).dokument);
    };
    form.acTiskExecute();
    for (const char* cast : {"Externí vstup - FIRMA22", "Sazba", "chlazení", "Hoblování"})
        EXPECT_NE(text.find(cast), std::string::npos) << cast;
    EXPECT_EQ(text.find("Řezání"), std::string::npos);
}

}  // namespace
