// The payroll's SQL dialect, translated into the engine's SQL. Pure text work: a tokenizer, a
// parser of the subset that the program uses, and a writer of the engine's form.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/definition.h"

namespace store {

enum class StatementKind { select, insert, update, remove, alter, create_table, create_index };

struct Translation {
    StatementKind kind;
    std::string sql;                      ///< in the engine's language
    std::vector<std::string> tables;      ///< bare names of the tables it touches
    std::vector<std::string> parameters;  ///< names without the colon, in order of first use
};

/// Gives the layout of a table by its bare name, or nothing when it does not exist.
using SchemaLookup = std::function<std::optional<TableDef>(std::string_view)>;

/// Throws StoreError for a statement outside the dialect, an unknown table (naming it) or an
/// unknown field (naming table and field); the text gives the place in the statement.
Translation translate(std::string_view dialect_sql, const SchemaLookup& schema);

}  // namespace store
