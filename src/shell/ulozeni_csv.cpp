#include "shell/ulozeni_csv.h"

#include <fmt/format.h>

#include "base/soubory.h"

namespace shell {

bool uloz_csv(Session& session, const std::string& soubor, const std::string& obsah,
              const TextyUlozeni& texty) {
    base::Obsluha& obsluha = session.obsluha();
    const auto slozka = obsluha.vyber_slozku(texty.vyzva, session.cesta_dat.string());
    if (!slozka) return false;
    const auto cesta = std::filesystem::path(*slozka) / soubor;
    if (std::filesystem::exists(cesta) &&
        !obsluha.otazka_ano_ne(
            fmt::format("Soubor \"{}\" už existuje. Přepsat jej?", cesta.string()), texty.nadpis)) {
        return false;
    }
    base::zapis_soubor(cesta, obsah);
    obsluha.hlaska(fmt::format("{} \"{}\".", texty.hotovo, cesta.string()));
    return true;
}

}  // namespace shell
