// Queries: a pooled statement stepped row by row.
#include <algorithm>
#include <deque>
#include <fmt/format.h>
#include <optional>
#include <sqlite3.h>

#include "store/query.h"
#include "store/sqlite_engine.h"

namespace store {

namespace {

std::string subject_of_query(const Translation& translation) {
    return translation.tables.empty() ? "dotaz" : subject_of(translation.tables.front());
}

std::string_view select_only(Connection::Engine& engine, const Translation& translation) {
    if (translation.kind != StatementKind::select) {
        engine.database.refuse(fmt::format("{}: příkaz nedává žádné řádky, není to dotaz.",
                                           subject_of_query(translation)));
    }
    return translation.sql;
}

}  // namespace

struct Query::State final : RunningQuery {
    State(Connection::Engine& engine_, const Translation& translation)
        : engine(engine_),
          statement(
              engine.statement(select_only(engine, translation), subject_of_query(translation))) {}
    ~State() { stop(); }
    State(const State&) = delete;
    State& operator=(const State&) = delete;

    void start() {
        stop();
        at_end = false;
        engine.running.push_back(this);
        move();
        // Layouts can change behind the prepared text; the first step prepares it again then.
        if (sqlite3_column_count(statement.handle()) != static_cast<int>(names().size())) {
            statement.prepared().read_columns();
        }
    }

    void move() {
        number_texts.clear();
        if (broken) throw_broken();
        if (rest) {
            at_end = ++row_of_rest >= rest->size();
        } else if (!at_end) {
            step();
        }
    }

    void step() {
        try {
            at_end = !statement.step();
        } catch (...) {
            stop();
            throw;
        }
        if (at_end) stop();
    }

    void stop() noexcept {
        leave_running();
        statement.reset();
        rest.reset();
        row_of_rest = 0;
        broken = false;
        at_end = true;
    }

    void read_the_rest() override {
        std::vector<Row> rows;
        do {
            Row row;
            for (int i = 0; i < static_cast<int>(names().size()); ++i) {
                row.push_back(statement.value(i, type(i)));
            }
            rows.push_back(std::move(row));
        } while (statement.step());
        leave_running();
        statement.reset();
        rest = std::move(rows);
        row_of_rest = 0;
    }

    void give_up() noexcept override {
        stop();
        broken = true;
    }

    void leave_running() noexcept { std::erase(engine.running, this); }

    [[noreturn]] void throw_broken() const {
        engine.database.refuse(
            fmt::format("{}: čtení přerušila chyba.", statement.prepared().subject));
    }

    const std::vector<std::string>& names() const { return statement.prepared().names; }
    std::optional<FieldType> type(int column) const {
        return statement.prepared().types[static_cast<std::size_t>(column)];
    }
    const Value* kept(int column) const {
        if (!rest) return nullptr;
        return &(*rest)[row_of_rest][static_cast<std::size_t>(column)];
    }
    /// False behind the last row, where every column reads as empty. A column that is not there is
    /// our own mistake.
    bool has_row(int column) const {
        if (broken) throw_broken();
        if (column < 0 || column >= static_cast<int>(names().size())) {
            engine.database.refuse(fmt::format("{}: výsledek dotazu nemá sloupec číslo {}.",
                                               statement.prepared().subject, column));
        }
        return !at_end;
    }
    int stored_kind(int column) const { return sqlite3_column_type(statement.handle(), column); }

    Connection::Engine& engine;
    Statement statement;
    bool at_end = true;
    bool broken = false;
    std::optional<std::vector<Row>> rest;  ///< rows from the current one on, once read ahead
    std::size_t row_of_rest = 0;
    std::deque<std::string> number_texts;  ///< what `text_view` of a number points to
};

Query::Query(Connection& connection, std::string_view dialect_sql)
    : state_(std::make_unique<State>(connection.engine(),
                                     connection.engine().translation(dialect_sql))) {}
Query::~Query() = default;
Query::Query(Query&&) noexcept = default;
Query& Query::operator=(Query&&) noexcept = default;

Query& Query::set(std::string_view name, const Value& value) {
    state_->stop();
    bool found = false;
    for (int i = 1; i <= state_->statement.parameter_count(); ++i) {
        const std::string_view parameter = state_->statement.parameter_name(i);
        if (parameter.empty() || !same_name(parameter.substr(1), name)) continue;
        state_->statement.bind(i, value);
        found = true;
    }
    if (!found) {
        state_->engine.database.refuse(
            fmt::format("{}: dotaz nemá parametr {}.", state_->statement.prepared().subject, name));
    }
    return *this;
}

void Query::open() {
    state_->start();
}

bool Query::eof() const {
    if (state_->broken) state_->throw_broken();
    return state_->at_end;
}

void Query::next() {
    if (!state_->at_end || state_->broken) state_->move();
}

void Query::close() {
    state_->stop();
}

int Query::column_count() const {
    return static_cast<int>(state_->names().size());
}

const std::string& Query::column_name(int column) const {
    return state_->names().at(static_cast<std::size_t>(column));
}

int Query::column(std::string_view name) const {
    Prepared& prepared = state_->statement.prepared();
    const auto known = prepared.positions.find(name);
    if (known != prepared.positions.end()) return known->second;
    for (std::size_t i = 0; i < prepared.names.size(); ++i) {
        if (!same_name(prepared.names[i], name)) continue;
        prepared.positions.emplace(name, static_cast<int>(i));
        return static_cast<int>(i);
    }
    state_->engine.database.refuse(
        fmt::format("{}: výsledek dotazu nemá pole {}.", prepared.subject, name));
}

Value Query::value(int column) const {
    if (!state_->has_row(column)) return {};
    if (const Value* kept = state_->kept(column)) return *kept;
    return state_->statement.value(column, state_->type(column));
}

bool Query::is_empty(int column) const {
    if (!state_->has_row(column)) return true;
    if (const Value* kept = state_->kept(column)) return kept->is_empty();
    return state_->stored_kind(column) == SQLITE_NULL;
}

std::string Query::text(int column) const {
    return std::string(text_view(column));
}

std::string_view Query::text_view(int column) const {
    if (!state_->has_row(column)) return {};
    if (const Value* kept = state_->kept(column)) {
        if (const auto* text = std::get_if<std::string>(&kept->variant())) return *text;
    } else if (state_->stored_kind(column) == SQLITE_TEXT) {
        return state_->statement.text(column);
    }
    return state_->number_texts.emplace_back(value(column).as_text());
}

std::int64_t Query::integer(int column) const {
    if (!state_->has_row(column)) return 0;
    if (state_->rest || state_->stored_kind(column) != SQLITE_INTEGER) {
        return value(column).as_integer();
    }
    return state_->statement.integer(column);
}

double Query::number(int column) const {
    if (!state_->has_row(column)) return 0;
    if (state_->rest || state_->stored_kind(column) == SQLITE_TEXT) {
        return value(column).as_number();
    }
    return sqlite3_column_double(state_->statement.handle(), column);
}

bool Query::boolean(int column) const {
    return value(column).as_boolean();
}

base::Datum Query::date(int column) const {
    const Value found = value(column);
    const auto* text = std::get_if<std::string>(&found.variant());
    if (!text || state_->type(column)) return found.as_date();
    // An expression over a date, such as MAX, comes out of the engine as text.
    return base::datum_z_iso(*text).value_or(base::Datum{});
}

int Rows::column(std::string_view name) const {
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (same_name(columns[i], name)) return static_cast<int>(i);
    }
    throw StoreError(fmt::format("Výsledek dotazu nemá pole {}.", name));
}

Rows read_all(Query& query) {
    Rows all;
    query.open();
    for (int i = 0; i < query.column_count(); ++i)
        all.columns.push_back(query.column_name(i));
    for (; !query.eof(); query.next()) {
        Row row;
        row.reserve(all.columns.size());
        for (int i = 0; i < query.column_count(); ++i)
            row.push_back(query.value(i));
        all.rows.push_back(std::move(row));
    }
    return all;
}

}  // namespace store
