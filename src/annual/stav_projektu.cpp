#include "annual/stav_projektu.h"

#include "base/datum.h"
#include "base/text.h"

namespace annual {

TFStavProjektu::TFStavProjektu(shell::Session& session) : session_(session) {}

void TFStavProjektu::FormShow() {
    nadpis = "Uzávěrky - " + session_.radek_firmy;
    session_.ridici_zorv = shell::cti_ridici_zorv(session_.soubor_ridici_zorv());
    for (std::size_t i = 0; i < radky.size(); ++i) {
        const std::string obdobi = base::mesic_slovy(static_cast<int>(i) + 1, session_.rok);
        radky[i] = base::na_sirku(obdobi, k_sirka_obdobi) + " " + session_.ridici_zorv.uzaverka[i];
    }
    oznam_zmenu();
}

void TFStavProjektu::acZpet() {
    zavreno = true;
    oznam_zmenu();
}

}  // namespace annual
