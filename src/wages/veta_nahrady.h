// How a compensation stands in its row of `Nahrady`, and its kinds in words.
#pragma once

#include <string>
#include <string_view>

#include "wages/nahrada_vypocet.h"

namespace wages {

/// Characters of the fields `Fond_A` to `Fond_C`.
inline constexpr std::size_t k_znaku_fondu = 5;

/// A fund "h:mm" as its field holds it. From 100 hours on the last digit of the minutes has no
/// room: "144:00" is stored as "144:0".
std::string fond_do_vety(std::string_view fond);
/// The field as "h:mm" again, the missing minutes as 0.
std::string fond_z_vety(std::string_view pole);

/// "nemoc", "karanténa", "OČR", "PPM"; "?" for a number that is none of the kinds.
const char* typ_nahrady_slovy(int typ);

}  // namespace wages
