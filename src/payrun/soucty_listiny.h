// Sums of pay-sheet rows: what workers earn and get, and what they cost the employer.
#pragma once

#include "payrun/presnost.h"
#include "shell/session.h"

namespace payrun {

/// The employer's rates, in percent.
struct SazbyPodniku {
    Castka socialni = 0;
    Castka zdravotni = 0;
};
SazbyPodniku sazby_podniku(const shell::Session& session);

/// The employer's premium from a base: trunc(base x rate / 100 + 0.9999).
Castka podil_podniku(Castka zaklad, Castka sazba);

/// Sums of one worker or of many.
struct SoucetMezd {
    Castka hruba = 0;              ///< gross wages, module 2
    Castka srazky = 0;             ///< deductions, module 12
    Castka k_vyplate = 0;          ///< payable, module 14
    Castka zaklad_socialniho = 0;  ///< module 61
    Castka zdravotni_podniku = 0;  ///< the employer's health premium, worker by worker

    /// A row of the sheet; of modules other than the five above nothing is taken.
    void pridej(std::int64_t modul, Castka hodnota, const SazbyPodniku& sazby);
    void pridej(const SoucetMezd& dalsi);

    /// Gross wages and the employer's premiums; the social one from the sum of all bases (§ 7 zák.
    /// č. 589/1992 Sb.), so that the cost of many differs from the sum of their costs by crowns.
    Castka naklad(const SazbyPodniku& sazby) const;
};

}  // namespace payrun
