// A session over an empty data root in a temporary folder, with the scripted operator.
#pragma once

#include "base/hodiny.h"
#include "shell/session.h"
#include "support/docasna_slozka.h"
#include "support/skriptovana_obsluha.h"

namespace zkouska {

/// The clock stands at 15 January 2022.
struct PrazdnaRelace {
    DocasnaSlozka koren;
    SkriptovanaObsluha obsluha;
    base::PevneHodiny hodiny{{{2022, 1, 15}, 8, 0, 0}};
    base::SystemovaNahoda nahoda;
    shell::Session session{{obsluha, hodiny, nahoda}, koren / "program"};

    PrazdnaRelace() { session.koren_dat = koren.cesta(); }
};

}  // namespace zkouska
