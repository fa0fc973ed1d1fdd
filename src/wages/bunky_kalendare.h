// A work calendar as its editor holds it: twelve months of 31 texts "h:mm", and what Enter does in
// a day's cell.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace wages {

using BunkyMesice = std::array<std::string, 31>;
using BunkyRoku = std::array<BunkyMesice, 12>;

/// A day without work.
inline constexpr const char* k_bez_prace = "0:00";

/// Twelve months without work.
BunkyRoku prazdne_bunky();
/// The cells of a stored month; missing ones are "0:00", those past the 31st are dropped.
BunkyMesice bunky_z_textu(std::string_view text);
/// The month as it is stored: cells separated by ";".
std::string text_z_bunek(const BunkyMesice& bunky);

/// What was typed into a cell as "h:mm": "8", "7:30", "7,30" or "730"; blank is "0:00". Nothing for
/// a text that is no time from 0:00 to 24:00.
std::optional<std::string> bunka_z_textu(std::string_view text);

/// Minutes of the month; a cell that is no time counts as 0.
int minut_mesice(const BunkyMesice& bunky);
int minut_roku(const BunkyRoku& bunky);
/// Hours, a colon and two-digit minutes; the hours may have any number of digits.
std::string cas_textem(int minut);

/// Check boxes of the editor that say what Enter in a day's cell does.
struct VolbyEnteru {
    bool vkladat_do_nasledujiciho = true;  ///< the other two count only with this one
    bool prepisovat_svatky = false;        ///< also Saturdays and Sundays
    bool prepisovat_vyplnene = false;
};
/// True when Enter copies the last changed value into the next day, which is `volno` (a weekend day
/// or a holiday) and holds `hodnota`.
bool vlozi_se_do_nasledujiciho(const VolbyEnteru& volby, bool volno, std::string_view hodnota);

}  // namespace wages
