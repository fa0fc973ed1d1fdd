#include "report/sablona_text.h"

#include <utility>

#include "base/chyba.h"

namespace report {

namespace {

using Druh = Cast::Druh;

constexpr std::pair<std::string_view, Druh> k_se_jmenem[] = {{"parametr:", Druh::parametr},
                                                             {"soucet:", Druh::soucet}};
constexpr std::pair<std::string_view, Druh> k_samotne[] = {
    {"pocet", Druh::pocet}, {"strana", Druh::strana}, {"stran", Druh::stran}};

Cast ze_zavorek(std::string_view obsah) {
    for (const auto& [zacatek, druh] : k_se_jmenem) {
        if (!obsah.starts_with(zacatek)) continue;
        const std::string jmeno(obsah.substr(zacatek.size()));
        if (jmeno.empty()) {
            throw base::ChybaDat("za \"{" + std::string(zacatek) + "\" chybí jméno");
        }
        return {druh, jmeno};
    }
    for (const auto& [slovo, druh] : k_samotne) {
        if (obsah == slovo) return {druh, ""};
    }
    if (obsah.empty()) throw base::ChybaDat("v závorkách {} chybí jméno sloupce");
    if (obsah.find(':') != std::string_view::npos) {
        throw base::ChybaDat("\"{" + std::string(obsah) +
                             "}\" není známo; čekám {sloupec}, {parametr:jméno}, {soucet:sloupec}, "
                             "{pocet}, {strana} nebo {stran}");
    }
    return {Druh::sloupec, std::string(obsah)};
}

}  // namespace

std::vector<Cast> rozeber_text(std::string_view text) {
    std::vector<Cast> casti;
    while (!text.empty()) {
        const auto zavorka = text.find_first_of("{}");
        if (zavorka != 0) casti.push_back({Druh::text, std::string(text.substr(0, zavorka))});
        if (zavorka == std::string_view::npos) break;
        const auto konec = text.find_first_of("{}", zavorka + 1);
        if (text[zavorka] == '}' || konec == std::string_view::npos || text[konec] == '{') {
            throw base::ChybaDat("závorky { a } v textu nejsou v páru");
        }
        casti.push_back(ze_zavorek(text.substr(zavorka + 1, konec - zavorka - 1)));
        text.remove_prefix(konec + 1);
    }
    return casti;
}

}  // namespace report
