// Actions of the main menu that open the records: each makes its screen, shows it and returns when
// it was closed. False when the action was refused; its message was shown then.
#pragma once

#include "shell/session.h"

namespace menu {

bool acPracovniciExecute(shell::Session& session);
bool acPracovniKalendarExecute(shell::Session& session);
bool acPojistovnyFondyExecute(shell::Session& session);
bool acExterniVstupExecute(shell::Session& session);
bool acFixniPolozkyExecute(shell::Session& session);
bool acStrojeExecute(shell::Session& session);
bool acEvidenceDochazkyExecute(shell::Session& session);
/// "Hrubé zorv a náhrady" of the month in the month box: guard, entry, and what a change means for
/// the pay sheet. False when the guard refused or there is no worker.
bool acHrubeZorvNahradyExecute(shell::Session& session);
/// "Prohlížení mezd": the pay sheet of the month in the month box.
bool acProhlizetZakladniSouboryExecute(shell::Session& session);

}  // namespace menu
