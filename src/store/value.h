// A value of a field. An empty field differs from 0 in the store, yet reads as 0, "" or false.
#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "base/datum.h"

namespace store {

class Value {
  public:
    Value() = default;
    Value(std::int64_t v) : v_(v) {}
    Value(int v) : v_(static_cast<std::int64_t>(v)) {}
    Value(double v) : v_(v) {}
    Value(long double v) : v_(static_cast<double>(v)) {}
    Value(bool v) : v_(v) {}
    Value(std::string v) : v_(std::move(v)) {}
    Value(std::string_view v) : v_(std::string(v)) {}
    Value(const char* v) : v_(std::string(v)) {}
    Value(base::Datum v) : v_(v) {}
    Value(base::DatumCas v) : v_(v) {}

    bool is_empty() const { return std::holds_alternative<std::monostate>(v_); }

    /// Text form: numbers in plain notation with a decimal point, dates ISO, booleans "true" and
    /// "false", empty as "".
    std::string as_text() const;
    /// Whole number; a float is truncated, a text read as a number (0 when it is none), empty is 0.
    std::int64_t as_integer() const;
    /// Number; empty is 0.
    double as_number() const;
    /// A number is true when it is not 0, a text when it is "true" in any case.
    bool as_boolean() const;
    /// Day, of a timestamp its day; empty or a value of another kind is "no date".
    base::Datum as_date() const;
    /// Point in time, of a day its midnight; empty or a value of another kind is "no time".
    base::DatumCas as_timestamp() const;

    using Variant = std::variant<std::monostate, std::int64_t, double, bool, std::string,
                                 base::Datum, base::DatumCas>;
    const Variant& variant() const { return v_; }
    bool operator==(const Value&) const = default;

  private:
    Variant v_;
};

}  // namespace store
