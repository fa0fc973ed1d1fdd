// Words of the SQL dialect: cuts a statement into tokens and speaks of places in it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace store::sql {

enum class TokenKind {
    word,       ///< identifier or keyword
    text,       ///< 'text', always a text
    quoted,     ///< "text": a table's name where a table is expected, a text elsewhere
    number,     ///< unsigned, with a decimal point
    parameter,  ///< :name
    symbol,     ///< operator or punctuation
    end
};

struct Token {
    TokenKind kind = TokenKind::end;
    std::string text;       ///< without quotes or colon; of a word as it was written
    std::string upper;      ///< a word in upper case, a symbol itself; empty otherwise
    std::size_t begin = 0;  ///< bytes of the statement that it covers
    std::size_t end = 0;
};

/// Tokens of a statement, the last one of kind `end`. Throws StoreError for a character or a quote
/// out of place.
std::vector<Token> tokens_of(std::string_view statement);

/// Throws StoreError "Chyba v dotazu, znak n: message"; `at` is a byte offset.
[[noreturn]] void fail_at(std::string_view statement, std::size_t at, std::string_view message);

}  // namespace store::sql
