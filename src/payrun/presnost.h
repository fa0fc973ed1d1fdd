// Amounts without binary noise. The store keeps 8-byte floats, and 0,1 is none of them; summed or
// multiplied in binary, amounts in hellers come out a hair beside the decimal number they stand
// for. Where a rounding or a comparison follows, that hair could cost a crown, so it is taken away.
#pragma once

#include "base/zaokrouhleni.h"

namespace payrun {

using base::Castka;

/// The decimal number of at most four places that the stored float stands for; a float that stands
/// for none stays as it is.
Castka z_ulozeneho(double hodnota);

/// The amount to nine decimals: differences below half a billionth are noise.
Castka bez_sumu(Castka castka);

}  // namespace payrun
