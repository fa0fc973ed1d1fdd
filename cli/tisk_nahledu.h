// Reports at a terminal: a preview is printed as text, or stored as PDF by --pdf.
#pragma once

#include <filesystem>
#include <iosfwd>

#include "report/nahled.h"

namespace cli {

class TiskNahledu {
  public:
    /// An empty `pdf` prints to `out`; otherwise the name of each stored file goes to `err`.
    TiskNahledu(std::filesystem::path pdf, std::ostream& out, std::ostream& err);

    /// Works the shown screen and leaves it. The second PDF of a verb gets "-2" to its name, the
    /// third "-3": none is lost.
    void vytiskni(report::TFUsrPrev& nahled);
    /// True when a PDF was asked for and none was shown.
    bool chybi_pdf() const { return !pdf_.empty() && ulozeno_ == 0; }

  private:
    std::filesystem::path soubor() const;

    std::filesystem::path pdf_;
    std::ostream& out_;
    std::ostream& err_;
    int ulozeno_ = 0;
};

}  // namespace cli
