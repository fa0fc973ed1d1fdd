#include "payrun/kraceni.h"

namespace payrun {
namespace {

constexpr int k_dni_v_tydnu = 5;
constexpr Castka k_rozdil_od_jedne = 0.001L;

}  // namespace

Castka zkracena_castka(Castka castka, Castka fond_hodin_mesice, Castka odpracovano_hodin) {
    if (base::je_nula(fond_hodin_mesice)) return 0;
    return base::plat_na_koruny(bez_sumu(castka / fond_hodin_mesice * odpracovano_hodin));
}

Castka hodiny_za_dny(int dni, Castka tpd) {
    return dni * tpd / k_dni_v_tydnu;
}

Castka dny_za_hodiny(Castka hodiny, Castka tpd) {
    return base::na_halere_k_sude(bez_sumu(hodiny * k_dni_v_tydnu / tpd));
}

Castka prispevek_penzijniho_fondu(Castka sazba, Castka hruba_mzda) {
    const Castka od_jedne = sazba - 1;
    const bool je_podil =
        sazba <= 1 && (od_jedne >= k_rozdil_od_jedne || od_jedne <= -k_rozdil_od_jedne);
    if (!je_podil) return sazba;
    return base::na_halere_k_sude(bez_sumu(sazba * hruba_mzda));
}

}  // namespace payrun
