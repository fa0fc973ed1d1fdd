// How the catalogue's data are written down: one text line a field, so that a layout reads as a
// list. Only catalogue*.cpp use this header.
#pragma once

#include <span>

#include "store/catalogue.h"

namespace store {

struct TableText {
    const char* name;
    Place place;
    Scope scope;
    const char* maker;
    const char* meaning;
    /// A line is "name type"; a name "Hod1..31" stands for thirty-one fields in a row.
    const char* fields;
    /// A line is "[primary|unique|exact] name field;field"; without the word an index is secondary
    /// and without regard to case.
    const char* indexes;
};

/// Tables of the payroll: one a company and year.
std::span<const TableText> payroll_tables();
/// Tables of a month and work tables of the same layout.
std::span<const TableText> month_tables();
/// Tables of the accounting and invoicing modules.
std::span<const TableText> outside_tables();

}  // namespace store
