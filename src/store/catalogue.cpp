// Reads the catalogue's texts into definitions and finds entries by a table's full name.
#include "store/catalogue.h"

#include <algorithm>
#include <cassert>
#include <charconv>
#include <fmt/format.h>
#include <sstream>
#include <unordered_map>

#include "base/text.h"
#include "store/catalogue_data.h"
#include "store/connection.h"

namespace store {

namespace {

constexpr const char* yearly_name = "RocniYYYY";

int number_in(std::string_view digits) {
    int n = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), n);
    return n;
}

bool all_digits(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

/// A field of the type that the catalogue writes as "int16" or "text(30)".
FieldDef field_of(const std::string& name, const std::string& type) {
    static const std::unordered_map<std::string, FieldType> simple = {
        {"autoincrement", FieldType::autoincrement},
        {"int16", FieldType::int16},
        {"int32", FieldType::int32},
        {"number", FieldType::number},
        {"boolean", FieldType::boolean},
        {"date", FieldType::date},
        {"timestamp", FieldType::timestamp}};
    if (const auto it = simple.find(type); it != simple.end()) return {name, it->second, 0};
    assert(type.starts_with("text(") && type.ends_with(")"));
    return {name, FieldType::text, number_in(std::string_view(type).substr(5))};
}

/// "Hod1..31" gives Hod1 to Hod31, any other name itself.
std::vector<std::string> expand_name(const std::string& name) {
    const auto dots = name.find("..");
    if (dots == std::string::npos) return {name};
    auto digits = dots;
    while (digits > 0 && all_digits(name.substr(digits - 1, 1)))
        --digits;
    const int first = number_in(std::string_view(name).substr(digits, dots - digits));
    const int last = number_in(std::string_view(name).substr(dots + 2));
    std::vector<std::string> names;
    for (int i = first; i <= last; ++i)
        names.push_back(name.substr(0, digits) + std::to_string(i));
    return names;
}

std::vector<FieldDef> read_fields(const char* text) {
    std::vector<FieldDef> fields;
    std::istringstream lines(text);
    for (std::string name, type; lines >> name >> type;) {
        for (const auto& one : expand_name(name))
            fields.push_back(field_of(one, type));
    }
    return fields;
}

std::vector<IndexDef> read_indexes(const char* text) {
    std::vector<IndexDef> indexes;
    std::istringstream lines(text);
    for (std::string word; lines >> word;) {
        IndexDef index;
        index.primary = word == "primary";
        index.unique = word == "unique" || index.primary;
        index.case_sensitive = word == "exact";
        if (index.primary || index.unique || index.case_sensitive) lines >> word;
        index.name = word;
        lines >> word;
        index.fields = base::rozdel_text(word, ';');
        indexes.push_back(index);
    }
    return indexes;
}

CatalogueEntry entry_of(const TableText& text) {
    return {{text.name, read_fields(text.fields), read_indexes(text.indexes)},
            text.place,
            text.scope,
            text.maker,
            text.meaning};
}

std::vector<CatalogueEntry> read_catalogue() {
    std::vector<CatalogueEntry> entries;
    for (const auto& part : {outside_tables(), payroll_tables(), month_tables()}) {
        for (const auto& text : part)
            entries.push_back(entry_of(text));
    }
    const auto& opening = tables_made_at_opening();
    const auto rank = [&](const CatalogueEntry& entry) {
        return std::find(opening.begin(), opening.end(), entry.definition.name) - opening.begin();
    };
    std::stable_sort(entries.begin(), entries.end(),
                     [&](const auto& a, const auto& b) { return rank(a) < rank(b); });
    return entries;
}

/// What an entry is kept under: a table's full name in lower case, its month or year replaced.
std::string key_of(std::string_view table) {
    std::string name = base::malymi(bare_table_name(table));
    const auto digits = name.find_last_not_of("0123456789") + 1;
    const std::string number = name.substr(digits);
    const std::string stem = name.substr(0, digits);
    if (stem == "rocni" && number.size() == 4) return base::malymi(yearly_name);
    if (number.size() == 2 && number_in(number) >= 1 && number_in(number) <= 12) return stem + "MM";
    return name;
}

std::unordered_map<std::string, const CatalogueEntry*> read_keys() {
    std::unordered_map<std::string, const CatalogueEntry*> keys;
    for (const auto& entry : catalogue()) {
        const std::string name = base::malymi(entry.definition.name);
        keys.emplace(entry.scope == Scope::month ? name + "MM" : name, &entry);
    }
    return keys;
}

}  // namespace

const std::vector<CatalogueEntry>& catalogue() {
    static const std::vector<CatalogueEntry> entries = read_catalogue();
    return entries;
}

const CatalogueEntry* find_entry(std::string_view table) {
    static const auto keys = read_keys();
    const auto it = keys.find(key_of(table));
    return it == keys.end() ? nullptr : it->second;
}

TableDef definition_of(std::string_view table) {
    const auto* entry = find_entry(table);
    if (!entry) {
        throw StoreError(
            fmt::format("Tabulka \"{}\" není v katalogu tabulek.", bare_table_name(table)));
    }
    TableDef definition = entry->definition;
    const std::string name = bare_table_name(table);
    if (entry->scope == Scope::month) definition.name += name.substr(name.size() - 2);
    if (definition.name == yearly_name) definition.name = "Rocni" + name.substr(name.size() - 4);
    return definition;
}

std::string month_table(std::string_view name, int month) {
    return std::string(name) + base::cislo_s_nulami(month, 2);
}

const std::vector<std::string>& tables_made_at_opening() {
    static const std::vector<std::string> names = {
        "EET",    "Hodnoty",  "Doch",     "Ridici",  "Os_karty", "Deti",        "Fixni",  "Zdr_poj",
        "Stroje", "Uctuj_hr", "Uctuj_ci", "Nahrady", "Rpd",      "SlevySocPoj", "epodani"};
    return names;
}

}  // namespace store
