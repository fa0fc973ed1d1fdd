// Conditions and expressions of the dialect.
#include <algorithm>
#include <array>
#include <utility>

#include "store/connection.h"
#include "store/sql_parser.h"

namespace store::sql {

namespace {

/// How deep parentheses, NOT, minus signs and subqueries may nest, and how many links a chain of
/// operators may have; beyond them the statement is refused.
constexpr int max_nesting = 24;
constexpr int max_depth = 400;

constexpr std::array<std::string_view, 4> aggregates = {"SUM", "COUNT", "MIN", "MAX"};
constexpr std::array<std::string_view, 6> comparisons = {"=", "<>", "<", "<=", ">", ">="};

template <class List>
bool is_one_of(const List& list, std::string_view word) {
    return std::find(list.begin(), list.end(), word) != list.end();
}

}  // namespace

Parser::Level::Level(Parser& parser) : parser_(parser) {
    if (++parser_.nesting_ > max_nesting) {
        fail_at(parser_.at_.statement(), parser_.at_.now().begin, "příliš mnoho vnořených závorek");
    }
}

ExprPtr Parser::node(ExprKind kind, std::size_t begin) {
    auto made = std::make_unique<Expr>();
    made->kind = kind;
    made->begin = begin;
    made->end = begin;
    return made;
}

ExprPtr Parser::leaf(ExprKind kind, std::string text) {
    auto made = node(kind, at_.begin_of_taken());
    made->text = std::move(text);
    close(*made);
    return made;
}

ExprPtr Parser::binary(ExprKind kind, std::string op, ExprPtr left, ExprPtr right) {
    auto made = node(kind, left->begin);
    made->text = std::move(op);
    add(*made, std::move(left));
    add(*made, std::move(right));
    return made;
}

void Parser::add(Expr& parent, ExprPtr operand) {
    parent.depth = std::max(parent.depth, operand->depth + 1);
    if (parent.depth > max_depth) fail_at(at_.statement(), parent.begin, "příliš složený výraz");
    parent.args.push_back(std::move(operand));
    close(parent);
}

ExprPtr Parser::condition() {
    auto left = conjunction();
    while (at_.accept("OR"))
        left = binary(ExprKind::either, "OR", std::move(left), conjunction());
    return left;
}

ExprPtr Parser::conjunction() {
    auto left = inversion();
    while (at_.accept("AND"))
        left = binary(ExprKind::both, "AND", std::move(left), inversion());
    return left;
}

ExprPtr Parser::inversion() {
    const auto begin = at_.now().begin;
    if (!at_.accept("NOT")) return predicate();
    const Level level(*this);
    auto made = node(ExprKind::inverse, begin);
    add(*made, inversion());
    return made;
}

ExprPtr Parser::predicate() {
    const auto begin = at_.now().begin;
    if (at_.accept("EXISTS")) {
        auto made = node(ExprKind::exists, begin);
        at_.expect("(");
        made->query = subquery();
        at_.expect(")");
        close(*made);
        return made;
    }
    auto left = sum();
    if (at_.now().kind == TokenKind::symbol && is_one_of(comparisons, at_.now().upper)) {
        std::string op = at_.take().upper;
        return binary(ExprKind::compare, std::move(op), std::move(left), sum());
    }
    if (at_.accept("IS")) {
        auto made = node(ExprKind::is_null, begin);
        made->negated = at_.accept("NOT");
        at_.expect("NULL");
        add(*made, std::move(left));
        return made;
    }
    const bool negated = at_.accept("NOT");
    if (at_.accept("LIKE")) {
        auto made = binary(ExprKind::like, "LIKE", std::move(left), sum());
        made->negated = negated;
        return made;
    }
    if (at_.accept("IN")) return in_set(std::move(left), negated);
    if (negated) at_.fail("očekáváno LIKE nebo IN");
    return left;
}

ExprPtr Parser::in_set(ExprPtr left, bool negated) {
    at_.expect("(");
    const bool query = at_.sees("SELECT");
    auto made = node(query ? ExprKind::in_query : ExprKind::in_list, left->begin);
    made->negated = negated;
    add(*made, std::move(left));
    if (query) {
        made->query = subquery();
    } else {
        do {
            add(*made, sum());
        } while (at_.accept(","));
    }
    at_.expect(")");
    close(*made);
    return made;
}

std::unique_ptr<Select> Parser::subquery() {
    const Level level(*this);
    return std::make_unique<Select>(select());
}

ExprPtr Parser::sum() {
    auto left = product();
    while (at_.sees("+") || at_.sees("-")) {
        std::string op = at_.take().upper;
        left = binary(ExprKind::arithmetic, std::move(op), std::move(left), product());
    }
    return left;
}

ExprPtr Parser::product() {
    auto left = factor();
    while (at_.sees("*") || at_.sees("/")) {
        std::string op = at_.take().upper;
        left = binary(ExprKind::arithmetic, std::move(op), std::move(left), factor());
    }
    return left;
}

ExprPtr Parser::factor() {
    const auto begin = at_.now().begin;
    if (at_.accept("-")) {
        const Level level(*this);
        auto made = node(ExprKind::negate, begin);
        add(*made, factor());
        return made;
    }
    if (at_.accept("(")) {
        const Level level(*this);
        auto inner = condition();
        at_.expect(")");
        return inner;
    }
    if (at_.accept("TRUE")) return leaf(ExprKind::boolean, "1");
    if (at_.accept("FALSE")) return leaf(ExprKind::boolean, "0");
    if (at_.accept("NULL")) return leaf(ExprKind::null, "");
    switch (at_.now().kind) {
        case TokenKind::number:
            return leaf(ExprKind::number, at_.take().text);
        case TokenKind::text:
            return leaf(ExprKind::text, at_.take().text);
        case TokenKind::parameter:
            return leaf(ExprKind::parameter, at_.take().text);
        case TokenKind::quoted:
            if (at_.ahead(1).upper != ".") return leaf(ExprKind::text, at_.take().text);
            return field();
        default:
            return at_.ahead(1).upper == "(" && at_.now().kind == TokenKind::word ? call()
                                                                                  : field();
    }
}

ExprPtr Parser::call() {
    if (at_.sees("CAST")) return cast();
    const bool aggregate = is_one_of(aggregates, at_.now().upper);
    if (!aggregate && !at_.sees("UPPER") && !at_.sees("TRIM"))
        at_.fail("očekáváno pole nebo známá funkce");
    const Level level(*this);
    auto made = node(aggregate ? ExprKind::aggregate : ExprKind::function, at_.now().begin);
    made->text = at_.take().upper;
    at_.expect("(");
    if (made->text != "COUNT" || !at_.accept("*")) add(*made, sum());
    at_.expect(")");
    close(*made);
    return made;
}

ExprPtr Parser::cast() {
    const Level level(*this);
    const auto begin = at_.take().begin;
    at_.expect("(");
    auto inner = sum();
    at_.expect("AS");
    const bool date = at_.accept("DATE");
    auto made = node(date ? ExprKind::cast_date : ExprKind::cast_text, begin);
    if (!date) {
        if (!at_.accept("VARCHAR")) {
            if (!at_.accept("CHAR")) at_.fail("očekáváno VARCHAR, CHAR nebo DATE");
        }
        made->size = at_.size_in_parentheses();
    }
    at_.expect(")");
    add(*made, std::move(inner));
    return made;
}

ExprPtr Parser::field() {
    auto made = node(ExprKind::field, at_.now().begin);
    if (at_.now().kind == TokenKind::quoted && at_.ahead(1).upper == ".") {
        made->qualifier = bare_table_name(at_.take().text);
    } else {
        made->text = at_.name("jméno pole");
        if (at_.sees(".")) made->qualifier = std::exchange(made->text, {});
    }
    if (at_.accept(".")) {
        const bool nameable =
            at_.now().kind == TokenKind::word || at_.now().kind == TokenKind::quoted;
        if (!nameable) at_.fail("očekáváno jméno pole");
        made->text = at_.take().text;
    }
    close(*made);
    return made;
}

}  // namespace store::sql
