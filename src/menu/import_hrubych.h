// Gross items of a month taken from a file: the same rules as their entry by hand.
#pragma once

#include <optional>
#include <string_view>

#include "shell/session.h"
#include "store/transfer.h"
#include "wages/hromadne_zadani.h"

namespace menu {

/// The month whose gross items a table holds ("hrube03.db" is 3); nothing for any other table.
std::optional<int> mesic_hrubych(std::string_view tabulka);

/// Adds the rows of a CSV text to `HrubeMM` (see store::import_csv for the text and its errors) and
/// makes the month the one being worked on. A pay sheet of that month would no longer tell the
/// truth: it is deleted in the same transaction and the operator is told. Nothing when the month
/// guard refused; its message was shown.
std::optional<store::ImportResult> import_hrubych(shell::Session& session, int mesic,
                                                  std::string_view csv, std::string_view soubor,
                                                  bool nahradit);

/// Checks the items of a CSV text as entry by hand does (see wages::precti_hromadne) and writes
/// them all, or none when there is a fault. Guard of the month and pay sheet as above. Nothing when
/// the month guard refused.
std::optional<wages::HromadneZadani> import_polozek(shell::Session& session, int mesic,
                                                    std::string_view csv, std::string_view soubor);

}  // namespace menu
