// Names of tables and fields, and types in the words of messages.
#include "store/definition.h"

#include <fmt/format.h>

namespace store {

namespace {

char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace

bool same_name(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (lower(a[i]) != lower(b[i])) return false;
    }
    return true;
}

int TableDef::field_index(std::string_view field) const {
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (same_name(fields[i].name, field)) return static_cast<int>(i);
    }
    return -1;
}

std::string type_in_words(const FieldDef& field) {
    switch (field.type) {
        case FieldType::autoincrement:
            return "pořadové číslo";
        case FieldType::int16:
            return "celé číslo -32768 až 32767";
        case FieldType::int32:
            return "celé číslo -2147483648 až 2147483647";
        case FieldType::number:
            return "číslo";
        case FieldType::boolean:
            return "logická hodnota";
        case FieldType::date:
            return "datum";
        case FieldType::timestamp:
            return "datum a čas";
        case FieldType::text:
            return fmt::format("text, nejvýše {} znaků kódové stránky 1250", field.size);
    }
    return "?";
}

std::string bare_table_name(std::string_view name) {
    constexpr std::string_view extension = ".db";
    if (name.size() > extension.size() &&
        same_name(name.substr(name.size() - extension.size()), extension)) {
        name.remove_suffix(extension.size());
    }
    return std::string(name);
}

}  // namespace store
