// TFRpdDet: the editor of one work calendar.
#pragma once

#include <string>
#include <string_view>

#include "base/obsluha.h"
#include "shell/session.h"
#include "store/query.h"
#include "store/table.h"
#include "wages/bunky_kalendare.h"

namespace wages {

/// A row of `Rpd` as the editor shows it.
struct ZaznamKalendare {
    int rok = 0;
    int typ = 0;  ///< 0 "Základní", otherwise "Skupinový"
    std::string nazev;
    BunkyRoku bunky = prazdne_bunky();
};
/// The current row of an open `Rpd`.
ZaznamKalendare zaznam_kalendare(const store::Table& rpd);
/// The funds of the current row of a query over `Rpd`.
BunkyRoku bunky_roku(const store::Query& rpd);

/// "Základní" or "Skupinový".
const char* typ_kalendare_slovy(int typ);
/// "Pondělí" to "Neděle" for 1 to 7.
const char* den_v_tydnu_slovy(int den_v_tydnu);

class TFRpdDet final : public base::Obrazovka {
  public:
    /// `rpd` has a row in append or edit; saving posts it, leaving cancels it.
    TFRpdDet(shell::Session& session, store::Table& rpd, std::string nadpis_,
             ZaznamKalendare zaznam);
    std::string_view jmeno() const override { return "TFRpdDet"; }

    /// How the background of a day is drawn.
    enum class DruhDne { pracovni, vikend, svatek, neni };
    /// One day of the month at hand.
    struct Den {
        std::string nazev;  ///< "Pondělí"
        int den_v_tydnu;    ///< from 1
        DruhDne druh;       ///< `neni`: the month has no such day
        bool bez_prace;     ///< drawn in red
    };

    std::string nadpis;  ///< "Nový záznam", "Oprava záznamu", "Kopie záznamu"
    std::string Nazev;
    int Rok;
    int Typ;    ///< index into "Základní", "Skupinový"
    int mesic;  ///< index into the list of months, from 0
    /// Texts of the month at hand, as typed.
    BunkyMesice bunky;
    bool scVkladatDoNasledujiciho = true;
    bool scPrepisovatSvatky = false, scPrepisovatVyplnene = false;
    std::string soucet_roku, soucet_mesice;
    std::string fokus;  ///< "Nazev", "den_1" to "den_31", "acOK"
    bool vysledek_ok = false;
    bool zavreno = false;

    void FormShow();
    /// Number of days of the month at hand.
    int dnu() const;
    /// By the day of the month from 1 to 31.
    Den den(int cislo) const;
    /// The two further options are shown only with the first.
    bool dalsi_volby_viditelne() const { return scVkladatDoNasledujiciho; }
    /// True when `znak` may be typed at the end of `dosud`; otherwise beeps.
    bool povol_klavesu(char znak, std::string_view dosud) const;

    /// Another month was chosen from the list, from 0.
    void zmena_mesice(int novy);
    /// Another year was set: weekdays and holidays move, the funds stay.
    void zmena_roku();
    /// A day's cell was left; what is no time goes back to the value before, with a beep.
    void opusteni_bunky(int cislo);
    /// Enter in a day's cell: by the options carries the last changed value to the next day, and
    /// goes there.
    void enter_v_bunce(int cislo);
    void acOKExecute();
    void acZpetExecute();

  private:
    shell::Session& session_;
    store::Table& rpd_;
    int puvodni_typ_;
    BunkyRoku rok_;  ///< accepted values
    std::string naposledy_upravena_;

    BunkyMesice& mesic_roku() { return rok_[static_cast<std::size_t>(mesic)]; }
    void zapis_bunku(int cislo, const std::string& hodnota);
    BunkyRoku platne_bunky() const;
    void prijmi_rozepsane();
    void spocti();
    void uloz();
};

}  // namespace wages
