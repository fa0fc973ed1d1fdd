// The catalogue: every table of a company and year as data. The one source for creating,
// describing, importing and checking tables. The data stand in catalogue_*.cpp.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/definition.h"

namespace store {

/// The folder of a company that a table lies in.
enum class Place { zorv, ucet, faktury };

/// How long a table lives and what the year's rollover does with it.
enum class Scope {
    year,        ///< one a year, carried into the next year
    year_empty,  ///< one a year, begun empty
    month,       ///< one a month: the name ends in the month's two digits
    outside,     ///< belongs to the accounting or invoicing module
    work         ///< made for a report or a run and thrown away
};

struct CatalogueEntry {
    /// Of a month table without the month's digits: "Hrube"; the corrections of the annual
    /// settlement, whose name ends in the year, are "RocniYYYY".
    TableDef definition;
    Place place;
    Scope scope;
    std::string maker;    ///< the routine that makes it, "" when another module does
    std::string meaning;  ///< Czech, one line
};

/// All entries; those that opening a company creates come first and in the order of creation.
const std::vector<CatalogueEntry>& catalogue();

/// The entry of a table by its full name ("hrube01.db", "Os_karty", "Rocni2022"), or null.
const CatalogueEntry* find_entry(std::string_view table);

/// Layout of a table by its full name, the month or year in its place. Throws StoreError for a name
/// that the catalogue does not know.
TableDef definition_of(std::string_view table);

/// "Hrube" and 3 give "Hrube03".
std::string month_table(std::string_view name, int month);

/// Names of the tables that opening a company creates when missing, in order: first those of the
/// accounting folder, then the payroll's own. `Rpd` is among them; its first rows are a template's.
const std::vector<std::string>& tables_made_at_opening();

}  // namespace store
