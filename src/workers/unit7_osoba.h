// Small rules about a person that the worker's card and other screens share.
#pragma once

#include <string>
#include <string_view>

#include "base/datum.h"
#include "base/zaokrouhleni.h"

namespace workers {

/// By the month part of a birth number: 0 a man (1 to 12), 1 a woman (51 to 62), 2 unknown.
int urci_pohlavi(std::string_view rodne_cislo);
/// A day d.m.yyyy as DDMMRR into `text`; left as it is when `datum` is no day.
void Pocatek_vydelecne_cinnosti(std::string_view datum, std::string& text);
/// What a comma typed into a date becomes: a point.
std::string datum_pri_psani(std::string text);
/// First name of the pay sheet: with a filled title behind ", ", at most as long as the field of
/// the sheet.
std::string jmeno_s_titulem(const std::string& jmeno, const std::string& titul);

/// Leave entitlement of the year in hours (§ 213 zák. č. 262/2006 Sb.): whole weeks of employment
/// in the year / 52 * `tydnu` * `tpd`, rounded to two decimals. A text that is no day stands for
/// the year's own bound; an employment that ends before the year has none, one that ends after it
/// counts to its end.
base::Castka narok_dovolene(int rok, std::string_view zam_od, std::string_view zam_do, int tydnu,
                            base::Castka tpd);

}  // namespace workers
