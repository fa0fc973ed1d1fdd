// "Pracovníci" of the main menu: the register of workers. Insurers and performances are read by the
// screens that need them, when they are shown.
#include "menu/akce_evidence.h"
#include "wages/unit_rpd.h"
#include "workers/unit6_registr.h"

namespace menu {

bool acPracovniciExecute(shell::Session& session) {
    workers::TForm6 registr(session, wages::vyber_kalendar);
    registr.FormShow();
    session.obsluha().ukaz_modalne(registr);
    return true;
}

}  // namespace menu
