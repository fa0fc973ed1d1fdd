// Texts of the engine's SQL: quoting, declared types, names of indexes, CREATE statements. Pure
// text work, and the one place that knows how a table's layout is written down in the file:
//
//   field    declared as the type below; the same words serve CREATE TABLE and ALTER TABLE
//   index    named "<table>.<kind>.<name>", kind "primary", "unique" or "index", with "-exact"
//            behind it when letters count with their case. Texts in it carry the Czech order.
//
// A primary index on the autoincrement alone needs no tree of its own, since that field is the
// engine's row key: it is written as an index that never holds a row.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/definition.h"

namespace store {

/// Czech order with letter case; ties are broken by bytes, so that it is total.
inline constexpr std::string_view collation_exact = "CS";
/// Czech order without letter case.
inline constexpr std::string_view collation_no_case = "CS_CI";

/// A name in double quotes.
std::string in_quotes(std::string_view name);

/// "SMALLINT", "VARCHAR(30)"; of an autoincrement with its key clause.
std::string declared_type(const FieldDef& field);
/// Type of a column from its declaration; nothing for a declaration that is none of ours.
/// `row_key` tells the autoincrement from an int32.
std::optional<FieldDef> field_from_declaration(std::string_view name, std::string_view declaration,
                                               bool row_key);

std::string create_table_sql(const TableDef& table);

std::string index_name(std::string_view table, const IndexDef& index);
/// The index that a name in the engine stands for, its fields left out (a primary one counts as
/// unique, too); nothing for an index that
/// is not of the table's layout (one that the store added for speed).
std::optional<IndexDef> index_from_name(std::string_view table, std::string_view engine_name);
std::string create_index_sql(const TableDef& table, const IndexDef& index);

/// Statements making the store's own indexes, "<table>.own.<field>": tables are looked up by the
/// worker's number all the time. A field that leads an index of the layout needs none.
std::vector<std::string> own_indexes_sql(const TableDef& table);

/// ORDER BY list of an index, ending in the row key; "_rowid_" without an index.
std::string order_of_index(const TableDef& table, const IndexDef* index);

}  // namespace store
