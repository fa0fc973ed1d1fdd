#include "report/text_mrizka.h"

#include <algorithm>

#include "base/text.h"

namespace report {

namespace {

constexpr double k_mm_na_znak_a_bod = 0.22;  ///< width of an average letter of one point
constexpr std::size_t k_nejvic_znaku = 160;

/// A text aligned to the left with nothing behind it may be longer than its column.
bool je_volna(const Pas& pas, const Bunka& bunka) {
    if (bunka.zarovnani != Zarovnani::vlevo) return false;
    return std::ranges::none_of(pas.bunky, [&bunka](const Bunka& jina) {
        return jina.x_mm > bunka.x_mm && !jina.text.empty();
    });
}

}  // namespace

TextovaMrizka::TextovaMrizka(const Document& document) : velikost_(document.velikost_pisma) {
    for (const Strana& strana : document.strany) {
        for (const Pas& pas : strana.pasy) {
            if (pas.druh != DruhPasu::pata_strany) zapocitej(pas);
        }
    }
    rozmisti();
}

TextovaMrizka::Hrana TextovaMrizka::hrana(double x_mm) {
    return static_cast<Hrana>(x_mm * 10 + 0.5);
}

std::size_t TextovaMrizka::nejvyse_znaku(const Bunka& bunka) const {
    if (bunka.zarovnani == Zarovnani::vpravo) return k_nejvic_znaku;
    const double velikost = bunka.velikost > 0 ? bunka.velikost : velikost_;
    const auto znaku = static_cast<std::size_t>(bunka.sirka_mm / (k_mm_na_znak_a_bod * velikost));
    return std::clamp<std::size_t>(znaku, 1, k_nejvic_znaku);
}

std::size_t TextovaMrizka::potrebuje(const Bunka& bunka) const {
    return std::min(base::pocet_znaku(bunka.text), nejvyse_znaku(bunka));
}

void TextovaMrizka::zapocitej(const Pas& pas) {
    for (const Bunka& bunka : pas.bunky) {
        if (bunka.text.empty()) continue;
        const Hrana leva = hrana(bunka.x_mm);
        pozice_[leva];
        if (je_volna(pas, bunka)) {
            auto& znaku = volne_[leva];
            znaku = std::max(znaku, potrebuje(bunka));
        } else {
            const Hrana prava = std::max(hrana(bunka.x_mm + bunka.sirka_mm), leva + 1);
            pozice_[prava];
            // One character parts the cell from the next one.
            auto& znaku = potreby_[{prava, leva}];
            znaku = std::max(znaku, potrebuje(bunka) + 1);
        }
    }
}

void TextovaMrizka::rozmisti() {
    std::size_t posledni = 0;
    auto potreba = potreby_.begin();
    for (auto& [hrana, pozice] : pozice_) {
        pozice = posledni;
        for (; potreba != potreby_.end() && potreba->first.first == hrana; ++potreba)
            pozice = std::max(pozice, pozice_.at(potreba->first.second) + potreba->second);
        posledni = pozice;
    }
    sirka_ = posledni > 0 ? posledni - 1 : 0;
    for (const auto& [leva, znaku] : volne_)
        sirka_ = std::max(sirka_, pozice_.at(leva) + znaku);
}

TextovaMrizka::Misto TextovaMrizka::misto(const Pas& pas, const Bunka& bunka) const {
    const Hrana leva = hrana(bunka.x_mm);
    const std::size_t od = pozice_.at(leva);
    if (je_volna(pas, bunka)) return {od, od + nejvyse_znaku(bunka)};
    const Hrana prava = std::max(hrana(bunka.x_mm + bunka.sirka_mm), leva + 1);
    return {od, pozice_.at(prava) - 1};
}

}  // namespace report
