#include "base/deniky.h"

#include <cstdlib>
#include <fmt/format.h>
#include <fstream>
#include <system_error>

#include "base/ini.h"

namespace base {
namespace {

namespace fs = std::filesystem;

fs::path soubor_oken(const fs::path& slozka, std::string_view program) {
    return slozka / "Velmar" / "Okna" / fmt::format("{}_okna.ini", program);
}

}  // namespace

fs::path slozka_uzivatele() {
    if (const char* data = std::getenv("XDG_DATA_HOME"); data && *data) return data;
    const char* domov = std::getenv("HOME");
    return fs::path(domov && *domov ? domov : ".") / ".local" / "share";
}

void log_akce(bool logovat, const fs::path& slozka, const Hodiny& hodiny, std::string_view program,
              std::string_view form, std::string_view text) {
    if (!logovat) return;
    const DatumCas ted = hodiny.nyni();
    const fs::path soubor = slozka / "Velmar" / "Logy" / std::to_string(ted.datum.rok) /
                            fmt::format("{}_{}_{}.log", program, form, ted.datum.rok);
    std::error_code chyba;
    fs::create_directories(soubor.parent_path(), chyba);
    std::ofstream(soubor, std::ios::app)
        << fmt::format("{:02}{:02}{:02}{:02}{:02}{}\n", ted.datum.mesic, ted.datum.den, ted.hodina,
                       ted.minuta, ted.sekunda, text);
}

std::optional<PolohaOkna> nacti_okno(const fs::path& slozka, std::string_view program,
                                     std::string_view form) {
    try {
        const IniSoubor ini(soubor_oken(slozka, program));
        if (ini.klice(form).empty()) return std::nullopt;
        const PolohaOkna vychozi;
        return PolohaOkna{
            ini.logicke(form, "Maximized", vychozi.maximalizovano),
            ini.cislo(form, "Top", vychozi.nahore), ini.cislo(form, "Left", vychozi.vlevo),
            ini.cislo(form, "Width", vychozi.sirka), ini.cislo(form, "Height", vychozi.vyska)};
    } catch (const ChybaDat&) {
        return std::nullopt;
    }
}

void uloz_okno(const fs::path& slozka, std::string_view program, std::string_view form,
               const PolohaOkna& poloha) {
    const fs::path soubor = soubor_oken(slozka, program);
    std::error_code chyba;
    fs::create_directories(soubor.parent_path(), chyba);
    try {
        IniSoubor ini(soubor);
        ini.nastav(form, "Maximized", poloha.maximalizovano ? "1" : "0");
        ini.nastav(form, "Top", std::to_string(poloha.nahore));
        ini.nastav(form, "Left", std::to_string(poloha.vlevo));
        ini.nastav(form, "Width", std::to_string(poloha.sirka));
        ini.nastav(form, "Height", std::to_string(poloha.vyska));
        ini.uloz();
    } catch (const ChybaDat&) {
        // Told in the header: only the place is lost.
    }
}

}  // namespace base
