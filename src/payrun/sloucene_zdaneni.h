// Merged taxation: contracts whose income is taxed under another worker's number. The first pass
// leaves an entry for each, the second pass takes those of the worker at hand; what nobody took is
// an error of the run.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "payrun/presnost.h"

namespace payrun {

/// An entry taken over by the worker who pays the tax.
struct Pripis {
    std::size_t poradi = 0;     ///< place in the list, from 0
    std::string cislo;          ///< six characters: the worker it comes from
    std::string zaklad_textem;  ///< fifteen characters, as the entry holds it
    Castka zaklad = 0;
    Castka prijem = 0;
};

class SlouceneZdaneni {
  public:
    /// Adds an entry: characters 1-6 the worker, 7-12 who pays the tax, 13-27 the base, 28-42 the
    /// income, 43-57 the base again. Returns its place in the list.
    std::size_t pridej(int cislo, int kdo_plati_dan, Castka zaklad_dane, Castka prijem_pro_dan);

    /// The entries for this worker in list order; each becomes "@" and cannot be taken again.
    std::vector<Pripis> odeber_pro(int cislo);

    /// Two lines for each entry that nobody took; with a number, for those of that worker alone.
    std::vector<std::string> hlasky_o_nespotrebovanych(std::optional<int> jen_cislo = {}) const;

    const std::vector<std::string>& polozky() const { return polozky_; }

  private:
    std::vector<std::string> polozky_;
};

}  // namespace payrun
