// How a table looks: fields, types, indexes. The catalogue describes every table of a company with
// these, and the store creates, describes and checks tables by them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace store {

enum class FieldType {
    autoincrement,  ///< 32-bit counter given at insertion, read-only, never reused
    int16,
    int32,
    number,  ///< 8-byte float; amounts and hours with fractions
    boolean,
    date,
    timestamp,
    text  ///< at most `size` characters of code page 1250, held as UTF-8
};

struct FieldDef {
    std::string name;
    FieldType type;
    int size = 0;  ///< characters of a text, 1 to 255; 0 for every other type
    bool operator==(const FieldDef&) const = default;
};

struct IndexDef {
    std::string name;
    std::vector<std::string> fields;
    bool primary = false;
    bool unique = false;
    bool case_sensitive = false;
    bool operator==(const IndexDef&) const = default;
};

struct TableDef {
    std::string name;  ///< without ".db"
    std::vector<FieldDef> fields;
    std::vector<IndexDef> indexes;

    /// Position of a field, names compared without regard to case; -1 when there is none.
    int field_index(std::string_view field) const;
    bool operator==(const TableDef&) const = default;
};

/// What a Czech error message says a field takes: "celé číslo -32768 až 32767".
std::string type_in_words(const FieldDef& field);

/// True when two names of tables, fields or indexes are the same: letters a to z compare without
/// regard to case, everything else byte by byte.
bool same_name(std::string_view a, std::string_view b);

/// A table's name as the store keeps it: a trailing ".db" cut, whatever its case.
std::string bare_table_name(std::string_view name);

}  // namespace store
