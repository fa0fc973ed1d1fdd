#include "workers/unit7_kaskada.h"

#include <fmt/format.h>
#include <vector>

#include "base/text.h"
#include "store/catalogue.h"
#include "store/command.h"
#include "workers/unit7_osoba.h"

namespace workers {
namespace {

constexpr int k_mesicu = 12;

enum class Jmena { ne, ano, s_titulem };

struct Krok {
    std::string tabulka;
    std::string text;
    Jmena jmena;
    bool kdyz_existuje;  ///< a missing table is passed over
};

std::string opravuji_soubor(std::string_view jmeno) {
    return fmt::format("Opravuji \"{}\"", jmeno);
}

/// The twelve tables of one name; `text` makes the message from table and month.
template <class Text>
void pridej_mesice(std::vector<Krok>& kroky, const char* nazev, Jmena jmena, Text text) {
    for (int mesic = 1; mesic <= k_mesicu; ++mesic) {
        const std::string tabulka = store::month_table(nazev, mesic);
        kroky.push_back({tabulka, text(tabulka, mesic), jmena, true});
    }
}

/// The tables in the order in which the operator sees them.
std::vector<Krok> kroky_kaskady() {
    const auto podle_tabulky = [](const std::string& tabulka, int) {
        return opravuji_soubor(base::velkymi(tabulka));
    };
    std::vector<Krok> kroky;
    pridej_mesice(kroky, "Hrube", Jmena::ano, podle_tabulky);
    kroky.push_back({"Deti", opravuji_soubor("DETI.DB"), Jmena::ne, false});
    kroky.push_back({"Fixni", "Opravuji fixní položky.", Jmena::ne, false});
    pridej_mesice(kroky, "Listin", Jmena::s_titulem, [](const std::string&, int mesic) {
        return fmt::format("Opravuji výplatní listinu {}.", mesic);
    });
    pridej_mesice(kroky, "Blok", Jmena::ne, podle_tabulky);
    kroky.push_back({"Rocni", opravuji_soubor("ROCNI.DB"), Jmena::ne, true});
    return kroky;
}

void Oprav_soubor(store::Connection& data, const Krok& krok, int stare_cislo,
                  const Totoznost& nova) {
    const bool jmena = krok.jmena != Jmena::ne;
    store::Command oprava(
        data,
        fmt::format("UPDATE {} SET Cislo_pracovnika = :nove{} WHERE Cislo_pracovnika = :stare",
                    krok.tabulka, jmena ? ", Prijmeni = :prijmeni, Jmeno = :jmeno" : ""));
    oprava.set("nove", nova.cislo).set("stare", stare_cislo);
    if (jmena) {
        oprava.set("prijmeni", nova.prijmeni);
        oprava.set("jmeno", krok.jmena == Jmena::s_titulem ? jmeno_s_titulem(nova.jmeno, nova.titul)
                                                           : nova.jmeno);
    }
    oprava.execute();
}

}  // namespace

void Oprav_hodnoty_v_ostatnich_souborech(store::Connection& data, int stare_cislo,
                                         const Totoznost& nova, const PrubehKaskady& prubeh) {
    std::vector<Krok> kroky = kroky_kaskady();
    std::erase_if(kroky, [&](const Krok& krok) {
        return krok.kdyz_existuje && !data.table_exists(krok.tabulka);
    });
    for (std::size_t i = 0; i < kroky.size(); ++i) {
        prubeh(static_cast<int>(i * 100 / kroky.size()), kroky[i].text);
        Oprav_soubor(data, kroky[i], stare_cislo, nova);
    }
}

}  // namespace workers
