// TForm66: browsing of pay-sheet rows, here those of workers with negative pay.
#pragma once

#include <string>

#include "base/obsluha.h"
#include "shell/session.h"
#include "store/query.h"

namespace payrun {

class TForm66 final : public base::Obrazovka {
  public:
    /// `dotaz` is the statement whose rows are shown; it is run at once.
    TForm66(shell::Session& session, std::string nadpis_, std::string_view dotaz);
    std::string_view jmeno() const override { return "TForm66"; }

    std::string nadpis;
    store::Rows vety;
    bool zavreno = false;

    /// "Zpět".
    void Button1Click();
};

}  // namespace payrun
