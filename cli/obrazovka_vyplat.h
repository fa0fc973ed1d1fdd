// Working the screen "Výpočet výplat" from a terminal: run, progress, results, errors.
#pragma once

#include <iosfwd>

#include "cli/kontext.h"

#include "payrun/unit21_vypocet_vyplat.h"
#include "payrun/unit66_prohlizeni.h"

namespace cli {

/// Presses "Zpracuj výplaty" on a shown screen and leaves it by "Zpět". Results go to the output,
/// errors to the error output; progress is drawn only on a terminal. Ctrl-C presses "Přerušit"
/// between two workers. True when the month's sheet stands complete.
bool proved_vypocet(payrun::TForm21& obrazovka, Kontext& kontext);

/// Prints the rows left behind by forbidden negative pay and leaves the screen.
void vypis_zaporne(payrun::TForm66& prohlizeni, std::ostream& out);

}  // namespace cli
