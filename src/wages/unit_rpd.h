// TFRpd: the list of work calendars, opened from the main menu and, for choosing one, from the
// worker's card.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "workers/ciselnik_seznam.h"
#include "workers/vyber_kalendare.h"

namespace wages {

/// All calendars by year, type and name: `Pocitadlo`, `Rok`, `Typ` in words, `Nazev`, `Fond` of the
/// year as "h:mm".
store::Rows seznam_kalendaru(shell::Session& session);

class TFRpd final : public workers::SeznamVet {
  public:
    /// With `vyber` a calendar can be taken by "Vybrat" or a double click.
    explicit TFRpd(shell::Session& session, bool vyber = false);
    std::string_view jmeno() const override { return "TFRpd"; }

    bool jen_vybrany = false;  ///< check box of the print: the row at hand alone
    std::optional<workers::ZvolenyKalendar> zvoleny;

    /// Reads the calendars and stands on the first one of the current year.
    void FormShow();
    bool lze_vybrat() const { return vyber_ && je_veta(); }
    void acPridatExecute();
    void acOpravitExecute();
    void acSmazatExecute();
    void acKopirovatExecute();
    void acVybratExecute();
    void dvojklik();  ///< chooses in the choosing mode, corrects otherwise
    void acTiskExecute();
    void acSmazatStareKalendareExecute();
    void acPridatZakladniExecute();

  private:
    bool vyber_;
    enum class Rezim { novy, oprava, kopie };
    void uprav(Rezim rezim);
    void obnov(std::int64_t pocitadlo);
};

/// The list in the choosing mode; nothing when the operator left without choosing.
std::optional<workers::ZvolenyKalendar> vyber_kalendar(shell::Session& session);

}  // namespace wages
