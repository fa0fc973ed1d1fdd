// The pay sheet of a month (`ListinMM`): making it and reading sums from it.
#pragma once

#include "base/zaokrouhleni.h"
#include "shell/session.h"

namespace paysheet {

/// Creates the sheet of `zpracovavany_mesic`; mode 1 new, mode 2 deletes the old one first.
void zaloz_vyplatni_listinu(shell::Session& session, int mode);

/// Sum of `Hodnota` of a worker and module over the existing sheets of months `mesic_od` to
/// `mesic_do`; a total within 0.001 of zero gives 0.
base::Castka soucet_hodnot_listin(shell::Session& session, int cislo, int modul, int mesic_do,
                                  int mesic_od);

/// The same for ranges of workers and modules, in the previous year's folder when `minuly_rok`.
base::Castka zjisti_listin(shell::Session& session, int od_pracovnika, int do_pracovnika,
                           bool minuly_rok, int mesic_do, int mesic_od, int modul_do, int modul_od);

/// True when the month's sheet does not exist or has no rows.
bool is_prazdne_listin(shell::Session& session, int mesic);

}  // namespace paysheet
