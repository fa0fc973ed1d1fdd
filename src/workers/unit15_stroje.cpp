#include "workers/unit15_stroje.h"

#include "workers/ciselnik_pouziti.h"

namespace workers {
namespace {

/// Machine 0 means "no machine" in gross wages; six digits are what the list of machines takes.
constexpr long long k_nejmensi_cislo = 1, k_nejvetsi_cislo = 999999;

PopisCiselniku popis_stroju() {
    using enum DruhPole;
    return {"Stroje",
            "TForm15",
            "TForm16",
            "Stroje",
            {{"Stroj", "Stroj", "&Stroj:", cele, 6},
             {"Su", "Synt. účet", "S&yntetický účet:", cele, 4},
             {"Au", "Anal. účet", "&Analytický účet:", cele, 4},
             {"St", "Středisko", "S&tředisko:", cele, 2},
             {"Vykon", "Výkon", "&Výkon:", cele, 3},
             {"Sazba", "Sazba Kč/hod.", "Hodi&nová sazba:", desetinne, 7}},
            k_nejmensi_cislo,
            k_nejvetsi_cislo,
            pouziti_v_hrubych};
}

}  // namespace

TForm15::TForm15(shell::Session& session) : Ciselnik(session, popis_stroju()) {}

}  // namespace workers
