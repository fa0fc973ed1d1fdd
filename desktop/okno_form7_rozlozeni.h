// Where the controls of TForm7 stand in its window: pages, columns of a page, blocks of a column
// and rows of a block. The focus goes through the controls in this order.
#pragma once

#include <string>
#include <vector>

#include "workers/unit7_pole.h"

namespace desktop {

struct RadekKarty {
    std::string popisek;  ///< "": the caption of the row's first field
    std::vector<std::string> ovladace;
};

struct BlokKarty {
    workers::StrankaKarty stranka;
    int sloupec;  ///< of the page, from 0
    std::string nadpis;
    std::vector<std::string> hlavicka;  ///< captions above the controls of all rows, or none
    std::vector<RadekKarty> radky;
};

/// Ordered by page and column; every control of the card is there once.
const std::vector<BlokKarty>& rozlozeni_karty();

/// Blocks whose caption is completed by the year.
inline constexpr const char* k_blok_minuly_rok = "Minulý rok";
inline constexpr const char* k_blok_aktualni_rok = "Aktuální rok";

}  // namespace desktop
