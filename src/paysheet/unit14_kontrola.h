// The checks of TForm14's saving, in their order. The first that fails decides.
#pragma once

#include <string>
#include <vector>

#include "paysheet/unit14_nastaveni.h"

namespace paysheet {

/// A failed check: the message, and the page and field to go to.
struct ChybaNastaveni {
    std::string zprava;
    Stranka stranka = Stranka::legislativa;
    std::string ovladac;
    bool pokracovat = false;  ///< only told, saving goes on: a missing percentage of the employer
};

/// Failures in the order of the checks, up to the first that ends the saving; none is a screen that
/// may be saved. `zaznam` gives the columns of the modules.
std::vector<ChybaNastaveni> zkontroluj_nastaveni(const TForm14& form,
                                                 const shell::RidiciZorv& zaznam);

}  // namespace paysheet
