#include "menu/import_hrubych.h"

#include "base/text.h"
#include "menu/unit1_hlavni.h"
#include "menu/vstup_do_mesice.h"
#include "menu/zmena_hrubych.h"
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

    auto& data = session.data();
    store::Transaction zmena(data);
    auto vysledek =
        store::import_csv(data, store::month_table("Hrube", mesic), csv, soubor, nahradit);
    const bool zmeneno = vysledek.errors.empty() && (vysledek.rows > 0 || nahradit);
    const bool smazana = zmeneno && smaz_listinu_zmeneneho_mesice(session, mesic);
    if (vysledek.errors.empty()) zmena.commit();
    if (smazana) ohlas_smazanou_listinu(session, mesic);
    return vysledek;
}

std::optional<wages::HromadneZadani> import_polozek(shell::Session& session, int mesic,
                                                    std::string_view csv, std::string_view soubor) {
    VstupDoMesice vstup(session, mesic);
    if (!shell::test_aktivniho_mesice_hrube(session)) return {};
    wages::HromadneZadani davka = wages::precti_hromadne(session, mesic, csv, soubor);
    if (!davka.chyby.empty()) return davka;
    vstup.vpust();
    if (davka.radky.empty()) return davka;
    if (!session.data().table_exists(store::month_table("Hrube", mesic))) zaloz_hrube_zorv(session);
    store::Transaction zmena(session.data());
    wages::zapis_hromadne(session, mesic, davka);
    const bool smazana = smaz_listinu_zmeneneho_mesice(session, mesic);
    zmena.commit();
    if (smazana) ohlas_smazanou_listinu(session, mesic);
    return davka;
}

}  // namespace menu
