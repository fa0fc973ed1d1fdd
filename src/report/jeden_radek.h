// A text of a cell made fit for one line.
#pragma once

#include <algorithm>
#include <string>

namespace report {

/// Line ends, tabs and other control characters become blanks.
inline std::string jeden_radek(std::string text) {
    std::ranges::replace_if(
        text, [](char znak) { return static_cast<unsigned char>(znak) < ' '; }, ' ');
    return text;
}

}  // namespace report
