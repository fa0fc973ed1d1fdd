#include "menu/import_hrubych.h"

#include "base/text.h"
#include "menu/vstup_do_mesice.h"
#include "store/catalogue.h"

namespace menu {

std::optional<int> mesic_hrubych(std::string_view tabulka) {
    const auto nazev = store::bare_table_name(tabulka);
    for (int mesic = 1; mesic <= 12; ++mesic) {
        if (base::stejne_bez_velikosti(nazev, store::month_table("Hrube", mesic))) return mesic;
    }
    return {};
}

std::optional<store::ImportResult> import_hrubych(shell::Session& session, int mesic,
                                                  std::string_view csv, std::string_view soubor,
                                                  bool nahradit) {
    VstupDoMesice vstup(session, mesic);
    if (!shell::test_aktivniho_mesice_hrube(session)) return {};
    vstup.vpust();

    const auto listina = store::month_table("Listin", mesic);
    auto& data = session.data();
    store::Transaction zmena(data);
    auto vysledek =
        store::import_csv(data, store::month_table("Hrube", mesic), csv, soubor, nahradit);
    const bool zmeneno = vysledek.errors.empty() && (vysledek.rows > 0 || nahradit);
    const bool mazat_listinu = zmeneno && data.table_exists(listina);
    if (mazat_listinu) data.delete_table(listina);
    if (vysledek.errors.empty()) zmena.commit();

    if (mazat_listinu) {
        session.obsluha().hlaska(
            "Protože byl změněný soubor hrubých mezd,\r\n"
            "byla vymazaná výplatní listina za  " +
            base::mesic_slovy(mesic, session.rok) +
            ".\r\n\r\nOpravená výplatní listina se znovu vytvoří\r\n"
            "stisknutím tlačítka  \"ZPRACUJ  VÝPLATY\" .");
    }
    return vysledek;
}

}  // namespace menu
