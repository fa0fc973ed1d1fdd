// The worker's card as the pay run sees it: the fields that it reads, once a run, in memory.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "base/datum.h"
#include "payrun/dan.h"
#include "payrun/pojisteni.h"
#include "payrun/pomer.h"
#include "payrun/presnost.h"
#include "store/connection.h"

namespace payrun {

/// Fields of `Os_karty`; an empty field reads as 0, "" or false.
struct Karta {
    int cislo = 0;
    std::string prijmeni, jmeno, ulice, bydliste, rodne_cislo;
    /// `Jmeno` of the pay sheet: with a title behind ", ", at most 20 characters.
    std::string jmeno_s_titulem;

    TrvaniPomeru pomer;
    /// `Zam_od` and `Zam_do` as real days; none when the text is no date.
    base::Datum zam_od, zam_do;

    Socialni jake_socialni{};
    Zdravotni jake_zdravotni{};
    JakaDan jaka_dan{};
    int kdo_plati_dan = 0;
    bool clenstvi_os = false, zamestnanec = false, duchodce = false, student = false;
    int odp_poplatnik = 0, odp_invalidita = 0, odp_ostatni = 0;

    Castka tpd = 0;  ///< weekly working time, hours
    int staly_plat = 0;
    std::array<int, 5> os_oh{};
    bool kratit_plat = false;
    int id_rpd = 0;
    int stredisko = 0, vykon = 0, osobni_ucet = 0;
    int cely_plat_sporit = 0;
    int cislo_zdrav_poj = 0, cislo_penz_fondu = 0;
    Castka penz_fond_sazba = 0, penz_fond_smlouva = 0;
    Castka prumer_na_dovolenou = 0;  ///< daily average that the month reads
    Castka prumer_na_nemoc = 0;      ///< `Prum_nemoc_<month>`
    std::array<std::optional<int>, 10> volit{};
};

/// All cards in the order of the run: by `Cislo`, then by entry. `mesic` chooses the averages.
std::vector<Karta> nacti_karty(store::Connection& data, int mesic);

}  // namespace payrun
