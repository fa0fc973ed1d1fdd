#include "store/engine_sql.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <fmt/format.h>

#include "store/connection.h"

namespace store {

namespace {

struct Declaration {
    FieldType type;
    std::string_view words;
};

constexpr std::array<Declaration, 7> declarations{{
    {FieldType::autoincrement, "INTEGER PRIMARY KEY AUTOINCREMENT"},
    {FieldType::int16, "SMALLINT"},
    {FieldType::int32, "INTEGER"},
    {FieldType::number, "DOUBLE"},
    {FieldType::boolean, "BOOLEAN"},
    {FieldType::date, "DATE"},
    {FieldType::timestamp, "TIMESTAMP"},
}};

constexpr std::string_view text_prefix = "VARCHAR(";
constexpr std::string_view exact_suffix = "-exact";

const FieldDef& field_of_index(const TableDef& table, const IndexDef& index,
                               std::string_view field) {
    const int position = table.field_index(field);
    if (position < 0) {
        throw StoreError(
            fmt::format("Tabulka {}: index {} má neznámé pole {}.", table.name, index.name, field));
    }
    return table.fields[static_cast<std::size_t>(position)];
}

std::string collated_fields(const TableDef& table, const IndexDef& index) {
    std::string list;
    for (const std::string& name : index.fields) {
        const FieldDef& field = field_of_index(table, index, name);
        if (!list.empty()) list += ", ";
        list += in_quotes(field.name);
        if (field.type == FieldType::text) {
            list += " COLLATE ";
            list += index.case_sensitive ? collation_exact : collation_no_case;
        }
    }
    return list;
}

/// True when the engine's row key itself is the index.
bool is_row_key(const TableDef& table, const IndexDef& index) {
    return index.primary && index.fields.size() == 1 &&
           field_of_index(table, index, index.fields[0]).type == FieldType::autoincrement;
}

}  // namespace

std::string in_quotes(std::string_view name) {
    std::string out = "\"";
    for (const char c : name) {
        if (c == '"') out += '"';
        out += c;
    }
    return out + '"';
}

std::string declared_type(const FieldDef& field) {
    for (const Declaration& d : declarations) {
        if (d.type == field.type) return std::string(d.words);
    }
    return fmt::format("{}{})", text_prefix, field.size);
}

std::optional<FieldDef> field_from_declaration(std::string_view name, std::string_view declaration,
                                               bool row_key) {
    if (row_key) return FieldDef{std::string(name), FieldType::autoincrement};
    for (const Declaration& d : declarations) {
        if (same_name(d.words, declaration)) return FieldDef{std::string(name), d.type};
    }
    if (same_name(declaration.substr(0, text_prefix.size()), text_prefix)) {
        int size = 0;
        std::from_chars(declaration.data() + text_prefix.size(),
                        declaration.data() + declaration.size(), size);
        if (size > 0) return FieldDef{std::string(name), FieldType::text, size};
    }
    return std::nullopt;
}

std::string create_table_sql(const TableDef& table) {
    std::string columns;
    for (const FieldDef& field : table.fields) {
        if (!columns.empty()) columns += ", ";
        columns += in_quotes(field.name) + " " + declared_type(field);
    }
    return fmt::format("CREATE TABLE {} ({})", in_quotes(bare_table_name(table.name)), columns);
}

std::string index_name(std::string_view table, const IndexDef& index) {
    const std::string_view kind = index.primary ? "primary" : index.unique ? "unique" : "index";
    return fmt::format("{}.{}{}.{}", table, kind, index.case_sensitive ? exact_suffix : "",
                       index.name);
}

std::optional<IndexDef> index_from_name(std::string_view table, std::string_view engine_name) {
    if (engine_name.size() <= table.size() || engine_name[table.size()] != '.' ||
        !same_name(engine_name.substr(0, table.size()), table)) {
        return std::nullopt;
    }
    const std::string_view rest = engine_name.substr(table.size() + 1);
    const std::size_t dot = rest.find('.');
    if (dot == std::string_view::npos) return std::nullopt;
    std::string_view kind = rest.substr(0, dot);
    IndexDef index{std::string(rest.substr(dot + 1)), {}};
    if (kind.ends_with(exact_suffix)) {
        index.case_sensitive = true;
        kind.remove_suffix(exact_suffix.size());
    }
    index.primary = kind == "primary";
    index.unique = index.primary || kind == "unique";
    if (!index.unique && kind != "index") return std::nullopt;
    return index;
}

std::string create_index_sql(const TableDef& table, const IndexDef& index) {
    const std::string name = bare_table_name(table.name);
    const bool row_key = is_row_key(table, index);
    const bool distinct = !row_key && (index.primary || index.unique);
    return fmt::format("CREATE {}INDEX {} ON {} ({}){}", distinct ? "UNIQUE " : "",
                       in_quotes(index_name(name, index)), in_quotes(name),
                       collated_fields(table, index), row_key ? " WHERE 0" : "");
}

std::vector<std::string> own_indexes_sql(const TableDef& table) {
    const std::string name = bare_table_name(table.name);
    std::vector<std::string> statements;
    for (const char* worker_number : {"Cislo_pracovnika", "Cislo"}) {
        const int position = table.field_index(worker_number);
        if (position < 0) continue;
        const FieldDef& field = table.fields[static_cast<std::size_t>(position)];
        const bool led = std::ranges::any_of(table.indexes, [&](const IndexDef& index) {
            return !index.fields.empty() && same_name(index.fields[0], field.name);
        });
        if (led || field.type != FieldType::int32) continue;
        statements.push_back(fmt::format("CREATE INDEX {} ON {} ({})",
                                         in_quotes(name + ".own." + field.name), in_quotes(name),
                                         in_quotes(field.name)));
    }
    return statements;
}

std::string order_of_index(const TableDef& table, const IndexDef* index) {
    if (!index) return "_rowid_";
    return collated_fields(table, *index) + ", _rowid_";
}

}  // namespace store
