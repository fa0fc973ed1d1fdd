#include "wages/unit_nahrady_prehled.h"

#include "wages/unit123_tisk_nahrad.h"
#include "wages/veta_nahrady.h"

namespace wages {

store::Rows vety_nahrad(store::Query& dotaz) {
    store::Rows vety = store::read_all(dotaz);
    const auto sloupec = [&](const char* pole) {
        return static_cast<std::size_t>(vety.column(pole));
    };
    const std::size_t typ = sloupec("Typ_nahrady");
    const std::size_t fondy[] = {sloupec("Fond_A"), sloupec("Fond_B"), sloupec("Fond_C")};
    for (store::Row& veta : vety.rows) {
        veta[typ] = std::string(typ_nahrady_slovy(static_cast<int>(veta[typ].as_integer())));
        for (const std::size_t fond : fondy)
            veta[fond] = fond_z_vety(veta[fond].as_text());
    }
    return vety;
}

void TFNahrady::FormShow() {
    nadpis = "Přehled náhrad za pracovní neschopnost - " + session_.firma;
    store::Query dotaz(session_.data(),
                       "SELECT * FROM Nahrady ORDER BY Cislo_pracovnika, Mesic, Trvani_od, "
                       "Pocitadlo");
    prijmi(vety_nahrad(dotaz), 0);
}

void TFNahrady::acSestavaExecute() {
    nerusene([this] {
        TForm123 tisk(session_);
        tisk.FormShow();
        session_.obsluha().ukaz_modalne(tisk);
    });
}

}  // namespace wages
