// How much of a month an employment covers, from the text dates of the worker's card.
#pragma once

#include <string_view>

#include "base/datum.h"

namespace payrun {

/// One end of an employment. A card's text may hold anything, so the day is taken as it is written
/// and need not exist (31.2.): only its order among days matters.
struct MezPomeru {
    bool zadana = false;  ///< false: no limit on this side
    base::Datum den;
};

/// Reads d.m.yyyy, day and month with or without a leading "0". A blank text, and one that is not
/// three numbers above zero, means no limit.
MezPomeru mez_pomeru(std::string_view text);

/// The employment of one card: `Zam_od` and `Zam_do`.
struct TrvaniPomeru {
    MezPomeru od;
    MezPomeru do_;
};

/// The two questions asked about an employment and a month.
enum class RezimPomeru {
    cely_mesic = 1,  ///< lasted from the first to the last day
    cast_mesice = 2  ///< lasted at least a part of it
};

bool pracovni_pomer_trva(RezimPomeru rezim, const TrvaniPomeru& pomer, int mesic, int rok);

/// Days Monday to Friday (holidays count) of the month within the employment, both ends included; 0
/// when it ended before the month or begins after it, also when the end stands before the start.
int kolik_dni_trval_pracovni_pomer(const TrvaniPomeru& pomer, int mesic, int rok);

}  // namespace payrun
