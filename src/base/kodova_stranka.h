// Code page 1250, which exists only at the edge: control records, bank files, checks of what a
// table may hold.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace base {

/// True when every character of the UTF-8 text exists in code page 1250.
bool je_v_1250(std::string_view utf8);
/// Bytes of code page 1250; nothing when a character does not exist there or the text is not UTF-8.
std::optional<std::string> do_1250(std::string_view utf8);
/// UTF-8 from bytes of code page 1250; a byte without a character becomes U+FFFD.
std::string z_1250(std::string_view bajty);

}  // namespace base
