#include "cli/tabulka.h"

#include <algorithm>
#include <ostream>

#include "base/text.h"

namespace cli {

namespace {

constexpr const char* k_mezera_sloupcu = "  ";

std::string bez_ridicich_znaku(std::string text) {
    std::replace_if(
        text.begin(), text.end(),
        [](char znak) { return static_cast<unsigned char>(znak) < 0x20 || znak == 0x7f; }, ' ');
    return text;
}

std::string zarovnej(const std::string& text, std::size_t sirka, Strana strana) {
    const std::string vypln(sirka - base::pocet_znaku(text), ' ');
    return strana == Strana::vpravo ? vypln + text : text + vypln;
}

std::string opakuj(std::string_view znak, std::size_t kolik) {
    std::string vysledek;
    for (std::size_t i = 0; i < kolik; ++i)
        vysledek += znak;
    return vysledek;
}

}  // namespace

Tabulka::Tabulka(std::vector<Sloupec> sloupce) : sloupce_(std::move(sloupce)) {}

void Tabulka::radek(std::vector<std::string> bunky) {
    bunky.resize(sloupce_.size());
    std::transform(bunky.begin(), bunky.end(), bunky.begin(), bez_ridicich_znaku);
    radky_.push_back(std::move(bunky));
}

void Tabulka::vypis(std::ostream& out, int odsazeni) const {
    std::vector<std::size_t> sirky;
    for (std::size_t i = 0; i < sloupce_.size(); ++i) {
        sirky.push_back(base::pocet_znaku(sloupce_[i].nadpis));
        for (const auto& bunky : radky_)
            sirky[i] = std::max(sirky[i], base::pocet_znaku(bunky[i]));
    }
    const auto vypis_radek = [&](auto bunka) {
        std::string cely = base::mezery(odsazeni);
        for (std::size_t i = 0; i < sloupce_.size(); ++i) {
            if (i > 0) cely += k_mezera_sloupcu;
            cely += zarovnej(bunka(i), sirky[i], sloupce_[i].strana);
        }
        out << base::odstran_mezery(2, cely) << '\n';
    };
    vypis_radek([&](std::size_t i) { return sloupce_[i].nadpis; });
    vypis_radek([&](std::size_t i) { return opakuj("─", sirky[i]); });
    for (const auto& bunky : radky_)
        vypis_radek([&](std::size_t i) { return bunky[i]; });
}

}  // namespace cli
