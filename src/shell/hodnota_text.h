// Strict reading of single values from text, and their text form: what settings and control records
// share. Unlike the forgiving routines of base/text.h, a text that is not whole a value gives
// nothing.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/zaokrouhleni.h"

namespace shell {

/// A whole number of the range, blanks around are passed over.
std::optional<long long> presne_cele(std::string_view text, long long nejmene, long long nejvyse);
/// A finite number with "," or "." before the decimals.
std::optional<base::Castka> presne_desetinne(std::string_view text);
/// "1", "true", "ano" and "0", "false", "ne" in any case.
std::optional<bool> presne_logicke(std::string_view text);

/// The shortest form that reads back the same double, with a decimal point.
std::string cislo_textem(double x);

}  // namespace shell
