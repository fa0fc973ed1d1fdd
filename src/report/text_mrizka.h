// Columns of a report in characters: as wide as their texts need, in the order they have on paper.
#pragma once

#include <cstddef>
#include <map>
#include <utility>

#include "report/document.h"

namespace report {

class TextovaMrizka {
  public:
    /// Goes through all bands of the document.
    explicit TextovaMrizka(const Document& document);

    /// Characters that a cell may use: from the first to the one behind the last.
    struct Misto {
        std::size_t od = 0, konec = 0;
    };
    Misto misto(const Pas& pas, const Bunka& bunka) const;
    /// Characters of the longest line.
    std::size_t sirka() const { return sirka_; }

  private:
    using Hrana = long;  ///< a left or right edge of cells, in tenths of a millimetre

    static Hrana hrana(double x_mm);
    std::size_t nejvyse_znaku(const Bunka& bunka) const;
    std::size_t potrebuje(const Bunka& bunka) const;
    void zapocitej(const Pas& pas);
    void rozmisti();

    double velikost_;
    std::map<std::pair<Hrana, Hrana>, std::size_t> potreby_;  ///< by right, then left edge
    std::map<Hrana, std::size_t> volne_;  ///< texts with nothing behind them, by left edge
    std::map<Hrana, std::size_t> pozice_;
    std::size_t sirka_ = 0;
};

}  // namespace report
