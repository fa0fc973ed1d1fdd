#include "store/field_check.h"

#include <algorithm>
#include <cmath>
#include <fmt/format.h>
#include <limits>

#include "base/kodova_stranka.h"
#include "base/text.h"
#include "store/connection.h"

namespace store {

namespace {

template <class T>
bool fits(std::int64_t value) {
    return value >= std::numeric_limits<T>::min() && value <= std::numeric_limits<T>::max();
}

bool is_plain_ascii(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return c > 0; });
}

bool is_time_of_day(const base::DatumCas& time) {
    return time.hodina >= 0 && time.hodina < 24 && time.minuta >= 0 && time.minuta < 60 &&
           time.sekunda >= 0 && time.sekunda < 60;
}

}  // namespace

void FieldCheck::refuse(const FieldDef& field, const Value& value, std::string_view detail) const {
    const std::string expected = field.type == FieldType::autoincrement
                                     ? "pole plní databáze sama"
                                     : "očekává se " + type_in_words(field);
    throw StoreError(fmt::format("{}: tabulka {}, pole {}: hodnota \"{}\" není přípustná, {}{}{}.",
                                 file_, table_, field.name, value.as_text(), expected,
                                 detail.empty() ? "" : " - ", detail));
}

void FieldCheck::check(const FieldDef& field, std::int64_t value) const {
    const bool good = (field.type == FieldType::int16 && fits<std::int16_t>(value)) ||
                      (field.type == FieldType::int32 && fits<std::int32_t>(value)) ||
                      field.type == FieldType::number;
    if (!good) refuse(field, value);
}

void FieldCheck::check(const FieldDef& field, double value) const {
    if (!std::isfinite(value)) refuse(field, fmt::format("{}", value), "není to číslo");
    if (field.type == FieldType::number) return;
    constexpr double largest = std::numeric_limits<std::int32_t>::max();
    const bool whole = std::abs(value) <= largest + 1 &&
                       static_cast<double>(static_cast<std::int64_t>(value)) == value;
    if (!whole) refuse(field, value, "číslo není celé");
    check(field, static_cast<std::int64_t>(value));
}

void FieldCheck::check(const FieldDef& field, bool value) const {
    if (field.type != FieldType::boolean) refuse(field, value);
}

void FieldCheck::check(const FieldDef& field, std::string_view value) const {
    if (field.type != FieldType::text) refuse(field, value);
    const auto size = static_cast<std::size_t>(field.size);
    if (value.size() <= size && is_plain_ascii(value)) return;
    if (value.find('\0') != std::string_view::npos) {
        refuse(field, std::string(value.substr(0, value.find('\0'))), "text má v sobě znak nula");
    }
    if (!base::je_utf8(value)) refuse(field, "?", "text není v UTF-8");
    const std::size_t length = base::pocet_znaku(value);
    if (length > size) refuse(field, value, fmt::format("text má {} znaků", length));
    if (!base::je_v_1250(value)) refuse(field, value, "znak není v kódové stránce 1250");
}

void FieldCheck::check_day(const FieldDef& field, const Value& value) const {
    const bool is_time = std::holds_alternative<base::DatumCas>(value.variant());
    if (field.type != (is_time ? FieldType::timestamp : FieldType::date)) refuse(field, value);
    const base::DatumCas time = value.as_timestamp();
    if (time.je_prazdny()) return;
    const int year = time.datum.rok;
    if (!base::je_platne(time.datum) || year < 1 || year > 9999 || !is_time_of_day(time)) {
        refuse(field, value, "takový den nebo čas není");
    }
}

void FieldCheck::check_row_key(const FieldDef& field, std::int64_t value) const {
    if (value < 1 || !fits<std::int32_t>(value)) {
        refuse(field, value, "z vnějšku smí přijít jen kladné celé číslo");
    }
}

void FieldCheck::check(const FieldDef& field, const Value& value) const {
    if (field.type == FieldType::autoincrement) refuse(field, value);
    const Value::Variant& v = value.variant();
    if (const auto* whole = std::get_if<std::int64_t>(&v)) {
        check(field, *whole);
    } else if (const auto* number = std::get_if<double>(&v)) {
        check(field, *number);
    } else if (const auto* boolean = std::get_if<bool>(&v)) {
        check(field, *boolean);
    } else if (const auto* text = std::get_if<std::string>(&v)) {
        check(field, std::string_view(*text));
    } else if (!value.is_empty()) {
        check_day(field, value);
    }
}

}  // namespace store
