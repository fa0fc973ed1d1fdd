#include "report/nahled.h"

#include <utility>

#include "base/soubory.h"
#include "report/pdf.h"
#include "report/text.h"

namespace report {

TFUsrPrev::TFUsrPrev(Document dokument_) : dokument(std::move(dokument_)) {}

void TFUsrPrev::acZpetExecute() {
    zavreno = true;
    oznam_zmenu();
}

void TFUsrPrev::uloz_pdf(const std::filesystem::path& soubor) const {
    base::zapis_soubor(soubor, jako_pdf(dokument));
}

void TFUsrPrev::uloz_text(const std::filesystem::path& soubor) const {
    base::zapis_soubor(soubor, jako_text(dokument));
}

}  // namespace report
