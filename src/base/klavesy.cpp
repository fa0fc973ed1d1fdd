#include "base/klavesy.h"

#include <algorithm>

#include "base/text.h"

namespace base {
namespace {

bool je_cislice(char c) {
    return c >= '0' && c <= '9';
}

bool je_ovladaci(char c) {
    return c == k_backspace || c == k_enter;
}

int pocet_cislic(std::string_view text) {
    return static_cast<int>(std::count_if(text.begin(), text.end(), je_cislice));
}

/// What the sign rule says about the key.
enum class Soud { pust, odmitni, dalsi };

Soud posud_znamenko(char znak, std::string_view text, ZnamenkoRezim rezim) {
    if (je_ovladaci(znak)) return Soud::pust;
    if (znak == '-')
        return text.empty() && rezim != ZnamenkoRezim::bez_minus ? Soud::pust : Soud::odmitni;
    if (rezim == ZnamenkoRezim::minus_povinne && !text.starts_with('-')) return Soud::odmitni;
    return Soud::dalsi;
}

}  // namespace

bool hlidej_cele_cislo_klavesy(char znak, std::string_view text, ZnamenkoRezim rezim, int cislic) {
    const Soud soud = posud_znamenko(znak, text, rezim);
    if (soud != Soud::dalsi) return soud == Soud::pust;
    return je_cislice(znak) && pocet_cislic(text) < cislic;
}

bool hlidej_desetinne_cislo_klavesy(char znak, std::string_view text, ZnamenkoRezim rezim,
                                    int celych, int desetinnych) {
    const Soud soud = posud_znamenko(znak, text, rezim);
    if (soud != Soud::dalsi) return soud == Soud::pust;
    const auto oddelovac = text.find_first_of(",.");
    const bool v_desetinach = oddelovac != std::string_view::npos;
    if (znak == ',' || znak == '.') return !v_desetinach && desetinnych > 0;
    if (!je_cislice(znak)) return false;
    return v_desetinach ? pocet_cislic(text.substr(oddelovac)) < desetinnych
                        : pocet_cislic(text) < celych;
}

bool hlidej_delku_klavesy(char znak, std::string_view text, int delka) {
    return je_ovladaci(znak) || static_cast<int>(pocet_znaku(text)) < delka;
}

}  // namespace base
