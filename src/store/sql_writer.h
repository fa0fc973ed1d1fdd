// Writes a parsed statement in the engine's SQL: resolves names against the layouts, checks kinds
// of values, and quotes everything, so that no text of the operator can become a part of the
// statement.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "store/dialect.h"
#include "store/sql_ast.h"

namespace store::sql {

/// What an expression gives; `any` is a parameter or NULL, known only when it is run.
enum class Kind { whole, number, boolean, date, timestamp, text, any };

struct Written {
    std::string sql;
    Kind kind = Kind::any;
};

/// A table of a FROM, called by its alias or its own name.
struct Source {
    TableDef table;
    std::string name;
};

/// The tables whose fields an expression may name; those of `outer` from inside a subquery.
struct Scope {
    std::vector<Source> sources;
    const Scope* outer = nullptr;
};

struct FoundField {
    const Source* source = nullptr;
    const FieldDef* field = nullptr;
    bool operator==(const FoundField&) const = default;
};

/// A column of a result.
struct Output {
    std::string name;
    Kind kind = Kind::any;
    FoundField field;  ///< set when the column is a field and nothing else
};

struct WrittenSelect {
    std::string sql;
    std::vector<Output> outputs;
    Scope scope;
    std::vector<FoundField> group_by;
    bool grouped = false;  ///< has GROUP BY or an aggregate, so a row is no row of a table
};

class Writer {
  public:
    Writer(std::string_view statement, const SchemaLookup& schema)
        : statement_(statement), schema_(schema) {}

    Translation write(const Statement& parsed);

  private:
    // Statements: sql_writer.cpp.
    std::string sql_of(const Query& query);
    std::string sql_of(const Update& update);
    std::string sql_of(const Insert& insert);
    std::string sql_of(const Remove& remove);
    std::string sql_of(const AddField& add);
    std::string sql_of(const DropField& drop);
    std::string sql_of(const CreateTable& create);
    std::string sql_of(const CreateIndex& create);

    WrittenSelect select(const Select& select, const Scope* outer);
    std::string items(const Select& select, WrittenSelect& written);
    void add_star(WrittenSelect& written, std::vector<std::string>& columns);
    void check_grouping(const Select& select, const WrittenSelect& written,
                        const std::vector<std::pair<const Expr*, FoundField>>& fields);
    std::string order(const Query& query, const std::vector<WrittenSelect>& parts);
    std::string order_term(const Expr& field, const WrittenSelect& first, bool compound);
    Source open(const TableName& table);
    const FieldDef& target_field(const TableDef& table, std::string_view field, std::size_t at);

    // Expressions: sql_writer_expressions.cpp.
    FoundField find(const Expr& field, const Scope& scope) const;
    Written value(const Expr& expr, const Scope& scope);
    Written field_value(const Expr& expr, const Scope& scope);
    Written parameter(const Expr& expr);
    Written sum(const Expr& expr, const Scope& scope);
    Written product(const Expr& expr, const Scope& scope);
    Written aggregate(const Expr& expr, const Scope& scope);
    Written day(const Expr& expr, const Scope& scope);
    Written numeric(const Expr& expr, const Scope& scope);
    Written textual(const Expr& expr, const Scope& scope);
    std::string condition(const Expr& expr, const Scope& scope);
    std::string chain(const Expr& expr, const Scope& scope);
    std::string comparison(const Expr& expr, const Scope& scope);
    std::string membership(const Expr& expr, const Scope& scope);
    std::pair<Written, Written> matched(const Expr& left, const Expr& right, const Scope& scope);
    Written beside(const Expr& expr, Kind other, const Scope& scope);
    Written literal_as(const Expr& literal, Kind kind) const;

    // Values written into fields: sql_writer_values.cpp.
    std::string assigned(const Expr& expr, const FieldDef& field, const Scope& scope);
    std::string assigned_literal(const Expr& expr, const FieldDef& field) const;
    std::string assigned_value(const Expr& expr, const FieldDef& field, const Scope& scope);

    [[noreturn]] void fail(std::size_t at, std::string_view message) const;

    std::string_view statement_;
    const SchemaLookup& schema_;
    Translation out_;

    /// Set while columns of a SELECT are written: aggregates are allowed there, and fields outside
    /// them are collected for the check against GROUP BY.
    struct Columns {
        std::vector<std::pair<const Expr*, FoundField>> fields;
        bool aggregate_seen = false;
        bool inside_aggregate = false;
    };
    Columns* columns_ = nullptr;
};

/// A literal in the engine's quotes.
std::string quoted_text(std::string_view text);
Kind kind_of(FieldType type);
/// The text of a value, by its kind; a text stays itself.
std::string text_of(const Written& value);
bool is_numeric(Kind kind);

}  // namespace store::sql
