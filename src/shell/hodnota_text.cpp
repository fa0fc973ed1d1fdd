#include "shell/hodnota_text.h"

#include <charconv>
#include <cmath>
#include <fmt/format.h>

#include "base/text.h"

namespace shell {

namespace {

template <class Cislo>
std::optional<Cislo> z_celeho_textu(std::string_view text) {
    // from_chars knows no plus sign.
    if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
    Cislo cislo{};
    const char* konec = text.data() + text.size();
    const auto vysledek = std::from_chars(text.data(), konec, cislo);
    if (vysledek.ec != std::errc{} || vysledek.ptr != konec) return std::nullopt;
    return cislo;
}

}  // namespace

std::optional<long long> presne_cele(std::string_view text, long long nejmene, long long nejvyse) {
    const auto cislo = z_celeho_textu<long long>(base::orez(text));
    if (!cislo || *cislo < nejmene || *cislo > nejvyse) return std::nullopt;
    return cislo;
}

std::optional<base::Castka> presne_desetinne(std::string_view text) {
    std::string s = base::orez(text);
    const std::size_t carka = s.find(',');
    if (carka != std::string::npos) {
        if (s.find('.') != std::string::npos) return std::nullopt;
        s[carka] = '.';
    }
    const auto cislo = z_celeho_textu<base::Castka>(s);
    if (!cislo || !std::isfinite(*cislo)) return std::nullopt;
    return cislo;
}

std::optional<bool> presne_logicke(std::string_view text) {
    const std::string s = base::malymi(base::orez(text));
    if (s == "1" || s == "true" || s == "ano") return true;
    if (s == "0" || s == "false" || s == "ne") return false;
    return std::nullopt;
}

std::string cislo_textem(double x) {
    return fmt::format("{}", x);
}

}  // namespace shell
