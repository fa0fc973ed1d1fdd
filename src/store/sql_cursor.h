// A place in the tokens of a statement: looking at them, taking them, saying what was expected.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/sql_lexer.h"

namespace store::sql {

class Cursor {
  public:
    explicit Cursor(std::string_view statement)
        : statement_(statement), tokens_(tokens_of(statement)) {}

    std::string_view statement() const { return statement_; }
    const Token& now() const { return tokens_[at_]; }
    const Token& ahead(std::size_t n) const;
    /// Byte behind the last token taken.
    std::size_t end_of_taken() const { return at_ == 0 ? 0 : tokens_[at_ - 1].end; }
    std::size_t begin_of_taken() const { return at_ == 0 ? 0 : tokens_[at_ - 1].begin; }

    bool sees(std::string_view upper) const { return now().upper == upper; }
    /// True before a word that may name something, not one of the dialect's own words.
    bool sees_name() const;
    /// The token here; the end is never passed.
    Token take();
    bool accept(std::string_view upper);
    void expect(std::string_view upper);
    std::string name(std::string_view what);
    /// "(n)" of a text, 1 to 255.
    int size_in_parentheses();

    /// Throws StoreError "očekáváno ..., je ..." with the place of the token here.
    [[noreturn]] void fail(std::string_view expected) const;

  private:
    std::string_view statement_;
    std::vector<Token> tokens_;
    std::size_t at_ = 0;
};

}  // namespace store::sql
