// Actions of the main menu whose screens are not part of this version; choosing one says so. A
// screen that lands takes its action off this list and into the table of unit1_akce.cpp.
#pragma once

#include <string_view>

namespace menu {

inline constexpr std::string_view k_nepostavene_akce[] = {
    "acZuctovaniMezd",
    "acZuctovaniMechanizace",
    "acPrumeryNaNahrady",
    "acPrumeryNaNemoc",
    "acRocniPrevod",
    "acZakladniMesicniChody",
    "acPolozkovaStatistika",
    "acSumarniStatistika",
    "acMzdoveListySeznamyPracovniku",
    "acPotvrzeni",
    "acZapoctoveListy",
    "acSumarPodleStredisek",
    "acRocniZuctovaniDane",
    "acPortalCssz",
    "acPrehledOVysiPojistneho",
    "acNastaveniUcetnihoPredpisu",
    "acFunkce",
    "acSestavy2009",
};

}  // namespace menu
