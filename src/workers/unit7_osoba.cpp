#include "workers/unit7_osoba.h"

#include <algorithm>

#include "base/rodne_cislo.h"
#include "base/text.h"

namespace workers {
namespace {

constexpr std::size_t k_znaku_jmena = 20;
constexpr base::Castka k_tydnu_roku = 52;

}  // namespace

int urci_pohlavi(std::string_view rodne_cislo) {
    const std::string pohlavi = base::pohlavi_z_rc(rodne_cislo);
    if (pohlavi == "M") return 0;
    return pohlavi == "Ž" ? 1 : 2;
}

void Pocatek_vydelecne_cinnosti(std::string_view datum, std::string& text) {
    if (!base::datum_ok(datum)) return;
    const std::string den = base::dopln_nuly_data(datum);
    text = den.substr(0, 2) + den.substr(3, 2) + den.substr(8, 2);
}

std::string datum_pri_psani(std::string text) {
    std::replace(text.begin(), text.end(), ',', '.');
    return text;
}

std::string jmeno_s_titulem(const std::string& jmeno, const std::string& titul) {
    if (!base::neprazdny(titul)) return jmeno;
    return base::nejvyse(jmeno + ", " + titul, k_znaku_jmena);
}

base::Castka narok_dovolene(int rok, std::string_view zam_od, std::string_view zam_do, int tydnu,
                            base::Castka tpd) {
    const base::Datum prvni{rok, 1, 1}, posledni{rok, 12, 31};
    const base::Datum od = std::max(base::datum_z_textu(zam_od).value_or(prvni), prvni);
    const base::Datum do_ = std::max(base::datum_z_textu(zam_do).value_or(posledni), prvni);
    const base::Castka dnu =
        static_cast<base::Castka>(base::poradi_dne(do_) - base::poradi_dne(od) + 1);
    const base::Castka tydnu_pomeru = base::odriznout(dnu / 7);
    return base::zaokrouhli(tydnu_pomeru / k_tydnu_roku * tydnu * tpd, 2, false);
}

}  // namespace workers
