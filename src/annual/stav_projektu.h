// TFStavProjektu: the closing dates of the twelve months. It shows them and changes nothing.
#pragma once

#include <array>
#include <string>

#include "base/obsluha.h"
#include "shell/session.h"

namespace annual {

class TFStavProjektu final : public base::Obrazovka {
  public:
    explicit TFStavProjektu(shell::Session& session);
    std::string_view jmeno() const override { return "TFStavProjektu"; }

    static constexpr const char* k_sloupec_obdobi = "Období";
    static constexpr const char* k_sloupec_datum = "Datum uzavření";
    static constexpr int k_sirka_obdobi = 17;  ///< characters of the first column

    std::string nadpis;
    /// A line a month: its name and year in 17 characters, a blank, the date of closing or nothing.
    std::array<std::string, 12> radky;
    bool zavreno = false;

    /// Reads `rid_zorv.idx` anew into the session and fills the lines. Throws base::ChybaDat naming
    /// the file when it cannot be read.
    void FormShow();
    /// "Zpět".
    void acZpet();

  private:
    shell::Session& session_;
};

}  // namespace annual
