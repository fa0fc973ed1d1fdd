#include "desktop/ukazky_nahrad.h"

#include "store/table.h"
#include "wages/unit123_tisk_nahrad.h"
#include "wages/unit_nahrady_prehled.h"

namespace desktop {

namespace {

int prvni_pracovnik(shell::Session& session) {
    store::Query q(session.data(), "SELECT Cislo FROM Os_karty ORDER BY Cislo");
    q.open();
    return q.eof() ? 0 : static_cast<int>(q.integer("Cislo"));
}

/// A sickness of two months of the first worker.
void pridej_neschopnost(shell::Session& session) {
    store::Table nahrady;
    nahrady.set_connection(session.data());
    nahrady.set_table_name("Nahrady");
    nahrady.open();
    const int cislo = prvni_pracovnik(session);
    for (const int mesic : {1, 2}) {
        nahrady.append();
        nahrady.set("Cislo_pracovnika", cislo);
        nahrady.set("Mesic", mesic);
        nahrady.set("Id_hrube", 3 + mesic);
        nahrady.set("Typ_nahrady", 0);
        nahrady.set("Cislo_dokladu", "A 1234567");
        nahrady.set("Trvani_od", base::Datum{session.rok, 1, 24});
        nahrady.set("Trvani_do", base::Datum{session.rok, mesic, mesic == 1 ? 31 : 28});
        nahrady.set("Dnu_kalendarnich", mesic == 1 ? 8 : 28);
        nahrady.set("Dnu_pracovnich", mesic == 1 ? 6 : 20);
        nahrady.set("Vyloucene_dny", mesic == 1 ? 8 : 28);
        nahrady.set("Prum_hod_vydelek", 227.15);
        nahrady.set("Red_hod_vydelek", 204.44);
        nahrady.set("Fond_A", "0:00");
        nahrady.set("Fond_B", mesic == 1 ? "48:00" : "32:00");
        nahrady.set("Fond_C", mesic == 1 ? "0:00" : "128:0");
        nahrady.set("Hod_nahrada_B", 122.67);
        nahrady.set("Nahrada_B", mesic == 1 ? 5888.16 : 3925.44);
        nahrady.set("Celkova_nahrada", mesic == 1 ? 5888.16 : 3925.44);
        nahrady.post();
    }
}

}  // namespace

std::shared_ptr<base::Obrazovka> prehled_nahrad(shell::Session& session) {
    auto form = std::make_shared<wages::TFNahrady>(session);
    form->FormShow();
    if (!form->vety.rows.empty()) return form;
    store::Transaction na_zkousku(session.data());  // taken back at the end
    pridej_neschopnost(session);
    form->FormShow();
    return form;
}

std::shared_ptr<base::Obrazovka> tisk_nahrad(shell::Session& session) {
    auto form = std::make_shared<wages::TForm123>(session);
    form->FormShow();
    form->vsichni = false;
    form->cislo = std::to_string(prvni_pracovnik(session));
    form->vsichniClick();
    return form;
}

}  // namespace desktop
