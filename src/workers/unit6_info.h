// The page "Info" of the register: what the card says of a worker, as label and value.
#pragma once

#include <string>
#include <vector>

#include "shell/control_files.h"
#include "store/query.h"

namespace workers {

/// Rows of a label and a value for "Osobní": identity, membership and tax flags ("ANO" or blank),
/// insurer and fund, employment. `karta` stands on a whole row of `Os_karty`; `pojistovny` is the
/// list of Nacti_pojistovny.
store::Rows osobni_udaje(const store::Query& karta, const std::vector<std::string>& pojistovny);

/// The same for "Plat": salary items, working time, leave, sickness averages month by month.
store::Rows platove_udaje(const store::Query& karta, const shell::RidiciZorv& ridici);

}  // namespace workers
