// The code lists of the main menu: insurers and funds, machines, external input.
#include "menu/akce_evidence.h"
#include "workers/unit15_stroje.h"
#include "workers/unit26_pojistovny.h"
#include "workers/unit74_externi_vstup.h"

namespace menu {

namespace {

template <class Form>
bool ukaz_ciselnik(shell::Session& session) {
    Form form(session);
    form.FormShow();
    session.obsluha().ukaz_modalne(form);
    return true;
}

}  // namespace

bool acPojistovnyFondyExecute(shell::Session& session) {
    return ukaz_ciselnik<workers::TForm26>(session);
}

bool acStrojeExecute(shell::Session& session) {
    return ukaz_ciselnik<workers::TForm15>(session);
}

bool acExterniVstupExecute(shell::Session& session) {
    workers::zaloz_soubor_pro_externi_vstup(session);
    return ukaz_ciselnik<workers::TForm74>(session);
}

}  // namespace menu
