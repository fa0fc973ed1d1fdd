// Import and export of whole tables as CSV or JSON.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "store/connection.h"
#include "store/query.h"

namespace store {

/// What an import found wrong: every error, each naming file, row, field and what was expected.
struct ImportResult {
    std::size_t rows = 0;  ///< rows written; 0 when there is any error
    std::vector<std::string> errors;
};

/// Adds the rows of a CSV text to a table in one transaction, all or nothing. The first line names
/// the fields, in any case and order; `Pocitadlo` may be given or left out. An empty cell is an
/// empty field. With `replace` all former rows go away in the same transaction. Checks type,
/// length, range and code page of every cell before anything is written. A missing table of the
/// catalogue is made.
ImportResult import_csv(Connection& connection, std::string_view table, std::string_view csv,
                        std::string_view file, bool replace);

/// All fields of a table in order of entry; reading it back by import_csv with `replace` gives the
/// same rows.
std::string export_csv(Connection& connection, std::string_view table);
/// The same as an array of objects; empty fields are null.
std::string export_json(Connection& connection, std::string_view table);

std::string rows_to_csv(const Rows& rows);
std::string rows_to_json(const Rows& rows);

}  // namespace store
