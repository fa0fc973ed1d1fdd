// The row above a list of workers: filter by number or name, "X" to clear it, order.
#pragma once

#include <functional>
#include <span>
#include <string>

#include "desktop/vazba.h"

class QWidget;

namespace desktop {

/// What the row works with; the references outlive it.
struct FiltrPracovniku {
    std::string& filtr;                     ///< as typed
    std::span<const char* const> trideni;   ///< orders as offered
    std::function<int()> ktere;             ///< index of the order in force
    std::function<void(int)> zvol_trideni;  ///< another order was chosen
    Vazba::Metoda filtruj;                  ///< the filter was changed
    Vazba::Metoda zrus;                     ///< "X"
};

QWidget* filtr_pracovniku(Vazba& vazba, const FiltrPracovniku& popis);

}  // namespace desktop
