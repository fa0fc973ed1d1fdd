// "Prohlížení mezd": the pay sheet of the month in the month box.
#include "menu/akce_evidence.h"
#include "payrun/unit133_prohlizeni_mezd.h"

namespace menu {

bool acProhlizetZakladniSouboryExecute(shell::Session& session) {
    payrun::TForm133 prohlizeni(session, session.mesic_v_poli);
    if (!prohlizeni.hlaska.empty()) {
        session.obsluha().hlaska(prohlizeni.hlaska);
        return false;
    }
    prohlizeni.FormShow();
    session.obsluha().ukaz_modalne(prohlizeni);
    return true;
}

}  // namespace menu
