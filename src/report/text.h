// A report as plain text in letters of one width, for the terminal, for files and for tests.
#pragma once

#include <string>

#include "report/document.h"

namespace report {

/// All pages as one list, lines ended by "\n": headings of the pages stand once, their feet not at
/// all. Columns are as wide as their texts need; a text that would be cut on paper is cut here too,
/// a number (anything aligned to the right) never is.
std::string jako_text(const Document& document);

}  // namespace report
