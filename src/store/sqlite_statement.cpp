#include "store/sqlite_statement.h"

#include <sqlite3.h>

#include "store/engine_sql.h"

namespace store {

namespace {

// Statements put together by hand differ from worker to worker; beyond this many texts the pool
// starts afresh.
constexpr std::size_t most_texts = 300;

}  // namespace

Prepared::Prepared(Database& database, std::string_view text, std::string_view what)
    : sql(text), subject(what) {
    if (sqlite3_prepare_v3(database.handle(), sql.c_str(), static_cast<int>(sql.size()),
                           SQLITE_PREPARE_PERSISTENT, &handle, nullptr) != SQLITE_OK) {
        database.fail(subject);
    }
    read_columns();
}

Prepared::~Prepared() {
    sqlite3_finalize(handle);
}

void Prepared::read_columns() {
    names.clear();
    types.clear();
    positions.clear();
    for (int i = 0; i < sqlite3_column_count(handle); ++i) {
        names.emplace_back(sqlite3_column_name(handle, i));
        const char* declaration = sqlite3_column_decltype(handle, i);
        const auto field =
            declaration ? field_from_declaration({}, declaration, false) : std::nullopt;
        types.push_back(field ? std::optional(field->type) : std::nullopt);
    }
}

std::unique_ptr<Prepared> StatementPool::take(std::string_view sql, std::string_view subject) {
    const auto found = idle_.find(sql);
    if (found == idle_.end() || found->second.empty()) {
        return std::make_unique<Prepared>(database_, sql, subject);
    }
    std::unique_ptr<Prepared> prepared = std::move(found->second.back());
    found->second.pop_back();
    return prepared;
}

void StatementPool::give_back(std::unique_ptr<Prepared> prepared) noexcept {
    try {
        if (idle_.size() >= most_texts && !idle_.contains(prepared->sql)) idle_.clear();
        idle_[prepared->sql].push_back(std::move(prepared));
    } catch (const std::bad_alloc&) {
        // Then it is simply not kept.
    }
}

Statement::Statement(StatementPool& pool, std::string_view sql, std::string_view subject)
    : pool_(&pool), prepared_(pool.take(sql, subject)) {}

Statement::~Statement() {
    if (!prepared_) return;
    reset();
    clear_bindings();
    pool_->give_back(std::move(prepared_));
}

Statement& Statement::operator=(Statement&& other) noexcept {
    std::swap(pool_, other.pool_);
    std::swap(prepared_, other.prepared_);
    return *this;
}

void Statement::bind(int parameter, std::int64_t value) {
    check(sqlite3_bind_int64(handle(), parameter, value));
}

void Statement::bind(int parameter, double value) {
    check(sqlite3_bind_double(handle(), parameter, value));
}

void Statement::bind(int parameter, std::string_view text) {
    check(sqlite3_bind_text64(handle(), parameter, text.data() ? text.data() : "", text.size(),
                              SQLITE_TRANSIENT, SQLITE_UTF8));
}

void Statement::bind_in_place(int parameter, std::string_view text) {
    check(sqlite3_bind_text64(handle(), parameter, text.data(), text.size(), SQLITE_STATIC,
                              SQLITE_UTF8));
}

void Statement::bind_empty(int parameter) {
    check(sqlite3_bind_null(handle(), parameter));
}

void Statement::bind(int parameter, const Value& value) {
    const Value::Variant& v = value.variant();
    if (const auto* whole = std::get_if<std::int64_t>(&v)) {
        bind(parameter, *whole);
    } else if (const auto* number = std::get_if<double>(&v)) {
        bind(parameter, *number);
    } else if (const auto* boolean = std::get_if<bool>(&v)) {
        bind(parameter, std::int64_t{*boolean});
    } else if (const auto* text = std::get_if<std::string>(&v)) {
        bind(parameter, std::string_view(*text));
    } else if (const std::string iso = value.as_text(); !iso.empty()) {
        bind(parameter, std::string_view(iso));
    } else {
        bind_empty(parameter);
    }
}

void Statement::clear_bindings() noexcept {
    sqlite3_clear_bindings(handle());
}

int Statement::parameter_count() const {
    return sqlite3_bind_parameter_count(handle());
}

std::string_view Statement::parameter_name(int parameter) const {
    const char* name = sqlite3_bind_parameter_name(handle(), parameter);
    return name ? std::string_view(name) : std::string_view();
}

bool Statement::step() {
    const int code = sqlite3_step(handle());
    if (code == SQLITE_ROW) return true;
    if (code == SQLITE_DONE) return false;
    fail();
}

void Statement::run() {
    const int code = sqlite3_step(handle());
    if (code != SQLITE_DONE && code != SQLITE_ROW) fail();
    reset();
}

void Statement::reset() noexcept {
    sqlite3_reset(handle());
}

// The message is taken before the reset, which may overwrite it.
void Statement::fail() const {
    try {
        pool_->database().fail(prepared_->subject);
    } catch (...) {
        sqlite3_reset(handle());
        throw;
    }
}

void Statement::check(int code) const {
    if (code != SQLITE_OK) fail();
}

std::int64_t Statement::integer(int column) const {
    return sqlite3_column_int64(handle(), column);
}

std::string_view Statement::text(int column) const {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(handle(), column));
    if (!text) return {};
    return {text, static_cast<std::size_t>(sqlite3_column_bytes(handle(), column))};
}

Value Statement::value(int column, std::optional<FieldType> type) const {
    switch (sqlite3_column_type(handle(), column)) {
        case SQLITE_NULL:
            return {};
        case SQLITE_INTEGER:
            if (type == FieldType::boolean) return integer(column) != 0;
            if (type == FieldType::number) return sqlite3_column_double(handle(), column);
            return integer(column);
        case SQLITE_FLOAT:
            return sqlite3_column_double(handle(), column);
        default:
            break;
    }
    const std::string_view stored = text(column);
    if (type == FieldType::date) {
        if (const auto day = base::datum_z_iso(stored)) return *day;
    } else if (type == FieldType::timestamp) {
        if (const auto time = base::datum_cas_z_iso(stored)) return *time;
    }
    return stored;
}

}  // namespace store
