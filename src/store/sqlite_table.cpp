// Open tables: the row keys in their order are held, the rows are read and written one at a time.
#include <algorithm>
#include <fmt/format.h>
#include <limits>
#include <optional>
#include <span>
#include <sqlite3.h>

#include "store/engine_sql.h"
#include "store/field_check.h"
#include "store/query.h"
#include "store/sqlite_engine.h"
#include "store/sqlite_rows.h"
#include "store/table.h"

namespace store {

struct Table::State {
    enum class Edit { none, append, edit };

    Connection* connection = nullptr;
    std::string table_name;
    std::string index_name;

    bool opened = false;
    TableDef layout;
    const IndexDef* index = nullptr;
    std::string order;
    std::optional<FieldCheck> checks;
    TextMap<std::size_t> positions;  ///< fields by the names asked so far

    std::vector<std::int64_t> keys;
    bool keys_stale = false;          ///< a write may have moved the current row in the order
    std::int64_t keys_rollbacks = 0;  ///< how often changes had been taken back at that time
    std::optional<std::int64_t> row;  ///< key of the current row
    std::size_t position = 0;
    bool at_end = true;
    bool at_begin = true;

    std::optional<RowReader> rows;
    Row no_row;  ///< what an empty table reads

    Edit editing = Edit::none;
    Row edited;
    int updates_disabled = 0;

    std::optional<Statement> inserting, updating, removing;

    Connection::Engine& engine() const { return connection->engine(); }
    std::string subject() const { return subject_of(opened ? layout.name : table_name); }

    [[noreturn]] void refuse(std::string_view what) const {
        const std::string text = fmt::format("{}: {}", subject(), what);
        if (!connection) throw StoreError(text);
        engine().database.refuse(text);
    }
    void need_open() const {
        if (!opened) refuse("není otevřena.");
    }
    void need_closed(std::string_view what) const {
        if (opened) refuse(fmt::format("je otevřena, {} nelze změnit.", what));
    }
    void need_browsing() const {
        need_open();
        if (editing != Edit::none) refuse("řádek je rozepsaný, chybí jeho zápis nebo zrušení.");
    }
    void need_editing() const {
        need_open();
        if (editing == Edit::none) refuse("řádek není rozepsaný.");
    }

    std::size_t field(std::string_view name);
    Statement& prepared(std::optional<Statement>& statement, const std::string& sql);

    void read_layout();
    void read_keys();
    void ensure_keys();
    void stand_on(std::size_t new_position);
    bool find(std::int64_t key);
    const Row& read_row();

    std::vector<std::size_t> writable_fields() const;
    void insert_row();
    void update_row();
    bool index_fields_changed();
};

std::size_t Table::State::field(std::string_view name) {
    const auto known = positions.find(name);
    if (known != positions.end()) return known->second;
    const int found = layout.field_index(name);
    if (found < 0) refuse(fmt::format("pole {} neexistuje.", name));
    positions.emplace(name, static_cast<std::size_t>(found));
    return static_cast<std::size_t>(found);
}

Statement& Table::State::prepared(std::optional<Statement>& statement, const std::string& sql) {
    if (!statement) statement.emplace(engine().statement(sql, subject()));
    return *statement;
}

void Table::State::read_layout() {
    layout = engine().layout(table_name);
    checks.emplace(engine().database.file().string(), layout.name);
    index = nullptr;
    for (const IndexDef& candidate : layout.indexes) {
        if (same_name(candidate.name, index_name)) index = &candidate;
    }
    if (!index && !index_name.empty()) refuse(fmt::format("index {} neexistuje.", index_name));
    order = order_of_index(layout, index);
    positions.clear();
    rows.emplace(engine(), layout);
    no_row.assign(layout.fields.size(), Value());
}

void Table::State::read_keys() {
    keys.clear();
    Statement all = engine().statement(
        fmt::format("SELECT _rowid_ FROM {} ORDER BY {}", in_quotes(layout.name), order),
        subject());
    while (all.step())
        keys.push_back(all.integer(0));
    keys_stale = false;
    keys_rollbacks = engine().rollbacks;
}

/// Reads the keys again when the order may have changed or changes were taken back; the current row
/// stays current.
void Table::State::ensure_keys() {
    if (!keys_stale && keys_rollbacks == engine().rollbacks) return;
    const std::size_t old_position = position;
    const std::optional<std::int64_t> old_row = row;
    read_keys();
    if (!old_row || !find(*old_row)) {
        stand_on(keys.empty() ? 0 : std::min(old_position, keys.size() - 1));
    }
}

void Table::State::stand_on(std::size_t new_position) {
    position = new_position;
    at_end = at_begin = keys.empty();
    row = keys.empty() ? std::nullopt : std::optional(keys[position]);
}

bool Table::State::find(std::int64_t key) {
    const auto found = index ? std::ranges::find(keys, key) : std::ranges::lower_bound(keys, key);
    if (found == keys.end() || *found != key) return false;
    stand_on(static_cast<std::size_t>(found - keys.begin()));
    return true;
}

/// The current row; all fields are empty when there is none, also when another way deleted it.
const Row& Table::State::read_row() {
    if (!row) return no_row;
    const bool in_place = !keys_stale && position < keys.size() && keys[position] == *row;
    return in_place ? rows->read(std::span(keys).subspan(position)) : rows->read({&*row, 1});
}

std::vector<std::size_t> Table::State::writable_fields() const {
    std::vector<std::size_t> list;
    for (std::size_t i = 0; i < layout.fields.size(); ++i) {
        if (layout.fields[i].type != FieldType::autoincrement) list.push_back(i);
    }
    return list;
}

void Table::State::insert_row() {
    const std::vector<std::size_t> fields = writable_fields();
    if (!inserting) {
        std::string names, marks;
        for (const std::size_t i : fields) {
            names += (names.empty() ? "" : ", ") + in_quotes(layout.fields[i].name);
            marks += marks.empty() ? "?" : ", ?";
        }
        const std::string sql =
            "INSERT INTO " + in_quotes(layout.name) +
            (fields.empty() ? " DEFAULT VALUES" : fmt::format(" ({}) VALUES ({})", names, marks));
        prepared(inserting, sql);
    }
    for (std::size_t i = 0; i < fields.size(); ++i) {
        inserting->bind(static_cast<int>(i) + 1, edited[fields[i]]);
    }
    inserting->run();
    const std::int64_t key = sqlite3_last_insert_rowid(engine().database.handle());
    if (key > std::numeric_limits<std::int32_t>::max()) refuse("počitadlo řádků je vyčerpáno.");
    row = key;
    if (index) {
        keys_stale = true;
        at_end = at_begin = false;
    } else {
        keys.push_back(key);
        stand_on(keys.size() - 1);
    }
}

void Table::State::update_row() {
    const std::vector<std::size_t> fields = writable_fields();
    if (fields.empty()) return;
    if (!updating) {
        std::string list;
        for (const std::size_t i : fields) {
            list += (list.empty() ? "" : ", ") + in_quotes(layout.fields[i].name) + " = ?";
        }
        prepared(updating,
                 fmt::format("UPDATE {} SET {} WHERE _rowid_ = ?", in_quotes(layout.name), list));
    }
    const bool moved = index_fields_changed();
    for (std::size_t i = 0; i < fields.size(); ++i) {
        updating->bind(static_cast<int>(i) + 1, edited[fields[i]]);
    }
    updating->bind(static_cast<int>(fields.size()) + 1, *row);
    updating->run();
    if (sqlite3_changes(engine().database.handle()) == 0) refuse("řádek mezitím někdo smazal.");
    if (moved) keys_stale = true;
}

bool Table::State::index_fields_changed() {
    if (!index) return false;
    const Row& before = read_row();
    return std::ranges::any_of(index->fields, [&](const std::string& name) {
        const std::size_t i = field(name);
        return !(before[i] == edited[i]);
    });
}

Table::Table() : state_(std::make_unique<State>()) {}
Table::~Table() {
    close();
}

void Table::set_connection(Connection& connection) {
    state_->need_closed("spojení");
    state_->connection = &connection;
}

void Table::set_table_name(std::string_view name) {
    state_->need_closed("jméno tabulky");
    state_->table_name = bare_table_name(name);
}

void Table::set_index_name(std::string_view name) {
    state_->need_closed("index");
    state_->index_name = name;
}

void Table::open() {
    State& s = *state_;
    if (s.opened) return;
    if (!s.connection) s.refuse("nemá určené spojení.");
    s.read_layout();
    s.read_keys();
    s.stand_on(0);
    ++s.engine().open_tables[folded(s.layout.name)];
    s.opened = true;
}

void Table::close() {
    State& s = *state_;
    if (!s.opened) return;
    s.editing = State::Edit::none;
    s.opened = false;
    for (auto* statement : {&s.inserting, &s.updating, &s.removing})
        statement->reset();
    s.rows.reset();
    auto& counts = s.engine().open_tables;
    const auto count = counts.find(folded(s.layout.name));
    if (count != counts.end() && --count->second == 0) counts.erase(count);
}

bool Table::is_open() const {
    return state_->opened;
}

const TableDef& Table::definition() const {
    state_->need_open();
    return state_->layout;
}

std::size_t Table::record_count() const {
    state_->need_open();
    state_->ensure_keys();
    return state_->keys.size();
}

std::size_t Table::record_number() const {
    return record_count() == 0 ? 0 : state_->position + 1;
}

void Table::first() {
    state_->need_browsing();
    state_->ensure_keys();
    state_->stand_on(0);
}

void Table::last() {
    state_->need_browsing();
    state_->ensure_keys();
    state_->stand_on(state_->keys.empty() ? 0 : state_->keys.size() - 1);
}

void Table::next() {
    state_->need_browsing();
    state_->ensure_keys();
    if (state_->keys.empty()) return;
    if (state_->position + 1 < state_->keys.size()) {
        state_->stand_on(state_->position + 1);
    } else {
        state_->at_begin = false;
        state_->at_end = true;
    }
}

void Table::prior() {
    state_->need_browsing();
    state_->ensure_keys();
    if (state_->keys.empty()) return;
    if (state_->position > 0) {
        state_->stand_on(state_->position - 1);
    } else {
        state_->at_end = false;
        state_->at_begin = true;
    }
}

bool Table::eof() const {
    state_->need_open();
    return state_->at_end;
}

bool Table::bof() const {
    state_->need_open();
    return state_->at_begin;
}

Value Table::value(std::string_view field) const {
    state_->need_open();
    const std::size_t i = state_->field(field);
    return state_->editing == State::Edit::none ? state_->read_row()[i] : state_->edited[i];
}

void Table::append() {
    state_->need_browsing();
    state_->edited.assign(state_->layout.fields.size(), Value());
    state_->editing = State::Edit::append;
}

void Table::insert() {
    append();
}

void Table::edit() {
    state_->need_open();
    if (state_->editing == State::Edit::edit) return;
    state_->need_browsing();
    if (!state_->row) state_->refuse("je prázdná, není co opravit.");
    state_->edited = state_->read_row();
    state_->editing = State::Edit::edit;
}

void Table::set(std::string_view field, const Value& value) {
    state_->need_editing();
    const std::size_t i = state_->field(field);
    state_->checks->check(state_->layout.fields[i], value);
    state_->edited[i] = value;
}

void Table::post() {
    state_->need_editing();
    state_->engine().need_transaction(state_->subject());
    if (state_->editing == State::Edit::append) {
        state_->insert_row();
    } else {
        state_->update_row();
    }
    state_->editing = State::Edit::none;
}

void Table::cancel() {
    state_->editing = State::Edit::none;
}

bool Table::is_editing() const {
    return state_->editing != State::Edit::none;
}

void Table::remove() {
    State& s = *state_;
    s.need_browsing();
    s.engine().need_transaction(s.subject());
    s.ensure_keys();
    if (!s.row) s.refuse("je prázdná, není co smazat.");
    Statement& statement = s.prepared(
        s.removing, fmt::format("DELETE FROM {} WHERE _rowid_ = ?1", in_quotes(s.layout.name)));
    statement.bind(1, *s.row);
    statement.run();
    s.keys.erase(s.keys.begin() + static_cast<std::ptrdiff_t>(s.position));
    const bool was_last = s.position == s.keys.size();
    s.stand_on(was_last && s.position > 0 ? s.position - 1 : s.position);
    s.at_end = was_last;
}

bool Table::locate(std::string_view field, const Value& value) {
    State& s = *state_;
    s.need_browsing();
    const FieldDef& searched = s.layout.fields[s.field(field)];
    const bool is_text = searched.type == FieldType::text;
    const std::string wanted = value.as_text();
    std::string condition = in_quotes(searched.name);
    if (wanted.empty()) {
        condition =
            is_text ? fmt::format("({0} IS NULL OR {0} = '')", condition) : condition + " IS NULL";
    } else {
        condition += is_text ? fmt::format(" = ?1 COLLATE {}", collation_no_case) : " = ?1";
    }
    Statement search =
        s.engine().statement(fmt::format("SELECT _rowid_ FROM {} WHERE {} ORDER BY {} LIMIT 1",
                                         in_quotes(s.layout.name), condition, s.order),
                             s.subject());
    if (is_text && !wanted.empty()) {
        search.bind(1, std::string_view(wanted));
    } else if (!wanted.empty()) {
        search.bind(1, value);
    }
    if (!search.step()) return false;
    const std::int64_t key = search.integer(0);
    search.reset();
    s.ensure_keys();
    if (s.find(key)) return true;
    s.read_keys();
    return s.find(key);
}

Table::Bookmark Table::bookmark() const {
    state_->need_open();
    return state_->row.value_or(0);
}

bool Table::go_to(Bookmark bookmark) {
    state_->need_browsing();
    state_->ensure_keys();
    return state_->find(bookmark);
}

void Table::refresh() {
    state_->need_browsing();
    state_->keys_stale = true;
    state_->rows->forget();
    state_->ensure_keys();
}

void Table::disable_updates() {
    ++state_->updates_disabled;
}

void Table::enable_updates() {
    if (state_->updates_disabled > 0) --state_->updates_disabled;
}

}  // namespace store
