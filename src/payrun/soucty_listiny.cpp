#include "payrun/soucty_listiny.h"

namespace payrun {

SazbyPodniku sazby_podniku(const shell::Session& session) {
    return {session.nastaveni.proc_soc2, z_ulozeneho(session.ridici_zorv.proc_zdr_zamestnavatel)};
}

Castka podil_podniku(Castka zaklad, Castka sazba) {
    return base::na_koruny_podil_podniku(base::procenta(zaklad, sazba));
}

void SoucetMezd::pridej(std::int64_t modul, Castka hodnota, const SazbyPodniku& sazby) {
    switch (modul) {
        case 2:
            hruba += hodnota;
            break;
        case 12:
            srazky += hodnota;
            break;
        case 14:
            k_vyplate += hodnota;
            break;
        case 61:
            zaklad_socialniho += hodnota;
            break;
        case 62:
            zdravotni_podniku += podil_podniku(hodnota, sazby.zdravotni);
            break;
        default:
            break;
    }
}

void SoucetMezd::pridej(const SoucetMezd& dalsi) {
    hruba += dalsi.hruba;
    srazky += dalsi.srazky;
    k_vyplate += dalsi.k_vyplate;
    zaklad_socialniho += dalsi.zaklad_socialniho;
    zdravotni_podniku += dalsi.zdravotni_podniku;
}

Castka SoucetMezd::naklad(const SazbyPodniku& sazby) const {
    return hruba + podil_podniku(zaklad_socialniho, sazby.socialni) + zdravotni_podniku;
}

}  // namespace payrun
