// Statements: SELECT with its order, changes of rows and of layouts.
#include "store/sql_writer.h"

#include <algorithm>
#include <charconv>
#include <fmt/format.h>
#include <fmt/ranges.h>

#include "store/connection.h"
#include "store/engine_sql.h"
#include "store/overloaded.h"
#include "store/sql_lexer.h"

namespace store::sql {

namespace {

std::string column_sql(const FoundField& found) {
    return in_quotes(found.source->name) + "." + in_quotes(found.field->name);
}

std::string table_sql(const Source& source) {
    const std::string name = in_quotes(source.table.name);
    return same_name(source.name, source.table.name) ? name
                                                     : name + " AS " + in_quotes(source.name);
}

/// A name for a result's column that no column before it has: "Pocitadlo", "Pocitadlo_1".
std::string unique_name(const std::vector<Output>& outputs, const std::string& name) {
    const auto taken = [&](const std::string& wanted) {
        return std::any_of(outputs.begin(), outputs.end(),
                           [&](const Output& o) { return same_name(o.name, wanted); });
    };
    std::string result = name;
    for (int n = 1; taken(result); ++n)
        result = fmt::format("{}_{}", name, n);
    return result;
}

std::string collated(std::string sql, Kind kind) {
    const bool may_be_text = kind == Kind::text || kind == Kind::any;
    return may_be_text ? fmt::format("{} COLLATE {}", sql, collation_exact) : sql;
}

bool is_only_star(const Select& select) {
    return select.items.size() == 1 && !select.items[0].expr;
}

}  // namespace

void Writer::fail(std::size_t at, std::string_view message) const {
    fail_at(statement_, at, message);
}

Translation Writer::write(const Statement& parsed) {
    out_.kind =
        std::visit(Overloaded{[](const Query&) { return StatementKind::select; },
                              [](const Update&) { return StatementKind::update; },
                              [](const Insert&) { return StatementKind::insert; },
                              [](const Remove&) { return StatementKind::remove; },
                              [](const AddField&) { return StatementKind::alter; },
                              [](const DropField&) { return StatementKind::alter; },
                              [](const CreateTable&) { return StatementKind::create_table; },
                              [](const CreateIndex&) { return StatementKind::create_index; }},
                   parsed);
    out_.sql = std::visit([this](const auto& statement) { return sql_of(statement); }, parsed);
    return std::move(out_);
}

Source Writer::open(const TableName& table) {
    auto definition = schema_(table.name);
    if (!definition) fail(table.at, fmt::format("tabulka \"{}\" neexistuje", table.name));
    if (std::find(out_.tables.begin(), out_.tables.end(), definition->name) == out_.tables.end()) {
        out_.tables.push_back(definition->name);
    }
    std::string name = table.alias.empty() ? definition->name : table.alias;
    return {std::move(*definition), std::move(name)};
}

// --- SELECT -------------------------------------------------------------------------------------

std::string Writer::sql_of(const Query& query) {
    std::vector<WrittenSelect> parts;
    std::string sql;
    for (std::size_t i = 0; i < query.parts.size(); ++i) {
        parts.push_back(select(query.parts[i], nullptr));
        if (parts[i].outputs.size() != parts[0].outputs.size()) {
            fail(query.parts[i].from.at, "části spojené UNION nemají stejný počet sloupců");
        }
        if (i > 0) sql += query.union_all[i - 1] ? " UNION ALL " : " UNION ";
        sql += parts[i].sql;
    }
    return sql + order(query, parts);
}

WrittenSelect Writer::select(const Select& select, const Scope* outer) {
    WrittenSelect written;
    written.scope.outer = outer;
    written.scope.sources.push_back(open(select.from));
    if (select.join) {
        written.scope.sources.push_back(open(select.join->table));
        if (same_name(written.scope.sources[0].name, written.scope.sources[1].name)) {
            fail(select.join->table.at, "dvě tabulky dotazu mají stejné jméno");
        }
    }
    const Scope& scope = written.scope;
    for (const auto& field : select.group_by)
        written.group_by.push_back(find(*field, scope));

    written.sql = "SELECT " + items(select, written) + " FROM " + table_sql(scope.sources[0]);
    if (select.join) {
        written.sql += " LEFT JOIN " + table_sql(scope.sources[1]) + " ON " +
                       condition(*select.join->on, scope);
    }
    if (select.where) written.sql += " WHERE " + condition(*select.where, scope);
    for (std::size_t i = 0; i < written.group_by.size(); ++i) {
        written.sql += (i == 0 ? " GROUP BY " : ", ") + column_sql(written.group_by[i]);
    }
    return written;
}

std::string Writer::items(const Select& select, WrittenSelect& written) {
    Columns columns;
    Columns* const before = std::exchange(columns_, &columns);
    std::vector<std::string> list;
    for (const auto& item : select.items) {
        if (!item.expr) {
            if (!select.group_by.empty()) fail(select.from.at, "\"*\" nelze spojit s GROUP BY");
            add_star(written, list);
            continue;
        }
        const Written column = value(*item.expr, written.scope);
        Output output{item.alias, column.kind, {}};
        if (item.expr->kind == ExprKind::field) output.field = find(*item.expr, written.scope);
        if (output.name.empty()) {
            output.name = output.field.field
                              ? output.field.field->name
                              : std::string(statement_.substr(item.expr->begin,
                                                              item.expr->end - item.expr->begin));
        }
        output.name = unique_name(written.outputs, output.name);
        list.push_back(column.sql + " AS " + in_quotes(output.name));
        written.outputs.push_back(std::move(output));
    }
    columns_ = before;
    written.grouped = columns.aggregate_seen || !select.group_by.empty();
    if (written.grouped) check_grouping(select, written, columns.fields);
    // A lone star is left to the engine: its columns are the table's.
    if (is_only_star(select) && written.scope.sources.size() == 1) return "*";
    return fmt::format("{}", fmt::join(list, ", "));
}

void Writer::add_star(WrittenSelect& written, std::vector<std::string>& columns) {
    for (const auto& source : written.scope.sources) {
        for (const auto& field : source.table.fields) {
            const FoundField found{&source, &field};
            Output output{unique_name(written.outputs, field.name), kind_of(field.type), found};
            columns.push_back(column_sql(found) + " AS " + in_quotes(output.name));
            written.outputs.push_back(std::move(output));
        }
    }
}

void Writer::check_grouping(const Select& select, const WrittenSelect& written,
                            const std::vector<std::pair<const Expr*, FoundField>>& fields) {
    if (is_only_star(select)) return;
    for (const auto& item : select.items) {
        if (!item.expr) fail(select.from.at, "\"*\" nelze spojit se součtem");
    }
    for (const auto& [expr, found] : fields) {
        const auto& group = written.group_by;
        if (std::find(group.begin(), group.end(), found) == group.end()) {
            fail(expr->begin, fmt::format("pole \"{}\" není v GROUP BY", expr->text));
        }
    }
}

/// Equal rows keep the order of entry, where a row of the result is a row of a table.
std::string Writer::order(const Query& query, const std::vector<WrittenSelect>& parts) {
    const WrittenSelect& first = parts[0];
    const bool compound = parts.size() > 1;
    std::vector<std::string> terms;
    for (const auto& term : query.order_by) {
        terms.push_back(order_term(*term.field, first, compound) +
                        (term.descending ? " DESC" : ""));
    }
    if (!compound && !first.grouped) {
        for (const auto& source : first.scope.sources) {
            terms.push_back(in_quotes(source.name) + "._rowid_");
        }
    }
    return terms.empty() ? "" : fmt::format(" ORDER BY {}", fmt::join(terms, ", "));
}

/// A column of the result by its name or number; a field outside of it where rows are a table's.
std::string Writer::order_term(const Expr& field, const WrittenSelect& first, bool compound) {
    const auto& outputs = first.outputs;
    std::size_t position = outputs.size();
    if (field.kind == ExprKind::number) {
        const auto& digits = field.text;
        std::from_chars(digits.data(), digits.data() + digits.size(), position);
        if (position < 1 || position > outputs.size()) {
            fail(field.begin, "takové číslo sloupce výsledek nemá");
        }
        --position;
    } else if (field.qualifier.empty()) {
        const auto named = std::find_if(outputs.begin(), outputs.end(), [&](const Output& output) {
            return same_name(output.name, field.text);
        });
        position = static_cast<std::size_t>(named - outputs.begin());
    }
    if (position < outputs.size()) {
        const Output& output = outputs[position];
        if (!compound && output.field.field) return collated(column_sql(output.field), output.kind);
        return collated(std::to_string(position + 1), output.kind);
    }
    if (compound) {
        fail(field.begin, fmt::format("sloupec \"{}\" není v prvním seznamu", field.text));
    }
    const FoundField found = find(field, first.scope);
    const auto& group = first.group_by;
    if (first.grouped && std::find(group.begin(), group.end(), found) == group.end()) {
        fail(field.begin, fmt::format("pole \"{}\" není v seznamu ani v GROUP BY", field.text));
    }
    return collated(column_sql(found), kind_of(found.field->type));
}

// --- Changes of rows ----------------------------------------------------------------------------

const FieldDef& Writer::target_field(const TableDef& table, std::string_view field,
                                     std::size_t at) {
    const int position = table.field_index(field);
    if (position < 0) {
        fail(at, fmt::format("pole \"{}\" v tabulce \"{}\" neexistuje", field, table.name));
    }
    return table.fields[static_cast<std::size_t>(position)];
}

std::string Writer::sql_of(const Update& update) {
    Scope scope;
    scope.sources.push_back(open(update.table));
    const TableDef& table = scope.sources[0].table;
    std::vector<std::string> set;
    for (const auto& assignment : update.set) {
        const FieldDef& field = target_field(table, assignment.field, assignment.at);
        set.push_back(in_quotes(field.name) + " = " + assigned(*assignment.value, field, scope));
    }
    std::string sql = fmt::format("UPDATE {} SET {}", in_quotes(table.name), fmt::join(set, ", "));
    if (update.where) sql += " WHERE " + condition(*update.where, scope);
    return sql;
}

std::string Writer::sql_of(const Insert& insert) {
    const Source target = open(insert.table);
    const Scope nothing;
    std::vector<std::string> fields;
    std::vector<std::string> values;
    for (const auto& assignment : insert.values) {
        const FieldDef& field = target_field(target.table, assignment.field, assignment.at);
        fields.push_back(in_quotes(field.name));
        if (std::count(fields.begin(), fields.end(), fields.back()) > 1) {
            fail(assignment.at, fmt::format("pole \"{}\" je uvedeno dvakrát", field.name));
        }
        values.push_back(assigned(*assignment.value, field, nothing));
    }
    return fmt::format("INSERT INTO {} ({}) VALUES ({})", in_quotes(target.table.name),
                       fmt::join(fields, ", "), fmt::join(values, ", "));
}

std::string Writer::sql_of(const Remove& remove) {
    Scope scope;
    scope.sources.push_back(open(remove.table));
    std::string sql = "DELETE FROM " + in_quotes(scope.sources[0].table.name);
    if (remove.where) sql += " WHERE " + condition(*remove.where, scope);
    return sql;
}

// --- Changes of layout --------------------------------------------------------------------------

std::string Writer::sql_of(const AddField& add) {
    const TableDef table = open(add.table).table;
    if (table.field_index(add.field.name) >= 0) {
        fail(add.at,
             fmt::format("pole \"{}\" v tabulce \"{}\" už existuje", add.field.name, table.name));
    }
    return fmt::format("ALTER TABLE {} ADD COLUMN {} {}", in_quotes(table.name),
                       in_quotes(add.field.name), declared_type(add.field));
}

std::string Writer::sql_of(const DropField& drop) {
    const TableDef table = open(drop.table).table;
    const FieldDef& field = target_field(table, drop.field, drop.at);
    return fmt::format("ALTER TABLE {} DROP COLUMN {}", in_quotes(table.name),
                       in_quotes(field.name));
}

std::string Writer::sql_of(const CreateTable& create) {
    if (schema_(create.table.name)) {
        fail(create.table.at, fmt::format("tabulka \"{}\" už existuje", create.table.name));
    }
    TableDef table;
    table.name = create.table.name;
    for (const auto& field : create.fields) {
        if (table.field_index(field.name) >= 0) {
            fail(create.table.at, fmt::format("pole \"{}\" je uvedeno dvakrát", field.name));
        }
        table.fields.push_back(field);
    }
    out_.tables.push_back(table.name);
    return create_table_sql(table);
}

std::string Writer::sql_of(const CreateIndex& create) {
    const TableDef table = open(create.table).table;
    IndexDef index;
    index.name = create.name;
    for (std::size_t i = 0; i < create.fields.size(); ++i) {
        index.fields.push_back(target_field(table, create.fields[i], create.places[i]).name);
    }
    return create_index_sql(table, index);
}

}  // namespace store::sql
