// TForm110: the crowns of a written gross item corrected by hand, past the computation of its
// column.
#pragma once

#include <string>
#include <string_view>

#include "base/obsluha.h"
#include "shell/session.h"
#include "wages/unit19_veta.h"

namespace wages {

class TForm110 final : public base::Obrazovka {
  public:
    /// The row is of `session.zpracovavany_mesic` and carries no compensation, whose detail would
    /// no longer agree.
    TForm110(shell::Session& session, UlozenaVeta veta);
    std::string_view jmeno() const override { return "TForm110"; }

    std::string nadpis = "Ruční oprava částky";
    std::string lbPracovnik;  ///< number, surname, first name
    std::string lbPolozka;    ///< column and its text
    std::string lbZapsano;    ///< the crowns that stand in the row
    std::string scKoruny;     ///< as typed, with a decimal comma
    std::string fokus;
    bool zmeneno = false;
    bool zavreno = false;

    void FormShow();
    /// Sign, at most seven digits and two decimals.
    static bool povol_klavesu(char znak, std::string_view text);
    void acUlozitExecute();
    void acZpetExecute();

  private:
    shell::Session& session_;
    UlozenaVeta veta_;
};

}  // namespace wages
