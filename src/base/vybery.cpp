#include "base/vybery.h"

#include <algorithm>
#include <fmt/format.h>

#include "base/text.h"

namespace base {
namespace {

constexpr std::string_view k_znamenka = "+-/x";

std::string bez_mezer(std::string_view text) {
    std::string vysledek(text);
    std::erase(vysledek, ' ');
    return vysledek;
}

/// " OR (pole=n)" or, for a range "a:b", " OR (pole>=a AND pole<=b)".
std::string podminka(std::string_view pole, std::string_view kus) {
    const auto dvojtecka = kus.find(':');
    if (dvojtecka == std::string_view::npos) return fmt::format(" OR ({}={})", pole, kus);
    return fmt::format(" OR ({0}>={1} AND {0}<={2})", pole, kus.substr(0, dvojtecka),
                       kus.substr(dvojtecka + 1));
}

/// The conditions without the " OR " in front of the first.
std::string bez_prvniho_or(const std::string& podminky) {
    return podminky.empty() ? podminky : podminky.substr(std::string_view(" OR ").size());
}

/// Condition of an item with its sign cut off: "s5", "m3:5" or a bare "5".
std::string podminka_polozky(std::string_view polozka) {
    if (polozka.empty()) return " OR ()";
    if (polozka[0] >= '0' && polozka[0] <= '9') return podminka("SLOUPEC", polozka);
    if (polozka[0] == 's') return podminka("SLOUPEC", polozka.substr(1));
    if (polozka[0] == 'm') return podminka("MODUL", polozka.substr(1));
    return fmt::format(" OR ({})", polozka);
}

}  // namespace

std::string vyber_hodnot(std::string_view text, std::string_view pole) {
    if (orez(text) == "*") return "";
    std::string podminky;
    for (const std::string& kus : rozdel_text(bez_mezer(text), ','))
        podminky += podminka(pole, kus);
    return bez_prvniho_or(podminky);
}

VyberSloupcu vyber_sloupcu(std::string_view text) {
    if (orez(text) == "*") return {};
    std::string zbytek = bez_mezer(text);
    if (!zbytek.empty() && k_znamenka.find(zbytek[0]) == std::string_view::npos)
        zbytek.insert(0, 1, '+');
    VyberSloupcu vyber;
    while (!zbytek.empty()) {
        const auto konec = std::min(zbytek.find_first_of(k_znamenka, 1), zbytek.size());
        (zbytek[0] == '+' ? vyber.vcetne : vyber.krome) +=
            podminka_polozky(std::string_view(zbytek).substr(1, konec - 1));
        zbytek.erase(0, konec);
    }
    return {bez_prvniho_or(vyber.vcetne), bez_prvniho_or(vyber.krome)};
}

RozsahMesicu rozsah_mesicu(std::string_view text) {
    std::string vyraz = orez(text);
    if (vyraz == "*") vyraz = "1:12";
    std::replace(vyraz.begin(), vyraz.end(), '-', ':');
    const auto dvojtecka = vyraz.find(':');
    const int od = je_cele_cislo(vyraz.substr(0, dvojtecka));
    if (dvojtecka == std::string::npos) return {od, od};
    return {od, je_cele_cislo(vyraz.substr(dvojtecka + 1))};
}

std::pair<Datum, Datum> rozsah_mesicu_datumy(std::string_view text, int rok) {
    const RozsahMesicu rozsah = rozsah_mesicu(text);
    const int od = std::clamp(rozsah.od, 1, 12);
    const int do_ = std::max(od, std::clamp(rozsah.do_, 1, 12));
    return {Datum{rok, od, 1}, Datum{rok, do_, dni_v_mesici(do_, rok)}};
}

}  // namespace base
