// TForm75: crowns of fixed items corrected one after another in a grid.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/obsluha.h"
#include "shell/session.h"
#include "workers/fixni_seznam.h"

namespace workers {

class TForm75 final : public base::Obrazovka {
  public:
    /// Shows the items that the list of the company shows, in its order.
    TForm75(shell::Session& session, OmezeniFixnich omezeni, TrideniFixnich trideni);
    std::string_view jmeno() const override { return "TForm75"; }

    std::string nadpis = "Oprava korun u fixních položek";
    static constexpr const char* k_popis = "Opravovat lze pouze sloupec Kč.";
    std::string lbOmezeni;
    std::vector<RadekFixnich> vety;
    int radek = -1;  ///< current row of `vety` from 0, -1 none
    bool zavreno = false;

    void FormShow();
    /// The cursor of the grid moved to a row, from 0.
    void vyber_radek(int novy);
    /// A value was typed in a row and left: saves it. False when it is refused: the row keeps what
    /// it had.
    bool zapis_koruny(int ktery, const std::string& text);
    /// May `znak` be typed at the end of `dosud` in the crowns of a row? Otherwise beeps.
    bool povol_klavesu(int ktery, char znak, std::string_view dosud) const;
    void acZpetExecute();

  private:
    shell::Session& session_;
    OmezeniFixnich omezeni_;
    TrideniFixnich trideni_;
};

}  // namespace workers
