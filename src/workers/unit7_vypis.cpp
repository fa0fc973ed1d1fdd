#include "workers/unit7_vypis.h"

#include "base/text.h"

namespace workers {
namespace {

std::string hodnota_slovy(const PoleKarty& pole, const HodnotaPole& hodnota,
                          const CiselnikyKarty& ciselniky) {
    switch (pole.druh) {
        case DruhPoleKarty::logicke:
            return hodnota.ano ? "ano" : "ne";
        case DruhPoleKarty::seznam:
            return hodnota.index < 0 ? hodnota.text
                                     : ciselniky.polozky(pole.ciselnik)
                                           .at(static_cast<std::size_t>(hodnota.index))
                                           .text;
        case DruhPoleKarty::kalendar:
            return hodnota.cislo == 0 ? "" : hodnota.text;
        default:
            return hodnota.text;
    }
}

}  // namespace

std::vector<StrankaVypisu> vypis_karty(const HodnotyKarty& karta, const CiselnikyKarty& ciselniky,
                                       const shell::Session& session, bool prazdne) {
    std::vector<StrankaVypisu> stranky;
    for (int i = 0; i < k_stranek_karty; ++i)
        stranky.push_back({stranka_slovy(static_cast<StrankaKarty>(i)), {}});
    for (const PoleKarty& pole : pole_karty()) {
        std::string hodnota = hodnota_slovy(pole, karta[pole.ovladac], ciselniky);
        if (!prazdne && !base::neprazdny(hodnota)) continue;
        stranky[static_cast<std::size_t>(pole.stranka)].radky.push_back(
            {popisek_pole(pole, session), std::move(hodnota)});
    }
    return stranky;
}

}  // namespace workers
