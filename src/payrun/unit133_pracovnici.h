// The worker list of the pay-sheet browser: who stands in a month's sheet, with his sums; filter
// and order.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "payrun/soucty_listiny.h"
#include "shell/session.h"

namespace payrun {

struct PracovnikListiny {
    int cislo = 0;
    std::string prijmeni, jmeno;  ///< as the sheet has them, the title behind the first name
    int narozen = 0;              ///< `Dat_nar_cislo` of the card, 0 without one
    bool odesel = false;          ///< the card bears an end of employment
    SoucetMezd soucet;
};

/// Orders of the list, in the order in which the screen offers them.
enum class TrideniPracovniku { cislo, prijmeni, jmeno, narozen };
inline constexpr const char* k_trideni_pracovniku[] = {"Čísla pracovníka", "Příjmení", "Jména",
                                                       "Data narození"};

/// Workers of the month's sheet, which must exist, by number. One query on the sheet and one on the
/// cards.
std::vector<PracovnikListiny> nacti_pracovniky_listiny(shell::Session& session, int mesic);

/// Indexes of the workers that pass the filter, in order. A whole number is a worker's number,
/// another text a part of the surname or the first name in any case; blank lets all pass.
std::vector<std::size_t> vyber_pracovniky(const std::vector<PracovnikListiny>& pracovnici,
                                          std::string_view filtr, TrideniPracovniku trideni);

}  // namespace payrun
