// Values and conditions. Every compound is written in parentheses of its own, so that the engine's
// precedence never matters; a long chain of one operator stays flat.
#include <algorithm>
#include <cctype>
#include <fmt/format.h>
#include <fmt/ranges.h>

#include "store/connection.h"
#include "store/engine_sql.h"
#include "store/sql_lexer.h"
#include "store/sql_writer.h"

namespace store::sql {

namespace {

std::string_view kind_in_words(Kind kind) {
    switch (kind) {
        case Kind::whole:
        case Kind::number:
            return "číslo";
        case Kind::boolean:
            return "ano/ne";
        case Kind::date:
            return "datum";
        case Kind::timestamp:
            return "datum a čas";
        case Kind::text:
            return "text";
        case Kind::any:
            return "hodnota";
    }
    return "?";
}

bool is_whole_number(const std::string& digits) {
    return std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; });
}

bool comparable(Kind a, Kind b) {
    if (a == b || a == Kind::any || b == Kind::any) return true;
    const auto day = [](Kind kind) { return kind == Kind::date || kind == Kind::timestamp; };
    const auto count = [](Kind kind) { return is_numeric(kind) || kind == Kind::boolean; };
    return (day(a) && day(b)) || (count(a) && count(b));
}

/// Operands of a left-leaning chain of operators that `belongs` picks, from the left.
template <class Belongs>
std::vector<const Expr*> links_of(const Expr& expr, Belongs belongs) {
    std::vector<const Expr*> links;
    const Expr* left = &expr;
    for (; belongs(*left); left = left->args[0].get())
        links.push_back(left);
    std::reverse(links.begin(), links.end());
    return links;
}

bool is_sum(const Expr& expr) {
    return expr.kind == ExprKind::arithmetic && (expr.text == "+" || expr.text == "-");
}
bool is_product(const Expr& expr) {
    return expr.kind == ExprKind::arithmetic && !is_sum(expr);
}

bool is_empty_text(const Expr& expr) {
    return expr.kind == ExprKind::text && expr.text.empty();
}

}  // namespace

// --- Fields and simple values -------------------------------------------------------------------

/// A name that both tables of a join have belongs to the first one.
FoundField Writer::find(const Expr& field, const Scope& scope) const {
    bool qualifier_known = field.qualifier.empty();
    for (const Scope* level = &scope; level; level = level->outer) {
        for (const auto& source : level->sources) {
            if (!field.qualifier.empty() && !same_name(field.qualifier, source.name)) continue;
            qualifier_known = true;
            const int position = source.table.field_index(field.text);
            if (position >= 0) {
                return {&source, &source.table.fields[static_cast<std::size_t>(position)]};
            }
        }
    }
    if (!qualifier_known) {
        fail(field.begin, fmt::format("tabulka \"{}\" v dotazu není", field.qualifier));
    }
    std::vector<std::string> tables;
    for (const auto& source : scope.sources) {
        if (field.qualifier.empty() || same_name(field.qualifier, source.name)) {
            tables.push_back("\"" + source.table.name + "\"");
        }
    }
    if (tables.empty()) {
        fail(field.begin, fmt::format("pole \"{}\" zde nelze použít", field.text));
    }
    fail(field.begin, fmt::format("pole \"{}\" v tabulce {} neexistuje", field.text,
                                  fmt::join(tables, " ani ")));
}

Written Writer::field_value(const Expr& expr, const Scope& scope) {
    const FoundField found = find(expr, scope);
    if (columns_ && !columns_->inside_aggregate) columns_->fields.emplace_back(&expr, found);
    return {in_quotes(found.source->name) + "." + in_quotes(found.field->name),
            kind_of(found.field->type)};
}

Written Writer::parameter(const Expr& expr) {
    auto& names = out_.parameters;
    auto known = std::find_if(names.begin(), names.end(),
                              [&](const auto& name) { return same_name(name, expr.text); });
    if (known == names.end()) known = names.insert(names.end(), expr.text);
    return {":" + *known, Kind::any};
}

Written Writer::value(const Expr& expr, const Scope& scope) {
    switch (expr.kind) {
        case ExprKind::number:
            return {expr.text, is_whole_number(expr.text) ? Kind::whole : Kind::number};
        case ExprKind::text:
            return {quoted_text(expr.text), Kind::text};
        case ExprKind::boolean:
            return {expr.text, Kind::boolean};
        case ExprKind::null:
            return {"NULL", Kind::any};
        case ExprKind::parameter:
            return parameter(expr);
        case ExprKind::field:
            return field_value(expr, scope);
        case ExprKind::negate: {
            const Written inner = numeric(*expr.args[0], scope);
            return {"(-" + inner.sql + ")", inner.kind};
        }
        case ExprKind::arithmetic:
            return is_sum(expr) ? sum(expr, scope) : product(expr, scope);
        case ExprKind::aggregate:
            return aggregate(expr, scope);
        case ExprKind::function:
            return {expr.text + "(" + textual(*expr.args[0], scope).sql + ")", Kind::text};
        case ExprKind::cast_text:
            return {
                fmt::format("SUBSTR({}, 1, {})", text_of(value(*expr.args[0], scope)), expr.size),
                Kind::text};
        case ExprKind::cast_date:
            return day(expr, scope);
        default:
            fail(expr.begin, "podmínka nemůže být hodnotou");
    }
}

/// The card keeps days as texts d.m.yyyy; the engine reads a number up to the first other sign.
Written Writer::day(const Expr& expr, const Scope& scope) {
    const Written day = value(*expr.args[0], scope);
    if (day.kind == Kind::date) return day;
    if (day.kind != Kind::text) fail(expr.begin, "na datum lze převést jen text");
    const std::string rest = fmt::format("SUBSTR({0}, INSTR({0}, '.') + 1)", day.sql);
    return {fmt::format("(CASE WHEN {0} LIKE '_%._%.____' THEN PRINTF('%04d-%02d-%02d', "
                        "CAST(SUBSTR({0}, -4) AS INTEGER), CAST({1} AS INTEGER), "
                        "CAST({0} AS INTEGER)) END)",
                        day.sql, rest),
            Kind::date};
}

Written Writer::numeric(const Expr& expr, const Scope& scope) {
    Written written = value(expr, scope);
    if (!is_numeric(written.kind) && written.kind != Kind::any) {
        fail(expr.begin,
             fmt::format("počítat lze jen s čísly, zde je {}", kind_in_words(written.kind)));
    }
    return written;
}

Written Writer::textual(const Expr& expr, const Scope& scope) {
    Written written = value(expr, scope);
    if (written.kind != Kind::text && written.kind != Kind::any) {
        fail(expr.begin, fmt::format("očekáván text, zde je {}", kind_in_words(written.kind)));
    }
    return written;
}

/// "+" joins when one side is a text, and adds otherwise.
Written Writer::sum(const Expr& expr, const Scope& scope) {
    const auto links = links_of(expr, is_sum);
    const Expr& first = *links[0]->args[0];
    Written left = value(first, scope);
    const auto require_number = [&](const Written& operand, const Expr& where) {
        if (is_numeric(operand.kind) || operand.kind == Kind::any) return;
        fail(where.begin,
             fmt::format("počítat lze jen s čísly, zde je {}", kind_in_words(operand.kind)));
    };
    bool joining = false;
    bool open_sum = false;
    for (const Expr* link : links) {
        const Written right = value(*link->args[1], scope);
        const bool join =
            link->text == "+" && (left.kind == Kind::text || right.kind == Kind::text);
        if (join) {
            if (open_sum) left.sql = "(" + left.sql + ")";
            left.sql =
                joining ? left.sql + ", " + text_of(right) : text_of(left) + ", " + text_of(right);
            left.kind = Kind::text;
            joining = true;
            open_sum = false;
        } else {
            require_number(left, *link);
            require_number(right, *link->args[1]);
            left.sql += " " + link->text + " " + right.sql;
            const bool whole = left.kind == Kind::whole && right.kind == Kind::whole;
            left.kind = whole ? Kind::whole : Kind::number;
            open_sum = true;
        }
    }
    left.sql = (joining ? "ZJOIN(" : "(") + left.sql + ")";
    return left;
}

/// A quotient is never a whole-number one, as the engine's would be.
Written Writer::product(const Expr& expr, const Scope& scope) {
    const auto links = links_of(expr, is_product);
    Written left = numeric(*links[0]->args[0], scope);
    for (const Expr* link : links) {
        const Written right = numeric(*link->args[1], scope);
        const bool quotient = link->text == "/";
        left.sql += (quotient ? " * 1.0 / " : " * ") + right.sql;
        const bool whole = !quotient && left.kind == Kind::whole && right.kind == Kind::whole;
        left.kind = whole ? Kind::whole : Kind::number;
    }
    left.sql = "(" + left.sql + ")";
    return left;
}

Written Writer::aggregate(const Expr& expr, const Scope& scope) {
    if (!columns_ || columns_->inside_aggregate) {
        fail(expr.begin, fmt::format("{} smí stát jen v seznamu sloupců", expr.text));
    }
    columns_->aggregate_seen = true;
    if (expr.args.empty()) return {"COUNT(*)", Kind::whole};
    columns_->inside_aggregate = true;
    Written inner =
        expr.text == "SUM" ? numeric(*expr.args[0], scope) : value(*expr.args[0], scope);
    columns_->inside_aggregate = false;
    const bool by_order = expr.text == "MIN" || expr.text == "MAX";
    if (by_order && inner.kind == Kind::text) {
        inner.sql += fmt::format(" COLLATE {}", collation_exact);
    }
    return {expr.text + "(" + inner.sql + ")", expr.text == "COUNT" ? Kind::whole : inner.kind};
}

// --- Conditions ---------------------------------------------------------------------------------

std::string Writer::condition(const Expr& expr, const Scope& scope) {
    switch (expr.kind) {
        case ExprKind::both:
        case ExprKind::either:
            return chain(expr, scope);
        case ExprKind::inverse:
            return "(NOT " + condition(*expr.args[0], scope) + ")";
        case ExprKind::compare:
            return comparison(expr, scope);
        case ExprKind::is_null: {
            const Written tested = value(*expr.args[0], scope);
            // An empty text and no text are one and the same.
            if (tested.kind != Kind::text) {
                return fmt::format("({} IS {}NULL)", tested.sql, expr.negated ? "NOT " : "");
            }
            return fmt::format("(COALESCE({}, '') {} '')", tested.sql, expr.negated ? "<>" : "=");
        }
        case ExprKind::like: {
            const Written left = textual(*expr.args[0], scope);
            const Written pattern = textual(*expr.args[1], scope);
            return fmt::format("({} {}LIKE {})", left.sql, expr.negated ? "NOT " : "", pattern.sql);
        }
        case ExprKind::in_list:
        case ExprKind::in_query:
            return membership(expr, scope);
        case ExprKind::exists:
            return "EXISTS (" + select(*expr.query, &scope).sql + ")";
        default: {
            const Written flag = value(expr, scope);
            if (flag.kind == Kind::boolean) return flag.sql;
            fail(expr.begin,
                 fmt::format("očekávána podmínka, zde je {}", kind_in_words(flag.kind)));
        }
    }
}

std::string Writer::chain(const Expr& expr, const Scope& scope) {
    const auto links = links_of(expr, [&](const Expr& e) { return e.kind == expr.kind; });
    std::vector<std::string> terms = {condition(*links[0]->args[0], scope)};
    for (const Expr* link : links)
        terms.push_back(condition(*link->args[1], scope));
    return fmt::format("({})", fmt::join(terms, " " + expr.text + " "));
}

/// An operand next to one of a known kind: a literal is read as that kind.
Written Writer::beside(const Expr& expr, Kind other, const Scope& scope) {
    const bool text = expr.kind == ExprKind::text && other != Kind::text && other != Kind::any;
    const bool number = expr.kind == ExprKind::number && other == Kind::text;
    return text || number ? literal_as(expr, other) : value(expr, scope);
}

std::pair<Written, Written> Writer::matched(const Expr& left, const Expr& right,
                                            const Scope& scope) {
    const auto literal = [](const Expr& e) {
        return e.kind == ExprKind::text || e.kind == ExprKind::number;
    };
    std::pair<Written, Written> sides;
    if (literal(left)) {
        sides.second = value(right, scope);
        sides.first = beside(left, sides.second.kind, scope);
    } else {
        sides.first = value(left, scope);
        sides.second = beside(right, sides.first.kind, scope);
    }
    auto& [a, b] = sides;
    if (!comparable(a.kind, b.kind)) {
        fail(left.begin,
             fmt::format("nelze porovnat {} a {}", kind_in_words(a.kind), kind_in_words(b.kind)));
    }
    if (a.kind != b.kind) {
        for (Written* side : {&a, &b}) {
            const Kind other = side == &a ? b.kind : a.kind;
            if (side->kind == Kind::timestamp && other == Kind::date) {
                side->sql = "SUBSTR(" + side->sql + ", 1, 10)";
            }
        }
    }
    return sides;
}

std::string Writer::comparison(const Expr& expr, const Scope& scope) {
    const Expr& left = *expr.args[0];
    const Expr& right = *expr.args[1];
    const auto [a, b] = matched(left, right, scope);
    const bool equality = expr.text == "=" || expr.text == "<>";
    const bool texts = a.kind == Kind::text || b.kind == Kind::text;
    if (!texts && equality && (is_empty_text(left) || is_empty_text(right))) {
        return fmt::format("({} IS {}NULL)", is_empty_text(left) ? b.sql : a.sql,
                           expr.text == "=" ? "" : "NOT ");
    }
    if (texts && !equality) {
        return fmt::format("({} COLLATE {} {} {})", a.sql, collation_exact, expr.text, b.sql);
    }
    const auto may_be_empty = [](const Expr& e) {
        return is_empty_text(e) || e.kind == ExprKind::parameter;
    };
    if (texts && expr.text == "=" && (may_be_empty(left) || may_be_empty(right))) {
        const auto or_blank = [](const Expr& e, const std::string& sql) {
            return e.kind == ExprKind::text ? sql : "COALESCE(" + sql + ", '')";
        };
        return fmt::format("({} = {})", or_blank(left, a.sql), or_blank(right, b.sql));
    }
    return fmt::format("({} {} {})", a.sql, expr.text, b.sql);
}

std::string Writer::membership(const Expr& expr, const Scope& scope) {
    Written tested = value(*expr.args[0], scope);
    const std::string_view in = expr.negated ? "NOT IN" : "IN";
    if (expr.kind == ExprKind::in_query) {
        const WrittenSelect query = select(*expr.query, &scope);
        if (query.outputs.size() != 1) fail(expr.begin, "dotaz za IN musí mít jeden sloupec");
        if (!comparable(tested.kind, query.outputs[0].kind)) {
            fail(expr.begin, fmt::format("nelze porovnat {} a {}", kind_in_words(tested.kind),
                                         kind_in_words(query.outputs[0].kind)));
        }
        return fmt::format("({} {} ({}))", tested.sql, in, query.sql);
    }
    std::vector<std::string> list;
    bool empty_text = false;
    for (std::size_t i = 1; i < expr.args.size(); ++i) {
        const Written item = beside(*expr.args[i], tested.kind, scope);
        if (!comparable(tested.kind, item.kind)) {
            fail(expr.args[i]->begin,
                 fmt::format("nelze porovnat {} a {}", kind_in_words(tested.kind),
                             kind_in_words(item.kind)));
        }
        empty_text = empty_text || is_empty_text(*expr.args[i]);
        list.push_back(item.sql);
    }
    if (empty_text && tested.kind == Kind::text) tested.sql = "COALESCE(" + tested.sql + ", '')";
    return fmt::format("({} {} ({}))", tested.sql, in, fmt::join(list, ", "));
}

}  // namespace store::sql
