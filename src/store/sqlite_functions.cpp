#include "store/sqlite_functions.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>
#include <sqlite3.h>
#include <string>

#include "base/text.h"
#include "store/engine_sql.h"

namespace store {

namespace {

// Rank of a plain character in Czech order without case: blank, digits, letters; 0 for every other
// byte. Each of these characters weighs alone, the pair "ch" excepted.
constexpr std::array<unsigned char, 256> make_ranks() {
    std::array<unsigned char, 256> ranks{};
    unsigned char rank = 0;
    ranks[' '] = ++rank;
    for (unsigned c = '0'; c <= '9'; ++c)
        ranks[c] = ++rank;
    for (unsigned c = 'a'; c <= 'z'; ++c)
        ranks[c] = ranks[c - 'a' + 'A'] = ++rank;
    return ranks;
}

constexpr std::array<unsigned char, 256> ranks = make_ranks();

unsigned char rank_of(char c) {
    return ranks[static_cast<unsigned char>(c)];
}

bool is_plain(std::string_view text) {
    bool after_c = false;
    for (const char c : text) {
        if (rank_of(c) == 0 || (after_c && (c == 'h' || c == 'H'))) return false;
        after_c = c == 'c' || c == 'C';
    }
    return true;
}

// The order of two texts of plain characters: first letters without case, then at the first letter
// of different case the lower one before the upper one. Nothing when a text is not plain.
std::optional<int> compare_plain(std::string_view a, std::string_view b, bool with_case) {
    if (!is_plain(a) || !is_plain(b)) return std::nullopt;
    const std::size_t common = std::min(a.size(), b.size());
    int by_case = 0;
    for (std::size_t i = 0; i < common; ++i) {
        if (a[i] == b[i]) continue;
        const int difference = rank_of(a[i]) - rank_of(b[i]);
        if (difference != 0) return difference;
        if (by_case == 0) by_case = a[i] > b[i] ? -1 : 1;
    }
    if (a.size() != b.size()) return a.size() < b.size() ? -1 : 1;
    return with_case ? by_case : 0;
}

using Order = int (*)(std::string_view, std::string_view);

template <Order order>
int collate(void*, int a_size, const void* a, int b_size, const void* b) {
    return order({static_cast<const char*>(a), static_cast<std::size_t>(a_size)},
                 {static_cast<const char*>(b), static_cast<std::size_t>(b_size)});
}

std::string_view text_of(sqlite3_value* value) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return text ? std::string_view(text, static_cast<std::size_t>(sqlite3_value_bytes(value)))
                : std::string_view();
}

void give_text(sqlite3_context* context, const std::string& text) {
    sqlite3_result_text64(context, text.data(), text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
}

using Change = std::string (*)(std::string_view);

template <Change change>
void change_letters(sqlite3_context* context, int, sqlite3_value** arguments) {
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL) {
        sqlite3_result_null(context);
    } else {
        give_text(context, change(text_of(arguments[0])));
    }
}

void join_texts(sqlite3_context* context, int count, sqlite3_value** arguments) {
    std::string joined;
    for (int i = 0; i < count; ++i)
        joined += text_of(arguments[i]);
    give_text(context, joined);
}

void add_collation(Database& database, std::string_view name,
                   int (*function)(void*, int, const void*, int, const void*)) {
    if (sqlite3_create_collation_v2(database.handle(), std::string(name).c_str(), SQLITE_UTF8,
                                    nullptr, function, nullptr) != SQLITE_OK) {
        database.fail("české třídění");
    }
}

void add_function(Database& database, const char* name, int arguments,
                  void (*function)(sqlite3_context*, int, sqlite3_value**)) {
    constexpr int flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
    if (sqlite3_create_function_v2(database.handle(), name, arguments, flags, nullptr, function,
                                   nullptr, nullptr, nullptr) != SQLITE_OK) {
        database.fail(name);
    }
}

}  // namespace

int compare_exact(std::string_view a, std::string_view b) {
    const std::size_t common = std::min(a.size(), b.size());
    const int by_bytes = common == 0 ? 0 : std::memcmp(a.data(), b.data(), common);
    if (by_bytes == 0 && a.size() == b.size()) return 0;
    if (const auto plain = compare_plain(a, b, true)) return *plain;
    if (const int czech = base::porovnej_cesky(a, b)) return czech;
    if (by_bytes != 0) return by_bytes;
    return a.size() < b.size() ? -1 : 1;
}

int compare_no_case(std::string_view a, std::string_view b) {
    if (a == b) return 0;
    if (const auto plain = compare_plain(a, b, false)) return *plain;
    return base::porovnej_cesky_bez_velikosti(a, b);
}

void register_functions(Database& database) {
    add_collation(database, collation_exact, collate<compare_exact>);
    add_collation(database, collation_no_case, collate<compare_no_case>);
    add_function(database, "UPPER", 1, change_letters<base::velkymi>);
    add_function(database, "LOWER", 1, change_letters<base::malymi>);
    add_function(database, "ZJOIN", -1, join_texts);
}

}  // namespace store
