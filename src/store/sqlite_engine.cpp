#include "store/sqlite_engine.h"

#include <algorithm>
#include <fmt/format.h>
#include <sqlite3.h>

#include "store/engine_sql.h"

namespace store {

namespace {

// Texts put together by hand differ from worker to worker.
constexpr std::size_t most_translations = 300;

constexpr std::string_view lost_message = "transakce skončila chybou a její změny byly vzaty zpět.";

std::string name_of_level(int depth) {
    return fmt::format("uroven{}", depth);
}

}  // namespace

std::string subject_of(std::string_view table) {
    return fmt::format("tabulka {}", table);
}

std::string folded(std::string_view name) {
    std::string out(name);
    for (char& c : out) {
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    return out;
}

Connection::Engine::Engine(std::filesystem::path folder_, Access access)
    : folder(std::move(folder_)),
      database(folder / Connection::file_name(), access),
      pool(database) {}

Statement Connection::Engine::statement(std::string_view sql, std::string_view subject) {
    return Statement(pool, sql, subject);
}

const Translation& Connection::Engine::translation(std::string_view dialect_sql) {
    const auto found = translations_.find(dialect_sql);
    if (found != translations_.end()) return found->second;
    const SchemaLookup schema = [this](std::string_view table) -> std::optional<TableDef> {
        const TableDef* layout = find_layout(table);
        return layout ? std::optional(*layout) : std::nullopt;
    };
    Translation translated = translate(dialect_sql, schema);
    if (translations_.size() >= most_translations) translations_.clear();
    return translations_.emplace(dialect_sql, std::move(translated)).first->second;
}

const TableDef* Connection::Engine::find_layout(std::string_view table) {
    check_layout_version();
    const std::string key = folded(bare_table_name(table));
    auto found = layouts_.find(key);
    if (found == layouts_.end()) {
        auto layout = read_layout(key);
        if (!layout) return nullptr;
        found = layouts_.emplace(key, std::move(*layout)).first;
    }
    return &found->second;
}

const TableDef& Connection::Engine::layout(std::string_view table) {
    const TableDef* found = find_layout(table);
    if (!found) {
        database.refuse(fmt::format("tabulka {} neexistuje.", bare_table_name(table)));
    }
    return *found;
}

// Another program may have changed the layout.
void Connection::Engine::check_layout_version() {
    Statement version = statement("PRAGMA schema_version", "uspořádání tabulek");
    version.step();
    if (version.integer(0) == layout_version_) return;
    layout_version_ = version.integer(0);
    layouts_.clear();
    translations_.clear();
}

std::optional<TableDef> Connection::Engine::read_layout(std::string_view table) {
    Statement named = statement(
        "SELECT name FROM sqlite_master WHERE type = 'table' AND name = ?1 COLLATE NOCASE "
        "AND name NOT LIKE 'sqlite~_%' ESCAPE '~'",
        "seznam tabulek");
    named.bind(1, table);
    if (!named.step()) return std::nullopt;
    TableDef layout{std::string(named.text(0)), {}, {}};
    read_fields(layout);
    read_indexes(layout);
    return layout;
}

void Connection::Engine::read_fields(TableDef& table) {
    Statement columns =
        statement("SELECT name, type, pk FROM pragma_table_info(?1) ORDER BY cid", "pole tabulky");
    columns.bind(1, std::string_view(table.name));
    while (columns.step()) {
        const auto field =
            field_from_declaration(columns.text(0), columns.text(1), columns.integer(2) != 0);
        if (!field) {
            database.refuse(fmt::format("tabulka {}, pole {}: neznámý typ {}.", table.name,
                                        columns.text(0), columns.text(1)));
        }
        table.fields.push_back(*field);
    }
}

void Connection::Engine::read_indexes(TableDef& table) {
    Statement indexes = statement(
        "SELECT m.name, i.name FROM sqlite_master m, pragma_index_info(m.name) i "
        "WHERE m.type = 'index' AND m.tbl_name = ?1 ORDER BY m.rowid, i.seqno",
        "indexy tabulky");
    indexes.bind(1, std::string_view(table.name));
    std::string last;
    while (indexes.step()) {
        const auto index = index_from_name(table.name, indexes.text(0));
        if (!index) continue;
        if (indexes.text(0) != last) table.indexes.push_back(*index);
        last = indexes.text(0);
        table.indexes.back().fields.emplace_back(indexes.text(1));
    }
}

void Connection::Engine::need_writable() {
    if (database.access() == Access::read_only) {
        database.refuse("databáze je otevřena jen pro čtení.");
    }
}

void Connection::Engine::need_transaction(std::string_view subject) {
    if (depth > 0 && database.in_transaction()) return;
    need_writable();
    if (transaction_lost()) {
        database.refuse(lost_message);
    }
    database.refuse(fmt::format("{}: řádky se smějí měnit jen v transakci.", subject));
}

void Connection::Engine::need_closed(std::string_view table) const {
    if (open_tables.contains(folded(bare_table_name(table)))) {
        database.refuse(fmt::format("tabulka {} je právě otevřena.", bare_table_name(table)));
    }
}

void Connection::Engine::prepare_for_layout_change() {
    need_writable();
    const std::vector<RunningQuery*> queries = running;
    for (RunningQuery* query : queries)
        query->read_the_rest();
}

void Connection::Engine::forget_layouts() noexcept {
    layout_version_ = -1;
    layouts_.clear();
    translations_.clear();
    pool.clear();
}

void Connection::Engine::begin() {
    need_writable();
    if (transaction_lost()) need_transaction({});
    const std::string sql = depth == 0 ? "BEGIN IMMEDIATE" : "SAVEPOINT " + name_of_level(depth);
    database.run(sql.c_str());
    ++depth;
}

void Connection::Engine::commit() {
    if (transaction_lost()) {
        roll_back();
        database.refuse(lost_message);
    }
    const std::string sql = depth == 1 ? "COMMIT" : "RELEASE " + name_of_level(depth - 1);
    try {
        database.run(sql.c_str());
    } catch (...) {
        roll_back();
        throw;
    }
    --depth;
}

void Connection::Engine::roll_back() noexcept {
    const std::vector<RunningQuery*> queries = running;
    for (RunningQuery* query : queries) {
        try {
            query->read_the_rest();
        } catch (...) {
            query->give_up();
        }
    }
    --depth;
    if (database.in_transaction()) {
        const std::string name = name_of_level(depth);
        const std::string sql =
            depth == 0 ? "ROLLBACK" : "ROLLBACK TO " + name + "; RELEASE " + name;
        sqlite3_exec(database.handle(), sql.c_str(), nullptr, nullptr, nullptr);
    }
    ++rollbacks;
    forget_layouts();
}

std::int64_t Connection::Engine::change_stamp() const {
    return sqlite3_total_changes64(database.handle()) + (rollbacks << 48);
}

}  // namespace store
