// "Evidence docházky" of the main menu.
#include "menu/akce_evidence.h"
#include "wages/unit162_dochazka.h"

namespace menu {

bool acEvidenceDochazkyExecute(shell::Session& session) {
    // The common guard lets this action through, so it says itself what is missing.
    if (session.firma.empty()) {
        session.obsluha().hlaska("Není otevřena žádná firma.");
        return false;
    }
    wages::zaloz_dochazku(session);
    wages::TForm162 evidence(session);
    evidence.FormShow();
    session.obsluha().ukaz_modalne(evidence);
    return true;
}

}  // namespace menu
