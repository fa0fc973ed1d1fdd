#include "store/sql_cursor.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <fmt/format.h>

namespace store::sql {

namespace {

/// Words that never name a field, a table or an alias unless they are in quotes or behind a dot.
constexpr std::array<std::string_view, 39> reserved = {
    "ALL",    "AND",   "AS",     "ASC",    "BY",     "CREATE",  "DELETE",  "DESC",
    "EXISTS", "FALSE", "FROM",   "GROUP",  "HAVING", "IN",      "INNER",   "INSERT",
    "INTO",   "IS",    "JOIN",   "LEFT",   "LIKE",   "LIMIT",   "NOT",     "NULL",
    "ON",     "OR",    "ORDER",  "OUTER",  "RIGHT",  "SELECT",  "SET",     "TABLE",
    "TRUE",   "UNION", "UPDATE", "VALUES", "WHERE",  "BETWEEN", "DISTINCT"};

}  // namespace

const Token& Cursor::ahead(std::size_t n) const {
    return tokens_[std::min(at_ + n, tokens_.size() - 1)];
}

bool Cursor::sees_name() const {
    return now().kind == TokenKind::word &&
           std::find(reserved.begin(), reserved.end(), now().upper) == reserved.end();
}

Token Cursor::take() {
    return tokens_[at_ + 1 < tokens_.size() ? at_++ : at_];
}

bool Cursor::accept(std::string_view upper) {
    if (!sees(upper)) return false;
    take();
    return true;
}

void Cursor::expect(std::string_view upper) {
    if (!accept(upper)) fail(fmt::format("očekáváno {}", upper));
}

std::string Cursor::name(std::string_view what) {
    if (!sees_name()) fail(fmt::format("očekáváno {}", what));
    return take().text;
}

int Cursor::size_in_parentheses() {
    expect("(");
    int size = 0;
    const std::string& digits = now().text;
    if (now().kind == TokenKind::number) {
        const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), size);
        if (read.ptr != digits.data() + digits.size()) size = 0;
    }
    if (size < 1 || size > 255) fail("očekávána délka textu 1 až 255");
    take();
    expect(")");
    return size;
}

void Cursor::fail(std::string_view expected) const {
    const Token& here = now();
    const auto found =
        here.kind == TokenKind::end
            ? std::string("konec dotazu")
            : fmt::format("\"{}\"", statement_.substr(here.begin, here.end - here.begin));
    fail_at(statement_, here.begin, fmt::format("{}, je {}", expected, found));
}

}  // namespace store::sql
