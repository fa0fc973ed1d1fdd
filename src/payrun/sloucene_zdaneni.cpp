#include "payrun/sloucene_zdaneni.h"

#include <string_view>

#include "base/castky_text.h"
#include "base/text.h"

namespace payrun {
namespace {

constexpr std::string_view k_spotrebovano = "@";

// Parts of an entry; the texts are ASCII, so that bytes are characters.
std::string_view cast(std::string_view polozka, std::size_t od, std::size_t kolik) {
    return polozka.size() < od ? std::string_view{} : polozka.substr(od - 1, kolik);
}
std::string_view cislo_z(std::string_view polozka) {
    return cast(polozka, 1, 6);
}
std::string_view komu_z(std::string_view polozka) {
    return cast(polozka, 7, 6);
}
std::string_view zaklad_z(std::string_view polozka) {
    return cast(polozka, 13, 15);
}
std::string_view prijem_z(std::string_view polozka) {
    return cast(polozka, 28, 15);
}

}  // namespace

std::size_t SlouceneZdaneni::pridej(int cislo, int kdo_plati_dan, Castka zaklad_dane,
                                    Castka prijem_pro_dan) {
    const std::string zaklad = base::castka_s_carkou(15, 2, zaklad_dane);
    polozky_.push_back(base::cislo_s_nulami(cislo, 6) + base::cislo_s_nulami(kdo_plati_dan, 6) +
                       zaklad + base::castka_s_carkou(15, 2, prijem_pro_dan) + zaklad);
    return polozky_.size() - 1;
}

std::vector<Pripis> SlouceneZdaneni::odeber_pro(int cislo) {
    std::vector<Pripis> pripisy;
    if (polozky_.empty()) return pripisy;
    const std::string komu = base::cislo_s_nulami(cislo, 6);
    for (std::size_t i = 0; i < polozky_.size(); ++i) {
        std::string& polozka = polozky_[i];
        if (komu_z(polozka) != komu) continue;
        pripisy.push_back({i, std::string(cislo_z(polozka)), std::string(zaklad_z(polozka)),
                           base::je_desetinne_cislo(base::orez(zaklad_z(polozka))),
                           base::je_desetinne_cislo(base::orez(prijem_z(polozka)))});
        polozka = k_spotrebovano;
    }
    return pripisy;
}

std::vector<std::string> SlouceneZdaneni::hlasky_o_nespotrebovanych(
    std::optional<int> jen_cislo) const {
    std::vector<std::string> hlasky;
    const std::string jen = jen_cislo ? base::cislo_s_nulami(*jen_cislo, 6) : "";
    for (const std::string& polozka : polozky_) {
        if (polozka.find(k_spotrebovano) != std::string::npos) continue;
        if (jen_cislo && cislo_z(polozka) != jen) continue;
        hlasky.emplace_back("Chybná kombinace pro zdanění:");
        hlasky.push_back("     " + std::string(cislo_z(polozka)) + " - " +
                         std::string(komu_z(polozka)));
    }
    return hlasky;
}

}  // namespace payrun
