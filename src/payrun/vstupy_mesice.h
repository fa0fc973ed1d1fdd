// What the pay run reads of a month besides the cards: gross wages, fixed items, children, blocked
// values, calendars, names of columns and insurers, bases of earlier months. Every table is read
// once a run, by one query, and looked up in memory.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

#include "payrun/blok.h"
#include "payrun/podle_pracovnika.h"
#include "payrun/presnost.h"
#include "shell/session.h"
#include "wages/kalendar.h"

namespace payrun {

/// A row of `HrubeMM`; an empty field is 0 or "".
struct HrubyRadek {
    int cislo = 0;
    int modul = 0;
    int sloupec = 0;
    std::int64_t pocitadlo = 0;
    Castka dny_od = 0, dny_neod = 0, hod_od = 0, hod_neod = 0, hod_vedl = 0, kc1 = 0, kc_cel = 0;
    std::string sloupec_slovy, text;  ///< read for modules 4 and 5 only
};

/// Sums of the gross rows of one column.
struct HrubaSkupina {
    int sloupec = 0;
    Castka dny_od = 0, dny_neod = 0, hod_od = 0, hod_neod = 0, hod_vedl = 0, kc1 = 0, kc_cel = 0;
};

/// A row of `Fixni` that has a column.
struct FixniRadek {
    int cislo = 0;
    int sloupec = 0;
    std::int64_t pocitadlo = 0;
    int kcs = 0;
};

/// Sum of the fixed items of one column.
struct FixniSkupina {
    int sloupec = 0;
    Castka kcs = 0;
};

/// A child of a worker.
struct Dite {
    int cislo = 0;
    std::string prijmeni, jmeno, bydliste, rodne_cislo;
    int odpocitatelna_dan = 0;
};

/// Sums of the modules 61 and 62 of one worker over the months so far.
struct ZakladyRoku {
    Castka socialni = 0;
    Castka zdravotni = 0;
};

class VstupyMesice {
  public:
    /// Reads the month's tables. `HrubeMM` must exist. The bases are summed over the existing
    /// sheets of months 1 to `posledni_mesic_zakladu`.
    VstupyMesice(shell::Session& session, int mesic, int posledni_mesic_zakladu);

    std::span<const HrubyRadek> hrube(int cislo) const { return hrube_.radky(cislo); }
    std::span<const Dite> deti(int cislo) const { return deti_.radky(cislo); }

    /// Gross rows of a module summed by column, columns ascending. Valid until the next call.
    const std::vector<HrubaSkupina>& hrube_podle_sloupcu(int cislo, int modul);
    /// Fixed items in columns `od` to `do_` summed by column, columns ascending. Valid until the
    /// next call.
    const std::vector<FixniSkupina>& fixni_podle_sloupcu(int cislo, int od, int do_);
    std::span<const FixniRadek> fixni(int cislo) const { return fixni_.radky(cislo); }

    /// The first row of the worker in `BlokMM`, or all zero.
    const BlokovaneHodnoty& blokovane(int cislo) const;

    /// The bases of the months so far, with what this run has written for the number already.
    ZakladyRoku& zaklady(int cislo) { return zaklady_[cislo]; }

    /// The worker's calendar of the year, or null.
    const wages::RokKalendare* kalendar(int id_rpd);

    const std::string& sloupec_slovy(int sloupec);
    const std::string& jmeno_pojistovny(int cislo);

  private:
    void nacti_hrube();
    void nacti_fixni();
    void nacti_deti();
    void nacti_blok();
    void nacti_zaklady(int posledni_mesic);

    shell::Session& session_;
    int mesic_;
    PodlePracovnika<HrubyRadek> hrube_;
    PodlePracovnika<FixniRadek> fixni_;
    PodlePracovnika<Dite> deti_;
    std::unordered_map<int, BlokovaneHodnoty> blok_;
    std::unordered_map<int, ZakladyRoku> zaklady_;
    std::map<int, std::optional<wages::RokKalendare>> kalendare_;
    std::map<int, std::string> sloupce_;
    std::vector<std::string> pojistovny_;
    std::map<int, std::string> jmena_pojistoven_;
    std::vector<HrubaSkupina> hrube_skupiny_;
    std::vector<FixniSkupina> fixni_skupiny_;
};

}  // namespace payrun
