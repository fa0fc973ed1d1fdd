// What the program keeps about its windows and its use in the user's own folder.
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include "base/hodiny.h"

namespace base {

/// The folder for the user's local application data; `$XDG_DATA_HOME`, else `~/.local/share`.
std::filesystem::path slozka_uzivatele();

/// Appends "MMDDhhmmss" + text to `<slozka>/Velmar/Logy/<year>/<program>_<form>_<year>.log`;
/// folders are made as needed. Does nothing when `logovat` is off; a log that cannot be written
/// never stops the work.
void log_akce(bool logovat, const std::filesystem::path& slozka, const Hodiny& hodiny,
              std::string_view program, std::string_view form, std::string_view text);

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
