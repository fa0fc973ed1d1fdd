// How a value of a row is written in a report.
#pragma once

#include <string>

#include "base/zaokrouhleni.h"
#include "report/sablona_predpis.h"
#include "store/value.h"

namespace report {

/// An empty value is "". Without a format numbers have a decimal comma, days are d.m.yyyy, truth is
/// "ano" or "ne"; a text stays as it is in any format but that of days.
std::string text_hodnoty(const store::Value& hodnota, const Pole& pole);
/// An amount (a sum) by the field's format: crowns and hellers or whole crowns, the thousands
/// apart.
std::string text_castky(base::Castka castka, const Pole& pole);

}  // namespace report
