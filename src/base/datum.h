// Calendar days, points in time, and the common routines on dates.
#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace base {

/// A calendar day. The default value, all zero, means "no date".
struct Datum {
    int rok = 0;
    int mesic = 0;
    int den = 0;

    bool je_prazdne() const { return rok == 0; }
    auto operator<=>(const Datum&) const = default;  // NOLINT(modernize-use-nullptr): misread
};

/// A day and time of day; an empty `datum` means "no time".
struct DatumCas {
    Datum datum;
    int hodina = 0;
    int minuta = 0;
    int sekunda = 0;

    bool je_prazdny() const { return datum.je_prazdne(); }
    auto operator<=>(const DatumCas&) const = default;
};

/// Monday is 1, Sunday 7.
int den_v_tydnu(const Datum& datum);
/// Days since 1 January 1970, negative before it; the inverse of `z_poradi`.
std::int64_t poradi_dne(const Datum& datum);
Datum z_poradi(std::int64_t poradi);
/// The day `dnu` days later (earlier when negative).
Datum posun_dny(const Datum& datum, std::int64_t dnu);
/// True for a day that exists in the Gregorian calendar.
bool je_platne(const Datum& datum);

/// 31, 30; February 29 when `rok` is divisible by 4, else 28; 0 for a bad month. The rule stops at
/// four on purpose: it holds for every year that a payroll can meet.
int dni_v_mesici(int mesic, int rok);
/// The same with the full leap-year rule.
int dni_v_mesici_z_tabulky(int mesic, int rok);
/// "leden" to "prosinec", "???" for a bad month; a non-zero `rok` follows after two blanks.
std::string mesic_slovy(int mesic, int rok);

/// True when the text has exactly six characters and is a valid day, month and two-digit year.
bool datum_ddmmrr_ok(std::string_view text);
/// Checks d.m.yyyy: digits and exactly two dots, a day within the month, year 1900 to 2050.
bool datum_ok(std::string_view text);
/// The day of a text d.m.yyyy that passes `datum_ok`; nothing otherwise.
std::optional<Datum> datum_z_textu(std::string_view text);
/// d.m.yyyy without padding; "" for no date.
std::string datum_textem(const Datum& datum);
/// A text d.m.yyyy with one-digit day and month padded by "0" to dd.mm.yyyy; any other text as it
/// is.
std::string dopln_nuly_data(std::string_view text);
/// rok * 10000 + mesic * 100 + den: the ordering number kept in `Dat_nar_cislo`.
int datum_jako_cislo(int den, int mesic, int rok);
/// The same from d.m.yyyy; 0 for a text that is no date.
int datum_jako_cislo(std::string_view text);
/// yyyy-mm-dd with zero padding; "" for no date.
std::string datum_iso(const Datum& datum);
/// Strict yyyy-mm-dd of an existing day; nothing otherwise.
std::optional<Datum> datum_z_iso(std::string_view text);
/// yyyy-mm-ddThh:mm:ss; "" for no time. The reader takes "T" or a blank in the middle.
std::string datum_cas_iso(const DatumCas& cas);
std::optional<DatumCas> datum_cas_z_iso(std::string_view text);

/// Number of calendar days of the interval `od` to `do_` (both included) that lie inside the month;
/// 0 when it lies outside or `od` is after `do_`.
int vyloucene_dny(int mesic, int rok, const Datum& od, const Datum& do_);
/// Steps a day at a time from the day after `od` while the day before the step is not past `do_`,
/// and counts the days that are Monday to Friday.
int pracovni_dny_mezi(const Datum& od, const Datum& do_);
/// Monday to Friday days of a month; public holidays count as working days.
int pracovni_dny_mesice(int mesic, int rok);
/// True for a public holiday of the built-in table, which covers 2009 to 2022 only; the table's
/// gaps of 2010 to 2013 (holidays on weekends) are part of it.
bool je_svatek(const Datum& datum);
/// "h:mm" to minutes; 0 for a text that is no time.
int cas_na_minuty(std::string_view text);

}  // namespace base
