// The check of the worker's card, in its fixed order. What it finds forbids saving.
#pragma once

#include <string>
#include <vector>

#include "shell/session.h"
#include "workers/unit7_hodnoty.h"

namespace workers {

/// A line of the list of messages and the control that it speaks of. A message of two lines has two
/// entries.
struct ChybaKarty {
    std::string text;
    std::string ovladac;
};

/// A row of `Zdr_poj`: insurers below 51, pension funds from 51 on.
struct PojistovnaKarty {
    int cislo = 0;
    std::string nazev;
    std::string kod;  ///< the insurer's official code
};

/// Lists that the check and the hints look into, read once at the opening of the card.
struct PodkladyKarty {
    explicit PodkladyKarty(shell::Session& session);

    const shell::RidiciZorv& zaznam;
    std::vector<std::string> vykony;  ///< see Nacti_vykony
    std::vector<PojistovnaKarty> pojistovny;

    /// Null when there is none of that number.
    const PojistovnaKarty* pojistovna(int cislo) const;
};

std::vector<ChybaKarty> hledej_chyby(const HodnotyKarty& karta, const PodkladyKarty& podklady);

}  // namespace workers
