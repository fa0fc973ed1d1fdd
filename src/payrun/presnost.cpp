#include "payrun/presnost.h"

namespace payrun {
namespace {

constexpr int k_mist_v_datech = 4;
constexpr int k_mist_vypoctu = 9;

}  // namespace

Castka z_ulozeneho(double hodnota) {
    if (base::odriznout(hodnota) == hodnota) return hodnota;
    const Castka desetinne = base::zaokrouhli(hodnota, k_mist_v_datech, false);
    return static_cast<double>(desetinne) == hodnota ? desetinne : Castka{hodnota};
}

Castka bez_sumu(Castka castka) {
    if (base::odriznout(castka) == castka) return castka;
    return base::zaokrouhli(castka, k_mist_vypoctu, false);
}

}  // namespace payrun
