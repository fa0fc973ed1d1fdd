// Where a number of a code list is used: what a clerk is warned about before its row goes.
#pragma once

#include <string>
#include <vector>

#include "shell/session.h"

namespace workers {

/// Workers whose card names the insurer or the fund, one a line, the first ten of them.
std::vector<std::string> pouziti_na_kartach(shell::Session& session, long long cislo);
/// Months whose gross wages name the machine, one a line with the number of rows.
std::vector<std::string> pouziti_v_hrubych(shell::Session& session, long long stroj);

}  // namespace workers
