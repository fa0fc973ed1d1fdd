// TForm100: the printed list of children for whom the tax benefit is claimed, month by month.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "report/document.h"
#include "shell/session.h"

namespace workers {

/// A child in one month in which it is claimed.
struct MesicDitete {
    std::int64_t cislo_pracovnika = 0;
    std::string pracovnik;  ///< surname and first name from his card
    std::string dite;       ///< surname and first name
    std::string rodne_cislo;
    int Mesic = 0;
    std::string poznamka;  ///< k_z_listiny or k_z_evidence
    int castka = 0;        ///< crowns
};
inline constexpr const char* k_z_listiny = "výplatní listina";
inline constexpr const char* k_z_evidence = "evidence dětí";

/// The source of the list, ordered by worker, child (birth number, then name) and month.
///
/// A month that has a pay sheet gives the children of its rows "dítě pro daňové zvýhodnění": what
/// the worker was really given. Any other month gives the claim: the children of `Deti` with an
/// amount whose worker is employed on some day of that month. Rows of both are of one child when
/// worker and birth number agree, or the name where there is no number.
std::vector<MesicDitete> zdroj_seznamu_deti(shell::Session& session);

/// A heading for each worker, a line for each child with twelve marks: the amount of a month with a
/// pay sheet, the amount in brackets of a claim, "..." of a month without either.
report::Document seznam_deti(shell::Session& session);

/// Shows the list in the preview.
void tisk_deti(shell::Session& session);

}  // namespace workers
