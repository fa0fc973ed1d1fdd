#include "workers/unit6_smazani.h"

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <vector>

#include "base/text.h"
#include "store/catalogue.h"
#include "store/query.h"
#include "store/table.h"
#include "workers/fixni.h"

namespace workers {

namespace {

constexpr int k_mesicu = 12;
constexpr const char* k_konec_radku = "\r\n";

bool ma_vetu(shell::Session& session, const std::string& tabulka, std::int64_t cislo) {
    store::Query dotaz(session.data(), "select Cislo_pracovnika from " + tabulka +
                                           " where cislo_pracovnika=:cislo");
    dotaz.set("cislo", cislo);
    dotaz.open();
    return !dotaz.eof();
}

bool jako_text(const std::vector<std::string>& radky, std::string& text) {
    text = fmt::format("{}", fmt::join(radky, k_konec_radku));
    return !radky.empty();
}

}  // namespace

bool byl_pracovnik_ve_vyplatach(shell::Session& session, std::int64_t cislo, std::string& text) {
    std::vector<std::string> radky;
    for (const auto& [nazev, kde] :
         {std::pair{"Hrube", "v hrubých mzdách"}, std::pair{"Listin", "ve výplatní listině"}}) {
        for (int mesic = 1; mesic <= k_mesicu; ++mesic) {
            const std::string tabulka = store::month_table(nazev, mesic);
            if (!session.data().table_exists(tabulka) || !ma_vetu(session, tabulka, cislo)) {
                continue;
            }
            radky.push_back(fmt::format("- má hodnoty {} {}", kde, base::cislo_s_nulami(mesic, 2)));
        }
    }
    return jako_text(radky, text);
}

bool je_pracovnik_ve_fixnich(shell::Session& session, std::int64_t cislo, std::string& text) {
    const std::string jmeno = jmeno_pracovnika(session, cislo);
    std::vector<std::string> radky;
    if (ma_vetu(session, "Deti", cislo)) {
        radky.push_back(fmt::format("- pracovník {} má údaje v souboru \"DETI.DB\"", jmeno));
    }
    if (ma_vetu(session, "Fixni", cislo)) {
        radky.push_back(fmt::format("- pracovník {} má údaje ve fixních položkách", jmeno));
    }
    return jako_text(radky, text);
}

void Vymaz_udaje_o_pracovnikovi(shell::Session& session, std::int64_t cislo) {
    for (const char* nazev : {"Deti.db", "Fixni.db"}) {
        store::Table tabulka;
        tabulka.set_connection(session.data());
        tabulka.set_table_name(nazev);
        tabulka.open();
        for (tabulka.first(); !tabulka.eof();) {
            if (tabulka.value("Cislo_pracovnika") == store::Value(cislo)) {
                tabulka.remove();
            } else {
                tabulka.next();
            }
        }
    }
}

}  // namespace workers
