// Mass insertion: the hot path of a pay run and of an import. Nothing is allocated for a row once
// the buffers have grown, and no name is looked up.
#include <fmt/format.h>
#include <limits>
#include <sqlite3.h>

#include "store/engine_sql.h"
#include "store/field_check.h"
#include "store/sqlite_engine.h"
#include "store/table.h"

namespace store {

namespace {

struct Column {
    FieldDef field;
    std::string text;  ///< keeps a text in place until the row is inserted
};

std::vector<Column> find_columns(Connection::Engine& engine, const TableDef& layout,
                                 const std::vector<std::string>& fields) {
    std::vector<Column> columns;
    for (const std::string& name : fields) {
        const int position = layout.field_index(name);
        if (position < 0) {
            engine.database.refuse(
                fmt::format("tabulka {}: pole {} neexistuje.", layout.name, name));
        }
        columns.push_back({layout.fields[static_cast<std::size_t>(position)], {}});
    }
    return columns;
}

std::string insert_sql(const TableDef& layout, const std::vector<Column>& columns) {
    if (columns.empty()) return "INSERT INTO " + in_quotes(layout.name) + " DEFAULT VALUES";
    std::string names, marks;
    for (const Column& column : columns) {
        names += (names.empty() ? "" : ", ") + in_quotes(column.field.name);
        marks += marks.empty() ? "?" : ", ?";
    }
    return fmt::format("INSERT INTO {} ({}) VALUES ({})", in_quotes(layout.name), names, marks);
}

}  // namespace

struct Inserter::State {
    State(Connection::Engine& engine_, const TableDef& layout,
          const std::vector<std::string>& fields)
        : engine(engine_),
          subject(subject_of(layout.name)),
          checks(engine.database.file().string(), layout.name),
          columns(find_columns(engine, layout, fields)),
          statement(engine.statement(insert_sql(layout, columns), subject)) {}

    Column& column(std::size_t position) {
        if (position >= columns.size()) {
            engine.database.refuse(fmt::format("{}: pole číslo {} není v seznamu vkládaných polí.",
                                               subject, position));
        }
        return columns[position];
    }

    template <class T>
    const FieldDef& checked(std::size_t position, T value) {
        const FieldDef& field = column(position).field;
        checks.check(field, value);
        return field;
    }

    Connection::Engine& engine;
    std::string subject;
    FieldCheck checks;
    std::vector<Column> columns;
    Statement statement;
};

Inserter::Inserter(Connection& connection, std::string_view table,
                   const std::vector<std::string>& fields)
    : state_(std::make_unique<State>(connection.engine(),
                                     TableDef(connection.engine().layout(table)), fields)) {}

Inserter::~Inserter() = default;

void Inserter::set(std::size_t position, std::int64_t value) {
    const FieldDef& field = state_->column(position).field;
    if (field.type == FieldType::autoincrement) {
        state_->checks.check_row_key(field, value);
    } else {
        state_->checks.check(field, value);
    }
    state_->statement.bind(static_cast<int>(position) + 1, value);
}

void Inserter::set(std::size_t position, double value) {
    state_->checked(position, value);
    state_->statement.bind(static_cast<int>(position) + 1, value);
}

void Inserter::set(std::size_t position, bool value) {
    state_->checked(position, value);
    state_->statement.bind(static_cast<int>(position) + 1, std::int64_t{value});
}

void Inserter::set(std::size_t position, std::string_view value) {
    state_->checked(position, value);
    std::string& text = state_->columns[position].text;
    text.assign(value);
    state_->statement.bind_in_place(static_cast<int>(position) + 1, text);
}

void Inserter::set(std::size_t position, const Value& value) {
    const FieldDef& field = state_->column(position).field;
    const auto* whole = std::get_if<std::int64_t>(&value.variant());
    if (field.type == FieldType::autoincrement && whole) return set(position, *whole);
    if (field.type != FieldType::autoincrement || !value.is_empty()) {
        state_->checks.check(field, value);
    }
    state_->statement.bind(static_cast<int>(position) + 1, value);
}

void Inserter::clear(std::size_t position) {
    state_->column(position);
    state_->statement.bind_empty(static_cast<int>(position) + 1);
}

std::int64_t Inserter::insert() {
    State& s = *state_;
    s.engine.need_transaction(s.subject);
    s.statement.run();
    s.statement.clear_bindings();
    const std::int64_t key = sqlite3_last_insert_rowid(s.engine.database.handle());
    if (key > std::numeric_limits<std::int32_t>::max()) {
        s.engine.database.refuse(fmt::format("{}: počitadlo řádků je vyčerpáno.", s.subject));
    }
    return key;
}

}  // namespace store
