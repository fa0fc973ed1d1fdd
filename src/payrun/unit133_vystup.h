// What leaves the pay-sheet browser: text for the clipboard, CSV, and printed lists.
#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "payrun/unit133_pracovnici.h"
#include "payrun/unit133_radky.h"
#include "report/tabulkova.h"

namespace payrun {

/// Captions and cells as shown.
struct TabulkaTextu {
    std::vector<std::string> nadpisy;
    std::vector<std::vector<std::string>> radky;
};

TabulkaTextu tabulka_pracovniku(const std::vector<PracovnikListiny>& pracovnici);
TabulkaTextu tabulka_radku(const RadkyListiny& radky);

/// Lines ended by "\n", fields parted by tabs. A tab or line end inside a field becomes a blank.
std::string text_tabulky(const TabulkaTextu& tabulka);

/// Rows of the workers in their order as CSV under the names of the sheet's fields; numbers with a
/// decimal point, as the other exports write them.
std::string csv_listiny(const std::vector<PracovnikListiny>& pracovnici,
                        const std::unordered_map<int, RadkyListiny>& radky);

report::TabulkovaSestava sestava_pracovniku(const std::vector<PracovnikListiny>& pracovnici,
                                            const SoucetMezd& soucet, const SazbyPodniku& sazby);
report::TabulkovaSestava sestava_radku(const PracovnikListiny& pracovnik,
                                       const RadkyListiny& radky);

}  // namespace payrun
