#include "base/castky_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "base/text.h"

namespace base {
namespace {

constexpr Castka k_nula_sloupce = 0.0001L;
constexpr int k_nejvic_mist = 6;

std::string doplnena(int sirka, const std::string& text) {
    return mezery(sirka - static_cast<int>(text.size())) + text;
}

std::string s_carkou(std::string text) {
    if (const auto tecka = text.find('.'); tecka != std::string::npos) text[tecka] = ',';
    return text;
}

/// Puts a blank in front of the millions of a text without sign.
void oddel_miliony(std::string& text, bool i_bez_desetin) {
    const auto tecka = text.find('.');
    if (tecka == std::string::npos && !i_bez_desetin) return;
    const std::size_t cislic = std::min(tecka, text.size());
    if (cislic > 6) text.insert(cislic - 6, 1, ' ');
}

std::string do_sloupce(int sirka, int mist, Castka castka, bool i_bez_desetin) {
    const bool zaporna = castka <= -k_nula_sloupce;
    std::string text = castka_na_mista(mist, zaporna ? -castka : castka);
    oddel_miliony(text, i_bez_desetin);
    return doplnena(sirka, zaporna ? "-" + text : text);
}

}  // namespace

std::string castka_na_mista(int mist, Castka castka) {
    std::array<char, std::numeric_limits<Castka>::max_exponent10 + 32> misto{};
    const auto [konec, chyba] = std::to_chars(misto.data(), misto.data() + misto.size(), castka,
                                              std::chars_format::fixed, std::clamp(mist, 0, 18));
    std::string text(misto.data(), chyba == std::errc() ? konec : misto.data());
    if (text.find_first_not_of("-0.") == std::string::npos && text.starts_with('-'))
        text.erase(0, 1);
    return text;
}

std::string castka_do_sloupce(int sirka, int mist, Castka castka) {
    return do_sloupce(sirka, mist, castka, true);
}

std::string castka_do_sloupce_bez_mezery(int sirka, int mist, Castka castka) {
    return do_sloupce(sirka, mist, castka, false);
}

std::string castka_s_carkou(int sirka, int mist, Castka castka) {
    return doplnena(sirka, s_carkou(castka_na_mista(mist, castka)));
}

std::string nula_jako_tecky(long long n) {
    return n == 0 ? "... " : std::to_string(n);
}

std::string castka_nebo_tecky(Castka castka) {
    return je_nula(castka) ? "...   " : castka_do_sloupce(0, 2, castka);
}

std::string castka_s_oddelovaci(Castka castka) {
    std::string cela = castka_prosta(castka);
    const auto carka = cela.find(',');
    if (carka != std::string::npos && cela.size() - carka - 1 >= 3) return cela;
    std::string text = s_carkou(castka_na_mista(2, castka));
    const std::size_t znamenko = text.starts_with('-') ? 1 : 0;
    for (auto kde = text.find(','); kde > znamenko + 3;) {
        kde -= 3;
        text.insert(kde, 1, ' ');
    }
    return text;
}

std::string cislo_pro_export(Castka x) {
    return castka_na_mista(1, x);
}

std::string castka_prosta(Castka castka) {
    std::string text = castka_na_mista(k_nejvic_mist, castka);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.ends_with('.')) text.pop_back();
    return s_carkou(std::move(text));
}

}  // namespace base
