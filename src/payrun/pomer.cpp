#include "payrun/pomer.h"

#include "base/text.h"

namespace payrun {

MezPomeru mez_pomeru(std::string_view text) {
    const std::vector<std::string> casti = base::rozdel_text(text, '.');
    if (casti.size() != 3) return {};
    const base::Datum den{.rok = base::je_cele_cislo(casti[2]),
                          .mesic = base::je_cele_cislo(casti[1]),
                          .den = base::je_cele_cislo(casti[0])};
    if (den.rok <= 0 || den.mesic <= 0 || den.den <= 0) return {};
    return {true, den};
}

bool pracovni_pomer_trva(RezimPomeru rezim, const TrvaniPomeru& pomer, int mesic, int rok) {
    const bool cely = rezim == RezimPomeru::cely_mesic;
    if (pomer.od.zadana) {
        const base::Datum& od = pomer.od.den;
        if (od.rok > rok) return false;
        if (od.rok == rok && od.mesic > mesic) return false;
        if (od.rok == rok && od.mesic == mesic && od.den != 1 && cely) return false;
    }
    if (pomer.do_.zadana) {
        const base::Datum& konec = pomer.do_.den;
        if (konec.rok < rok) return false;
        if (konec.rok == rok && konec.mesic < mesic) return false;
        if (konec.rok == rok && konec.mesic == mesic && cely &&
            konec.den < base::dni_v_mesici(mesic, rok)) {
            return false;
        }
    }
    return true;
}

int kolik_dni_trval_pracovni_pomer(const TrvaniPomeru& pomer, int mesic, int rok) {
    int dni = 0;
    for (int cislo_dne = 1; cislo_dne <= base::dni_v_mesici(mesic, rok); ++cislo_dne) {
        const base::Datum den{rok, mesic, cislo_dne};
        if (pomer.od.zadana && den < pomer.od.den) continue;
        if (pomer.do_.zadana && den > pomer.do_.den) continue;
        if (base::den_v_tydnu(den) <= 5) ++dni;
    }
    return dni;
}

}  // namespace payrun
