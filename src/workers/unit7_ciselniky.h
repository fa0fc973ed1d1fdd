// Code lists of the worker's card: what is stored and what the operator reads.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shell/session.h"

namespace workers {

enum class CiselnikKarty {
    zadny,
    socialni,           ///< `Jake_socialni`
    zdravotni,          ///< `Jake_zdravotni`
    dan,                ///< `Jaka_dan`
    invalidita,         ///< `Invalidita`
    pohlavi,            ///< `CSSZ102`
    rodinny_stav,       ///< `CSSZ103`
    duchod,             ///< `CSSZ111`
    nositel_pojisteni,  ///< `Cnp_specifikace`
    druh_cinnosti       ///< `Cssz_druh_cinnosti`
};

struct PolozkaCiselniku {
    std::string hodnota;  ///< as stored, a number in digits
    std::string text;     ///< as shown
};

/// The items in their order. Those of insurance and tax name the present rates.
std::vector<PolozkaCiselniku> ciselnik_karty(CiselnikKarty ciselnik, const shell::Session& session);

/// Place of the stored value, from 0; -1 when the list does not have it.
int index_v_ciselniku(const std::vector<PolozkaCiselniku>& polozky, std::string_view hodnota);

/// Monthly relief for an item of the list of disability, crowns (§ 35ba ZDP).
int sleva_na_invaliditu(int index, const shell::Nastaveni& nastaveni);

}  // namespace workers
