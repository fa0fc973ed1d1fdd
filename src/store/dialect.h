// The payroll's SQL dialect, translated into the engine's SQL. Pure text work: a tokenizer
// (sql_lexer), a parser of the subset that the program uses (sql_parser, its tree in sql_ast), and
// a writer of the engine's form (sql_writer). What every construct gives is pinned by the text
// files in tests/store/dialect. Rules that the grammar does not show:
//
//   - A text in double quotes is a table's name where one is expected, a text elsewhere.
//   - A name that both tables of a join have belongs to the first one; in "*" the second one's
//   field
//     is then called "Pocitadlo_1".
//   - An empty text and an empty field are the same. A literal is read as the type of the field
//     beside it: '1.2.2022' is a day beside a date.
//   - "+" joins when one side is a text. "/" never divides as whole numbers.
//   - Rows come in the order of entry; ORDER BY keeps it among equal rows.
//   - A text computed for a field is cut to its length; a literal too long is refused.
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
