#include "wages/kalendar_tisk.h"

#include <fmt/format.h>

#include "base/datum.h"
#include "wages/unit_rpd_det.h"

namespace wages {
namespace {

std::vector<std::string> sloupce() {
    std::vector<std::string> nazvy{"Pocitadlo", "Rok", "Typ", "Nazev", "Mesic"};
    for (std::size_t den = 1; den <= std::tuple_size_v<BunkyMesice>; ++den)
        nazvy.push_back(fmt::format("Den{}", den));
    nazvy.insert(nazvy.end(), {"Soucet_mesice", "Soucet_roku"});
    return nazvy;
}

void pridej_kalendar(store::Rows& vety, const store::Query& rpd) {
    const int rok = static_cast<int>(rpd.integer("Rok"));
    const BunkyRoku bunky = bunky_roku(rpd);
    for (int m = 1; m <= static_cast<int>(bunky.size()); ++m) {
        const BunkyMesice& mesic = bunky[static_cast<std::size_t>(m - 1)];
        store::Row& veta = vety.rows.emplace_back();
        veta = {rpd.value("Pocitadlo"), rok,
                typ_kalendare_slovy(static_cast<int>(rpd.integer("Typ"))), rpd.value("Nazev"),
                base::mesic_slovy(m, 0)};
        for (int den = 1; den <= static_cast<int>(mesic.size()); ++den) {
            const bool je = den <= base::dni_v_mesici(m, rok);
            veta.push_back(je ? mesic[static_cast<std::size_t>(den - 1)] : "");
        }
        veta.push_back(cas_textem(minut_mesice(mesic)));
        veta.push_back(cas_textem(minut_roku(bunky)));
    }
}

}  // namespace

store::Rows vety_kalendaru(shell::Session& session, std::int64_t jen) {
    store::Rows vety{sloupce(), {}};
    store::Query rpd(session.data(), "SELECT * FROM Rpd ORDER BY Rok, Typ, Nazev, Pocitadlo");
    for (rpd.open(); !rpd.eof(); rpd.next())
        if (jen == 0 || rpd.integer("Pocitadlo") == jen) pridej_kalendar(vety, rpd);
    return vety;
}

}  // namespace wages
