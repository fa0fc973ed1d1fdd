// Bulk changes of the fixed items of one column, each in one transaction: what the buttons of
// TForm11 do. The caller has tested the column and asked the operator.
#pragma once

#include "shell/session.h"

namespace workers {

/// Appends an item of the column without crowns for every card with a number from `od` to `do_`;
/// returns how many.
int pridej_fixni(shell::Session& session, int od, int do_, int sloupec);
/// Sets the crowns to 0 in every row of the column; returns how many rows.
int vynuluj_fixni(shell::Session& session, int sloupec);
/// Deletes every row of the column; returns how many.
int smaz_fixni(shell::Session& session, int sloupec);

}  // namespace workers
