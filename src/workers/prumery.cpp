#include "workers/prumery.h"

#include <array>
#include <cassert>
#include <cstddef>
#include <fmt/format.h>

#include "store/query.h"

namespace workers {

const char* pole_prumeru_na_dovolenou(DruhPrumeru druh, int mesic) {
    assert(mesic >= 1 && mesic <= 12);
    constexpr std::array k_denni{"PdovD4min", "PdovD1akt", "PdovD2akt", "PdovD3akt"};
    constexpr std::array k_hodinovy{"PdovH4min", "PdovH1akt", "PdovH2akt", "PdovH3akt"};
    const auto ctvrtleti = static_cast<std::size_t>((mesic - 1) / 3);
    return druh == DruhPrumeru::denni ? k_denni.at(ctvrtleti) : k_hodinovy.at(ctvrtleti);
}

base::Castka prumer_na_dovolenou(shell::Session& session, int cislo, DruhPrumeru druh, int mesic) {
    store::Query dotaz(session.data(),
                       fmt::format("SELECT {} AS Vysledek FROM Os_karty WHERE Cislo = :cislo",
                                   pole_prumeru_na_dovolenou(druh, mesic)));
    dotaz.set("cislo", cislo);
    dotaz.open();
    return dotaz.eof() ? 0 : dotaz.number(0);
}

}  // namespace workers
