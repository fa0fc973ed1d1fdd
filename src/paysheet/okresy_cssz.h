// District offices of the social security administration (ČSSZ): the list that the settings offer.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/chyba.h"

namespace paysheet {

/// Lines of `C_COKR.txt`, one an office, each beginning with its three-character code; lines
/// shorter than that are passed over. A missing file gives an empty list. Texts of older
/// installations are in code page 1250. Throws base::ChybaDat naming a file that cannot be read.
std::vector<std::string> cti_okresy_cssz(const std::filesystem::path& soubor);

/// The line of the office with this code; the code itself when the list does not know it.
std::string okres_podle_kodu(const std::vector<std::string>& okresy, std::string_view kod);

/// The code at the beginning of a line or of what the operator typed, three characters at most.
std::string kod_okresu(std::string_view radek);

}  // namespace paysheet
