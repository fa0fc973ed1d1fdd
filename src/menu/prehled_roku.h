// The twelve months of the open company at a glance, read from the pay sheets as they stand; no
// wage is computed.
#pragma once

#include <array>
#include <string>

#include "base/zaokrouhleni.h"
#include "shell/session.h"

namespace menu {

struct PrehledMesice {
    enum class Stav {
        nic,       ///< no gross items and no pay sheet
        zadano,    ///< gross items entered, the pay sheet is missing or empty
        spocteno,  ///< the pay sheet has rows
        uzavreno   ///< the month bears its closing mark
    } stav = Stav::nic;
    int mesic = 1;
    int radku = 0;           ///< gross items entered
    int pracovniku = 0;      ///< workers with a payable amount on the pay sheet, also one of 0
    base::Castka hruba = 0;  ///< gross wages: sum of module 2
    /// What the workers get: module 14, and the pay that a worker has saved whole (module 10 in the
    /// column that his card names in `Cely_plat_sporit`).
    base::Castka cista = 0;
    /// Gross wages and the employer's premiums: social trunc(sum of module 61 x `proc_soc2` / 100 +
    /// 0.9999) from the sum of all bases, health trunc(module 62 x `proc_zdr_zamestnavatel` / 100 +
    /// 0.9999) worker by worker (§ 7 zák. č. 589/1992 Sb., § 2 zák. č. 592/1992 Sb.).
    base::Castka naklad = 0;
};

/// January to December. One query a month on its pay sheet; a year of a thousand workers takes less
/// than a tenth of a second.
std::array<PrehledMesice, 12> prehled_roku(shell::Session& session);

/// What the operator does next, as a sentence: "Březen: zadány hrubé mzdy, vypočtěte výplaty".
/// `aktivni_mesic` is the first month not closed, 13 when the year is done.
std::string dalsi_krok(const std::array<PrehledMesice, 12>& mesice, int aktivni_mesic);

}  // namespace menu
