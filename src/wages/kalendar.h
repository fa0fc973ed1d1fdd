// Work calendars (`Rpd`): the working time of each day of a year, and the funds counted from it.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "base/datum.h"
#include "base/zaokrouhleni.h"
#include "shell/session.h"

namespace wages {

/// Minutes of work of the 31 days of one month; days past the month's end hold 0.
using MesicKalendare = std::array<int, 31>;
/// Minutes of work of the twelve months.
using RokKalendare = std::array<MesicKalendare, 12>;

/// One month's text of "h:mm" cells separated by ";" to minutes; missing or unreadable cells are 0,
/// a cell past 24:00 counts as it is written.
MesicKalendare mesic_z_textu(std::string_view text);
/// The text of 31 cells "h:mm", as it is stored.
std::string mesic_na_text(const MesicKalendare& mesic);
/// "" when the text is 31 well-formed cells of 0:00 to 24:00, otherwise a Czech message saying what
/// is wrong.
std::string kontrola_textu_mesice(std::string_view text);

/// The calendar's row by its `Pocitadlo` and year; nothing when there is none.
std::optional<RokKalendare> nacti_kalendar(shell::Session& session, int id_rpd, int rok);

/// A calendar with `minut_denne` on every day but Saturdays, Sundays and holidays.
RokKalendare zakladni_kalendar(int rok, int minut_denne);
/// Adds the two basic calendars (8:00 and 7:30) of the session's year. Adding twice gives four
/// rows.
void acPridatZakladniExecute(shell::Session& session);

/// The days of a month that lie between two days; a bound outside the month (or none) is the
/// month's own.
struct RozsahDnu {
    int prvni = 1;
    int posledni = 31;
};
RozsahDnu dny_v_mesici_mezi(int rok, int mesic, const base::Datum& od, const base::Datum& do_);

/// Hours of the month between the two days.
base::Castka fond_hodin_rpd(const RokKalendare& kalendar, int rok, int mesic, const base::Datum& od,
                            const base::Datum& do_);
/// Days of the same range with more than 0 minutes.
int fond_dni_rpd(const RokKalendare& kalendar, int rok, int mesic, const base::Datum& od,
                 const base::Datum& do_);

}  // namespace wages
