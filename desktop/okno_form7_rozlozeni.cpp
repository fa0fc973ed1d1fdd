#include "desktop/okno_form7_rozlozeni.h"

#include "base/datum.h"

namespace desktop {

namespace {

using S = workers::StrankaKarty;
using Radky = std::vector<RadekKarty>;

/// Fields one under another, each with its own caption.
Radky pod_sebou(const std::vector<std::string>& ovladace) {
    Radky radky;
    for (const std::string& ovladac : ovladace)
        radky.push_back({"", {ovladac}});
    return radky;
}

/// Fields of the twelve months.
Radky po_mesicich(const std::string& nazev) {
    Radky radky;
    for (int mesic = 1; mesic <= 12; ++mesic)
        radky.push_back({base::mesic_slovy(mesic, 0), {nazev + std::to_string(mesic)}});
    return radky;
}

/// Fields named by a number from `od` to `do_`.
Radky cislovane(const std::string& nazev, int od, int do_) {
    Radky radky;
    for (int i = od; i <= do_; ++i)
        radky.push_back({"", {nazev + std::to_string(i)}});
    return radky;
}

std::vector<BlokKarty> osobni() {
    return {
        {S::osobni,
         0,
         "Pracovník",
         {},
         pod_sebou({"Cislo", "Cislo_min_rok", "Jmeno", "Prijmeni", "Titul", "Prijmeni_puvodni",
                    "Rodne_cislo", "Dat_nar_text", "Misto_narozeni", "Ulice", "Bydliste", "PSC",
                    "Posta"})},
        {S::osobni,
         1,
         "Mzda",
         {},
         pod_sebou({"Staly_plat", "Os_oh_1", "Os_oh_2", "Os_oh_3", "Os_oh_4", "Os_oh_5",
                    "Stredisko", "Vykon"})},
        {S::osobni,
         1,
         "Další údaje",
         {},
         pod_sebou({"tpd", "Osobni_ucet", "Sazba_OT", "Cely_plat_sporit"})},
        {S::osobni,
         2,
         "Dovolená",
         {"dny", "hodiny"},
         {{"nevyčerpaná k 1.1.", {"Dovolena_nevycerpano", "DOVOLENA_NEVYCERPANO_HOD"}},
          {"", {"Dovolena_narok", "acPrepocet"}}}},
        {S::osobni,
         2,
         "Pracovní kalendář",
         {},
         {{"", {"Id_rpd", "btRpdX"}}, {"", {"Id_rpd_min", "btRpdMinX"}}, {"", {"KratitPlat"}}}},
    };
}

std::vector<BlokKarty> danove() {
    return {
        {S::danove,
         0,
         "Pracovník je",
         {},
         pod_sebou({"Clenstvi_OS", "Zamestnanec", "Duchodce", "Student", "Osamela_osoba"})},
        {S::danove,
         0,
         "Prohlášení k dani",
         {},
         {{"", {"Podepsal_prohlaseni"}},
          {"měsíce", {"PROHLASENI_MESICE"}},
          {"", {"NEREZIDENT"}},
          {"", {"Rocni_zuctovani"}}}},
        {S::danove, 0, "Pracovní poměr trvá", {}, {{"od", {"Zam_od"}}, {"do", {"Zam_do"}}}},
        {S::danove,
         1,
         "Zdravotní pojišťovna",
         {},
         {{"číslo", {"Cislo_zdrav_poj", "jmeno_pojistovny"}}}},
        {S::danove,
         1,
         "Měsíční slevy na dani",
         {},
         {{"Poplatník", {"Odp_poplatnik"}},
          {"Manželka", {"Odp_manzelka"}},
          {"", {"Invalidita"}},
          {"Sleva na invaliditu", {"Odp_invalidita"}},
          {"Student", {"Odp_ostatni"}}}},
        {S::danove,
         1,
         "Penzijní fond",
         {},
         {{"číslo", {"Cislo_penz_fondu", "jmeno_fondu"}},
          {"sazba", {"penz_fond_podnik_sazba"}},
          {"číslo smlouvy", {"penz_fond_podnik_smlouva"}}}},
        {S::danove,
         2,
         "Pojištění a daň",
         {},
         {{"", {"Jake_socialni"}},
          {"", {"Jake_zdravotni"}},
          {"", {"Jaka_dan"}},
          {"", {"poznamka_dane"}},
          {"", {"Vzdy_superhruba"}}}},
        {S::danove,
         2,
         "Zdanění pod jiným pracovníkem",
         {},
         {{"", {"Kdo_plati_dan", "btKdoPlatiDan"}}, {" ", {"jmeno_platce_dane"}}}},
    };
}

std::vector<BlokKarty> prumery() {
    Radky ctvrtleti;
    for (int i = 1; i <= 4; ++i) {
        const std::string cislo = std::to_string(i);
        ctvrtleti.push_back(
            {cislo + ". čtvrtletí", {"PdovD" + cislo + "akt", "PdovH" + cislo + "akt"}});
    }
    return {
        {S::prumery,
         0,
         k_blok_minuly_rok,
         {},
         {{"průměr na nemoc - prosinec", {"Prum_nemoc_0"}},
          {"na dovolenou, 4. čtvrtletí - denní", {"PdovD4min"}},
          {"na dovolenou, 4. čtvrtletí - hodinový", {"PdovH4min"}}}},
        {S::prumery, 1, k_blok_aktualni_rok, {"na nemoc"}, po_mesicich("Prum_nemoc_")},
        {S::prumery, 2, k_blok_aktualni_rok, {"na dovolenou\ndenní", "\nhodinový"}, ctvrtleti},
    };
}

std::vector<BlokKarty> hlediska_a_texty() {
    return {
        {S::hlediska, 0, "Volitelná hlediska", {}, cislovane("Volit_", 1, 10)},
        {S::hlediska, 0, "", {}, {{" ", {"poznamka_skolam"}}}},
        {S::hlediska, 1, "Benefity (Kč)", {}, po_mesicich("Benefit")},
        {S::texty, 0, "Texty na mzdovém listu", {}, cislovane("Text_ml_", 1, 12)},
    };
}

std::vector<BlokKarty> cssz() {
    return {
        {S::cssz,
         0,
         "Zaměstnání",
         {},
         {{"", {"CSSZ113"}},
          {"", {"CSSZ108"}},
          {"", {"CSSZ106"}},
          {"Úvazek týdně (dny, hodiny)", {"CSSZ110", "CSSZ109"}},
          {"", {"CSSZ102"}},
          {"", {"CSSZ103"}},
          {"", {"Cssz_druh_cinnosti"}},
          {"", {"Zam_maleho_rozsahu"}},
          {"", {"Splnuje_slevy"}}}},
        {S::cssz,
         1,
         "Přihláška",
         {},
         pod_sebou({"CSSZ101", "CSSZ105", "CSSZ107", "CSSZ104", "CSSZ114"})},
        {S::cssz, 1, "Důchod", {}, {{"druh", {"CSSZ111"}}, {"pobírán od", {"CSSZ112"}}}},
        {S::cssz,
         1,
         "Orgán nemocenského pojištění jiný než ČSSZ",
         {},
         {{"nynější", {"Cssz_inso"}}, {"předchozí", {"Cssz_insp"}}}},
    };
}

std::vector<BlokKarty> cizozemci() {
    return {
        {S::cizozemci,
         0,
         "Pobyt v ČR, je-li trvalý pobyt v cizině",
         {},
         {{"Ulice", {"CSSZ121"}},
          {"Obec", {"CSSZ122"}},
          {"Číslo domu", {"CSSZ123"}},
          {"PSČ", {"CSSZ124"}}}},
        {S::cizozemci,
         1,
         "Poslední cizozemský nositel pojištění",
         {},
         {{"Název", {"CSSZ131"}},
          {"Ulice", {"CSSZ132"}},
          {"Obec", {"CSSZ133"}},
          {"Číslo domu", {"CSSZ134"}},
          {"Cizozemské číslo pojištění", {"CSSZ137"}},
          {"PSČ", {"CSSZ135"}},
          {"Stát", {"CSSZ136"}},
          {"Nositel pojištění", {"Cnp_specifikace"}}}},
    };
}

}  // namespace

const std::vector<BlokKarty>& rozlozeni_karty() {
    static const std::vector<BlokKarty> k_bloky = [] {
        std::vector<BlokKarty> bloky;
        for (const auto& stranka :
             {osobni(), danove(), prumery(), hlediska_a_texty(), cssz(), cizozemci()}) {
            bloky.insert(bloky.end(), stranka.begin(), stranka.end());
        }
        return bloky;
    }();
    return k_bloky;
}

}  // namespace desktop
