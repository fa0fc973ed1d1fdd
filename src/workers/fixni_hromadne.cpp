#include "workers/fixni_hromadne.h"

#include <fmt/format.h>

#include "store/query.h"
#include "store/table.h"

namespace workers {

namespace {

/// Runs one statement that changes rows; returns how many.
int proved(shell::Session& session, const std::string& prikaz) {
    store::Transaction transakce(session.data());
    const int vet = session.data().execute(prikaz);
    transakce.commit();
    return vet;
}

}  // namespace

int pridej_fixni(shell::Session& session, int od, int do_, int sloupec) {
    store::Query karty(session.data(),
                       "select Cislo from Os_karty where ((cislo>=:od) and (cislo<=:do))"
                       " order by Cislo, Pocitadlo");
    karty.set("od", od).set("do", do_);
    const store::Rows cisla = store::read_all(karty);
    store::Transaction transakce(session.data());
    store::Inserter fixni(session.data(), "Fixni", {"Cislo_pracovnika", "Sloupec"});
    for (const store::Row& karta : cisla.rows) {
        fixni.set(0, karta[0]);
        fixni.set(1, sloupec);
        fixni.insert();
    }
    transakce.commit();
    return static_cast<int>(cisla.rows.size());
}

int vynuluj_fixni(shell::Session& session, int sloupec) {
    return proved(session, fmt::format("UPDATE Fixni SET Kcs = 0 WHERE Sloupec = {}", sloupec));
}

int smaz_fixni(shell::Session& session, int sloupec) {
    return proved(session, fmt::format("DELETE FROM Fixni WHERE Sloupec = {}", sloupec));
}

}  // namespace workers
