// Texts as a terminal shows them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/zaokrouhleni.h"

namespace cli {

/// Thousands parted by blanks, decimal comma, no trailing zeros: "28 615", "-1 234,5".
std::string citelna_castka(base::Castka castka);

/// Line ends of a message (CR LF, or CR alone) as "\n".
std::string radky_terminalu(std::string_view text);

/// Up to five of the names that the operator may have meant: those that contain the text, and those
/// that differ from it by a few characters. Nearest first.
std::vector<std::string> podobne(std::string_view text, const std::vector<std::string>& nazvy);

/// " Podobné: a, b." or "" when nothing is near.
std::string veta_o_podobnych(std::string_view text, const std::vector<std::string>& nazvy);

/// Texts with `oddelovac` between them.
std::string spoj(const std::vector<std::string>& texty, std::string_view oddelovac);

}  // namespace cli
