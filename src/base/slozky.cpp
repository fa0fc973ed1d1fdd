#include "base/slozky.h"

#include <cstdlib>
#include <system_error>
#include <unistd.h>

namespace base {
namespace {

namespace fs = std::filesystem;

/// The folder that a variable of the environment names; empty when it names none.
fs::path z_prostredi(const char* promenna) {
    const char* hodnota = std::getenv(promenna);
    return hodnota ? hodnota : "";
}

}  // namespace

fs::path slozka_programu(std::string_view prvni_argument) {
    std::error_code chyba;
    fs::path program = fs::read_symlink("/proc/self/exe", chyba);
    if (chyba) program = fs::weakly_canonical(prvni_argument, chyba);
    return program.parent_path();
}

fs::path domovska_slozka() {
    const fs::path domov = z_prostredi("HOME");
    return domov.empty() ? "." : domov;
}

fs::path slozka_konfigurace() {
    const fs::path konfigurace = z_prostredi("XDG_CONFIG_HOME");
    return (konfigurace.empty() ? domovska_slozka() / ".config" : konfigurace) / "zorv";
}

fs::path slozka_uzivatele() {
    const fs::path data = z_prostredi("XDG_DATA_HOME");
    return data.empty() ? domovska_slozka() / ".local" / "share" : data;
}

bool lze_zapisovat(const fs::path& slozka) {
    return ::access(slozka.c_str(), W_OK | X_OK) == 0;
}

}  // namespace base
