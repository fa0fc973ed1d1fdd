#include "workers/ciselnik_pouziti.h"

#include <fmt/format.h>

#include "base/datum.h"
#include "store/catalogue.h"
#include "store/query.h"

namespace workers {
namespace {

constexpr std::size_t k_nejvyse_jmen = 10;

}  // namespace

std::vector<std::string> pouziti_na_kartach(shell::Session& session, long long cislo) {
    store::Query dotaz(session.data(),
                       "SELECT Cislo, Prijmeni, Jmeno FROM Os_karty WHERE (Cislo_zdrav_poj = "
                       ":cislo) OR (Cislo_penz_fondu = :cislo) ORDER BY Cislo, Pocitadlo");
    dotaz.set("cislo", static_cast<std::int64_t>(cislo));
    std::vector<std::string> radky;
    std::size_t pocet = 0;
    for (dotaz.open(); !dotaz.eof(); dotaz.next()) {
        if (++pocet > k_nejvyse_jmen) continue;
        radky.push_back(fmt::format("- číslo {} má na kartě pracovník {} {} {}", cislo,
                                    dotaz.integer("Cislo"), dotaz.text("Prijmeni"),
                                    dotaz.text("Jmeno")));
    }
    if (pocet > k_nejvyse_jmen)
        radky.push_back(fmt::format("- a dalších {}", pocet - k_nejvyse_jmen));
    return radky;
}

std::vector<std::string> pouziti_v_hrubych(shell::Session& session, long long stroj) {
    std::vector<std::string> radky;
    for (int mesic = 1; mesic <= 12; ++mesic) {
        const std::string hrube = store::month_table("Hrube", mesic);
        if (!session.data().table_exists(hrube)) continue;
        store::Query dotaz(session.data(),
                           "SELECT COUNT(*) AS Pocet FROM " + hrube + " WHERE Stroj = :stroj");
        dotaz.set("stroj", static_cast<std::int64_t>(stroj)).open();
        if (dotaz.integer("Pocet") > 0)
            radky.push_back(fmt::format("- stroj {} je v hrubých mzdách za {} (řádků: {})", stroj,
                                        base::mesic_slovy(mesic, 0), dotaz.integer("Pocet")));
    }
    return radky;
}

}  // namespace workers
