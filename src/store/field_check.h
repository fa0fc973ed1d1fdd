// What a field takes: the checks that every write of a row goes through.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "store/definition.h"
#include "store/value.h"

namespace store {

/// Throws StoreError naming file, table, field, value and what was expected, for a value of a wrong
/// kind, a whole number out of range, a number that is none, a day that does not exist, and a text
/// that is too long or has a character outside code page 1250. An empty value always passes; the
/// autoincrement takes nothing.
class FieldCheck {
  public:
    FieldCheck(std::string_view file, std::string_view table) : file_(file), table_(table) {}

    void check(const FieldDef& field, const Value& value) const;

    void check(const FieldDef& field, std::int64_t value) const;
    void check(const FieldDef& field, double value) const;
    void check(const FieldDef& field, bool value) const;
    void check(const FieldDef& field, std::string_view value) const;

    /// The lone exception: whether a row that comes from outside may bring its own row key.
    void check_row_key(const FieldDef& field, std::int64_t value) const;

  private:
    [[noreturn]] void refuse(const FieldDef& field, const Value& value,
                             std::string_view detail = {}) const;
    void check_day(const FieldDef& field, const Value& value) const;

    std::string file_;
    std::string table_;
};

}  // namespace store
