// TForm162: attendance of all workers in a month, hours or reasons of absence day by day.
#pragma once

#include <string>
#include <string_view>

#include "wages/dochazka.h"
#include "workers/ciselnik_seznam.h"

namespace wages {

/// The columns of the grid: `Cislo`, `Pracovnik`, `Den1` to `Den31` (hours or codes), `Suma_hod`,
/// `Suma_odprac`, `Suma_neodprac`, `Poznamka`.
class TForm162 final : public workers::SeznamVet {
  public:
    /// Begins with the month of the main form's box.
    explicit TForm162(shell::Session& session);
    std::string_view jmeno() const override { return "TForm162"; }

    /// How the column of a day is headed and drawn.
    struct Den {
        std::string nadpis;  ///< "1" and "Po" in two lines; "" when the month has no such day
        bool vikend = false, svatek = false;
    };

    int mesic;                  ///< index into the list "Leden" to "Prosinec"
    std::string cislo;          ///< filter
    std::string prijmeni;       ///< filter
    bool nepritomnost = false;  ///< the columns show codes

    void FormShow();
    /// "Zobrazit nepřítomnost" or "Zobrazit odpracované hodiny".
    const char* popisek_prepinace() const;
    /// By the day of the month from 1.
    Den den(int cislo_dne) const;
    bool povol_klavesu_cisla(char znak, std::string_view dosud) const;

    void zmena_mesice();
    /// Another text in a filter narrows the list at once.
    void zmena_filtru();
    void acVseExecute();  ///< "Vše": clears the filters
    void acOdpracovanoNepritomnostExecute();
    void acOpravitExecute();
    void acTiskExecute();

  private:
    store::Rows dochazka_;  ///< as read, row by row as `vety`

    void nacti(std::int64_t pocitadlo);
    void ukaz(std::int64_t pocitadlo);
};

/// "Leden" to "Prosinec" for 1 to 12.
std::string mesic_v_seznamu(int mesic);

}  // namespace wages
