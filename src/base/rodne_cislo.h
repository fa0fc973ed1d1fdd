// Birth numbers.
#pragma once

#include <string>
#include <string_view>

#include "base/datum.h"

namespace base {

/// The birth number without "-" and "/".
std::string rc_bez_lomitka(std::string_view text);
/// "M", "Ž" or "0" from the fourth and fifth characters alone: 1 to 12 a man, 51 to 62 a woman. The
/// reading window is these two positions and no other; a blank text gives "0".
std::string pohlavi_z_rc(std::string_view text);
/// A ddmmyy text to yyyy-mm-dd: 20yy when yy is below 31, else 19yy; digits reordered as they
/// stand, without validation; a blank text gives "".
std::string datum_z_rc(std::string_view text);
/// True for the structure NN-NN-NN/NNN or NN-NN-NN/NNNN, N a digit. Neither the date nor the
/// modulus is tested.
bool rodne_cislo_ok(std::string_view text);
/// Date of birth from a birth number of nine or ten digits, with or without "-" and "/"; no date
/// when the digits give none. The month of a woman has 50 added, and from 2004 on 20 or 70 where
/// the day's numbers ran out; nine digits belong to births before 1954 (§ 13 zák. č. 133/2000 Sb.).
Datum rc2datum(std::string_view text);

}  // namespace base
