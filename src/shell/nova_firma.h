// Making a company's folder and the tables that opening it finds missing.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "shell/session.h"

namespace shell {

/// What the accounting module knows of a company.
struct UdajeFirmy {
    std::string nazev;  ///< `Adr1` of `Setup`
    std::string ico;
};

/// Makes the folder of a new company with the minimum that the accounting module leaves behind:
/// `Setup` (one row), `Uctovano`, `vykony`, `Adresy`, `rid_ucet.idx`, `Firma.ini`, and the folders
/// `Zorv`, `Ucet`, `Faktury`. Returns "" or a Czech message why not (bad name, the folder exists);
/// nothing was made then. The name is taken upper-cased.
std::string zaloz_slozku_firmy(const std::filesystem::path& koren_dat, std::string_view nazev,
                               const UdajeFirmy& udaje);

/// Makes every table that a company's opening needs and does not find, in the catalogue's order:
/// first `EET` and `Hodnoty` in `cesta_ucet`, then the payroll's own in `cesta_dat`.
void zaloz_chybejici_tabulky(Session& session);

}  // namespace shell
