// Hints on the worker's card: what is likely a mistake though the card may be stored with it.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "base/datum.h"
#include "workers/unit7_kontrola.h"

namespace workers {

/// Who else is on file, read once by one query.
class OstatniPracovnici {
  public:
    explicit OstatniPracovnici(store::Connection& data);

    struct Pracovnik {
        std::int64_t pocitadlo = 0;
        int cislo = 0, kdo_plati_dan = 0;
    };
    /// Cards of the birth number, without regard to its separators.
    const std::vector<Pracovnik>& s_rodnym_cislem(std::string_view rodne_cislo) const;
    /// Surname and first name of the first card of a number; null when there is none.
    const std::string* jmeno(int cislo) const;

  private:
    std::map<std::string, std::vector<Pracovnik>, std::less<>> podle_rc_;
    std::map<int, std::string> jmena_;
};

/// Birth number (its day, its modulo 11, the same one on another card that is not taxed together
/// with this), unlikely days, an insurer without an official code, a taxing worker who is not
/// there. `dnes` is the day of looking.
std::vector<ChybaKarty> najdi_napovedy(const HodnotyKarty& karta, const PodkladyKarty& podklady,
                                       const OstatniPracovnici& ostatni, const base::Datum& dnes);

}  // namespace workers
