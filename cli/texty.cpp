#include "cli/texty.h"

#include <algorithm>
#include <utility>

#include "base/castky_text.h"
#include "base/text.h"

namespace cli {

std::string citelna_castka(base::Castka castka) {
    std::string text = base::castka_prosta(castka);
    const std::size_t prvni = text.starts_with('-') ? 1 : 0;
    std::size_t konec = std::min(text.find(','), text.size());
    while (konec > prvni + 3) {
        konec -= 3;
        text.insert(konec, 1, ' ');
    }
    return text;
}

std::string radky_terminalu(std::string_view text) {
    std::string vysledek;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r') {
            vysledek += text[i];
        } else if (i + 1 == text.size() || text[i + 1] != '\n') {
            vysledek += '\n';
        }
    }
    return vysledek;
}

namespace {

/// Number of inserted, left out and changed bytes that lead from one text to the other.
std::size_t vzdalenost(std::string_view a, std::string_view b) {
    std::vector<std::size_t> radek(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j)
        radek[j] = j;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::size_t sikmo = std::exchange(radek[0], i);
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const std::size_t zmena = sikmo + (a[i - 1] == b[j - 1] ? 0 : 1);
            sikmo = radek[j];
            radek[j] = std::min({zmena, radek[j] + 1, radek[j - 1] + 1});
        }
    }
    return radek.back();
}

}  // namespace

std::vector<std::string> podobne(std::string_view text, const std::vector<std::string>& nazvy) {
    const std::string hledany = base::malymi(text);
    const std::size_t mez = std::max<std::size_t>(2, hledany.size() / 3);
    std::vector<std::pair<std::size_t, std::string>> nalezene;
    for (const auto& nazev : nazvy) {
        const std::string maly = base::malymi(nazev);
        const std::size_t rozdil = vzdalenost(hledany, maly);
        const bool obsahuje = hledany.size() > 2 && maly.find(hledany) != std::string::npos;
        if (rozdil <= mez || obsahuje) nalezene.emplace_back(rozdil, nazev);
    }
    std::stable_sort(nalezene.begin(), nalezene.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    if (nalezene.size() > 5) nalezene.resize(5);
    std::vector<std::string> vysledek;
    vysledek.reserve(nalezene.size());
    for (auto& [rozdil, nazev] : nalezene)
        vysledek.push_back(std::move(nazev));
    return vysledek;
}

std::string veta_o_podobnych(std::string_view text, const std::vector<std::string>& nazvy) {
    const auto nalezene = podobne(text, nazvy);
    return nalezene.empty() ? "" : " Podobné: " + spoj(nalezene, ", ") + ".";
}

std::string spoj(const std::vector<std::string>& texty, std::string_view oddelovac) {
    std::string vysledek;
    for (const auto& text : texty) {
        if (!vysledek.empty()) vysledek += oddelovac;
        vysledek += text;
    }
    return vysledek;
}

}  // namespace cli
