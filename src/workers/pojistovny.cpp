#include "workers/pojistovny.h"

#include <algorithm>

#include "base/text.h"
#include "store/query.h"

namespace workers {
namespace {

constexpr int k_sirka_cisla = 2;

}  // namespace

std::vector<std::string> Nacti_pojistovny(shell::Session& session) {
    store::Query dotaz(session.data(),
                       "SELECT Cislo, Nazev FROM Zdr_poj ORDER BY Cislo, Pocitadlo");
    std::vector<std::string> pojistovny;
    for (dotaz.open(); !dotaz.eof(); dotaz.next())
        pojistovny.push_back(base::cislo_s_nulami(dotaz.integer(0), k_sirka_cisla) + dotaz.text(1));
    return pojistovny;
}

std::string Jmeno_pojistovny(const std::vector<std::string>& pojistovny, int cislo) {
    const std::string hledane = base::cislo_s_nulami(cislo, k_sirka_cisla);
    const auto kde =
        std::find_if(pojistovny.begin(), pojistovny.end(),
                     [&](const std::string& polozka) { return polozka.starts_with(hledane); });
    return kde == pojistovny.end() ? "neznámá pojišťovna" : kde->substr(hledane.size());
}

}  // namespace workers
