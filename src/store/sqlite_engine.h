// What stands behind a connection: the database, its statements, open tables and running queries.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/connection.h"
#include "store/dialect.h"
#include "store/sqlite_statement.h"

namespace store {

/// A query between its first row and its end. The engine changes no layout while one is running,
/// and taking changes back may break it off, so before either every running query takes the rest of
/// its rows into memory.
class RunningQuery {
  public:
    virtual void read_the_rest() = 0;
    /// Ends the query where that failed; reading on is then an error.
    virtual void give_up() noexcept = 0;

  protected:
    ~RunningQuery() = default;
};

struct Connection::Engine {
    Engine(std::filesystem::path folder_, Access access);

    /// A pooled statement of the engine's language.
    Statement statement(std::string_view sql, std::string_view subject);
    /// The translation of a statement of the dialect, kept until the layout changes.
    const Translation& translation(std::string_view dialect_sql);

    /// The layout, or nothing when there is no such table; the answer lives until the layout
    /// changes.
    const TableDef* find_layout(std::string_view table);
    /// As above; throws StoreError naming a missing table.
    const TableDef& layout(std::string_view table);

    /// Throws unless rows may be changed now.
    void need_transaction(std::string_view subject);
    void need_writable();
    /// Throws when the table is open.
    void need_closed(std::string_view table) const;
    /// Before a change of the layout.
    void prepare_for_layout_change();
    /// After it, and after taking changes back.
    void forget_layouts() noexcept;

    void begin();
    void commit();
    void roll_back() noexcept;

    /// Differs when rows may have changed since the last call.
    std::int64_t change_stamp() const;

    std::filesystem::path folder;
    Database database;
    StatementPool pool;
    int depth = 0;                                        ///< nested transactions
    std::int64_t rollbacks = 0;                           ///< how often changes were taken back
    std::map<std::string, int, std::less<>> open_tables;  ///< by name in lower case
    std::vector<RunningQuery*> running;

  private:
    bool transaction_lost() const { return depth > 0 && !database.in_transaction(); }
    std::optional<TableDef> read_layout(std::string_view table);
    void read_fields(TableDef& table);
    void read_indexes(TableDef& table);
    void check_layout_version();

    TextMap<Translation> translations_;
    TextMap<TableDef> layouts_;
    std::int64_t layout_version_ = -1;
};

/// "tabulka Deti": what messages say was worked on.
std::string subject_of(std::string_view table);
/// Letters a to z in lower case.
std::string folded(std::string_view name);

}  // namespace store
