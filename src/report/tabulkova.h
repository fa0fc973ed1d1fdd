// The plain list: heading lines, columns, rows, a row of totals. Most reports of the payroll.
#pragma once

#include <string>
#include <vector>

#include "report/document.h"

namespace report {

struct SloupecSestavy {
    std::string nadpis;  ///< may have several lines, divided by "\n"
    double sirka_mm = 20;
    Zarovnani zarovnani = Zarovnani::vlevo;
    bool soucet = false;  ///< summed in the row of totals, when `soucty` gives none
};

struct TabulkovaSestava {
    std::string nazev;                 ///< "Pracovníci - UKAZKA22"
    std::vector<std::string> zahlavi;  ///< lines under the title (filters, month, date ...)
    std::vector<SloupecSestavy> sloupce;
    std::vector<std::vector<std::string>> radky;  ///< texts as shown
    std::vector<std::string> soucty;              ///< texts of the row of totals; empty: none
    bool na_sirku = false;
};

/// Column headings stand on every page, "strana n z m" in its foot. Columns wider than the paper
/// are narrowed, and the letters with them. A row may have fewer texts than there are columns.
Document sestav_tabulku(const TabulkovaSestava& sestava);

}  // namespace report
