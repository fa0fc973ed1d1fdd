// Rows of the printed work calendars.
#pragma once

#include <cstdint>

#include "shell/session.h"
#include "store/query.h"

namespace wages {

/// A row for each month of each calendar in the order of the list: `Pocitadlo`, `Rok`, `Typ` in
/// words, `Nazev`, `Mesic` in words, `Den1` to `Den31` ("" past the month's end), `Soucet_mesice`,
/// `Soucet_roku`. `jen` is the `Pocitadlo` of the only calendar to print, 0 prints all.
store::Rows vety_kalendaru(shell::Session& session, std::int64_t jen);

}  // namespace wages
