// A report as a PDF file.
#pragma once

#include <string>

#include "report/document.h"

namespace report {

/// The bytes of the file. Letters are embedded and the text can be searched and copied. A text too
/// long for its cell ends with an ellipsis (a search still finds all of it); a number is made
/// smaller, not cut. The same document gives the same bytes. Throws base::ChybaDat when the PDF
/// cannot be made.
std::string jako_pdf(const Document& document);

}  // namespace report
