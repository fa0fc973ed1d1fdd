#include "paysheet/okresy_cssz.h"

#include <cstddef>

#include "base/kodova_stranka.h"
#include "base/soubory.h"
#include "base/text.h"

namespace paysheet {

namespace {

constexpr std::size_t k_delka_kodu = 3;
constexpr std::size_t k_nejvetsi_soubor = std::size_t{1} << 20U;

}  // namespace

std::vector<std::string> cti_okresy_cssz(const std::filesystem::path& soubor) {
    std::vector<std::string> okresy;
    if (!std::filesystem::exists(soubor)) return okresy;
    std::string text = base::precti_soubor(soubor, k_nejvetsi_soubor);
    if (!base::je_utf8(text)) text = base::z_1250(text);
    for (std::string& radek : base::rozdel_text(text, '\n')) {
        if (base::pocet_znaku(radek) >= k_delka_kodu) okresy.push_back(std::move(radek));
    }
    return okresy;
}

std::string okres_podle_kodu(const std::vector<std::string>& okresy, std::string_view kod) {
    for (const std::string& okres : okresy) {
        if (kod_okresu(okres) == kod) return okres;
    }
    return std::string(kod);
}

std::string kod_okresu(std::string_view radek) {
    return base::orez(base::nejvyse(base::orez(radek), k_delka_kodu));
}

}  // namespace paysheet
