// The worker's card as captions and values, for reading.
#pragma once

#include <string>
#include <vector>

#include "workers/unit7_hodnoty.h"

namespace workers {

struct RadekVypisu {
    std::string popisek;
    std::string hodnota;  ///< check boxes "ano" and "ne", lists by their item's text
};

struct StrankaVypisu {
    std::string nazev;
    std::vector<RadekVypisu> radky;
};

/// All pages in their order; without `prazdne` only what is filled.
std::vector<StrankaVypisu> vypis_karty(const HodnotyKarty& karta, const CiselnikyKarty& ciselniky,
                                       const shell::Session& session, bool prazdne);

}  // namespace workers
