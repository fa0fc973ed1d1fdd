// Texts of a template with what stands in braces: {Prijmeni}, {parametr:firma}, {soucet:Kcs} ...
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "report/sablona_predpis.h"

namespace report {

/// The pieces of a text. Throws base::ChybaDat whose text says what was expected, without the place
/// in the file.
std::vector<Cast> rozeber_text(std::string_view text);

}  // namespace report
