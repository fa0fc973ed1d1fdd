// Amounts and the named roundings. Every rounding idiom of the payroll is one constant here: it can
// be called like a function, and its `popis` is what a trace or a screen says about it.
#pragma once

#include <limits>

namespace base {

/// An amount of money or time in calculation, in whole units (crowns, hours, days) with fractions.
using Castka = long double;
static_assert(std::numeric_limits<Castka>::digits >= 64,
              "wage calculation needs an extended-precision floating type");

/// A named rounding: what it does in words, and the function itself.
struct Zaokrouhleni {
    const char* popis;
    Castka (*proved)(Castka);
    Castka operator()(Castka x) const { return proved(x); }
};

/// To the nearest whole crown, a tie to the even crown. A stored pay-sheet amount.
extern const Zaokrouhleni na_koruny_k_sude;
/// round(x * 100) / 100, a tie to the even heller. Time values and most hourly rates.
extern const Zaokrouhleni na_halere_k_sude;
/// Ceiling to a whole crown; a whole number stays, also one that binary fractions of a percentage
/// have pushed off by less than a ten-millionth. Social insurance.
extern const Zaokrouhleni na_koruny_nahoru;
/// truncate(x * 100 + 0.9999) / 100.
extern const Zaokrouhleni na_halere_nahoru;
/// truncate(x + 0.9999). The employer's share of insurance.
extern const Zaokrouhleni na_koruny_podil_podniku;
/// x + 0.499 to the nearest, a tie to even: in effect up to a whole crown. Gross-wage columns, wage
/// in kind in the insurance bases, a tax base up to 100 crowns.
extern const Zaokrouhleni sloupec_na_koruny;
/// x + 0.4999 to the nearest, a tie to even. Health insurance of the worker.
extern const Zaokrouhleni zdravotni_na_koruny;
/// truncate(x + 0.5). The shortened fixed salary and personal assessments.
extern const Zaokrouhleni plat_na_koruny;
/// truncate(x + 0.001). Withholding tax.
extern const Zaokrouhleni srazkova_na_koruny;
/// x + 49.99 rounded half away from zero at the hundreds and truncated: up to the next hundred,
/// but for less than a hundredth of a crown. The base of the tax advance above 100 crowns.
extern const Zaokrouhleni zaklad_dane_na_sta;
/// To the nearest whole crown, a tie away from zero. The advance tax of each band.
extern const Zaokrouhleni na_koruny_od_nuly;
/// The fraction cut off.
extern const Zaokrouhleni odriznout;
/// No rounding at all, said so.
extern const Zaokrouhleni nezaokrouhlovat;

/// Rounds to `mist` decimals (may be negative: -2 is hundreds), half away from zero; with `orizni`
/// truncates. Computed as trunc(10^mist * hodnota +- 0.5) / 10^mist.
Castka zaokrouhli(Castka hodnota, int mist, bool orizni);

/// True when |x| <= 0.001: the test of zero for amounts everywhere.
bool je_nula(Castka x);

/// 0 when the two lie within 0.001 of each other; 1 when b is above a; 2 otherwise.
int porovnej_castky(Castka a, Castka b);

/// zaklad * procent / 100, unrounded; `procent` as 6.5 for 6.5 %.
Castka procenta(Castka zaklad, Castka procent);

}  // namespace base
