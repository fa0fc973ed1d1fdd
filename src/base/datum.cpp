#include "base/datum.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <fmt/format.h>
#include <span>

#include "base/text.h"

namespace base {
namespace {

std::chrono::sys_days den_kalendare(const Datum& d) {
    return std::chrono::year_month_day(std::chrono::year(d.rok),
                                       std::chrono::month(static_cast<unsigned>(d.mesic)),
                                       std::chrono::day(static_cast<unsigned>(d.den)));
}

bool je_mesic(int mesic) {
    return mesic >= 1 && mesic <= 12;
}

int dni_v_mesici_(int mesic, bool prestupny) {
    constexpr std::array k_dni{31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (!je_mesic(mesic)) return 0;
    return mesic == 2 && prestupny ? 29 : k_dni[static_cast<std::size_t>(mesic - 1)];
}

/// Number of 1 to `nejvyse` digits that the whole text is; -1 otherwise.
int cislice_jako_cislo(std::string_view text, std::size_t nejvyse_) {
    if (text.empty() || text.size() > nejvyse_) return -1;
    int cislo = 0;
    for (const char c : text) {
        if (c < '0' || c > '9') return -1;
        cislo = cislo * 10 + (c - '0');
    }
    return cislo;
}

/// The existing day of a text d.m.yyyy, of any year.
std::optional<Datum> den_z_textu(std::string_view text) {
    const auto prvni = text.find('.');
    const auto druha = prvni == std::string_view::npos ? prvni : text.find('.', prvni + 1);
    if (druha == std::string_view::npos || text.size() - druha - 1 != 4) return std::nullopt;
    const Datum datum{cislice_jako_cislo(text.substr(druha + 1), 4),
                      cislice_jako_cislo(text.substr(prvni + 1, druha - prvni - 1), 2),
                      cislice_jako_cislo(text.substr(0, prvni), 2)};
    if (!je_platne(datum)) return std::nullopt;
    return datum;
}

bool je_pracovni(std::int64_t poradi) {
    return den_v_tydnu(z_poradi(poradi)) <= 5;
}

/// Mondays to Fridays from day `od` to day `do_`, both included.
int pracovni_dny(std::int64_t od, std::int64_t do_) {
    if (od > do_) return 0;
    const std::int64_t tydny = (do_ - od + 1) / 7;
    int dny = static_cast<int>(tydny * 5);
    for (std::int64_t den = od + tydny * 7; den <= do_; ++den)
        dny += je_pracovni(den) ? 1 : 0;
    return dny;
}

// Days of the holiday table are written as month * 100 + day.
constexpr int k_prvni_rok_svatku = 2009;
constexpr int k_prvni_rok_velkeho_patku = 2016;
constexpr std::array k_pevne_svatky{101, 501, 508, 705, 706, 928, 1028, 1117, 1224, 1225, 1226};
/// Easter Mondays from 2009 to 2022.
constexpr std::array k_velikonocni_pondeli{413, 405, 425, 409, 401, 421, 406,
                                           328, 417, 402, 422, 413, 405, 418};

/// The years that hold only some of their days.
constexpr std::array k_svatky_2010{101, 405, 705, 706, 928, 1028, 1117, 1224};
constexpr std::array k_svatky_2011{425, 705, 706, 928, 1028, 1117, 1226};
constexpr std::array k_svatky_2012{409, 501, 508, 705, 706, 928, 1224, 1225, 1226};
constexpr std::array k_svatky_2013{101, 401, 501, 508, 705, 1028, 1224, 1225, 1226};
constexpr std::array<std::span<const int>, 4> k_neuplne_roky{k_svatky_2010, k_svatky_2011,
                                                             k_svatky_2012, k_svatky_2013};
constexpr int k_prvni_neuplny_rok = 2010;

bool obsahuje(std::span<const int> dny, int den) {
    return std::find(dny.begin(), dny.end(), den) != dny.end();
}

}  // namespace

int den_v_tydnu(const Datum& datum) {
    return static_cast<int>(std::chrono::weekday(den_kalendare(datum)).iso_encoding());
}

std::int64_t poradi_dne(const Datum& datum) {
    return den_kalendare(datum).time_since_epoch().count();
}

Datum z_poradi(std::int64_t poradi) {
    const std::chrono::year_month_day den{
        std::chrono::sys_days(std::chrono::days(static_cast<int>(poradi)))};
    return {static_cast<int>(den.year()), static_cast<int>(static_cast<unsigned>(den.month())),
            static_cast<int>(static_cast<unsigned>(den.day()))};
}

Datum posun_dny(const Datum& datum, std::int64_t dnu) {
    return z_poradi(poradi_dne(datum) + dnu);
}

bool je_platne(const Datum& datum) {
    return datum.rok >= 1 && datum.rok <= 9999 && datum.den >= 1 &&
           datum.den <= dni_v_mesici_z_tabulky(datum.mesic, datum.rok);
}

int dni_v_mesici(int mesic, int rok) {
    return dni_v_mesici_(mesic, rok % 4 == 0);
}

int dni_v_mesici_z_tabulky(int mesic, int rok) {
    return dni_v_mesici_(mesic, std::chrono::year(rok).is_leap());
}

std::string mesic_slovy(int mesic, int rok) {
    constexpr std::array k_mesice{"leden",    "únor",  "březen", "duben", "květen",   "červen",
                                  "červenec", "srpen", "září",   "říjen", "listopad", "prosinec"};
    std::string slovy = je_mesic(mesic) ? k_mesice[static_cast<std::size_t>(mesic - 1)] : "???";
    if (rok != 0) slovy += "  " + std::to_string(rok);
    return slovy;
}

bool datum_ddmmrr_ok(std::string_view text) {
    if (text.size() != 6 || cislice_jako_cislo(text, 6) < 0) return false;
    const int den = cislice_jako_cislo(text.substr(0, 2), 2);
    const int mesic = cislice_jako_cislo(text.substr(2, 2), 2);
    const int rok = cislice_jako_cislo(text.substr(4, 2), 2);
    return den >= 1 && den <= dni_v_mesici(mesic, rok);
}

bool datum_ok(std::string_view text) {
    return datum_z_textu(text).has_value();
}

std::optional<Datum> datum_z_textu(std::string_view text) {
    const auto datum = den_z_textu(text);
    if (!datum || datum->rok < 1900 || datum->rok > 2050) return std::nullopt;
    return datum;
}

std::string datum_textem(const Datum& datum) {
    if (datum.je_prazdne()) return "";
    return fmt::format("{}.{}.{}", datum.den, datum.mesic, datum.rok);
}

std::string dopln_nuly_data(std::string_view text) {
    const auto datum = den_z_textu(text);
    if (!datum) return std::string(text);
    return fmt::format("{:02}.{:02}.{:04}", datum->den, datum->mesic, datum->rok);
}

int datum_jako_cislo(int den, int mesic, int rok) {
    return rok * 10000 + mesic * 100 + den;
}

int datum_jako_cislo(std::string_view text) {
    const auto datum = den_z_textu(text);
    return datum ? datum_jako_cislo(datum->den, datum->mesic, datum->rok) : 0;
}

std::string datum_iso(const Datum& datum) {
    if (datum.je_prazdne()) return "";
    return fmt::format("{:04}-{:02}-{:02}", datum.rok, datum.mesic, datum.den);
}

std::optional<Datum> datum_z_iso(std::string_view text) {
    if (text.size() != 10 || text[4] != '-' || text[7] != '-') return std::nullopt;
    const Datum datum{cislice_jako_cislo(text.substr(0, 4), 4),
                      cislice_jako_cislo(text.substr(5, 2), 2),
                      cislice_jako_cislo(text.substr(8, 2), 2)};
    if (!je_platne(datum)) return std::nullopt;
    return datum;
}

std::string datum_cas_iso(const DatumCas& cas) {
    if (cas.je_prazdny()) return "";
    return fmt::format("{}T{:02}:{:02}:{:02}", datum_iso(cas.datum), cas.hodina, cas.minuta,
                       cas.sekunda);
}

std::optional<DatumCas> datum_cas_z_iso(std::string_view text) {
    if (text.size() != 19 || (text[10] != 'T' && text[10] != ' ') || text[13] != ':' ||
        text[16] != ':')
        return std::nullopt;
    const auto datum = datum_z_iso(text.substr(0, 10));
    const int hodina = cislice_jako_cislo(text.substr(11, 2), 2);
    const int minuta = cislice_jako_cislo(text.substr(14, 2), 2);
    const int sekunda = cislice_jako_cislo(text.substr(17, 2), 2);
    if (!datum || hodina < 0 || hodina > 23 || minuta < 0 || minuta > 59 || sekunda < 0 ||
        sekunda > 59)
        return std::nullopt;
    return DatumCas{*datum, hodina, minuta, sekunda};
}

int vyloucene_dny(int mesic, int rok, const Datum& od, const Datum& do_) {
    if (!je_mesic(mesic)) return 0;
    const Datum prvni = std::max(od, Datum{rok, mesic, 1});
    const Datum posledni = std::min(do_, Datum{rok, mesic, dni_v_mesici(mesic, rok)});
    return prvni > posledni ? 0 : posledni.den - prvni.den + 1;
}

int pracovni_dny_mezi(const Datum& od, const Datum& do_) {
    if (od.je_prazdne() || do_.je_prazdne()) return 0;
    // The step is taken while the day before it is not past the end, so the day after the end
    // still counts.
    return pracovni_dny(poradi_dne(od) + 1, poradi_dne(do_) + 1);
}

int pracovni_dny_mesice(int mesic, int rok) {
    if (!je_mesic(mesic)) return 0;
    const std::int64_t prvni = poradi_dne({rok, mesic, 1});
    return pracovni_dny(prvni, prvni + dni_v_mesici(mesic, rok) - 1);
}

bool je_svatek(const Datum& datum) {
    const int den = datum.mesic * 100 + datum.den;
    const int neuplny = datum.rok - k_prvni_neuplny_rok;
    if (neuplny >= 0 && neuplny < static_cast<int>(k_neuplne_roky.size()))
        return obsahuje(k_neuplne_roky[static_cast<std::size_t>(neuplny)], den);

    const int rok = datum.rok - k_prvni_rok_svatku;
    if (rok < 0 || rok >= static_cast<int>(k_velikonocni_pondeli.size())) return false;
    const int pondeli = k_velikonocni_pondeli[static_cast<std::size_t>(rok)];
    if (obsahuje(k_pevne_svatky, den) || den == pondeli) return true;
    if (datum.rok < k_prvni_rok_velkeho_patku) return false;
    const Datum patek = posun_dny({datum.rok, pondeli / 100, pondeli % 100}, -3);
    return den == patek.mesic * 100 + patek.den;
}

int cas_na_minuty(std::string_view text) {
    const auto dvojtecka = text.find(':');
    if (dvojtecka == std::string_view::npos) return 0;
    const int hodiny = cislice_jako_cislo(text.substr(0, dvojtecka), 5);
    const int minuty = cislice_jako_cislo(text.substr(dvojtecka + 1), 2);
    if (hodiny < 0 || minuty < 0 || minuty > 59) return 0;
    return hodiny * 60 + minuty;
}

}  // namespace base
