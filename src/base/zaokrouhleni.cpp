#include "base/zaokrouhleni.h"

#include <cmath>

namespace base {
namespace {

constexpr Castka k_nula = 0.001L;
// Base times percentage has at most six decimals, so anything smaller is the noise of a percentage
// that binary fractions cannot hold exactly.
constexpr Castka k_sum_procenta = 1e-7L;

// The floating environment is never changed, so rint rounds a tie to even.
Castka k_sude(Castka x) {
    return std::rint(x);
}

}  // namespace

constinit const Zaokrouhleni na_koruny_k_sude{"na koruny, polovina k sudé", k_sude};
constinit const Zaokrouhleni na_halere_k_sude{"na haléře, polovina k sudé",
                                              [](Castka x) { return k_sude(x * 100) / 100; }};
constinit const Zaokrouhleni na_koruny_nahoru{
    "na koruny nahoru", [](Castka x) { return std::ceil(x - k_sum_procenta); }};
constinit const Zaokrouhleni na_halere_nahoru{
    "na haléře nahoru", [](Castka x) { return std::trunc(x * 100 + 0.9999L) / 100; }};
constinit const Zaokrouhleni na_koruny_podil_podniku{
    "na koruny nahoru (+0,9999 a odříznout)", [](Castka x) { return std::trunc(x + 0.9999L); }};
constinit const Zaokrouhleni sloupec_na_koruny{"na koruny nahoru (+0,499 k nejbližší)",
                                               [](Castka x) { return k_sude(x + 0.499L); }};
constinit const Zaokrouhleni zdravotni_na_koruny{"na koruny nahoru (+0,4999 k nejbližší)",
                                                 [](Castka x) { return k_sude(x + 0.4999L); }};
constinit const Zaokrouhleni plat_na_koruny{"na koruny (+0,5 a odříznout)",
                                            [](Castka x) { return std::trunc(x + 0.5L); }};
constinit const Zaokrouhleni srazkova_na_koruny{"na koruny dolů (+0,001 a odříznout)",
                                                [](Castka x) { return std::trunc(x + 0.001L); }};
constinit const Zaokrouhleni zaklad_dane_na_sta{
    "na sta nahoru (+49,99 k nejbližší stovce)",
    [](Castka x) { return std::trunc(zaokrouhli(x + 49.99L, -2, false)); }};
constinit const Zaokrouhleni na_koruny_od_nuly{"na koruny, polovina od nuly",
                                               [](Castka x) { return zaokrouhli(x, 0, false); }};
constinit const Zaokrouhleni odriznout{"na koruny odříznutím",
                                       [](Castka x) { return std::trunc(x); }};
constinit const Zaokrouhleni nezaokrouhlovat{"nezaokrouhluje se", [](Castka x) { return x; }};

Castka zaokrouhli(Castka hodnota, int mist, bool orizni) {
    const Castka mocnina = std::pow(10.0L, static_cast<Castka>(mist < 0 ? -mist : mist));
    const Castka posunuta = mist < 0 ? hodnota / mocnina : hodnota * mocnina;
    const Castka pul = orizni ? 0.0L : (hodnota < 0 ? -0.5L : 0.5L);
    const Castka cela = std::trunc(posunuta + pul);
    return mist < 0 ? cela * mocnina : cela / mocnina;
}

bool je_nula(Castka x) {
    return std::fabs(x) <= k_nula;
}

int porovnej_castky(Castka a, Castka b) {
    if (je_nula(a - b)) return 0;
    return b > a ? 1 : 2;
}

Castka procenta(Castka zaklad, Castka procent) {
    return zaklad * procent / 100;
}

}  // namespace base
