// The rows of a pay sheet as readable tables.
#pragma once

#include <iosfwd>

#include "store/query.h"

namespace cli {

/// Prints rows of a pay sheet (or of a table of its layout), one table for each worker; they must
/// come ordered by worker.
void vypis_radky_listiny(const store::Rows& listina, std::ostream& out);

}  // namespace cli
