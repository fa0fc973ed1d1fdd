// Compensation of wages for incapacity (sickness, quarantine) and the time of absences without it
// (care, maternity aid), in force from 2009. Each step is a function of its own, because the entry
// screen lets the operator correct the result of any of them by hand.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "base/datum.h"
#include "base/stopa.h"
#include "base/zaokrouhleni.h"
#include "wages/kalendar.h"

namespace wages {

using base::Castka;

/// The values are stored as `Typ_nahrady`.
enum class TypNahrady { nemoc = 0, karantena = 1, ocr = 2, ppm = 3 };

/// Percentages of the reduced hourly earnings that the funds are compensated by; 0 and 0 for
/// absences that are only recorded.
struct SazbyNahrady {
    int fond_a = 0;
    int fond_b = 0;
    bool plati_se() const { return fond_a != 0 || fond_b != 0; }
};
SazbyNahrady sazby_nahrady(TypNahrady typ);

/// How an incapacity's days are divided, by the day on which it began.
struct RezimNahrady {
    int cekaci_dny;                      ///< working days compensated by fund A
    int posledni_den;                    ///< last calendar day that the employer compensates
    std::array<const char*, 3> popisky;  ///< captions of the rows of funds A, B, C
    bool fond_a_viditelny;
};
/// § 192 zák. č. 262/2006 Sb. as in force on that day.
const RezimNahrady& rezim_nahrady(const base::Datum& trvani_od);

/// The calendars of the worker; a missing one is empty: its days have no time.
struct KalendareNahrady {
    int rok_minuleho = 0;  ///< `Rok` of the calendar `Id_rpd_min`, 0 without it
    RokKalendare minuly{};
    RokKalendare aktualni{};  ///< calendar `Id_rpd`, read by day and month whatever its year
};

/// Working time of the incapacity that falls in the month of entry, in minutes, and its days.
struct FondyNahrady {
    int a = 0, b = 0, c = 0;
    int kalendarnich = 0;
    int pracovnich = 0;
};

/// Counts days from the beginning of the incapacity, whichever month it lies in; only days of the
/// month of entry are paid. `od` after `do_` gives nothing.
FondyNahrady fondy_nahrady(const base::Datum& od, const base::Datum& do_, int mesic, int rok,
                           const KalendareNahrady& kalendare, base::Stopa* stopa);

/// The three reduction limits of hourly earnings, crowns; all 0 after 2022.
std::array<Castka, 3> redukcni_hranice(int rok);

/// Reduced hourly earnings, crowns an hour; each band is rounded up to hellers by itself. Nothing
/// for an average of 0 or less: what stood there stays. `rok` is that of the first day.
std::optional<Castka> redukovany_vydelek(Castka prumer, int rok, base::Stopa* stopa);

/// Crowns an hour, rounded up to hellers. `fond` ('A' or 'B') names the trace's variables.
Castka hodinova_nahrada(Castka redukovany, int procent, char fond, base::Stopa* stopa);
/// Crowns for the minutes of a fund, rounded up to hellers.
Castka castka_nahrady(Castka hodinova, int minut, char fond, base::Stopa* stopa);
Castka celkova_nahrada(Castka nahrada_a, Castka nahrada_b, base::Stopa* stopa);

/// Hours that the gross-wage row bears: all three funds, rounded up to hellers.
Castka hodiny_nahrady(int minut);

}  // namespace wages
