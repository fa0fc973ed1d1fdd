// Literals read as the kind of the field beside them, and values written into fields.
#include <array>
#include <charconv>
#include <cmath>
#include <fmt/format.h>
#include <limits>

#include "base/datum.h"
#include "base/kodova_stranka.h"
#include "base/text.h"
#include "store/connection.h"
#include "store/sql_lexer.h"
#include "store/sql_writer.h"

namespace store::sql {

namespace {

/// The ISO form of a day written d.m.yyyy or yyyy-mm-dd; "" when it is none.
std::string iso_day(const std::string& text) {
    if (const auto day = base::datum_z_iso(text)) return base::datum_iso(*day);
    if (const auto day = base::datum_z_textu(text)) return base::datum_iso(*day);
    return "";
}

std::string iso_time(const std::string& text) {
    const auto time = base::datum_cas_z_iso(text);
    return time ? base::datum_cas_iso(*time) : "";
}

bool reads_as_number(const std::string& text) {
    double number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    return read.ec == std::errc() && read.ptr == text.data() + text.size() && std::isfinite(number);
}

bool is_number_literal(const Expr& expr) {
    return expr.kind == ExprKind::number ||
           (expr.kind == ExprKind::negate && expr.args[0]->kind == ExprKind::number);
}

std::string digits_of(const Expr& literal) {
    return literal.kind == ExprKind::negate ? "-" + literal.args[0]->text : literal.text;
}

bool whole_within(const std::string& digits, std::int64_t lowest, std::int64_t highest) {
    std::int64_t number = 0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return read.ec == std::errc() && read.ptr == digits.data() + digits.size() &&
           number >= lowest && number <= highest;
}

/// True when a field of the type may hold the number.
bool fits(const std::string& digits, FieldType type) {
    switch (type) {
        case FieldType::boolean:
            return digits == "0" || digits == "1";
        case FieldType::int16:
            return whole_within(digits, std::numeric_limits<std::int16_t>::min(),
                                std::numeric_limits<std::int16_t>::max());
        case FieldType::int32:
            return whole_within(digits, std::numeric_limits<std::int32_t>::min(),
                                std::numeric_limits<std::int32_t>::max());
        default:
            return type == FieldType::number && reads_as_number(digits);
    }
}

}  // namespace

std::string quoted_text(std::string_view text) {
    std::string quoted = "'";
    for (const char c : text) {
        if (c == '\'') quoted += '\'';
        quoted += c;
    }
    return quoted + "'";
}

Kind kind_of(FieldType type) {
    switch (type) {
        case FieldType::autoincrement:
        case FieldType::int16:
        case FieldType::int32:
            return Kind::whole;
        case FieldType::number:
            return Kind::number;
        case FieldType::boolean:
            return Kind::boolean;
        case FieldType::date:
            return Kind::date;
        case FieldType::timestamp:
            return Kind::timestamp;
        case FieldType::text:
            return Kind::text;
    }
    return Kind::any;
}

bool is_numeric(Kind kind) {
    return kind == Kind::whole || kind == Kind::number;
}

std::string text_of(const Written& value) {
    switch (value.kind) {
        case Kind::whole:
        case Kind::any:
            return "CAST(" + value.sql + " AS TEXT)";
        case Kind::number:
            // Without the ".0" that the engine puts behind a whole number.
            return fmt::format("(CASE WHEN {0} IS NOT NULL THEN PRINTF('%.15g', {0}) END)",
                               value.sql);
        case Kind::boolean:
            return fmt::format("(CASE {} WHEN 1 THEN 'true' WHEN 0 THEN 'false' END)", value.sql);
        default:
            return value.sql;
    }
}

/// An empty text is an empty field of any kind.
Written Writer::literal_as(const Expr& literal, Kind kind) const {
    const std::string& text = literal.text;
    if (kind == Kind::text) return {quoted_text(text), kind};
    if (text.empty()) return {"NULL", kind};
    if (kind == Kind::boolean) {
        if (same_name(text, "true") || text == "1") return {"1", kind};
        if (same_name(text, "false") || text == "0") return {"0", kind};
        fail(literal.begin, "očekáváno ano/ne (TRUE nebo FALSE)");
    }
    if (kind == Kind::date || kind == Kind::timestamp) {
        if (const std::string day = iso_day(text); !day.empty()) {
            return {quoted_text(day), Kind::date};
        }
        const std::string time = iso_time(text);
        if (kind == Kind::timestamp && !time.empty()) return {quoted_text(time), kind};
        fail(literal.begin, fmt::format("\"{}\" není platné datum", text));
    }
    if (!reads_as_number(text)) fail(literal.begin, fmt::format("\"{}\" není číslo", text));
    return {"(" + text + ")", Kind::number};
}

std::string Writer::assigned(const Expr& expr, const FieldDef& field, const Scope& scope) {
    if (field.type == FieldType::autoincrement) {
        fail(expr.begin, fmt::format("pole \"{}\" plní sama tabulka", field.name));
    }
    if (expr.kind == ExprKind::text || is_number_literal(expr)) {
        return assigned_literal(expr, field);
    }
    return assigned_value(expr, field, scope);
}

std::string Writer::assigned_literal(const Expr& expr, const FieldDef& field) const {
    const auto refuse = [&] {
        fail(expr.begin,
             fmt::format("do pole \"{}\" lze zapsat {}", field.name, type_in_words(field)));
    };
    const bool number = is_number_literal(expr);
    const std::string text = number ? digits_of(expr) : expr.text;
    if (text.empty()) return "NULL";
    switch (field.type) {
        case FieldType::text:
            if (base::pocet_znaku(text) > static_cast<std::size_t>(field.size)) refuse();
            if (!base::je_v_1250(text)) refuse();
            return quoted_text(text);
        case FieldType::date:
            if (number || iso_day(text).empty()) refuse();
            return quoted_text(iso_day(text));
        case FieldType::timestamp: {
            const std::string day = iso_day(text);
            const std::string time = day.empty() ? iso_time(text) : day + "T00:00:00";
            if (number || time.empty()) refuse();
            return quoted_text(time);
        }
        case FieldType::boolean:
            if (!number) return literal_as(expr, Kind::boolean).sql;
            [[fallthrough]];
        default:
            if (!fits(text, field.type)) refuse();
            return "(" + text + ")";
    }
}

std::string Writer::assigned_value(const Expr& expr, const FieldDef& field, const Scope& scope) {
    const Written written = value(expr, scope);
    const Kind target = kind_of(field.type);
    if (target == Kind::text) {
        if (written.sql == "NULL") return written.sql;
        return fmt::format("SUBSTR({}, 1, {})", text_of(written), field.size);
    }
    if (written.kind == Kind::any || written.kind == target) return written.sql;
    if (target == Kind::number && written.kind == Kind::whole) return written.sql;
    if (target == Kind::date && written.kind == Kind::timestamp) {
        return "SUBSTR(" + written.sql + ", 1, 10)";
    }
    fail(expr.begin, fmt::format("do pole \"{}\" lze zapsat {}", field.name, type_in_words(field)));
}

}  // namespace store::sql
