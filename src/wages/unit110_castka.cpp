#include "wages/unit110_castka.h"

#include <fmt/format.h>

#include "base/castky_text.h"
#include "base/klavesy.h"
#include "base/text.h"

namespace wages {

TForm110::TForm110(shell::Session& session, UlozenaVeta veta)
    : session_(session), veta_(std::move(veta)) {}

void TForm110::FormShow() {
    lbPracovnik = fmt::format("{}  {} {}", veta_.cislo, veta_.prijmeni, veta_.jmeno);
    lbPolozka = fmt::format("{}  {}", veta_.veta.sloupec, veta_.veta.sloupec_slovy);
    lbZapsano = "Zapsáno  " + base::castka_s_carkou(0, 2, veta_.veta.kc_cel) + " Kč";
    scKoruny = base::castka_s_carkou(0, 2, veta_.veta.kc_cel);
    fokus = "scKoruny";
}

bool TForm110::povol_klavesu(char znak, std::string_view text) {
    return base::hlidej_desetinne_cislo_klavesy(znak, text, base::ZnamenkoRezim::minus_na_zacatku,
                                                7, 2);
}

void TForm110::acUlozitExecute() {
    if (!base::neprazdny(scKoruny)) {
        session_.obsluha().hlaska("Nezadali jste koruny.");
        fokus = "scKoruny";
        oznam_zmenu();
        return;
    }
    veta_.veta.kc_cel = base::na_halere_k_sude(base::je_desetinne_cislo(scKoruny));
    store::Transaction transakce(session_.data());
    oprav_vetu_hrubych_mezd(session_, veta_.mesic, veta_.pocitadlo, veta_.veta);
    transakce.commit();
    zmeneno = zavreno = true;
    oznam_zmenu();
}

void TForm110::acZpetExecute() {
    zavreno = true;
    oznam_zmenu();
}

}  // namespace wages
