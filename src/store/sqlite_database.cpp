#include "store/sqlite_database.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <fmt/format.h>
#include <sqlite3.h>
#include <unistd.h>

#include "base/text.h"
#include "store/engine_sql.h"
#include "store/sqlite_functions.h"

namespace store {

namespace {

constexpr int wait_for_lock_ms = 2000;

// EXTRA also syncs the folder after the journal goes away: a commit survives a pulled plug. Sorting
// stays in memory, so that no wages lie about in temporary files.
constexpr const char* settings =
    "PRAGMA foreign_keys=OFF;"
    "PRAGMA trusted_schema=OFF;"
    "PRAGMA case_sensitive_like=ON;"
    "PRAGMA temp_store=MEMORY;"
    "PRAGMA cache_size=-32000;"
    "PRAGMA synchronous=EXTRA;";

std::string_view error_in_words(int code) {
    switch (code & 0xff) {
        case SQLITE_LOCKED:
            return "tabulka se právě čte";
        case SQLITE_FULL:
            return "na disku není místo";
        case SQLITE_IOERR:
            return "chyba čtení nebo zápisu na disk";
        case SQLITE_CORRUPT:
            return "soubor je poškozený";
        case SQLITE_NOTADB:
            return "soubor není databáze nebo je poškozený";
        case SQLITE_READONLY:
            return "databázi lze jen číst";
        case SQLITE_CANTOPEN:
            return "soubor nelze otevřít";
        case SQLITE_CONSTRAINT:
            return "taková hodnota už v tabulce je a smí tam být jen jednou";
        case SQLITE_NOMEM:
            return "nedostatek paměti";
        default:
            return "chyba databáze";
    }
}

void create_for_owner_alone(const std::filesystem::path& file) {
    const int descriptor = ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (descriptor < 0) {
        throw StoreError(
            fmt::format("{}: soubor nelze vytvořit ({}).", file.string(), std::strerror(errno)));
    }
    ::close(descriptor);
}

}  // namespace

Database::Database(std::filesystem::path file, Access access)
    : file_(std::move(file)), access_(access) {
    std::error_code error;
    if (!std::filesystem::is_directory(file_.parent_path(), error)) {
        throw StoreError(fmt::format("{}: složka neexistuje.", file_.parent_path().string()));
    }
    if (!std::filesystem::exists(file_, error)) {
        if (access_ == Access::read_only) {
            throw StoreError(fmt::format("{}: soubor neexistuje.", file_.string()));
        }
        create_for_owner_alone(file_);
    }
    try {
        open();
        set_up();
    } catch (...) {
        close();
        throw;
    }
}

Database::~Database() {
    close();
}

void Database::open() {
    const int flags = access_ == Access::read_only ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE;
    if (sqlite3_open_v2(file_.c_str(), &handle_, flags, nullptr) != SQLITE_OK) fail({});
    sqlite3_extended_result_codes(handle_, 1);
    sqlite3_busy_timeout(handle_, wait_for_lock_ms);
}

void Database::close() noexcept {
    sqlite3_close_v2(handle_);
    handle_ = nullptr;
}

void Database::set_up() {
    for (const int unquoted_texts : {SQLITE_DBCONFIG_DQS_DML, SQLITE_DBCONFIG_DQS_DDL}) {
        sqlite3_db_config(handle_, unquoted_texts, 0, nullptr);
    }
    sqlite3_db_config(handle_, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    register_functions(*this);
    if (access_ == Access::read_only) recover_for_reading();
    run("SELECT count(*) FROM sqlite_master");
    run(settings);
    if (access_ == Access::read_write) run("PRAGMA journal_mode=DELETE");
    if (sorted_by() != base::verze_ceskeho_trideni()) sort_anew();
}

std::int32_t Database::sorted_by() {
    std::int32_t version = 0;
    const auto take = [](void* where, int, char** values, char**) {
        *static_cast<std::int32_t*>(where) =
            static_cast<std::int32_t>(std::strtol(values[0], nullptr, 10));
        return 0;
    };
    if (sqlite3_exec(handle_, "PRAGMA user_version", take, &version, nullptr) != SQLITE_OK) {
        fail("české třídění");
    }
    return version;
}

// Indexes made under another version of the Czech order would miss rows.
void Database::sort_anew() {
    if (access_ == Access::read_only) {
        Database(file_, Access::read_write);
        return;
    }
    run("BEGIN IMMEDIATE");
    try {
        run(fmt::format("REINDEX {}; REINDEX {}; PRAGMA user_version={}; COMMIT", collation_exact,
                        collation_no_case, base::verze_ceskeho_trideni())
                .c_str(),
            "české třídění");
    } catch (...) {
        sqlite3_exec(handle_, "ROLLBACK", nullptr, nullptr, nullptr);
        throw;
    }
}

// A reader cannot take back what a killed writer left half done, so a writer does it for once.
void Database::recover_for_reading() {
    const int code =
        sqlite3_exec(handle_, "SELECT count(*) FROM sqlite_master", nullptr, nullptr, nullptr);
    if (code == SQLITE_READONLY_ROLLBACK) Database(file_, Access::read_write);
}

void Database::run(const char* sql, std::string_view subject) {
    if (sqlite3_exec(handle_, sql, nullptr, nullptr, nullptr) != SQLITE_OK) fail(subject);
}

bool Database::in_transaction() const {
    return sqlite3_get_autocommit(handle_) == 0;
}

void Database::fail(std::string_view subject) const {
    const int code = handle_ ? sqlite3_extended_errcode(handle_) : SQLITE_NOMEM;
    const std::string where =
        fmt::format("{}: {}{}", file_.string(), subject, subject.empty() ? "" : ": ");
    if ((code & 0xff) == SQLITE_BUSY) {
        throw StoreBusy(where +
                        "databázi právě používá jiný program. Nic se nezměnilo; počkejte, až "
                        "skončí, a krok zopakujte.");
    }
    throw StoreError(fmt::format("{}{} ({}).", where, error_in_words(code),
                                 handle_ ? sqlite3_errmsg(handle_) : ""));
}

void Database::refuse(std::string_view what) const {
    throw StoreError(fmt::format("{}: {}", file_.string(), what));
}

}  // namespace store
