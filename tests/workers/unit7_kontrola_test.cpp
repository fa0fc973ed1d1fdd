// The rules of the worker's card: its check and hints as tables of a changed good card, and the
// small rules about a person.
#include <gtest/gtest.h>

#include "shell/hodnota_text.h"
#include "store/transfer.h"
#include "support/zkusebni_firma.h"
#include "workers/unit7_napovedy.h"
#include "workers/unit7_osoba.h"
#include "workers/vykony.h"

namespace {

using namespace workers;
using Zmeny = std::vector<std::pair<const char*, const char*>>;

/// Performance 0 takes every centre to 50, 10 the centre 5 alone, 20 the centres 10 to 12.
constexpr const char* k_vykony =
    "Vykon,St1,St2,St3,St4,St5,St6,St7,St8,St9,St10,Stod,Stdo\n"
    "20,-1,-1,-1,-1,-1,-1,-1,-1,-1,-1,10,12\n"
    "0,-1,-1,-1,-1,-1,-1,-1,-1,-1,-1,0,50\n"
    "10,5,-1,-1,-1,-1,-1,-1,-1,-1,-1,-1,-1\n";

/// The first figure of a message tells the page.
const std::map<char, StrankaKarty> k_stranky_hlasek{
    {'1', StrankaKarty::osobni}, {'2', StrankaKarty::danove}, {'5', StrankaKarty::cssz}};

struct Karta : testing::Test {
    Karta() {
        const auto vysledek =
            store::import_csv(firma.session.ucet(), "vykony", k_vykony, "vykony", true);
        EXPECT_TRUE(vysledek.errors.empty());
        firma.vloz("Zdr_poj",
                   "Cislo,Nazev,Kod_zp\n1,Všeobecná,111\n2,Bez kódu,\n3,Cizí,999\n51,Fond,\n");
        firma.vloz("Os_karty",
                   "Cislo,Prijmeni,Jmeno,Rodne_cislo,Kdo_plati_dan\n"
                   "8,Dvojník,Ivo,71-05-14/1010,0\n9,Malý,Jan,,0\n");
    }

    /// A card without a fault, changed: a list by its item, a check box by "ano" or "ne".
    HodnotyKarty karta(const Zmeny& zmeny) {
        HodnotyKarty k = nova_karta(firma.session, CiselnikyKarty(firma.session));
        const Zmeny dobra{{"Cislo", "7"},           {"Prijmeni", "Novák"},
                          {"Jmeno", "Petr"},        {"Dat_nar_text", "14.5.1971"},
                          {"Cislo_zdrav_poj", "1"}, {"Odp_poplatnik", "0"}};
        for (const Zmeny& cim : {dobra, zmeny}) {
            for (const auto& [ovladac, hodnota] : cim) {
                k[ovladac].text = hodnota;
                k[ovladac].ano = std::string_view(hodnota) == "ano";
                k[ovladac].index =
                    static_cast<int>(shell::presne_cele(hodnota, 0, 40).value_or(k[ovladac].index));
            }
        }
        return k;
    }
    static std::string spoj(const std::vector<ChybaKarty>& chyby) {
        std::string texty;
        for (const ChybaKarty& chyba : chyby)
            texty += (texty.empty() ? "" : "|") + chyba.text;
        return texty;
    }

    zkouska::ZkusebniFirma firma;
};

TEST_F(Karta, KontrolaVypiseChybyVeStalemPoradi) {
    const struct {
        Zmeny zmeny;
        const char* chyby;
    } pripady[] = {
        {{}, ""},
        {{{"Cislo", ""},
          {"Prijmeni", " "},
          {"Jmeno", ""},
          {"Dat_nar_text", ""},
          {"Cislo_zdrav_poj", ""}},
         "1 Chybí číslo pracovníka.|1 Chybí příjmení pracovníka.|1 Chybí jméno pracovníka.|"
         "Chybné datum narození.|2 Chybí číslo zdr. poj."},
        {{{"Cislo", "0"}}, "1 Chybí číslo pracovníka."},

        {{{"Rodne_cislo", "71-05-14/101"}}, ""},
        {{{"Rodne_cislo", "71-13-99/0000"}}, ""},
        {{{"Rodne_cislo", "71-05-14/101x"}}, "1 Rodné číslo má chybnou strukturu."},
        {{{"Rodne_cislo", "71-05-14/10"}}, "1 Rodné číslo má chybnou strukturu."},
        {{{"Rodne_cislo", "7105141010"}}, "1 Rodné číslo má chybnou strukturu."},
        {{{"Dat_nar_text", "01.05.1971"}}, ""},
        {{{"Dat_nar_text", "31.4.1971"}}, "Chybné datum narození."},
        {{{"Dat_nar_text", "1.1.71"}}, "Chybné datum narození."},
        {{{"Dat_nar_text", "1,1.1971"}}, "Chybné datum narození."},

        {{{"Jaka_dan", "1"}}, ""},
        {{{"Jaka_dan", "1"}, {"Odp_poplatnik", "2570"}},
         "2  U zadaného kódu pro daň|   nesmí být sleva na dani."},
        {{{"Jaka_dan", "2"}, {"Odp_poplatnik", "2570"}}, ""},

        {{{"Vykon", "0"}}, "1 Nelze zadávat výkon."},
        {{{"Staly_plat", "20000"}}, ""},
        {{{"Staly_plat", "0"}, {"Stredisko", "51"}}, "1 Výkon nemá povolené středisko."},
        {{{"Os_oh_5", "1"}, {"Vykon", "11"}}, "1 Výkon není povolen."},
        {{{"Os_oh_1", "1"}, {"Vykon", "10"}, {"Stredisko", "5"}}, ""},
        {{{"Os_oh_1", "1"}, {"Vykon", "10"}}, "1 Výkon nemá povolené středisko."},
        {{{"Os_oh_1", "1"}, {"Vykon", "20"}, {"Stredisko", "12"}}, ""},
        {{{"Os_oh_1", "1"}, {"Vykon", "20"}, {"Stredisko", "13"}},
         "1 Výkon nemá povolené středisko."},

        {{{"tpd", ""}}, "1 Chybí týdenní prac. doba."},
        {{{"tpd", "-0,009"}}, "1 Chybí týdenní prac. doba."},
        {{{"tpd", "0,01"}}, ""},
        {{{"Cely_plat_sporit", "13"}}, ""},
        {{{"Cely_plat_sporit", "15"}},
         "1 Sloupec \"celý plat spořit\"|  musí být v intervalu 13 - 14."},

        {{{"Zam_od", "30.2.2020"}}, "2 Chybné datum nástupu"},
        {{{"Zam_od", "1.1.2020"}, {"Zam_do", "1.1.20"}}, "2 Chybné datum výstupu"},
        {{{"Zam_od", "2.1.2020"}, {"Zam_do", "1.2.2020"}}, ""},
        {{{"Zam_od", "1.2.2020"}, {"Zam_do", "31.1.2020"}}, "2 Chyba u \"pracovní poměr trvá\"."},

        {{{"Cislo_zdrav_poj", "50"}}, "2 Zdr. poj. 50 neexistuje."},
        {{{"Cislo_zdrav_poj", "51"}}, "2 Zdr. poj. musí být|  v intervalu 0-50."},
        {{{"Cislo_penz_fondu", "51"}}, ""},
        {{{"Cislo_penz_fondu", "50"}}, "2 Penzijní fond musí být|  v intervalu 0-50."},
        {{{"Cislo_penz_fondu", "52"}}, "2 Penzijní fond č. 52 neexistuje."},
        {{{"Cislo_penz_fondu", "51"}, {"penz_fond_podnik_sazba", "0"}},
         "2 Chybná kombinace|  \"sazba-č.smlouvy\" u PF"},
        {{{"Cislo_penz_fondu", "51"}, {"penz_fond_podnik_smlouva", "7"}},
         "2 Chybná kombinace|  \"sazba-č.smlouvy\" u PF"},
        {{{"Cislo_penz_fondu", "51"},
          {"penz_fond_podnik_sazba", "0,03"},
          {"penz_fond_podnik_smlouva", "7"}},
         ""},

        {{{"CSSZ112", "290220"}, {"CSSZ114", "010122"}}, ""},
        {{{"CSSZ112", "290222"}}, "5 Chybné datum \"důchod pobírán od\"."},
        {{{"CSSZ114", "1122"}}, "5 Chybné datum skutečného|  vstupu do zaměstnání."},
        {{{"Podepsal_prohlaseni", "ano"}}, "Prohlášení na měsíce"},
        {{{"Podepsal_prohlaseni", "ano"}, {"PROHLASENI_MESICE", "1-12"}}, ""},
        {{{"PROHLASENI_MESICE", "1-12"}}, "Prohlášení na měsíce"},
        {{{"CSSZ114", "x"}, {"Podepsal_prohlaseni", "ano"}, {"CSSZ112", "x"}, {"tpd", ""}},
         "1 Chybí týdenní prac. doba.|5 Chybné datum \"důchod pobírán od\".|Prohlášení na měsíce|"
         "5 Chybné datum skutečného|  vstupu do zaměstnání."},
    };
    const PodkladyKarty podklady(firma.session);
    for (const auto& p : pripady) {
        SCOPED_TRACE(p.zmeny.empty() ? "" : p.zmeny.front().first);
        const auto chyby = hledej_chyby(karta(p.zmeny), podklady);
        EXPECT_EQ(spoj(chyby), p.chyby);
        for (const ChybaKarty& chyba : chyby) {
            const auto stranka = k_stranky_hlasek.find(chyba.text.front());
            if (stranka == k_stranky_hlasek.end()) continue;
            EXPECT_EQ(pole_karty()[poradi_pole(chyba.ovladac)].stranka, stranka->second);
        }
    }
    firma.session.ridici_zorv.modul10_od = 0;
    EXPECT_EQ(spoj(hledej_chyby(karta({{"Cely_plat_sporit", "13"}}), podklady)),
              "1 Nelze zadávat sloupec|  pro \"celý plat spořit\".");
}

// 7105141010 is divisible by eleven; 710514100 leaves ten, which the digit 0 once stood for.
TEST_F(Karta, NapovedyUpozorniNaPodezreleUdaje) {
    const struct {
        Zmeny zmeny;
        const char* napovedy;
    } pripady[] = {
        {{}, ""},
        {{{"Rodne_cislo", "71-05-14/1011"}, {"CSSZ102", "2"}},
         "Rodné číslo není dělitelné jedenácti."},
        {{{"Rodne_cislo", "71-05-14/1000"}}, ""},
        {{{"Rodne_cislo", "50-05-14/101"}, {"Dat_nar_text", "14.5.1950"}}, ""},
        {{{"Rodne_cislo", "71-02-30/1008"}}, "Rodné číslo neobsahuje existující den narození."},
        {{{"Rodne_cislo", "71-05-14/1010"}, {"Kdo_plati_dan", "8"}}, ""},
        {{{"Rodne_cislo", "71-05-14/1010"}}, "Stejné rodné číslo má pracovník 8."},
        {{{"Rodne_cislo", "71-05-14/1010"}, {"Kdo_plati_dan", "8"}, {"Dat_nar_text", "15.5.1971"}},
         "Datum narození neodpovídá rodnému číslu (14.5.1971)."},
        {{{"Rodne_cislo", "71-05-14/1010"}, {"Kdo_plati_dan", "8"}, {"CSSZ102", "1"}},
         "Pohlaví neodpovídá rodnému číslu."},
        {{{"Dat_nar_text", "16.1.2022"}}, "Datum narození je v budoucnosti."},
        {{{"Dat_nar_text", "14.1.1922"}}, "Pracovníkovi je přes 100 let."},
        {{{"Dat_nar_text", "15.1.1922"}}, ""},
        {{{"Zam_od", "13.5.1986"}}, "Nástup je před 15. narozeninami."},
        {{{"Zam_od", "14.5.1986"}}, ""},
        {{{"Cislo_zdrav_poj", "2"}}, "Zdravotní pojišťovna 2 nemá v číselníku kód."},
        {{{"Cislo_zdrav_poj", "3"}}, "Kód zdravotní pojišťovny 999 není známý."},
        {{{"Kdo_plati_dan", "7"}}, "Pracovník má zdaňovat mzdu sám sobě."},
        {{{"Kdo_plati_dan", "99"}}, "Pracovník 99, který má mzdu zdaňovat, neexistuje."},
        {{{"Kdo_plati_dan", "9"}}, ""},
    };
    const PodkladyKarty podklady(firma.session);
    const OstatniPracovnici ostatni(firma.data());
    for (const auto& p : pripady) {
        SCOPED_TRACE(p.zmeny.empty() ? "" : p.zmeny.front().second);
        EXPECT_EQ(spoj(najdi_napovedy(karta(p.zmeny), podklady, ostatni, firma.hodiny.dnes())),
                  p.napovedy);
    }
}

TEST_F(Karta, VykonySeCtouPodleCislaAStrediskaSeNajdou) {
    EXPECT_EQ(
        Nacti_vykony(firma.session),
        (std::vector<std::string>{"000....................0050", "01005......................",
                                  "020....................1012"}));
    const auto vykony = Nacti_vykony(firma.session);
    int index = 7;
    EXPECT_FALSE(vykon_souhlasi(vykony, "11", index));
    EXPECT_EQ(index, 7);
    EXPECT_TRUE(vykon_souhlasi(vykony, "010", index));
    EXPECT_EQ(index, 1);
    EXPECT_TRUE(vykon_souhlasi(vykony, "", index));
    EXPECT_EQ(index, 0);
}

// 52 weeks of a year with 5 weeks of leave of 40 hours: 200 hours.
TEST(Osoba, NarokDovolenePodleCelychTydnuPomeru) {
    const struct {
        const char *od, *do_;
        int tydnu;
        base::Castka tpd, narok;
    } pripady[] = {
        {"", "", 5, 40, 200},
        {"1.1.1990", "31.12.2022", 4, 37.5L, 150},
        {"1.7.2022", "", 5, 40, 100},              // 184 days, 26 weeks
        {"1.12.2022", "není den", 5, 40, 15.38L},  // 31 days, 4 weeks
        {"1.1.2010", "6.1.2022", 5, 40, 0},        // 6 days
        {"1.1.2010", "7.1.2022", 5, 40, 3.85L},    // a week
        {"1.1.2010", "31.12.2021", 5, 40, 0},
        {"", "28.2.2023", 5, 40, 230.77L},  // 424 days, 60 weeks
    };
    for (const auto& p : pripady) {
        EXPECT_NEAR(static_cast<double>(narok_dovolene(2022, p.od, p.do_, p.tydnu, p.tpd)),
                    static_cast<double>(p.narok), 1e-9)
            << p.od << " - " << p.do_;
    }
}

TEST(Osoba, PohlaviPocatekCinnostiAJmenoSTitulem) {
    EXPECT_EQ(urci_pohlavi("71-05-14/1010"), 0);
    EXPECT_EQ(urci_pohlavi("71-55-14/1010"), 1);
    for (const char* jine : {"", "71-13-14/1010", "71-25-14/1010", "71"})
        EXPECT_EQ(urci_pohlavi(jine), 2) << jine;
    std::string text = "x";
    Pocatek_vydelecne_cinnosti("31.4.2022", text);
    EXPECT_EQ(text, "x");
    Pocatek_vydelecne_cinnosti("1.12.2022", text);
    EXPECT_EQ(text, "011222");
    EXPECT_EQ(jmeno_s_titulem("Žofie", " "), "Žofie");
    EXPECT_EQ(jmeno_s_titulem("Žofie", "Ing."), "Žofie, Ing.");
    EXPECT_EQ(jmeno_s_titulem("Maxmilián Jiří", "PhDr. Ing."), "Maxmilián Jiří, PhDr");
}

}  // namespace
