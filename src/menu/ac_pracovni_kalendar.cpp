// "Pracovní kalendář" of the main menu.
#include "menu/akce_evidence.h"
#include "wages/unit_rpd.h"

namespace menu {

bool acPracovniKalendarExecute(shell::Session& session) {
    wages::TFRpd seznam(session);
    seznam.FormShow();
    session.obsluha().ukaz_modalne(seznam);
    return true;
}

}  // namespace menu
