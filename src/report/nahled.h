// TFUsrPrev: the preview shared by all reports. A face shows the document, prints it or stores it.
#pragma once

#include <filesystem>
#include <string_view>

#include "base/obsluha.h"
#include "report/document.h"

namespace report {

class TFUsrPrev : public base::Obrazovka {
  public:
    explicit TFUsrPrev(Document dokument_);
    std::string_view jmeno() const override { return "TFUsrPrev"; }

    Document dokument;
    bool zavreno = false;

    void acZpetExecute();
    /// The file is replaced only when the whole of it could be written; throws base::ChybaDat.
    void uloz_pdf(const std::filesystem::path& soubor) const;
    void uloz_text(const std::filesystem::path& soubor) const;
};

}  // namespace report
