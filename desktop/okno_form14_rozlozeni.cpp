#include "desktop/okno_form14_rozlozeni.h"

namespace desktop {

namespace {

using paysheet::Stranka;
using Radky = std::vector<RadekNastaveni>;

/// Fields one under another, each with its own caption.
Radky pod_sebou(const std::vector<std::string>& ovladace) {
    Radky radky;
    for (const std::string& ovladac : ovladace)
        radky.push_back({"", {ovladac}});
    return radky;
}

/// Rows numbered from 1; `kolik` fields a row, named "Edit" and a number from `prvni` on.
Radky cislovane(int radku, int kolik, int prvni) {
    Radky radky;
    for (int r = 1; r <= radku; ++r) {
        RadekNastaveni radek{std::to_string(r), {}};
        for (int i = 0; i < kolik; ++i)
            radek.ovladace.push_back("Edit" + std::to_string(prvni++));
        radky.push_back(radek);
    }
    return radky;
}

Radky vyloucene_sloupce() {
    Radky radky{{"sociálního pojištění", {}}, {"zdravotního pojištění", {}}, {"daně", {}}};
    for (std::size_t r = 0; r < radky.size(); ++r) {
        for (std::size_t c = 0; c < 8; ++c)
            radky[r].ovladace.push_back(paysheet::ovladac_nejdou(r, c));
    }
    return radky;
}

std::vector<BlokNastaveni> legislativa() {
    constexpr Stranka k_stranka = Stranka::legislativa;
    return {
        {k_stranka,
         0,
         "Hodnoty roku",
         {},
         pod_sebou({"scMinimalniMzda", "scSazbaOCR", "scSazbaPPM", "scBonusMaximalni_Mesicni",
                    "scMaxVzSoc", "scMaxVzZdr", "scLimitPrijmuManzelaRocni",
                    "scLimitVydelkuSrazkova"})},
        {k_stranka,
         0,
         "Měsíční slevy na dani",
         {},
         pod_sebou({"scSlevaNaDani_Mesicni_Zakladni", "scSlevaNaDani_Mesicni_Manzelka",
                    "scSlevaNaDani_Mesicni_CastecneInvalidni",
                    "scSlevaNaDani_Mesicni_PlneInvalidni", "scSlevaNaDani_Mesicni_ZTPP",
                    "scSlevaNaDani_Mesicni_Student"})},
        {k_stranka,
         1,
         "Pojištění v procentech",
         {"Pracovník", "Zaměstnavatel"},
         {{"Sociální", {"Edit13", "scProcSoc2"}}, {"Zdravotní", {"Edit15", "Edit16"}}}},
        {k_stranka, 1, "", {}, pod_sebou({"Edit18"})},
        {k_stranka,
         1,
         "2. pilíř - odvod sociálního pojištění",
         {},
         {{"Pracovník", {"scDruhyPilirPrac"}}, {"Odvod PF", {"scDruhyPilirPF"}}}},
        {k_stranka, 1, "", {}, {{"Kód sazby pojistného (ČSSZ)", {"scKodSazbyPojistneho"}}}},
    };
}

std::vector<BlokNastaveni> zakladni_parametry() {
    constexpr Stranka k_stranka = Stranka::zakladni_parametry;
    return {
        {k_stranka, 0, "", {}, pod_sebou({"Edit1"})},
        {k_stranka, 0, "Osobní ohodnocení", {"Sloupec", "Text"}, cislovane(5, 2, 2)},
        {k_stranka, 0, "Sledované sloupce", {}, pod_sebou({"Edit19", "Edit20", "Edit21"})},
        {k_stranka,
         1,
         "Přesčasy a noční práce",
         {"Sloupec", "Kolikáté v pořadí\njsou hodiny?"},
         {{"Přesčasy", {"Edit101", "Edit102"}}, {"Noční práce", {"Edit103", "Edit104"}}}},
        {k_stranka, 1, "Příspěvek odborovému svazu", {"Od", "Do", "Sazba"}, cislovane(2, 3, 41)},
        {k_stranka, 1, "", {}, {{"Organizace proplácí nemocenské dávky", {"scNemocenskeDavky"}}}},
        {k_stranka, 2, "Volitelná hlediska", {"Popis"}, cislovane(10, 1, 51)},
        {k_stranka,
         3,
         "Sloupce náhrad prac. nesch.",
         {},
         pod_sebou({"scNahradaNemocSloupec", "scNahradaKarantenaSloupec", "scNahradaOCRSloupec",
                    "scNahradaPPMSloupec"})},
        {k_stranka, 3, "", {}, {{"Vstup do uzavřených měsíců", {"scVstupDoUzavrenychMesicu"}}}},
        {k_stranka, 3, "", {}, pod_sebou({"scTydnuDovolene"})},
    };
}

std::vector<BlokNastaveni> pojisteni_dane_uctovani() {
    constexpr Stranka k_stranka = Stranka::pojisteni_dane_uctovani;
    return {
        {k_stranka, 0, "Sloupce hrubých mezd, které NEJDOU do", {}, vyloucene_sloupce()},
        {k_stranka, 1, "Penzijní připojištění", {}, pod_sebou({"scPenzijni32", "scPenzijni33"})},
    };
}

std::vector<BlokNastaveni> cssz() {
    constexpr Stranka k_stranka = Stranka::cssz;
    return {{k_stranka,
             0,
             "",
             {},
             {{"Číslo okresu (org. jednotky)", {"scCsszOkres"}},
              {"", {"scCsszVs"}},
              {"", {"scEmailNotifikace"}}}}};
}

}  // namespace

const std::vector<BlokNastaveni>& rozlozeni_nastaveni() {
    static const std::vector<BlokNastaveni> k_bloky = [] {
        std::vector<BlokNastaveni> bloky;
        for (const auto& stranka :
             {legislativa(), zakladni_parametry(), pojisteni_dane_uctovani(), cssz()}) {
            bloky.insert(bloky.end(), stranka.begin(), stranka.end());
        }
        return bloky;
    }();
    return k_bloky;
}

}  // namespace desktop
