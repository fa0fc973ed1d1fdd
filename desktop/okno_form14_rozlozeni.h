// Where the controls of TForm14 stand in its window: pages, columns of a page, blocks of a column
// and rows of a block. The focus goes through the controls in this order.
#pragma once

#include <string>
#include <vector>

#include "paysheet/unit14_nastaveni.h"

namespace desktop {

struct RadekNastaveni {
    std::string popisek;  ///< "": the caption of the row's only field in `pole_nastaveni`
    std::vector<std::string> ovladace;
};

struct BlokNastaveni {
    paysheet::Stranka stranka;
    int sloupec;                        ///< of the page, from 0
    std::string nadpis;                 ///< "": none
    std::vector<std::string> hlavicka;  ///< captions above the controls of all rows, or none
    std::vector<RadekNastaveni> radky;
};

/// Ordered by page and column; every control of the screen is there once.
const std::vector<BlokNastaveni>& rozlozeni_nastaveni();

}  // namespace desktop
