#include "cli/tabulky_firmy.h"

#include "cli/konec.h"
#include "cli/texty.h"

#include "store/query.h"

namespace cli {

std::int64_t pocet_radku(store::Connection& spojeni, std::string_view tabulka,
                         std::string_view podminka) {
    std::string dotaz = "SELECT COUNT(*) AS Pocet FROM " + std::string(tabulka);
    if (!podminka.empty()) dotaz += " WHERE " + std::string(podminka);
    store::Query q(spojeni, dotaz);
    q.open();
    return q.integer("Pocet");
}

store::Connection& TabulkyFirmy::spojeni(store::Place misto) {
    switch (misto) {
        case store::Place::ucet:
            return session_.ucet();
        case store::Place::faktury:
            if (!faktury_) faktury_ = std::make_unique<store::Connection>(session_.cesta_faktury);
            return *faktury_;
        case store::Place::zorv:
            break;
    }
    return session_.data();
}

const store::CatalogueEntry& TabulkyFirmy::najdi(std::string_view tabulka) {
    if (const auto* polozka = store::find_entry(tabulka)) return *polozka;
    std::vector<std::string> nazvy;
    for (const auto& polozka : store::catalogue()) {
        nazvy.push_back(polozka.definition.name +
                        (polozka.scope == store::Scope::month ? "01" : ""));
    }
    throw spatny_argument("Tabulku \"" + std::string(tabulka) + "\" mzdy neznají." +
                          veta_o_podobnych(store::bare_table_name(tabulka), nazvy) +
                          "\nVšechny vypíše sloveso tabulky.");
}

const std::filesystem::path& TabulkyFirmy::slozka(store::Place misto) const {
    switch (misto) {
        case store::Place::ucet:
            return session_.cesta_ucet;
        case store::Place::faktury:
            return session_.cesta_faktury;
        case store::Place::zorv:
            break;
    }
    return session_.cesta_dat;
}

bool TabulkyFirmy::existuje(store::Place misto, std::string_view tabulka) const {
    return shell::tabulka_existuje(slozka(misto), tabulka);
}

std::vector<std::string> TabulkyFirmy::stojici(const store::CatalogueEntry& polozka) {
    std::vector<std::string> nazvy;
    if (!std::filesystem::exists(slozka(polozka.place) / store::Connection::file_name())) {
        return nazvy;
    }
    for (const auto& nazev : spojeni(polozka.place).tables()) {
        if (store::find_entry(nazev) == &polozka) nazvy.push_back(nazev);
    }
    return nazvy;
}

std::string misto_slovy(store::Place misto) {
    switch (misto) {
        case store::Place::ucet:
            return "Ucet";
        case store::Place::faktury:
            return "Faktury";
        case store::Place::zorv:
            break;
    }
    return "Zorv";
}

}  // namespace cli
