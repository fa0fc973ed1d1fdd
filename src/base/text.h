// Common routines on texts. Text in memory is UTF-8; "character n" always counts characters,
// from 1.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/zaokrouhleni.h"

namespace base {

/// True when the text, trimmed of blanks, has a length above 0.
bool neprazdny(std::string_view text);
/// The text without leading and trailing blanks (spaces, tabs, line ends).
std::string orez(std::string_view text);
/// The integer that the whole text is, blanks around passed over; nothing when it is none.
std::optional<int> cele_cislo_z_textu(std::string_view text);
/// The integer value; a text that does not convert whole gives 0. Blanks around are passed over.
int je_cele_cislo(std::string_view text);
/// The decimal value, with "," or "." as separator; a text that does not convert whole gives 0.
Castka je_desetinne_cislo(std::string_view text);
/// n in decimal with "0" put in front until the length is `sirka`; a longer number stays whole.
std::string cislo_s_nulami(long long n, int sirka);
std::string opakuj_znak(char c, int n);
std::string mezery(int n);
/// Mode 1 cuts leading blanks, mode 2 trailing ones; a text of blanks alone gives "".
std::string odstran_mezery(int rezim, std::string_view text);
/// Pieces between separators, each trimmed; an empty piece behind the final separator is left out.
std::vector<std::string> rozdel_text(std::string_view text, char oddelovac);
/// The digits of the text only.
std::string jen_cislice(std::string_view text);
/// From an address line: the first five digits among the leading digits and blanks; the rest from
/// the first character that is neither digit nor blank.
std::string psc_z_adresy(std::string_view text);
std::string obec_z_adresy(std::string_view text);
/// Splits at the last blank: all before it, all behind it.
std::pair<std::string, std::string> prijmeni_jmeno(std::string_view text);

/// Number of characters.
std::size_t pocet_znaku(std::string_view text);
/// `kolik` characters from character `od`; shorter when the text ends before.
std::string znaky(std::string_view text, std::size_t od, std::size_t kolik);
/// Padded with blanks on the right, or cut, to exactly `sirka` characters.
std::string na_sirku(std::string_view text, std::size_t sirka);
/// Cut to at most `sirka` characters.
std::string nejvyse(std::string_view text, std::size_t sirka);
/// Upper or lower case of Czech text.
std::string velkymi(std::string_view text);
std::string malymi(std::string_view text);
/// True when the two are equal without regard to case.
bool stejne_bez_velikosti(std::string_view a, std::string_view b);
bool je_utf8(std::string_view text);

/// Negative, 0 or positive in Czech order: "ch" behind "h", accents behind plain letters, lower
/// before upper case at equal letters.
int porovnej_cesky(std::string_view a, std::string_view b);
/// The same without regard to case (accents count).
int porovnej_cesky_bez_velikosti(std::string_view a, std::string_view b);
/// Version of the Czech order; texts sorted under another version may stand in another order.
std::int32_t verze_ceskeho_trideni();

}  // namespace base
