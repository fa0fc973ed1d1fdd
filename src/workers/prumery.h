// Compensation averages kept on the worker's card.
#pragma once

#include "base/zaokrouhleni.h"
#include "shell/session.h"

namespace workers {

enum class DruhPrumeru { denni = 1, hodinovy = 2 };

/// Name of the card field that a month reads: the quarter before it. 1 to 3 `PdovD4min`, 4 to 6
/// `PdovD1akt`, and so on; "H" for the hourly one.
const char* pole_prumeru_na_dovolenou(DruhPrumeru druh, int mesic);

/// The average of the quarter before the month, crowns a day or an hour; 0 for an unknown worker.
base::Castka prumer_na_dovolenou(shell::Session& session, int cislo, DruhPrumeru druh, int mesic);

}  // namespace workers
