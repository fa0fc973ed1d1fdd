// What leaves the lists of gross wages: CSV and print.
#pragma once

#include <string>
#include <vector>

#include "report/tabulkova.h"
#include "wages/unit18_radky.h"

namespace wages {

/// Rows under the names of the table's fields; numbers with a decimal point.
std::string csv_vet(const std::vector<UlozenaVeta>& vety);
/// Lines about the filter, those that limit anything.
std::vector<std::string> filtr_slovy(const FiltrHrubych& filtr);
report::TabulkovaSestava sestava_vet(const std::vector<UlozenaVeta>& vety,
                                     const FiltrHrubych& filtr);
/// Shows the report in the preview, the company and the day of print on its top.
void ukaz_sestavu(shell::Session& session, report::TabulkovaSestava sestava);

}  // namespace wages
