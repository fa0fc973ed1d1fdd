// A connection: one folder of a company (`Zorv`, `Ucet`, `Faktury`), whose tables live in one
// database file inside it. "The table file exists" means here that the table exists.
//
// Rows change only inside a Transaction. SQLite stays behind this header: its types and calls are
// allowed in the files named sqlite_* alone.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/chyba.h"
#include "store/definition.h"
#include "store/value.h"

namespace store {

/// A failing store or a wrong use of a table; the text names file, table and field.
class StoreError : public base::ChybaDat {
  public:
    using base::ChybaDat::ChybaDat;
};

/// Another program holds the data for longer than the store waits; nothing was changed and the same
/// step may be tried again.
class StoreBusy final : public StoreError {
  public:
    using StoreError::StoreError;
};

enum class Access { read_write, read_only };

class Connection {
  public:
    /// Opens the folder's database file, and with read_write makes it when missing (readable by its
    /// owner alone). The folder itself must exist. Throws StoreError.
    explicit Connection(std::filesystem::path folder, Access access = Access::read_write);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    const std::filesystem::path& folder() const;
    /// Name of the database file inside a folder.
    static std::string_view file_name();

    /// Table names are compared without regard to case, with or without ".db".
    bool table_exists(std::string_view table) const;
    /// Names of all tables, as they were given at creation, in Czech order.
    std::vector<std::string> tables() const;
    /// The layout as it stands in the file, with later ALTERs. Throws when the table is missing.
    TableDef describe(std::string_view table) const;

    /// Overwrites a closed table of the same name; throws when it is open.
    void create_table(const TableDef& definition);
    /// Throws when the table is missing or open.
    void delete_table(std::string_view table);
    void rename_table(std::string_view from, std::string_view to);
    void add_index(std::string_view table, const IndexDef& index);

    /// Runs a statement of the dialect that gives no rows (ALTER, UPDATE, DELETE, INSERT, CREATE).
    /// UPDATE, DELETE and INSERT need a Transaction. Returns the number of rows touched.
    int execute(std::string_view dialect_sql);

    /// "ok", or what the engine's integrity check found.
    std::string integrity_check();

    /// The engine behind; only the store's own files can see what it is.
    struct Engine;
    Engine& engine() const { return *engine_; }

  private:
    std::unique_ptr<Engine> engine_;
};

/// A scope that makes changes permanent all together or not at all: without `commit` the
/// destructor takes everything back. May be nested; an inner one is a savepoint of the outer.
/// Creating, deleting and renaming tables take part.
class Transaction {
  public:
    explicit Transaction(Connection& connection);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    /// On return of the outermost commit the data are on the disk. Throws StoreError; nothing was
    /// changed then.
    void commit();
    /// Takes everything back now.
    void rollback();

  private:
    Connection& connection_;
    int depth_;
    bool open_ = true;
};

/// Adds a secondary index when the table exists; mode 1 primary, mode 2 secondary without regard
/// to case. A missing table is passed over.
void pridej_index(Connection& slozka, std::string_view tabulka, std::string_view nazev, int rezim,
                  const std::vector<std::string>& pole);

}  // namespace store
