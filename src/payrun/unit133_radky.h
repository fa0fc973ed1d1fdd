// Rows of the pay sheet as the browser shows them.
#pragma once

#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "payrun/presnost.h"
#include "shell/session.h"

namespace payrun {

struct RadekListiny {
    int modul = 0;
    int sloupec = 0;  ///< 0: a row without a column
    std::string co_je_to;
    /// Time of the gross items behind the row, or the row's own value where that is time.
    std::optional<Castka> dny, hodiny;
    std::optional<Castka> hodnota;  ///< nothing: the field is empty
    std::string poznamka;
};
using RadkyListiny = std::vector<RadekListiny>;

/// The rows of one worker by module and column, several of one column in the order of writing.
RadkyListiny nacti_radky_listiny(shell::Session& session, int mesic, int cislo);

/// The same of every worker of the sheet, in two queries, by worker's number.
std::unordered_map<int, RadkyListiny> nacti_radky_vsech(shell::Session& session, int mesic);

}  // namespace payrun
