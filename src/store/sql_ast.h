// A statement of the dialect as a tree: what the parser makes and the writer reads.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "store/definition.h"

namespace store::sql {

struct Select;

enum class ExprKind {
    number,      ///< text: the digits
    text,        ///< text: the literal
    boolean,     ///< text: "1" or "0"
    null,        ///
    parameter,   ///< text: the name
    field,       ///< text: the field, qualifier: table or alias, or ""
    negate,      ///< -a
    arithmetic,  ///< text: + - * /
    compare,     ///< text: = <> < <= > >=
    both,        ///< a AND b
    either,      ///< a OR b
    inverse,     ///< NOT a
    is_null,     ///< a IS [NOT] NULL
    like,        ///< a [NOT] LIKE b
    in_list,     ///< a [NOT] IN (b, c)
    in_query,    ///< a [NOT] IN (SELECT)
    exists,      ///< EXISTS (SELECT)
    aggregate,   ///< text: SUM, COUNT, MIN, MAX; no argument is COUNT(*)
    function,    ///< text: UPPER, TRIM
    cast_text,   ///< CAST(a AS VARCHAR(size))
    cast_date    ///< CAST(a AS DATE)
};

struct Expr {
    ExprKind kind;
    std::size_t begin = 0;  ///< bytes of the statement that it covers
    std::size_t end = 0;
    std::string text;
    std::string qualifier;
    bool negated = false;
    int size = 0;
    int depth = 1;
    std::vector<std::unique_ptr<Expr>> args;
    std::unique_ptr<Select> query;
};
using ExprPtr = std::unique_ptr<Expr>;

struct TableName {
    std::string name;   ///< bare
    std::string alias;  ///< "" when there is none
    std::size_t at = 0;
};

struct SelectItem {
    ExprPtr expr;  ///< null is "*"
    std::string alias;
};

struct Join {
    TableName table;
    ExprPtr on;
};

/// One SELECT without ORDER BY.
struct Select {
    std::vector<SelectItem> items;
    TableName from;
    std::optional<Join> join;
    ExprPtr where;
    std::vector<ExprPtr> group_by;
};

struct OrderTerm {
    ExprPtr field;  ///< a field or a column's number
    bool descending = false;
};

/// SELECTs joined by UNION and the order of the whole.
struct Query {
    std::vector<Select> parts;
    std::vector<bool> union_all;  ///< one less than parts
    std::vector<OrderTerm> order_by;
};

struct Assignment {
    std::string field;
    std::size_t at = 0;
    ExprPtr value;
};
struct Update {
    TableName table;
    std::vector<Assignment> set;
    ExprPtr where;
};
struct Insert {
    TableName table;
    std::vector<Assignment> values;
};
struct Remove {
    TableName table;
    ExprPtr where;
};

struct AddField {
    TableName table;
    FieldDef field;
    std::size_t at = 0;
};
struct DropField {
    TableName table;
    std::string field;
    std::size_t at = 0;
};
struct CreateTable {
    TableName table;
    std::vector<FieldDef> fields;
};
struct CreateIndex {
    std::string name;
    TableName table;
    std::vector<std::string> fields;
    std::vector<std::size_t> places;  ///< of the fields
};

using Statement =
    std::variant<Query, Update, Insert, Remove, AddField, DropField, CreateTable, CreateIndex>;

}  // namespace store::sql
