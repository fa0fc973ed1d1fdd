// Blocked values: what the operator sets for one worker and month against the calculation.
#pragma once

#include <cstdint>

#include "payrun/presnost.h"

namespace payrun {

/// A fixed value ("Absolutně", 0: none) and a difference ("Rozdíl"), whole crowns.
struct BlokovanaHodnota {
    std::int64_t abs = 0;
    std::int64_t dif = 0;
};

/// The six pairs of a row of `BlokMM`; all zero for a worker without one.
struct BlokovaneHodnoty {
    BlokovanaHodnota socialni_zaklad, socialni, zdravotni_zaklad, zdravotni, dan_zaklad, dan;
};

/// A value after the blocking and the mark that its row's note gets.
struct VybranaHodnota {
    Castka hodnota = 0;
    const char* znacka = "";  ///< "blok", or "" when nothing is blocked
};

/// A fixed value replaces the computed one; the difference applies to either.
VybranaHodnota vyber_hodnotu(const BlokovanaHodnota& blok, Castka hodnota);

}  // namespace payrun
