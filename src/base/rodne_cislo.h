// Birth numbers.
#pragma once

#include <string>
#include <string_view>

namespace base {

/// The birth number without "-" and "/".
std::string rc_bez_lomitka(std::string_view text);
/// "M", "Ž" or "0" from the fourth and fifth characters alone: 1 to 12 a man, 51 to 62 a woman. The
/// reading window is these two positions and no other; a blank text gives "0".
std::string pohlavi_z_rc(std::string_view text);
/// A ddmmyy text to yyyy-mm-dd: 20yy when yy is below 31, else 19yy; digits reordered as they
/// stand, without validation; a blank text gives "".
std::string datum_z_rc(std::string_view text);

}  // namespace base
