// States worth seeing of the screens of work calendars, code lists and attendance.
#pragma once

#include <memory>

#include "base/obsluha.h"
#include "shell/session.h"

namespace desktop {

using UkazkaObrazovky = std::shared_ptr<base::Obrazovka>;

UkazkaObrazovky kalendare(shell::Session& session);
UkazkaObrazovky kalendar_dubna(shell::Session& session);
UkazkaObrazovky pojistovny(shell::Session& session);
UkazkaObrazovky pojistovna(shell::Session& session);
UkazkaObrazovky stroje(shell::Session& session);
UkazkaObrazovky stroj(shell::Session& session);
UkazkaObrazovky externi_vstup(shell::Session& session);
UkazkaObrazovky externi_prace(shell::Session& session);
UkazkaObrazovky dochazka(shell::Session& session);
UkazkaObrazovky zadani_dochazky(shell::Session& session);

}  // namespace desktop
