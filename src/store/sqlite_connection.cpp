// Connection and transaction: tables made, described, renamed and deleted.
#include <algorithm>
#include <fmt/format.h>
#include <sqlite3.h>

#include "store/connection.h"
#include "store/engine_sql.h"
#include "store/sqlite_engine.h"

namespace store {

namespace {

void check_definition(const Database& database, const TableDef& definition) {
    const std::string name = bare_table_name(definition.name);
    if (name.empty() || definition.fields.empty()) {
        database.refuse(fmt::format("tabulka \"{}\" nemá jméno nebo pole.", name));
    }
    for (std::size_t i = 0; i < definition.fields.size(); ++i) {
        const FieldDef& field = definition.fields[i];
        if (field.name.empty() || definition.field_index(field.name) != static_cast<int>(i)) {
            database.refuse(fmt::format(
                "tabulka {}: pole \"{}\" je uvedeno dvakrát nebo nemá jméno.", name, field.name));
        }
        if (field.type == FieldType::text && (field.size < 1 || field.size > 255)) {
            database.refuse(fmt::format("tabulka {}, pole {}: délka textu musí být 1 až 255.", name,
                                        field.name));
        }
    }
}

void drop_table(Database& database, const std::string& name) {
    database.run(("DROP TABLE IF EXISTS " + in_quotes(name)).c_str(), subject_of(name));
}

void rename_in_engine(Database& database, const std::string& from, const std::string& to) {
    database.run(fmt::format("ALTER TABLE {} RENAME TO {}", in_quotes(from), in_quotes(to)).c_str(),
                 subject_of(from));
}

/// All indexes of a layout and the store's own; their names in the engine begin with the table's.
void create_indexes(Database& database, const TableDef& table) {
    std::vector<std::string> statements = own_indexes_sql(table);
    for (const IndexDef& index : table.indexes) {
        statements.push_back(create_index_sql(table, index));
    }
    for (const std::string& sql : statements)
        database.run(sql.c_str(), subject_of(table.name));
}

void drop_indexes(Connection::Engine& engine, const std::string& table) {
    std::vector<std::string> names;
    {
        Statement list = engine.statement(
            "SELECT name FROM sqlite_master WHERE type = 'index' AND tbl_name = ?1",
            "indexy tabulky");
        list.bind(1, std::string_view(table));
        while (list.step())
            names.emplace_back(list.text(0));
    }
    for (const std::string& name : names) {
        engine.database.run(("DROP INDEX " + in_quotes(name)).c_str(), subject_of(table));
    }
}

/// ALTER, CREATE TABLE and CREATE INDEX of the dialect. The engine drops no field that an index
/// needs, so an altered table loses its indexes before and gets back those whose fields it still
/// has.
void change_layout(Connection& connection, const Translation& translation,
                   std::string_view subject) {
    Connection::Engine& engine = connection.engine();
    const std::string table =
        translation.tables.empty() ? std::string() : translation.tables.front();
    engine.need_closed(table);
    engine.prepare_for_layout_change();
    Transaction transaction(connection);
    TableDef before;
    if (translation.kind == StatementKind::alter) before = engine.layout(table);
    if (!before.name.empty()) drop_indexes(engine, before.name);
    engine.database.run(translation.sql.c_str(), subject);
    engine.forget_layouts();
    if (translation.kind == StatementKind::alter) {
        TableDef after = engine.layout(table);
        std::erase_if(before.indexes, [&](const IndexDef& index) {
            return std::ranges::any_of(index.fields, [&](const std::string& field) {
                return after.field_index(field) < 0;
            });
        });
        after.indexes = before.indexes;
        create_indexes(engine.database, after);
        engine.forget_layouts();
    }
    transaction.commit();
}

bool changes_layout(StatementKind kind) {
    return kind == StatementKind::alter || kind == StatementKind::create_table ||
           kind == StatementKind::create_index;
}

}  // namespace

Connection::Connection(std::filesystem::path folder, Access access)
    : engine_(std::make_unique<Engine>(std::move(folder), access)) {}

Connection::~Connection() = default;

const std::filesystem::path& Connection::folder() const {
    return engine_->folder;
}

std::string_view Connection::file_name() {
    return "tabulky.sqlite";
}

bool Connection::table_exists(std::string_view table) const {
    return engine_->find_layout(table) != nullptr;
}

std::vector<std::string> Connection::tables() const {
    Statement names = engine_->statement(
        "SELECT name FROM sqlite_master WHERE type = 'table' "
        "AND name NOT LIKE 'sqlite~_%' ESCAPE '~' ORDER BY name COLLATE CS",
        "seznam tabulek");
    std::vector<std::string> list;
    while (names.step())
        list.emplace_back(names.text(0));
    return list;
}

TableDef Connection::describe(std::string_view table) const {
    return engine_->layout(table);
}

void Connection::create_table(const TableDef& definition) {
    TableDef table = definition;
    table.name = bare_table_name(definition.name);
    check_definition(engine_->database, table);
    engine_->need_closed(table.name);
    engine_->prepare_for_layout_change();
    Transaction transaction(*this);
    drop_table(engine_->database, table.name);
    engine_->database.run(create_table_sql(table).c_str(), subject_of(table.name));
    create_indexes(engine_->database, table);
    engine_->forget_layouts();
    transaction.commit();
}

void Connection::delete_table(std::string_view table) {
    const std::string name = engine_->layout(table).name;
    engine_->need_closed(name);
    engine_->prepare_for_layout_change();
    Transaction transaction(*this);
    drop_table(engine_->database, name);
    engine_->forget_layouts();
    transaction.commit();
}

void Connection::rename_table(std::string_view from, std::string_view to) {
    TableDef table = engine_->layout(from);
    const std::string new_name = bare_table_name(to);
    engine_->need_closed(table.name);
    if (!same_name(table.name, new_name) && table_exists(new_name)) {
        engine_->database.refuse(fmt::format("tabulka {} už existuje.", new_name));
    }
    engine_->prepare_for_layout_change();
    Transaction transaction(*this);
    drop_indexes(*engine_, table.name);
    // The engine takes a change of letter case alone for a clash, so the way leads over a third
    // name.
    if (same_name(table.name, new_name)) {
        rename_in_engine(engine_->database, table.name, "~" + new_name);
        table.name = "~" + new_name;
    }
    rename_in_engine(engine_->database, table.name, new_name);
    table.name = new_name;
    create_indexes(engine_->database, table);
    engine_->forget_layouts();
    transaction.commit();
}

void Connection::add_index(std::string_view table, const IndexDef& index) {
    const TableDef layout = engine_->layout(table);
    engine_->need_closed(layout.name);
    for (const IndexDef& existing : layout.indexes) {
        if (same_name(existing.name, index.name)) {
            engine_->database.refuse(
                fmt::format("tabulka {}: index {} už existuje.", layout.name, index.name));
        }
    }
    engine_->prepare_for_layout_change();
    Transaction transaction(*this);
    engine_->database.run(create_index_sql(layout, index).c_str(), subject_of(layout.name));
    engine_->forget_layouts();
    transaction.commit();
}

int Connection::execute(std::string_view dialect_sql) {
    const Translation translation = engine_->translation(dialect_sql);
    const std::string subject =
        translation.tables.empty() ? "příkaz" : subject_of(translation.tables.front());
    if (translation.kind == StatementKind::select || !translation.parameters.empty()) {
        engine_->database.refuse(
            fmt::format("{}: příkaz SELECT nebo s parametry se čte dotazem.", subject));
    }
    if (changes_layout(translation.kind)) {
        change_layout(*this, translation, subject);
        return 0;
    }
    engine_->need_transaction(subject);
    engine_->statement(translation.sql, subject).run();
    return sqlite3_changes(engine_->database.handle());
}

std::string Connection::integrity_check() {
    Statement check = engine_->statement("PRAGMA integrity_check", "kontrola databáze");
    std::string found;
    while (check.step()) {
        if (!found.empty()) found += '\n';
        found += check.text(0);
    }
    return found;
}

Transaction::Transaction(Connection& connection) : connection_(connection) {
    connection_.engine().begin();
    depth_ = connection_.engine().depth;
}

Transaction::~Transaction() {
    if (open_) rollback();
}

void Transaction::commit() {
    Connection::Engine& engine = connection_.engine();
    if (!open_ || depth_ != engine.depth) engine.database.refuse("transakce končí mimo pořadí.");
    open_ = false;
    engine.commit();
}

void Transaction::rollback() {
    if (!open_) return;
    open_ = false;
    connection_.engine().roll_back();
}

void pridej_index(Connection& slozka, std::string_view tabulka, std::string_view nazev, int rezim,
                  const std::vector<std::string>& pole) {
    if (!slozka.table_exists(tabulka)) return;
    const bool primary = rezim == 1;
    slozka.add_index(tabulka, {std::string(nazev), pole, primary, primary, false});
}

}  // namespace store
