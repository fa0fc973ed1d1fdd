// What the program keeps about its use and its windows in the user's own folder, and about its
// errors.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "base/hodiny.h"
#include "base/slozky.h"

namespace base {

/// The name of this program in its logs and in the file of its windows.
inline constexpr std::string_view k_program = "Zorv";
/// What the log says of a screen that was opened.
inline constexpr std::string_view k_log_otevreni = " FormShow";

/// Appends "MMDDhhmmss" + text to `<slozka>/Velmar/Logy/<year>/<program>_<form>_<year>.log`;
/// folders are made as needed. Does nothing when `logovat` is off; a log that cannot be written
/// never stops the work.
void log_akce(bool logovat, const std::filesystem::path& slozka, const Hodiny& hodiny,
              std::string_view program, std::string_view form, std::string_view text);

/// An error that nobody handled.
struct ZaznamChyby {
    std::string trida;      ///< its class
    std::string text;       ///< what the operator is told
    std::string vlastnici;  ///< the control where it came out and its owners, joined by "->"
};
/// The error reporter's file: appends "date and time : class - text owners" and a line end (CR LF)
/// to `soubor`, which is made when missing, readable by its owner alone. A file that cannot be
/// written never hides the error itself.
void zapis_chybu(const std::filesystem::path& soubor, const Hodiny& hodiny,
                 const ZaznamChyby& chyba);

/// Place of a window on the screen, in pixels.
struct PolohaOkna {
    bool maximalizovano = false;
    int nahore = 0, vlevo = 0, sirka = 1024, vyska = 768;
};
/// The remembered place of a form from `<slozka>/Velmar/Okna/<program>_okna.ini`; nothing when
/// there is no section or the file cannot be read (the face centres the window then).
std::optional<PolohaOkna> nacti_okno(const std::filesystem::path& slozka, std::string_view program,
                                     std::string_view form);
/// A place that cannot be written is forgotten; it never stops the closing of a window.
void uloz_okno(const std::filesystem::path& slozka, std::string_view program, std::string_view form,
               const PolohaOkna& poloha);

}  // namespace base
