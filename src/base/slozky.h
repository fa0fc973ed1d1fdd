// Folders that the program finds by itself: its own one and the user's.
#pragma once

#include <filesystem>
#include <string_view>

namespace base {

/// The real folder of the running program file: links, such as one in /usr/bin, are followed. The
/// first argument serves where the system does not tell.
std::filesystem::path slozka_programu(std::string_view prvni_argument);

/// The user's home folder; "." when the system names none.
std::filesystem::path domovska_slozka();
/// The user's own configuration of this program: `$XDG_CONFIG_HOME/zorv`, else `~/.config/zorv`.
std::filesystem::path slozka_konfigurace();
/// The folder for the user's local application data; `$XDG_DATA_HOME`, else `~/.local/share`.
std::filesystem::path slozka_uzivatele();

/// True when this user can make files in the folder; false also for one that does not exist.
bool lze_zapisovat(const std::filesystem::path& slozka);

}  // namespace base
