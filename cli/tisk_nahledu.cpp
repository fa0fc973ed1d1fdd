#include "cli/tisk_nahledu.h"

#include <ostream>
#include <utility>

#include "report/text.h"

namespace cli {

TiskNahledu::TiskNahledu(std::filesystem::path pdf, std::ostream& out, std::ostream& err)
    : pdf_(std::move(pdf)), out_(out), err_(err) {}

void TiskNahledu::vytiskni(report::TFUsrPrev& nahled) {
    if (pdf_.empty()) {
        out_ << report::jako_text(nahled.dokument);
    } else {
        ++ulozeno_;
        const auto kam = soubor();
        nahled.uloz_pdf(kam);
        err_ << "Sestava \"" << nahled.dokument.nazev << "\" je v souboru " << kam.string()
             << std::endl;
    }
    nahled.acZpetExecute();
}

std::filesystem::path TiskNahledu::soubor() const {
    if (ulozeno_ == 1) return pdf_;
    auto dalsi = pdf_;
    return dalsi.replace_filename(pdf_.stem().string() + "-" + std::to_string(ulozeno_) +
                                  pdf_.extension().string());
}

}  // namespace cli
