// Attendance of a worker in a month (`Dochazka`): hours of each day or the reason of absence. No
// pay calculation reads it.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/zaokrouhleni.h"
#include "shell/session.h"
#include "store/query.h"

namespace wages {

inline constexpr std::size_t k_dnu_dochazky = 31;

/// A reason of absence: its one-character code and the line of the list, "D - dovolená".
struct KodNepritomnosti {
    char kod;
    const char* popis;
};
inline constexpr std::array<KodNepritomnosti, 14> k_kody_nepritomnosti{{
    {'A', "A - absence neomluvená"},
    {'B', "B - náhrada svátek"},
    {'C', "C - celodenní čekání na práci"},
    {'D', "D - dovolená"},
    {'N', "N - nemoc"},
    {'O', "O - ošetřování člena rodiny, lázeňská péče apod."},
    {'P', "P - paragraf"},
    {'S', "S - svátky a dny pracovního klidu"},
    {'T', "T - studium"},
    {'E', "E - školení"},
    {'U', "U - pracovní úraz a nemoc z povolání"},
    {'V', "V - pracovní volno bez náhrady mzdy"},
    {'Z', "Z - překážky z důvodu obecného zájmu"},
    {'X', "X - ostatní, náhradní volno"},
}};
/// The code that makes a day without hours count as worked.
inline constexpr std::string_view k_kod_svatku = "S";

/// The code that a typed character stands for: upper-cased, a blank for no absence; nothing for a
/// character that is no code.
std::optional<char> kod_z_klavesy(char znak);

/// "Po" to "Ne" for 1 to 7.
const char* zkratka_dne(int den_v_tydnu);

/// A row of `Dochazka`.
struct ListDochazky {
    std::array<base::Castka, k_dnu_dochazky> hodiny{};
    std::array<std::string, k_dnu_dochazky> kody;  ///< one character or ""
    std::string poznamka;
    base::Castka suma_hod = 0;
    int suma_odprac = 0, suma_neodprac = 0;  ///< days
};

/// Sums the hours of all days. Of the first `dnu` days, one with hours or with the code "S" counts
/// as worked, any other as not worked.
void secti(ListDochazky& list, int dnu);

/// Attendance of all workers of a month, also those without a sheet: `Pocitadlo` and `Cislo` of the
/// card, `Prijmeni`, `Jmeno`, `Hod1` to `Hod31`, `Typ1` to `Typ31`, `Poznamka` and the sums, by
/// worker's number. `cislo` and `prijmeni` narrow it when not blank.
store::Rows dochazka_mesice(shell::Session& session, int mesic, const std::string& cislo,
                            const std::string& prijmeni);
/// The sheet of one row of `dochazka_mesice`.
ListDochazky list_dochazky(const store::Rows& vety, std::size_t radek);
/// Writes the sheet of the worker and month over the old one, or as a new row.
void uloz_dochazku(shell::Session& session, int cislo_pracovnika, int mesic,
                   const ListDochazky& list);
/// Makes the table when it is missing.
void zaloz_dochazku(shell::Session& session);

}  // namespace wages
