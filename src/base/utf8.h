// Walking over the characters of UTF-8 text, for the files of this folder.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <unicode/utf8.h>

namespace base {

/// The character at byte `i`, which moves behind it; negative for bytes that are not UTF-8.
inline std::int32_t dalsi_znak(std::string_view text, std::size_t& i) {
    const char* const bajty = text.data();
    const auto delka = static_cast<std::int64_t>(text.size());
    auto pozice = static_cast<std::int64_t>(i);
    std::int32_t znak = 0;
// The macro narrows integers on purpose.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"
    U8_NEXT(bajty, pozice, delka, znak);
#pragma GCC diagnostic pop
    i = static_cast<std::size_t>(pozice);
    return znak;
}

inline bool je_ascii(std::string_view text) {
    unsigned char vse = 0;
    for (const char c : text)
        vse |= static_cast<unsigned char>(c);
    return vse < 0x80;
}

}  // namespace base
