// Banded report templates: small XML files of `Sablony`. Their format is told in
// docs/report-templates.md.
#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "report/document.h"
#include "store/query.h"

namespace report {

struct PredpisSablony;

/// A template that was read and found sound. Cheap to copy.
class Sablona {
  public:
    explicit Sablona(std::shared_ptr<const PredpisSablony> predpis);
    const PredpisSablony& predpis() const { return *predpis_; }

  private:
    std::shared_ptr<const PredpisSablony> predpis_;
};

/// Throws base::ChybaDat with the file, the line, the element and what was expected.
Sablona nacti_sablonu(const std::filesystem::path& soubor);
/// The same from a text; `soubor` is its name in messages.
Sablona sablona_z_textu(std::string_view xml, const std::string& soubor);

/// Fills the template with the rows in their order; groups begin where their column changes.
/// Throws base::ChybaDat when the template names a column or a parameter that is not there.
Document vypln_sablonu(const Sablona& sablona, const store::Rows& vety,
                       const std::map<std::string, std::string>& parametry);

}  // namespace report
