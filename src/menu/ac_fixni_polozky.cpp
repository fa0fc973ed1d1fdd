// The action "Fixní položky" of the main menu.
#include "menu/akce_evidence.h"
#include "workers/fixni.h"
#include "workers/unit11_fixni_polozky.h"

namespace menu {

bool acFixniPolozkyExecute(shell::Session& session) {
    if (!workers::je_modul_pro_fixni(session.ridici_zorv)) {
        session.obsluha().hlaska(workers::k_neni_modul_pro_fixni);
        return false;
    }
    workers::TForm11 polozky(session);
    polozky.FormShow();
    session.obsluha().ukaz_modalne(polozky);
    return true;
}

}  // namespace menu
