// What the engine is taught: Czech order and the text functions of the dialect.
//
//   collations  CS, CS_CI   Czech order with and without letter case
//   functions   UPPER(x), LOWER(x)   letters of Czech
//               ZJOIN(a, b, ...)     texts joined, an empty one counting as ""
#pragma once

#include <string_view>

#include "store/sqlite_database.h"

namespace store {

void register_functions(Database& database);

/// The order of the collation CS: Czech, ties broken by bytes, 0 for equal bytes only.
int compare_exact(std::string_view a, std::string_view b);
/// The order of the collation CS_CI: Czech without letter case.
int compare_no_case(std::string_view a, std::string_view b);

}  // namespace store
