// Shortening of the fixed salary and of the personal assessments by time not worked.
#pragma once

#include "payrun/presnost.h"

namespace payrun {

/// amount / fund x worked, to whole crowns (+0.5 and cut off); hours of the month and of the
/// worker. 0 when the fund is 0.
Castka zkracena_castka(Castka castka, Castka fond_hodin_mesice, Castka odpracovano_hodin);

/// Hours of `dni` working days at a weekly working time of `tpd` hours.
Castka hodiny_za_dny(int dni, Castka tpd);

/// Days that the hours make at a weekly working time of `tpd` hours, which must not be 0; to
/// hundredths, a tie to even.
Castka dny_za_hodiny(Castka hodiny, Castka tpd);

/// The organisation's contribution to the pension fund: a rate up to 1 (but for 1 itself) is a
/// share of the gross wage, to hellers; a rate of 1 and more is crowns.
Castka prispevek_penzijniho_fondu(Castka sazba, Castka hruba_mzda);

}  // namespace payrun
