// The test of Czech order that runs at every start.
#pragma once

#include <filesystem>

#include "base/obsluha.h"

namespace store {

/// Makes a small table in `slozka_programu`, reads it back ordered and compares. With `dotaz` a
/// wrong order asks the operator whether to go on; No throws base::UkonceniProgramu. Returns
/// whether the order is right.
bool test_ceskeho_trideni(const std::filesystem::path& slozka_programu, base::Obsluha& obsluha,
                          bool dotaz);

}  // namespace store
