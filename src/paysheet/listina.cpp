#include "paysheet/listina.h"

#include <cassert>
#include <fmt/format.h>

#include "base/text.h"
#include "store/catalogue.h"
#include "store/query.h"

namespace paysheet {

namespace {

/// A SELECT of sums over the sheets of the months that exist, one part a sheet; "" when none does.
std::string dotaz_na_soucty(const store::Connection& slozka, int mesic_od, int mesic_do,
                            const std::string& podminka) {
    std::string dotaz;
    for (int mesic = mesic_od; mesic <= mesic_do; ++mesic) {
        const std::string listina = store::month_table("Listin", mesic);
        if (!slozka.table_exists(listina)) continue;
        if (!dotaz.empty()) dotaz += " union all ";
        dotaz += fmt::format("SELECT SUM(hodnota) as soucet FROM {} WHERE ({})", listina, podminka);
    }
    return dotaz;
}

/// The rows of the query added up; what is zero within the tolerance of amounts gives 0.
base::Castka sectene_radky(store::Query& dotaz) {
    base::Castka soucet = 0;
    for (dotaz.open(); !dotaz.eof(); dotaz.next())
        soucet += dotaz.number(0);
    return base::je_nula(soucet) ? 0 : soucet;
}

struct Rozsah {
    int od, do_;
};

base::Castka zjisti_ve_slozce(store::Connection& slozka, Rozsah pracovnici, Rozsah mesice,
                              Rozsah moduly) {
    const std::string sql =
        dotaz_na_soucty(slozka, mesice.od, mesice.do_,
                        "CISLO_PRACOVNIKA >= :od_pracovnika AND CISLO_PRACOVNIKA <= :do_pracovnika"
                        " AND MODUL >= :modul_od AND MODUL <= :modul_do"
                        " AND MESIC >= :mesic_od AND MESIC <= :mesic_do");
    if (sql.empty()) return 0;
    store::Query dotaz(slozka, sql);
    dotaz.set("od_pracovnika", pracovnici.od).set("do_pracovnika", pracovnici.do_);
    dotaz.set("modul_od", moduly.od).set("modul_do", moduly.do_);
    dotaz.set("mesic_od", mesice.od).set("mesic_do", mesice.do_);
    return sectene_radky(dotaz);
}

}  // namespace

void zaloz_vyplatni_listinu(shell::Session& session, int mode) {
    assert(mode == 1 || mode == 2);
    const std::string listina = store::month_table("Listin", session.zpracovavany_mesic);
    store::Transaction transakce(session.data());
    if (mode == 2) session.data().delete_table(listina);
    session.data().create_table(store::definition_of(listina));
    transakce.commit();
}

base::Castka soucet_hodnot_listin(shell::Session& session, int cislo, int modul, int mesic_do,
                                  int mesic_od) {
    const std::string sql = dotaz_na_soucty(session.data(), mesic_od, mesic_do,
                                            "(cislo_pracovnika = :cislo) AND (modul = :modul)");
    if (sql.empty()) return 0;
    store::Query dotaz(session.data(), sql);
    dotaz.set("cislo", cislo).set("modul", modul);
    return sectene_radky(dotaz);
}

base::Castka zjisti_listin(shell::Session& session, int od_pracovnika, int do_pracovnika,
                           bool minuly_rok, int mesic_do, int mesic_od, int modul_do,
                           int modul_od) {
    const Rozsah pracovnici{od_pracovnika, do_pracovnika};
    const Rozsah mesice{mesic_od, mesic_do};
    const Rozsah moduly{modul_od, modul_do};
    if (!minuly_rok) return zjisti_ve_slozce(session.data(), pracovnici, mesice, moduly);
    // A company of the first year has no year before it.
    if (!std::filesystem::exists(session.cesta_minuly_rok / store::Connection::file_name())) {
        return 0;
    }
    store::Connection minula(session.cesta_minuly_rok, store::Access::read_only);
    return zjisti_ve_slozce(minula, pracovnici, mesice, moduly);
}

bool is_prazdne_listin(shell::Session& session, int mesic) {
    const std::string listina = store::month_table("Listin", mesic);
    if (!session.data().table_exists(listina)) return true;
    store::Query dotaz(session.data(), "SELECT COUNT(*) AS Pocet FROM " + listina);
    dotaz.open();
    return dotaz.integer("Pocet") == 0;
}

}  // namespace paysheet
