#include "report/document.h"

#include <utility>

namespace report {

namespace {

constexpr double k_mm_na_bod = 25.4 / 72;
constexpr double k_rozpal = 1.4;  ///< line height to letter size

}  // namespace

Papir papir_a4(bool na_sirku) {
    Papir papir;
    if (na_sirku) std::swap(papir.sirka_mm, papir.vyska_mm);
    return papir;
}

double vyska_radku(double velikost) {
    return velikost * k_mm_na_bod * k_rozpal;
}

double vyska_pasu(const std::vector<Pas>& pasy) {
    double vyska = 0;
    for (const Pas& pas : pasy)
        vyska += pas.vyska_mm;
    return vyska;
}

}  // namespace report
