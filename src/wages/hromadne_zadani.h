// Gross items taken from a file, as an attendance system gives them: the same offers, check and
// computation as entry by hand, and all rows are written or none.
//
// The file is CSV with a heading: Cislo_pracovnika, Sloupec, and any of Dny, Hodiny, Datum (ddmm),
// Stredisko, Vykon, Stroj, Hodnota_1 to Hodnota_4, Text; numbers with a decimal comma or point.
// What a column does not ask for has to be blank; what is blank is offered as at entry: hours from
// days, centre and performance from the card, values by the column's code.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "shell/session.h"
#include "wages/zapis_hrubych.h"

namespace wages {

struct RadekDavky {
    std::size_t radek = 0;  ///< line of the file on which it begins
    int cislo = 0;
    std::string jmeno;  ///< surname and first name of the card, "" for an unknown worker
    int sloupec = 0;
    std::string sloupec_slovy;
    ZadaniPolozky zadani;  ///< with what was offered
    Castka celkem = 0;
    VetaHrube veta;
    std::string chyby;  ///< sentences parted by blanks, "" when the row may be written
};

struct HromadneZadani {
    std::vector<RadekDavky> radky;
    std::vector<std::string> chyby;  ///< naming file, line and field
    Castka celkem = 0;               ///< of the rows without a fault
};

/// Reads and checks, writes nothing. A text that is no CSV, or has another heading, gives one
/// fault.
HromadneZadani precti_hromadne(shell::Session& session, int mesic, std::string_view csv,
                               std::string_view soubor);

/// Appends the rows to the month's table, which must exist. Needs a Transaction and no faults.
void zapis_hromadne(shell::Session& session, int mesic, const HromadneZadani& davka);

}  // namespace wages
