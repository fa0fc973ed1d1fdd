#include "wages/tisk_sablony.h"

#include <filesystem>
#include <fmt/format.h>

#include "base/datum.h"
#include "report/nahled.h"
#include "report/sablona.h"

namespace wages {

void tiskni_sablonu(shell::Session& session, std::string_view soubor, const store::Rows& vety,
                    std::map<std::string, std::string> parametry) {
    const std::filesystem::path cesta = session.slozka_programu / "Sablony" / soubor;
    if (!std::filesystem::exists(cesta)) {
        session.obsluha().hlaska(fmt::format("Soubor se sestavou \"{}\" neexistuje.", soubor));
        return;
    }
    parametry.emplace("firma", session.firma);
    parametry.emplace("datum", base::datum_textem(session.hodiny().dnes()));
    report::TFUsrPrev nahled(report::vypln_sablonu(report::nacti_sablonu(cesta), vety, parametry));
    session.obsluha().ukaz_modalne(nahled);
}

}  // namespace wages
