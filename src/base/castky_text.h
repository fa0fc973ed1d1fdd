// Amounts as fixed-column text. The oddities (a blank before the millions only, dots for zero) are
// how the program's screens, notes and reports have always looked, and other routines take the
// notes apart by position.
#pragma once

#include <string>

#include "base/zaokrouhleni.h"

namespace base {

/// Fixed notation with `mist` decimals, to the nearest, and a decimal point whatever the locale; a
/// zero has no minus. All text forms of amounts go through here.
std::string castka_na_mista(int mist, Castka castka);

/// `mist` decimals with a decimal point, a blank before the millions only (1234567.89 is 1
/// 234567.89), padded on the left to `sirka`. Without decimals the blank goes in when the text is
/// longer than six digits.
std::string castka_do_sloupce(int sirka, int mist, Castka castka);
/// The same without the blank when there are no decimals.
std::string castka_do_sloupce_bez_mezery(int sirka, int mist, Castka castka);
/// Fixed format right-aligned to `sirka`, the first "." replaced by ",".
std::string castka_s_carkou(int sirka, int mist, Castka castka);
/// "... " for 0, the number otherwise.
std::string nula_jako_tecky(long long n);
/// "...   " for |castka| <= 0.001, otherwise castka_do_sloupce(0, 2, castka).
std::string castka_nebo_tecky(Castka castka);
/// ",##0.#0" with decimal comma; a number with three or more decimals is written in full.
std::string castka_s_oddelovaci(Castka castka);
/// "0.0" with a decimal point.
std::string cislo_pro_export(Castka x);
/// Plain decimal notation, at most six decimals, without trailing zeros and with decimal comma.
std::string castka_prosta(Castka castka);

}  // namespace base
