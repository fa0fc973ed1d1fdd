// Sickness benefits that the employer itself paid before 2009 (module 4): days divided into four
// bands, a daily base reduced by two limits, whole crowns a day. Its rows still stand in old data
// and are corrected by hand.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "base/zaokrouhleni.h"

namespace wages {

using base::Castka;

enum class DruhDavky { nemoc, ocr, ppm };

/// A day of the year that a row belongs to; its year is not kept.
struct DenMesic {
    int den = 0, mesic = 0;
};
/// From "ddmm"; nothing for any other text or a day that the month has not. February by `rok`.
std::optional<DenMesic> den_mesic(std::string_view ddmm, int rok);

/// Settings of the benefits: percentages of the four bands and of care, limits of the daily base.
struct SazbyDavek {
    std::array<Castka, 4> nemocenske{};  ///< 1 to 3, 4 to 30, 31 to 60 days and more, percent
    Castka ocr = 0;
    Castka hranice_1 = 0, hranice_2 = 0;  ///< crowns a day
};

struct ZadaniDavky {
    DruhDavky druh = DruhDavky::nemoc;  ///< not `ppm`: its days and amount are typed
    DenMesic od, do_;
    bool jen_mesic = false;  ///< only days of `mesic` are paid; otherwise the whole time
    int mesic = 0, rok = 0;  ///< of the entry
    Castka denni_prumer = 0;
    bool osamela_osoba = false;
};

struct Davka {
    std::array<int, 4> dnu{};
    std::array<Castka, 4> kc_denne{};
    std::array<Castka, 4> kc{};
    int kalendarnich = 0;
    int pracovnich = 0;  ///< Mondays to Fridays in the month of entry, holidays too
    Castka celkem = 0;
};

/// Reduced daily base, whole crowns (a tie to even); the amount above the second limit is not
/// rounded up like the lower ones.
Castka spocitej_denni_prumer(Castka prumer, const SazbyDavek& sazby);

/// The walk takes every month length from the current year and goes from December to January of
/// the same year.
Davka vypocti_davku(const ZadaniDavky& zadani, const SazbyDavek& sazby);

/// Days of a stored row that fall in its month: the period is read from its text (see
/// `text_davky`), the start lies in the year before when its month is above the end's. 0 for a
/// text that bears no period.
int kalendarni_dny_radku(std::string_view text, int mesic, int rok);

/// The row's `Text`, by fixed positions: kind, certificate, period, average, days and crowns a day
/// of the four bands. `ddmm` texts as typed.
struct ObsahDavky {
    DruhDavky druh = DruhDavky::nemoc;
    long cislo_dokladu = 0;
    std::string od, do_;
    Castka denni_prumer = 0;
    std::array<int, 4> dnu{};
    std::array<Castka, 4> kc_denne{};
    int kalendarnich = 0;  ///< of maternity aid, whose text holds nothing else
};
std::string text_davky(const ObsahDavky& obsah);

}  // namespace wages
