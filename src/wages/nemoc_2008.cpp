#include "wages/nemoc_2008.h"

#include <algorithm>
#include <fmt/format.h>

#include "base/castky_text.h"
#include "base/datum.h"
#include "base/text.h"

namespace wages {
namespace {

/// Last day of each band; the fourth has none.
constexpr std::array<int, 3> k_konce_pasem{3, 30, 60};
constexpr int k_nejvic_ocr = 9;
constexpr int k_nejvic_ocr_osamele = 16;
constexpr std::size_t k_text_s_obdobim = 13;
/// Shares of the daily average that count: up to the first limit, and between the two.
constexpr Castka k_podil_do_prvni = 0.9L;
constexpr Castka k_podil_do_druhe = 0.6L;
constexpr Castka k_nahoru_prumer = 0.4999L;
constexpr Castka k_nahoru_sazba = 0.49L;

std::size_t pasmo(int n) {
    const auto* konec = std::lower_bound(k_konce_pasem.begin(), k_konce_pasem.end(), n);
    return static_cast<std::size_t>(konec - k_konce_pasem.begin());
}

DenMesic dalsi(DenMesic d, int rok) {
    if (d.den < base::dni_v_mesici(d.mesic, rok)) return {d.den + 1, d.mesic};
    return {1, d.mesic == 12 ? 1 : d.mesic + 1};
}

bool tyz(const DenMesic& a, const DenMesic& b) {
    return a.den == b.den && a.mesic == b.mesic;
}

void spocitej_dny(const ZadaniDavky& zadani, Davka& davka) {
    DenMesic den = zadani.od;
    for (int n = 1;; ++n, den = dalsi(den, zadani.rok)) {
        const bool v_mesici = den.mesic == zadani.mesic;
        if (!zadani.jen_mesic || v_mesici) ++davka.dnu[pasmo(n)];
        if (v_mesici && base::den_v_tydnu({zadani.rok, den.mesic, den.den}) <= 5)
            ++davka.pracovnich;
        if (tyz(den, zadani.do_)) return;
    }
}

/// Care: everything is one band, capped.
void omez_ocr(bool osamela_osoba, Davka& davka) {
    int dnu = 0;
    for (const int d : davka.dnu)
        dnu += d;
    davka.dnu = {std::min(dnu, osamela_osoba ? k_nejvic_ocr_osamele : k_nejvic_ocr), 0, 0, 0};
}

std::string cislo_v_pozici(Castka castka, int sirka) {
    return base::castka_s_carkou(sirka, 0, castka);
}

}  // namespace

std::optional<DenMesic> den_mesic(std::string_view ddmm, int rok) {
    if (ddmm.size() != 4 || base::jen_cislice(ddmm).size() != 4) return std::nullopt;
    const DenMesic d{base::je_cele_cislo(ddmm.substr(0, 2)), base::je_cele_cislo(ddmm.substr(2))};
    if (d.den < 1 || d.den > base::dni_v_mesici(d.mesic, rok)) return std::nullopt;
    return d;
}

Castka spocitej_denni_prumer(Castka prumer, const SazbyDavek& sazby) {
    const Castka r1 = sazby.hranice_1;
    const Castka r2 = sazby.hranice_2;
    if (prumer <= r1) return base::na_koruny_k_sude(prumer * k_podil_do_prvni + k_nahoru_prumer);
    if (prumer <= r2) {
        return base::na_koruny_k_sude(r1 * k_podil_do_prvni + (prumer - r1) * k_podil_do_druhe +
                                      k_nahoru_prumer);
    }
    return base::na_koruny_k_sude(r1 * k_podil_do_prvni + (r2 - r1) * k_podil_do_druhe);
}

Davka vypocti_davku(const ZadaniDavky& zadani, const SazbyDavek& sazby) {
    Davka davka;
    const bool ocr = zadani.druh == DruhDavky::ocr;
    spocitej_dny(zadani, davka);
    if (ocr) omez_ocr(zadani.osamela_osoba, davka);
    const Castka zaklad = spocitej_denni_prumer(zadani.denni_prumer, sazby);
    for (std::size_t i = 0; i < davka.dnu.size(); ++i) {
        if (ocr && i > 0) break;  // care has one band
        const Castka sazba = ocr ? sazby.ocr : sazby.nemocenske[i];
        davka.kc_denne[i] = base::na_koruny_k_sude(base::procenta(zaklad, sazba) + k_nahoru_sazba);
        davka.kc[i] = static_cast<Castka>(davka.dnu[i]) * davka.kc_denne[i];
        davka.kalendarnich += davka.dnu[i];
        davka.celkem += davka.kc[i];
    }
    return davka;
}

int kalendarni_dny_radku(std::string_view text, int mesic, int rok) {
    if (base::pocet_znaku(text) < k_text_s_obdobim) return 0;
    const auto od = den_mesic(base::znaky(text, 6, 4), rok);
    const auto do_ = den_mesic(base::znaky(text, 10, 4), rok);
    if (!od || !do_) return 0;
    int dnu = 0;
    for (DenMesic den = *od;; den = dalsi(den, rok)) {
        if (den.mesic == mesic) ++dnu;
        if (tyz(den, *do_)) return dnu;
    }
}

std::string text_davky(const ObsahDavky& obsah) {
    const auto doklad = cislo_v_pozici(static_cast<Castka>(obsah.cislo_dokladu), 4);
    if (obsah.druh == DruhDavky::ppm)
        return "P" + doklad + cislo_v_pozici(static_cast<Castka>(obsah.kalendarnich), 3);
    std::string text = (obsah.druh == DruhDavky::ocr ? "O" : "N") + doklad + obsah.od + obsah.do_ +
                       base::castka_s_carkou(9, 2, obsah.denni_prumer);
    const auto dnu = [&](std::size_t i) {
        return cislo_v_pozici(static_cast<Castka>(obsah.dnu[i]), 3);
    };
    const auto kc = [&](std::size_t i) { return cislo_v_pozici(obsah.kc_denne[i], 6); };
    return text + dnu(0) + dnu(1) + kc(0) + kc(1) + dnu(2) + kc(2) + dnu(3) + kc(3);
}

}  // namespace wages
