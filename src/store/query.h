// Queries in the payroll's SQL dialect: a forward-only cursor over the rows of a SELECT.
//
//     store::Query q(connection, "SELECT * FROM Deti WHERE Cislo_pracovnika = :cislo");
//     q.set("cislo", 7);
//     for (q.open(); !q.eof(); q.next()) use(q.text("Jmeno"));
//
// What the dialect takes: texts in single or double quotes, table names with or without ".db", "+"
// joining texts, TRUE and FALSE, one LEFT OUTER JOIN, IN over a list or a subquery, UNION [ALL],
// named parameters. ORDER BY follows Czech order; equality is exact.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "store/connection.h"
#include "store/value.h"

namespace store {

class Query {
  public:
    /// Throws StoreError when the statement is not of the dialect; the text says where.
    Query(Connection& connection, std::string_view dialect_sql);
    ~Query();
    Query(Query&&) noexcept;
    Query& operator=(Query&&) noexcept;

    /// Sets the parameter `:name` (given without the colon).
    Query& set(std::string_view name, const Value& value);

    /// Runs the query and stands on its first row; opening again runs it anew.
    void open();
    bool eof() const;
    void next();
    /// Ends reading, so that the tables may be changed in layout.
    void close();

    int column_count() const;
    const std::string& column_name(int column) const;
    /// Position of a column, names compared without regard to case. Throws StoreError naming it.
    int column(std::string_view name) const;

    /// Columns of the current row; with no row each is empty. A column that is not there throws
    /// StoreError.
    Value value(int column) const;
    bool is_empty(int column) const;
    std::string text(int column) const;
    /// As `text`, valid until the next move.
    std::string_view text_view(int column) const;
    std::int64_t integer(int column) const;
    double number(int column) const;
    bool boolean(int column) const;
    base::Datum date(int column) const;

    Value value(std::string_view name) const { return value(column(name)); }
    bool is_empty(std::string_view name) const { return is_empty(column(name)); }
    std::string text(std::string_view name) const { return text(column(name)); }
    std::string_view text_view(std::string_view name) const { return text_view(column(name)); }
    std::int64_t integer(std::string_view name) const { return integer(column(name)); }
    double number(std::string_view name) const { return number(column(name)); }
    bool boolean(std::string_view name) const { return boolean(column(name)); }
    base::Datum date(std::string_view name) const { return date(column(name)); }

    struct State;

  private:
    std::unique_ptr<State> state_;
};

/// One row of a materialized result.
using Row = std::vector<Value>;

/// A whole result in memory, for screens that walk back and forth and for exports.
struct Rows {
    std::vector<std::string> columns;
    std::vector<Row> rows;
    int column(std::string_view name) const;  ///< throws StoreError when there is none
};
Rows read_all(Query& query);

}  // namespace store
