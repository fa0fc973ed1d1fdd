#include "shell/stara_slozka.h"

#include <string>
#include <system_error>
#include <vector>

#include "shell/session.h"
#include "store/query.h"
#include "store/table.h"

namespace shell {

namespace {

void zkopiruj_tabulku(store::Connection& odkud, store::Connection& kam, const char* tabulka) {
    const store::TableDef definice = odkud.describe(tabulka);
    std::vector<std::string> pole;
    for (const store::FieldDef& p : definice.fields) {
        if (p.type != store::FieldType::autoincrement) pole.push_back(p.name);
    }
    store::Transaction transakce(kam);
    kam.create_table(definice);
    store::Inserter vkladac(kam, tabulka, pole);
    store::Query radky(odkud, std::string("SELECT * FROM ") + tabulka);
    for (radky.open(); !radky.eof(); radky.next()) {
        for (std::size_t i = 0; i < pole.size(); ++i)
            vkladac.set(i, radky.value(pole[i]));
        vkladac.insert();
    }
    transakce.commit();
}

/// Drops the tables; true when no other is left.
bool vyprazdni(store::Connection& spojeni) {
    store::Transaction transakce(spojeni);
    for (const char* tabulka : {"Setup", "Verze"}) {
        if (spojeni.table_exists(tabulka)) spojeni.delete_table(tabulka);
    }
    transakce.commit();
    return spojeni.tables().empty();
}

}  // namespace

void prenes_starou_slozku(const std::filesystem::path& slozka_firmy) {
    const std::filesystem::path stara = slozka_firmy / "Firma";
    const std::filesystem::path nova = slozka_firmy / "Ucet";
    if (!tabulka_existuje(stara, "Setup") || tabulka_existuje(nova, "Setup")) return;
    std::filesystem::create_directories(nova);
    bool prazdna = false;
    {
        store::Connection odkud(stara);
        store::Connection kam(nova);
        zkopiruj_tabulku(odkud, kam, "Setup");
        prazdna = vyprazdni(odkud);
    }
    if (!prazdna) return;
    std::error_code nevadi;  // files of somebody else keep the folder, and that is right
    std::filesystem::remove(stara / store::Connection::file_name(), nevadi);
    std::filesystem::remove(stara, nevadi);
}

}  // namespace shell
