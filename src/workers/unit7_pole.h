// The fields of the worker's card as data: page, caption, kind and length. Loading, checking,
// storing, the window and the printed card all walk this table; a new field is a new line of it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shell/session.h"
#include "workers/unit7_ciselniky.h"

namespace workers {

/// Pages of the card, in the order of their tabs.
enum class StrankaKarty { osobni, danove, prumery, hlediska, texty, cssz, cizozemci };
inline constexpr int k_stranek_karty = 7;
const char* stranka_slovy(StrankaKarty stranka);

enum class DruhPoleKarty {
    text,
    velka,      ///< text in upper case
    datum,      ///< d.m.yyyy
    ddmmrr,     ///< six digits
    cele,       ///< whole number
    desetinne,  ///< number with a decimal comma
    logicke,    ///< check box
    seznam,     ///< item of a code list
    kalendar    ///< row of `Rpd`
};

struct PoleKarty {
    StrankaKarty stranka;
    std::string ovladac;  ///< name of the control, unique
    std::string pole;     ///< field of `Os_karty` that it edits
    std::string popisek;  ///< caption; "" where it comes from the settings, see popisek_pole
    DruhPoleKarty druh;
    int delka = 0;       ///< characters of a text, digits before the decimal comma of a number
    int mist = 0;        ///< decimals
    bool minus = false;  ///< a negative number may be typed
    CiselnikKarty ciselnik = CiselnikKarty::zadny;
    bool jen_cist = false;
    std::string napoveda;  ///< hint under the mouse
};

/// All fields in the order of pages and of entry.
const std::vector<PoleKarty>& pole_karty();
/// Place in `pole_karty` of a control; throws std::logic_error for a name that is not there.
std::size_t poradi_pole(std::string_view ovladac);
/// The caption, those of personal assessment and of free criteria from the settings.
std::string popisek_pole(const PoleKarty& pole, const shell::Session& session);

}  // namespace workers
