#include "workers/unit74_externi_vstup.h"

#include "store/catalogue.h"

namespace workers {
namespace {

constexpr const char* k_tabulka = "Vstup_ex";
constexpr long long k_nejvetsi_cislo = 999999999;

PopisCiselniku popis_externiho_vstupu() {
    using enum DruhPole;
    return {k_tabulka,
            "TForm74",
            "TForm132",
            "Externí vstup",
            {{"Cislo_prace", "Číslo práce", "Čí&slo práce:", cele, 9},
             {"Sazba", "Sazba", "S&azba:", desetinne, 9},
             {"Text", "Text", "&Text:", text, 40}},
            0,
            k_nejvetsi_cislo};
}

}  // namespace

TForm74::TForm74(shell::Session& session) : Ciselnik(session, popis_externiho_vstupu()) {}

void zaloz_soubor_pro_externi_vstup(shell::Session& session) {
    if (session.data().table_exists(k_tabulka)) return;
    store::Transaction transakce(session.data());
    session.data().create_table(store::definition_of(k_tabulka));
    transakce.commit();
}

}  // namespace workers
