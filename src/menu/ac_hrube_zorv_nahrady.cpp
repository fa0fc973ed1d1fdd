// "Hrubé zorv a náhrady" of the main menu: the pattern of a monthly action.
#include <set>
#include <vector>

#include "menu/akce_evidence.h"
#include "menu/unit1_hlavni.h"
#include "menu/vstup_do_mesice.h"
#include "menu/zmena_hrubych.h"
#include "payrun/unit133_prohlizeni_mezd.h"
#include "payrun/unit50_blokace.h"
#include "store/catalogue.h"
#include "wages/unit17_zadani.h"

namespace menu {
namespace {

void ukaz_blokovane(shell::Session& session) {
    payrun::zaloz_soubor_pro_blokovani(session);
    payrun::TForm50 blokace(session);
    blokace.FormShow();
    session.obsluha().ukaz_modalne(blokace);
}

void ukaz_mzdy(shell::Session& session) {
    payrun::TForm133 mzdy(session, session.zpracovavany_mesic);
    if (!mzdy.hlaska.empty()) {
        session.obsluha().hlaska(mzdy.hlaska);
        return;
    }
    mzdy.FormShow();
    session.obsluha().ukaz_modalne(mzdy);
}

/// No pay sheet survives a change of its month's items.
void smaz_listiny(shell::Session& session, const std::set<int>& mesice) {
    std::vector<int> smazane;
    store::Transaction transakce(session.data());
    for (const int mesic : mesice)
        if (smaz_listinu_zmeneneho_mesice(session, mesic)) smazane.push_back(mesic);
    transakce.commit();
    for (const int mesic : smazane)
        ohlas_smazanou_listinu(session, mesic);
}

}  // namespace

bool acHrubeZorvNahradyExecute(shell::Session& session) {
    const int mesic = session.mesic_v_poli;
    VstupDoMesice vstup(session, mesic);
    if (!shell::test_aktivniho_mesice_hrube(session)) return false;
    if (!session.data().table_exists(store::month_table("Hrube", mesic))) zaloz_hrube_zorv(session);
    wages::TForm17 zadani(session, {ukaz_blokovane, ukaz_mzdy});
    if (!zadani.FormShow()) return false;
    vstup.vpust();
    session.obsluha().ukaz_modalne(zadani);
    std::set<int> zmenene = zadani.zmenene_mesice;
    if (zadani.zmeneno) zmenene.insert(mesic);
    smaz_listiny(session, zmenene);
    return true;
}

}  // namespace menu
