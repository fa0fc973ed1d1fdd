// States of the worker's card worth seeing: for pictures and for the test of all windows.
#pragma once

#include <memory>

#include "base/obsluha.h"
#include "shell/session.h"

namespace desktop {

std::shared_ptr<base::Obrazovka> karta_osobni(shell::Session& session);
/// Tax data with messages, hints and the help on the fund's rate.
std::shared_ptr<base::Obrazovka> karta_s_chybami(shell::Session& session);
std::shared_ptr<base::Obrazovka> karta_prumery(shell::Session& session);
std::shared_ptr<base::Obrazovka> karta_hlediska(shell::Session& session);
std::shared_ptr<base::Obrazovka> karta_texty(shell::Session& session);
std::shared_ptr<base::Obrazovka> karta_cssz(shell::Session& session);
std::shared_ptr<base::Obrazovka> karta_cizozemci(shell::Session& session);
std::shared_ptr<base::Obrazovka> vyber_pracovnika(shell::Session& session);

}  // namespace desktop
