// Prepared statements: kept by a pool between uses, bound, stepped and read.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "store/definition.h"
#include "store/sqlite_database.h"
#include "store/value.h"

struct sqlite3_stmt;

namespace store {

/// Lets a map with string keys be asked by a view.
struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const {
        return std::hash<std::string_view>{}(text);
    }
};
template <class T>
using TextMap = std::unordered_map<std::string, T, TextHash, std::equal_to<>>;

/// A statement and what is known of its result's columns.
struct Prepared {
    Prepared(Database& database, std::string_view sql, std::string_view subject);
    ~Prepared();
    Prepared(const Prepared&) = delete;
    Prepared& operator=(const Prepared&) = delete;

    /// Reads names and types of the columns anew; the engine may have prepared the statement again
    /// after a change of the layout by another program.
    void read_columns();

    sqlite3_stmt* handle = nullptr;
    std::string sql;
    std::string subject;  ///< what error messages say was worked on
    std::vector<std::string> names;
    std::vector<std::optional<FieldType>> types;  ///< nothing for an expression
    TextMap<int> positions;                       ///< columns by the names asked so far
};

/// Idle statements of a connection by their text.
class StatementPool {
  public:
    explicit StatementPool(Database& database) : database_(database) {}
    std::unique_ptr<Prepared> take(std::string_view sql, std::string_view subject);
    void give_back(std::unique_ptr<Prepared> prepared) noexcept;
    /// Throws all idle statements away: the layout has changed.
    void clear() noexcept { idle_.clear(); }
    Database& database() const { return database_; }

  private:
    Database& database_;
    TextMap<std::vector<std::unique_ptr<Prepared>>> idle_;
};

/// A statement in use; goes back to its pool at the end. Parameters count from 1, columns from 0.
class Statement {
  public:
    Statement(StatementPool& pool, std::string_view sql, std::string_view subject);
    ~Statement();
    Statement(Statement&&) noexcept = default;
    Statement& operator=(Statement&&) noexcept;

    void bind(int parameter, std::int64_t value);
    void bind(int parameter, double value);
    /// The text is copied.
    void bind(int parameter, std::string_view text);
    /// The text must stay where it is until the statement was reset.
    void bind_in_place(int parameter, std::string_view text);
    /// Booleans become 0 and 1, days and times ISO texts.
    void bind(int parameter, const Value& value);
    void bind_empty(int parameter);
    void clear_bindings() noexcept;
    int parameter_count() const;
    /// ":name" of a parameter, "" when it has none.
    std::string_view parameter_name(int parameter) const;

    /// Goes to the next row; false at the end.
    bool step();
    /// Runs a statement without rows from its beginning and resets it.
    void run();
    void reset() noexcept;

    /// A column of a result as a value of the given type; without a type, of the kind that is
    /// stored.
    Value value(int column, std::optional<FieldType> type) const;
    std::int64_t integer(int column) const;
    std::string_view text(int column) const;

    Prepared& prepared() const { return *prepared_; }
    sqlite3_stmt* handle() const { return prepared_->handle; }
    [[noreturn]] void fail() const;

  private:
    void check(int code) const;

    StatementPool* pool_;
    std::unique_ptr<Prepared> prepared_;
};

}  // namespace store
