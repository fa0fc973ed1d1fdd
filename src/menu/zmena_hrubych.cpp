#include "menu/zmena_hrubych.h"

#include "base/datum.h"
#include "store/catalogue.h"

namespace menu {

bool smaz_listinu_zmeneneho_mesice(shell::Session& session, int mesic) {
    const std::string listina = store::month_table("Listin", mesic);
    if (!session.data().table_exists(listina)) return false;
    session.data().delete_table(listina);
    return true;
}

void ohlas_smazanou_listinu(shell::Session& session, int mesic) {
    session.obsluha().hlaska(
        "Protože byl změněný soubor hrubých mezd,\r\n"
        "byla vymazaná výplatní listina za  " +
        base::mesic_slovy(mesic, session.rok) +
        ".\r\n\r\nOpravená výplatní listina se znovu vytvoří\r\n"
        "stisknutím tlačítka  \"ZPRACUJ  VÝPLATY\" .");
}

}  // namespace menu
