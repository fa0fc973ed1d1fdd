#include "payrun/blok.h"

namespace payrun {

VybranaHodnota vyber_hodnotu(const BlokovanaHodnota& blok, Castka hodnota) {
    const char* znacka = blok.abs == 0 && blok.dif == 0 ? "" : "blok";
    if (blok.abs != 0) return {static_cast<Castka>(blok.abs + blok.dif), znacka};
    return {static_cast<Castka>(blok.dif) + hodnota, znacka};
}

}  // namespace payrun
