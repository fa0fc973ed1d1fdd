#include "store/sql_lexer.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>

#include "base/text.h"
#include "store/connection.h"

namespace store::sql {

namespace {

bool is_digit(char c) {
    return c >= '0' && c <= '9';
}
bool is_blank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}
char upper_of(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

/// Bytes above 127 are letters, so that an accented name is reported whole as an unknown one.
bool begins_word(char c) {
    return (upper_of(c) >= 'A' && upper_of(c) <= 'Z') || c == '_' ||
           static_cast<unsigned char>(c) > 127;
}

class Lexer {
  public:
    explicit Lexer(std::string_view statement) : statement_(statement) {}

    std::vector<Token> all() {
        if (!base::je_utf8(statement_)) throw StoreError("Dotaz není platný text UTF-8.");
        std::vector<Token> tokens;
        do {
            tokens.push_back(next());
        } while (tokens.back().kind != TokenKind::end);
        return tokens;
    }

  private:
    Token next() {
        while (at_ < statement_.size() && is_blank(statement_[at_]))
            ++at_;
        Token token;
        token.begin = at_;
        if (at_ < statement_.size()) read(token);
        token.end = at_;
        return token;
    }

    void read(Token& token) {
        const char c = statement_[at_];
        if (c == '\'' || c == '"') {
            token.kind = c == '"' ? TokenKind::quoted : TokenKind::text;
            token.text = quoted(c);
        } else if (is_digit(c)) {
            token.kind = TokenKind::number;
            token.text = number();
        } else if (begins_word(c)) {
            token.kind = TokenKind::word;
            token.text = word();
            token.upper = token.text;
            std::transform(token.upper.begin(), token.upper.end(), token.upper.begin(), upper_of);
        } else if (c == ':' && begins_word(peek(1))) {
            ++at_;
            token.kind = TokenKind::parameter;
            token.text = word();
        } else {
            token.kind = TokenKind::symbol;
            token.text = symbol();
            token.upper = token.text;
        }
    }

    char peek(std::size_t ahead) const {
        return at_ + ahead < statement_.size() ? statement_[at_ + ahead] : '\0';
    }

    /// A text in quotes; a doubled quote inside stands for one.
    std::string quoted(char quote) {
        const auto begin = at_++;
        std::string text;
        for (; at_ < statement_.size(); ++at_) {
            const char c = statement_[at_];
            if (c == '\0') fail_at(statement_, at_, "nulový znak v textu");
            if (c == quote && peek(1) != quote) {
                ++at_;
                return text;
            }
            if (c == quote) ++at_;
            text += c;
        }
        fail_at(statement_, begin, "text není ukončen uvozovkou");
    }

    std::string word() {
        const auto begin = at_;
        while (begins_word(peek(0)) || is_digit(peek(0)))
            ++at_;
        return std::string(statement_.substr(begin, at_ - begin));
    }

    std::string number() {
        const auto begin = at_;
        const auto digits = [this] {
            while (is_digit(peek(0)))
                ++at_;
        };
        digits();
        if (peek(0) == '.' && is_digit(peek(1))) {
            ++at_;
            digits();
        }
        if (upper_of(peek(0)) == 'E') {
            const std::size_t sign = peek(1) == '-' || peek(1) == '+' ? 1 : 0;
            if (is_digit(peek(1 + sign))) {
                at_ += 1 + sign;
                digits();
            }
        }
        return std::string(statement_.substr(begin, at_ - begin));
    }

    std::string symbol() {
        static constexpr std::array<std::string_view, 14> symbols = {
            "<=", ">=", "<>", "<", ">", "=", "+", "-", "*", "/", "(", ")", ",", "."};
        const auto rest = statement_.substr(at_);
        for (const auto known : symbols) {
            if (!rest.starts_with(known)) continue;
            at_ += known.size();
            return std::string(known);
        }
        if (rest.front() != ';') fail_at(statement_, at_, "znak, který do dotazu nepatří");
        ++at_;
        return ";";
    }

    std::string_view statement_;
    std::size_t at_ = 0;
};

}  // namespace

std::vector<Token> tokens_of(std::string_view statement) {
    return Lexer(statement).all();
}

void fail_at(std::string_view statement, std::size_t at, std::string_view message) {
    throw StoreError(fmt::format("Chyba v dotazu, znak {}: {}.",
                                 base::pocet_znaku(statement.substr(0, at)) + 1, message));
}

}  // namespace store::sql
