// Social and health insurance of one worker and month: what enters the bases, the thresholds, the
// annual maxima and the amounts. Pure functions; every one reports to the trace when given one.
#pragma once

#include "base/stopa.h"
#include "payrun/presnost.h"
#include "shell/nastaveni.h"

namespace payrun {

/// Crowns of the base from which an employment of small extent takes part in the insurance (§ 6
/// zák. č. 187/2006 Sb.). Fixed in the calculation.
inline constexpr int k_hranice_maleho_rozsahu = 3500;
/// The same for an agreement to perform work: "over 10000" (§ 7a zák. č. 187/2006 Sb.).
inline constexpr int k_hranice_dohody = 10001;

/// Codes of `Jake_socialni` on the card.
enum class Socialni { plati = 1, maly_rozsah = 2, dohoda = 3, neplati = 4, druhy_pilir = 5 };
/// Codes of `Jake_zdravotni` on the card.
enum class Zdravotni { plati = 1, minimum = 2, maly_rozsah = 3, dohoda = 4, neplati = 5 };

/// True unless the column stands in the company's list of columns left out of that base.
bool Jde_do_socialniho_pojisteni(const shell::Nastaveni& nastaveni, int sloupec);
bool Jde_do_zdravotniho_pojisteni(const shell::Nastaveni& nastaveni, int sloupec);
bool Jde_do_dane(const shell::Nastaveni& nastaveni, int sloupec);

/// Base of social insurance from the gross that goes into it. Columns left out that make less than
/// 0.999 crowns together are not left out. § 5 zák. č. 589/1992 Sb.
Castka zaklad_socialniho_pojisteni(Socialni kod, Castka hruba_do_socialniho, Castka hruba_mzda,
                                   base::Stopa* stopa);

/// The worker's premium, whole crowns up; `sazba` in percent. For the second pillar `sazba` is the
/// worker's reduced rate. § 7 zák. č. 589/1992 Sb.
Castka socialni_pojisteni_Kc(Socialni kod, Castka zaklad, Castka sazba, base::Stopa* stopa);

/// What goes to the pension fund of the second pillar, whole crowns up. Zák. č. 426/2011 Sb.
Castka druhy_pilir_Kc(Castka zaklad, Castka sazba, base::Stopa* stopa);

/// What the health base depends on besides the gross.
struct ZdravotniPodminky {
    Zdravotni kod = Zdravotni::plati;
    bool duchodce = false;
    bool student = false;
    Castka duchodce_hranice = 0;  ///< amount up to which a pensioner or student pays nothing
    Castka minimalni_mzda = 0;
};

/// Base of health insurance; a code outside 1 to 5 pays on the whole base, as it does in social
/// insurance. § 3 zák. č. 592/1992 Sb.
Castka zaklad_zdravotniho_pojisteni(const ZdravotniPodminky& podminky, Castka hruba_do_zdravotniho,
                                    Castka hruba_mzda, base::Stopa* stopa);

/// The worker's premium, in effect whole crowns up; `sazba` in percent. § 2 zák. č. 592/1992 Sb.
Castka zdravotni_pojisteni_Kc(Zdravotni kod, Castka zaklad, Castka sazba, base::Stopa* stopa);

/// The part of the base that is left under the year's maximum; `predchozi` is the sum of the bases
/// of the months before. § 15a zák. č. 589/1992 Sb.
Castka strop(Castka zaklad, Castka predchozi, Castka maximum);

}  // namespace payrun
