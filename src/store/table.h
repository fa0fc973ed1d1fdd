// An open table: rows in the order of entry or of an index, read and changed one at a time.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "store/connection.h"
#include "store/value.h"

namespace store {

class Table {
  public:
    Table();
    ~Table();
    Table(const Table&) = delete;
    Table& operator=(const Table&) = delete;

    /// Allowed only while closed; otherwise StoreError. The connection must live longer than the
    /// table is open.
    void set_connection(Connection& connection);
    void set_table_name(std::string_view name);
    /// Fixes the order of rows; "" is the order of entry.
    void set_index_name(std::string_view name);

    /// Throws StoreError naming the table when it is missing; opening twice is harmless.
    void open();
    /// Cancels a pending edit. Closing twice is harmless.
    void close();
    bool is_open() const;
    const TableDef& definition() const;

    std::size_t record_count() const;
    /// 1 for the first row; 0 when the table is empty.
    std::size_t record_number() const;
    void first();
    void next();   ///< after the last row sets `eof` and stays there
    void prior();  ///< before the first row sets `bof` and stays there
    void last();
    bool eof() const;
    bool bof() const;

    /// Field of the current row (or of the row being edited), name without regard to case. With no
    /// row every field is empty. Throws StoreError naming table and field when there is no such
    /// field.
    Value value(std::string_view field) const;
    std::string text(std::string_view field) const { return value(field).as_text(); }
    std::int64_t integer(std::string_view field) const { return value(field).as_integer(); }
    double number(std::string_view field) const { return value(field).as_number(); }
    bool boolean(std::string_view field) const { return value(field).as_boolean(); }
    base::Datum date(std::string_view field) const { return value(field).as_date(); }

    /// A row is changed by append, insert or edit, then set, then post. `post` needs a Transaction.
    /// Until post or cancel a move to another row throws StoreError.
    void append();
    void insert();  ///< the same as append: rows have no place but the order of entry
    void edit();
    /// Throws StoreError naming table, field and what was expected for a value of a wrong kind, out
    /// of range, too long or with a character outside code page 1250; nothing is changed then.
    void set(std::string_view field, const Value& value);
    void clear(std::string_view field) { set(field, Value()); }
    /// Writes the row and stands on it.
    void post();
    void cancel();
    bool is_editing() const;
    /// Deletes the current row and moves to the next; after the last row that sets `eof`. Needs a
    /// Transaction.
    void remove();

    /// First row, in the table's order, whose field equals the value (texts without regard to
    /// case); true when found, and the position moves there only then.
    bool locate(std::string_view field, const Value& value);

    /// A position that survives other moves; valid while its row exists.
    using Bookmark = std::int64_t;
    Bookmark bookmark() const;
    bool go_to(Bookmark bookmark);
    /// Reads the rows anew and keeps the position when its row still exists.
    void refresh();

    /// A pair around long walks: no notification to a face between them. May be nested.
    void disable_updates();
    void enable_updates();

    struct State;

  private:
    std::unique_ptr<State> state_;
};

/// Appends many rows of one table through one prepared statement. Fields are addressed by their
/// position in the list given at construction; a field not listed stays empty. The same checks as
/// Table::set apply; only the autoincrement may be listed and set here, for rows that come from
/// outside with their row key (1 and up). Needs a Transaction while rows are inserted.
class Inserter {
  public:
    Inserter(Connection& connection, std::string_view table,
             const std::vector<std::string>& fields);
    ~Inserter();
    Inserter(const Inserter&) = delete;
    Inserter& operator=(const Inserter&) = delete;

    void set(std::size_t position, std::int64_t value);
    void set(std::size_t position, int value) { set(position, std::int64_t{value}); }
    void set(std::size_t position, double value);
    void set(std::size_t position, long double value) { set(position, static_cast<double>(value)); }
    void set(std::size_t position, bool value);
    void set(std::size_t position, std::string_view value);
    void set(std::size_t position, const char* value) { set(position, std::string_view(value)); }
    void set(std::size_t position, const std::string& value) {
        set(position, std::string_view(value));
    }
    void set(std::size_t position, const Value& value);
    void clear(std::size_t position);
    /// Inserts the row, returns its `Pocitadlo`; all fields are empty again afterwards.
    std::int64_t insert();

    struct State;

  private:
    std::unique_ptr<State> state_;
};

}  // namespace store
