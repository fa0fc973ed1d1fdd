#include "workers/fixni_spojeni.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>

#include "base/text.h"

namespace workers {

namespace {

constexpr std::string_view k_mimo_prikaz = "NE";
constexpr std::size_t k_cislic_predcisli = 6, k_cislic_cisla = 10;
/// Weights of the number's ten digits; the prefix takes the last six of them.
constexpr std::array k_vahy{6, 3, 7, 9, 10, 5, 8, 4, 2, 1};
constexpr int k_modul = 11;
constexpr std::ptrdiff_t k_nejmene_nenulovych = 2;

/// Digits are counted from the right: the last one has the last weight.
bool vazeny_soucet_souhlasi(std::string_view cislice) {
    int soucet = 0;
    std::size_t vaha = k_vahy.size();
    for (auto c = cislice.rbegin(); c != cislice.rend(); ++c)
        soucet += (*c - '0') * k_vahy[--vaha];
    return soucet % k_modul == 0;
}

bool jsou_cislice(std::string_view text, std::size_t nejvyse) {
    return !text.empty() && text.size() <= nejvyse &&
           std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

}  // namespace

bool ucet_mimo_prikaz(std::string_view ucet) {
    return base::stejne_bez_velikosti(base::nejvyse(ucet, k_mimo_prikaz.size()), k_mimo_prikaz);
}

bool Kombinace_uctu_dobra(const BankovniSpojeni& spojeni) {
    using base::neprazdny;
    if (ucet_mimo_prikaz(spojeni.Ucet) || !neprazdny(spojeni.Ucet)) {
        return !neprazdny(spojeni.Kod_banky) && !neprazdny(spojeni.Variabilni) &&
               !neprazdny(spojeni.Konstantni) && !neprazdny(spojeni.Specificky);
    }
    return neprazdny(spojeni.Kod_banky) && neprazdny(spojeni.Variabilni) &&
           neprazdny(spojeni.Konstantni);
}

bool ucet_modulo_11(std::string_view ucet) {
    const std::string cely = base::orez(ucet);
    const std::size_t pomlcka = cely.find('-');
    const bool ma_predcisli = pomlcka != std::string::npos;
    const std::string predcisli = ma_predcisli ? cely.substr(0, pomlcka) : "0";
    const std::string cislo = ma_predcisli ? cely.substr(pomlcka + 1) : cely;
    if (!jsou_cislice(predcisli, k_cislic_predcisli) || !jsou_cislice(cislo, k_cislic_cisla)) {
        return false;
    }
    const auto nul = std::count(cislo.begin(), cislo.end(), '0');
    if (static_cast<std::ptrdiff_t>(cislo.size()) - nul < k_nejmene_nenulovych) return false;
    return vazeny_soucet_souhlasi(predcisli) && vazeny_soucet_souhlasi(cislo);
}

std::string kod_s_nulami(const store::Value& kod) {
    const std::int64_t cislo = kod.as_integer();
    return cislo == 0 ? "" : base::cislo_s_nulami(cislo, k_delka_kodu_banky);
}

std::string spojeni_slovy(const BankovniSpojeni& spojeni) {
    if (!base::neprazdny(spojeni.Ucet)) return "";
    std::string text = spojeni.Ucet;
    if (base::neprazdny(spojeni.Kod_banky)) text += "/" + spojeni.Kod_banky;
    for (const auto& [znacka, symbol] :
         {std::pair{"VS", &spojeni.Variabilni}, std::pair{"KS", &spojeni.Konstantni},
          std::pair{"SS", &spojeni.Specificky}}) {
        if (base::neprazdny(*symbol)) text += fmt::format("  {} {}", znacka, *symbol);
    }
    return text;
}

}  // namespace workers
