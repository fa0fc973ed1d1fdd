// Printing of a PDF on a printer of the system.
#pragma once

class QPdfDocument;
class QPrinter;

namespace desktop {

/// Prints the pages from `od` to `do_`, counted from 1, each as large as the paper.
void vytiskni(QPdfDocument& pdf, QPrinter& tiskarna, int od, int do_);

}  // namespace desktop
