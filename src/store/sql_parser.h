// The grammar of the SQL dialect, by recursive descent.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "store/sql_ast.h"
#include "store/sql_cursor.h"

namespace store::sql {

class Parser {
  public:
    explicit Parser(std::string_view statement) : at_(statement) {}

    /// Parses exactly one statement, with or without ";" behind it. Throws StoreError with the
    /// place and what was expected. Depth of nesting is bounded.
    Statement whole();

  private:
    // Statements: sql_parser.cpp.
    Statement any_statement();
    Query query();
    Select select();
    SelectItem select_item();
    TableName table();
    TableName from_table();
    OrderTerm order_term();
    Update update();
    Insert insert();
    Remove remove();
    Statement alter();
    CreateTable create_table();
    CreateIndex create_index();
    FieldDef field_with_type();

    // Conditions and expressions: sql_parser_expressions.cpp.
    ExprPtr condition();
    ExprPtr conjunction();
    ExprPtr inversion();
    ExprPtr predicate();
    ExprPtr in_set(ExprPtr left, bool negated);
    std::unique_ptr<Select> subquery();
    ExprPtr sum();
    ExprPtr product();
    ExprPtr factor();
    ExprPtr call();
    ExprPtr cast();
    ExprPtr field();

    static ExprPtr node(ExprKind kind, std::size_t begin);
    /// A leaf made of the token taken last.
    ExprPtr leaf(ExprKind kind, std::string text);
    ExprPtr binary(ExprKind kind, std::string op, ExprPtr left, ExprPtr right);
    /// Hangs an operand under an expression, which then reaches up to the last token taken.
    void add(Expr& parent, ExprPtr operand);
    void close(Expr& expr) const { expr.end = at_.end_of_taken(); }

    /// Counts one level of nesting for as long as it lives.
    class Level {
      public:
        explicit Level(Parser& parser);
        ~Level() { --parser_.nesting_; }
        Level(const Level&) = delete;
        Level& operator=(const Level&) = delete;

      private:
        Parser& parser_;
    };

    Cursor at_;
    int nesting_ = 0;
};

inline Statement parse(std::string_view statement) {
    return Parser(statement).whole();
}

}  // namespace store::sql
