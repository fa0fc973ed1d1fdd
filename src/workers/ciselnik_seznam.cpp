#include "workers/ciselnik_seznam.h"

#include <algorithm>

namespace workers {

void SeznamVet::vyber_radek(int novy) {
    radek = novy >= 0 && novy < static_cast<int>(vety.rows.size()) ? novy : -1;
    oznam_zmenu();
}

std::int64_t SeznamVet::pocitadlo_radku() const {
    return hodnota_radku("Pocitadlo").as_integer();
}

store::Value SeznamVet::hodnota_radku(std::string_view pole) const {
    if (!je_veta()) return {};
    const auto sloupec = static_cast<std::size_t>(vety.column(pole));
    return vety.rows[static_cast<std::size_t>(radek)][sloupec];
}

void SeznamVet::acZpetExecute() {
    zavreno = true;
    oznam_zmenu();
}

void SeznamVet::prijmi(store::Rows nove, std::int64_t pocitadlo) {
    const int misto = std::max(radek, 0);
    vety = std::move(nove);
    const int posledni = static_cast<int>(vety.rows.size()) - 1;
    for (radek = posledni; radek >= 0 && pocitadlo_radku() != pocitadlo;)
        --radek;
    vyber_radek(radek >= 0 ? radek : std::min(misto, posledni));
}

}  // namespace workers
