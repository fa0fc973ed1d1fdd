// Readings of a value: each kind as text, number, boolean, day and point in time.
#include "store/value.h"

#include <array>
#include <charconv>
#include <limits>

#include "base/text.h"
#include "store/definition.h"
#include "store/overloaded.h"

namespace store {

namespace {

std::string plain_notation(double number) {
    if (number == 0) return "0";
    // Longest: sign and 309 digits, or "0." and 1074 places of the smallest number.
    std::array<char, 1100> buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                   std::chars_format::fixed);
    return {buffer.data(), end.ptr};
}

std::int64_t whole_part(long double number) {
    using Limits = std::numeric_limits<std::int64_t>;
    if (number != number) return 0;
    if (number >= static_cast<long double>(Limits::max())) return Limits::max();
    if (number <= static_cast<long double>(Limits::min())) return Limits::min();
    return static_cast<std::int64_t>(number);
}

}  // namespace

std::string Value::as_text() const {
    return std::visit(Overloaded{[](std::monostate) { return std::string(); },
                                 [](std::int64_t v) { return std::to_string(v); },
                                 [](double v) { return plain_notation(v); },
                                 [](bool v) { return std::string(v ? "true" : "false"); },
                                 [](const std::string& v) { return v; },
                                 [](const base::Datum& v) { return base::datum_iso(v); },
                                 [](const base::DatumCas& v) { return base::datum_cas_iso(v); }},
                      v_);
}

std::int64_t Value::as_integer() const {
    return std::visit(
        Overloaded{[](std::int64_t v) { return v; }, [](double v) { return whole_part(v); },
                   [](bool v) { return std::int64_t{v}; },
                   [](const std::string& v) { return whole_part(base::je_desetinne_cislo(v)); },
                   [](const auto&) { return std::int64_t{0}; }},
        v_);
}

double Value::as_number() const {
    return std::visit(Overloaded{[](std::int64_t v) { return static_cast<double>(v); },
                                 [](double v) { return v; }, [](bool v) { return v ? 1.0 : 0.0; },
                                 [](const std::string& v) {
                                     return static_cast<double>(base::je_desetinne_cislo(v));
                                 },
                                 [](const auto&) { return 0.0; }},
                      v_);
}

bool Value::as_boolean() const {
    return std::visit(Overloaded{[](std::int64_t v) { return v != 0; },
                                 [](double v) { return v != 0; }, [](bool v) { return v; },
                                 [](const std::string& v) { return same_name(v, "true"); },
                                 [](const auto&) { return false; }},
                      v_);
}

base::Datum Value::as_date() const {
    return std::visit(Overloaded{[](const base::Datum& v) { return v; },
                                 [](const base::DatumCas& v) { return v.datum; },
                                 [](const auto&) { return base::Datum{}; }},
                      v_);
}

base::DatumCas Value::as_timestamp() const {
    return std::visit(Overloaded{[](const base::Datum& v) { return base::DatumCas{v}; },
                                 [](const base::DatumCas& v) { return v; },
                                 [](const auto&) { return base::DatumCas{}; }},
                      v_);
}

}  // namespace store
