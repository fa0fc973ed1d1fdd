// The cascade of a changed number or name of a worker into the tables that repeat them.
#pragma once

#include <functional>
#include <string>

#include "store/connection.h"

namespace workers {

/// Who a worker is, as other tables repeat it.
struct Totoznost {
    int cislo = 0;
    std::string prijmeni, jmeno, titul;
    bool operator==(const Totoznost&) const = default;
};

/// Called before each table: 0 to 100 of the way, and what is being done.
using PrubehKaskady = std::function<void(int procent, const std::string& text)>;

/// Puts the new identity into all rows of the old number: gross wages, children, fixed items, pay
/// sheets, blocked values and old annual corrections, each table that exists. Needs a Transaction;
/// one of the caller's holds the worker's card and all tables together.
void Oprav_hodnoty_v_ostatnich_souborech(store::Connection& data, int stare_cislo,
                                         const Totoznost& nova, const PrubehKaskady& prubeh);

}  // namespace workers
