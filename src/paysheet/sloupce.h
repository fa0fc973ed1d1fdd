// Names of the pay sheet's modules and columns.
#pragma once

#include <string>

#include "shell/session.h"

namespace paysheet {

/// "hrubé mzdy" to "k výplatě" for modules 1 to 14, "neznámý modul" for any other number.
std::string modul_slovy(int modul);

/// Rebuilds the session's list of column captions from `Ridici`.
void Nacti_sloupce_slovy(shell::Session& session);

/// Caption of a column from that list; "neznámý sloupec" when it is absent.
std::string sloupec_slovy(const shell::Session& session, int sloupec);

}  // namespace paysheet
