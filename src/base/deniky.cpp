#include "base/deniky.h"

#include <algorithm>
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

/// One error is one line, also with a text of several.
std::string na_radek(std::string text) {
    std::erase(text, '\r');
    std::replace(text.begin(), text.end(), '\n', ' ');
    return text;
}

}  // namespace

void zapis_chybu(const fs::path& soubor, const Hodiny& hodiny, const ZaznamChyby& chyba) {
    const DatumCas ted = hodiny.nyni();
    const std::string kdy = fmt::format("{}.{}.{} {}:{:02}:{:02}", ted.datum.den, ted.datum.mesic,
                                        ted.datum.rok, ted.hodina, ted.minuta, ted.sekunda);
    std::error_code bez_souboru;
    const bool novy = !fs::exists(soubor, bez_souboru);
    std::ofstream vystup(soubor, std::ios::app | std::ios::binary);
    if (novy) {
        fs::permissions(soubor, fs::perms::owner_read | fs::perms::owner_write, bez_souboru);
    }
    vystup << fmt::format("{} : {} - {} {}\r\n", kdy, chyba.trida, na_radek(chyba.text),
                          chyba.vlastnici);
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
