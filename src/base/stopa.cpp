#include "base/stopa.h"

#include "base/castky_text.h"

namespace base {
namespace {

/// How a step rounded and which law it follows.
std::string okolnosti(const StopaKrok& krok) {
    std::string text;
    if (!krok.zaokrouhleni.empty()) text += "  [" + krok.zaokrouhleni + "]";
    if (!krok.predpis.empty()) text += "  (" + krok.predpis + ")";
    return text;
}

}  // namespace

StopaKrok& Stopa::Zapis::krok_() {
    return stopa_.kroky_[static_cast<std::size_t>(index_)];
}

Stopa::Zapis& Stopa::Zapis::z(std::string_view nazev, std::string_view promenna, Castka hodnota) {
    // Looked up first: a running total may append its own step and move the vector.
    const int odkud = stopa_.krok_promenne(promenna, hodnota);
    krok_().vstupy.push_back({std::string(nazev), castka_prosta(hodnota), "", odkud});
    return *this;
}

Stopa::Zapis& Stopa::Zapis::udaj(std::string_view nazev, std::string_view hodnota,
                                 std::string_view zdroj) {
    krok_().vstupy.push_back({std::string(nazev), std::string(hodnota), std::string(zdroj), -1});
    return *this;
}

Stopa::Zapis& Stopa::Zapis::udaj(std::string_view nazev, Castka hodnota, std::string_view zdroj) {
    return udaj(nazev, castka_prosta(hodnota), zdroj);
}

Stopa::Zapis& Stopa::Zapis::nastaveni(std::string_view nazev, Castka hodnota,
                                      std::string_view zdroj) {
    return udaj(nazev, castka_prosta(hodnota), zdroj);
}

Stopa::Zapis& Stopa::Zapis::konstanta(std::string_view nazev, Castka hodnota) {
    return udaj(nazev, castka_prosta(hodnota), "pevná hodnota výpočtu");
}

Stopa::Zapis& Stopa::Zapis::vetev(std::string_view text) {
    krok_().vstupy.push_back({std::string(text), "", "", -1});
    return *this;
}

Stopa::Zapis& Stopa::Zapis::zaokrouhleni(const Zaokrouhleni& jak) {
    krok_().zaokrouhleni = jak.popis;
    return *this;
}

Stopa::Zapis& Stopa::Zapis::predpis(std::string_view text) {
    krok_().predpis = text;
    return *this;
}

int Stopa::Zapis::vysledek(std::string_view promenna, Castka hodnota) {
    krok_().vysledek = castka_prosta(hodnota);
    stopa_.soucty_.erase(std::string(promenna));
    stopa_.promenne_.insert_or_assign(std::string(promenna), index_);
    return index_;
}

Stopa::Zapis Stopa::krok(std::string_view pravidlo) {
    kroky_.push_back({std::string(pravidlo), {}, "", "", ""});
    return {*this, static_cast<int>(kroky_.size()) - 1};
}

void Stopa::dosad(std::string_view promenna, Castka hodnota, std::string_view odkud) {
    const int index = krok(odkud).vysledek(promenna, hodnota);
    kroky_[static_cast<std::size_t>(index)].dosazeno = true;
}

void Stopa::zacni_soucet(std::string_view promenna, std::string_view pravidlo) {
    promenne_.erase(std::string(promenna));
    soucty_.insert_or_assign(std::string(promenna), Soucet{std::string(pravidlo), {}, -1});
}

void Stopa::pricti(std::string_view promenna, std::string_view nazev, std::string_view odkud,
                   Castka castka) {
    const int krok = krok_promenne(odkud, castka);
    auto& soucet = soucet_promenne(promenna);
    soucet.prispevky.push_back(
        {std::string(nazev), castka_prosta(castka), krok < 0 ? std::string(odkud) : "", krok});
    soucet.krok = -1;
}

Stopa::Soucet& Stopa::soucet_promenne(std::string_view promenna) {
    if (const auto it = soucty_.find(promenna); it != soucty_.end()) return it->second;
    Soucet soucet{std::string(promenna), {}, -1};
    if (const auto it = promenne_.find(promenna); it != promenne_.end()) {
        const StopaKrok& krok = kroky_[static_cast<std::size_t>(it->second)];
        soucet.pravidlo = krok.pravidlo;
        soucet.prispevky.push_back({"dosavadní hodnota", krok.vysledek, "", it->second});
        promenne_.erase(it);
    }
    return soucty_.emplace(promenna, std::move(soucet)).first->second;
}

int Stopa::krok_promenne(std::string_view promenna, Castka hodnota) {
    if (const auto it = soucty_.find(promenna); it != soucty_.end()) {
        auto& soucet = it->second;
        if (soucet.krok < 0) {
            kroky_.push_back({soucet.pravidlo, soucet.prispevky, "", "", castka_prosta(hodnota)});
            soucet.krok = static_cast<int>(kroky_.size()) - 1;
        }
        return soucet.krok;
    }
    const auto it = promenne_.find(promenna);
    return it == promenne_.end() ? -1 : it->second;
}

void Stopa::vymaz() {
    kroky_.clear();
    promenne_.clear();
    soucty_.clear();
}

std::string Stopa::strom(int krok, int odsazeni) const {
    std::string vystup;
    if (krok < 0 || krok >= static_cast<int>(kroky_.size())) return vystup;
    const StopaKrok& k = kroky_[static_cast<std::size_t>(krok)];
    const std::string okraj(static_cast<std::size_t>(odsazeni), ' ');
    vystup = okraj + k.pravidlo + " = " + k.vysledek + okolnosti(k) + "\n";
    std::vector<bool> videno(kroky_.size(), false);
    vetve(krok, okraj, videno, vystup);
    return vystup;
}

void Stopa::vetve(int krok, const std::string& okraj, std::vector<bool>& videno,
                  std::string& vystup) const {
    videno[static_cast<std::size_t>(krok)] = true;
    const auto& vstupy = kroky_[static_cast<std::size_t>(krok)].vstupy;
    for (std::size_t i = 0; i < vstupy.size(); ++i) {
        const StopaVstup& vstup = vstupy[i];
        const bool posledni = i + 1 == vstupy.size();
        vystup += okraj + (posledni ? "└─ " : "├─ ") + vstup.nazev;
        if (!vstup.hodnota.empty()) vystup += " = " + vstup.hodnota;
        if (!vstup.zdroj.empty()) vystup += "  ← " + vstup.zdroj;
        if (vstup.krok < 0) {
            vystup += '\n';
            continue;
        }
        const StopaKrok& puvod = kroky_[static_cast<std::size_t>(vstup.krok)];
        if (puvod.pravidlo != vstup.nazev) vystup += ": " + puvod.pravidlo;
        const bool znovu = videno[static_cast<std::size_t>(vstup.krok)];
        vystup += (znovu ? "  (viz výše)" : okolnosti(puvod)) + "\n";
        if (!znovu) vetve(vstup.krok, okraj + (posledni ? "   " : "│  "), videno, vystup);
    }
}

}  // namespace base
