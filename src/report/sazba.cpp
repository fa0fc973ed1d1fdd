#include "report/sazba.h"

#include <iterator>
#include <utility>

namespace report {

namespace {

/// Puts the bands one under another from `y` on; returns the lower edge.
double rozmisti(std::vector<Pas>& pasy, double y, DruhPasu druh) {
    for (Pas& pas : pasy) {
        pas.druh = druh;
        pas.y_mm = y;
        y += pas.vyska_mm;
    }
    return y;
}

void presun(std::vector<Pas> odkud, std::vector<Pas>& kam, std::vector<Pas>::iterator pred) {
    kam.insert(pred, std::make_move_iterator(odkud.begin()), std::make_move_iterator(odkud.end()));
}

}  // namespace

Sazba::Sazba(Document zaklad, std::vector<Pas> titul, PasyStrany zahlavi, PasyStrany pata)
    : document_(std::move(zaklad)),
      titul_(std::move(titul)),
      zahlavi_(std::move(zahlavi)),
      pata_(std::move(pata)),
      vyska_zahlavi_(vyska_pasu(zahlavi_({}))),
      vyska_paty_(vyska_pasu(pata_({}))) {}

void Sazba::zacni_stranu(std::size_t veta) {
    y_ = vyska_zahlavi_ + (document_.strany.empty() ? vyska_pasu(titul_) : 0);
    document_.strany.emplace_back();
    prvni_vety_.push_back(veta);
    zalomit_ = false;
}

double Sazba::vyska_obsahu() const {
    return document_.papir.vyska_sazby() - vyska_zahlavi_ - vyska_paty_;
}

void Sazba::pridej(std::vector<Pas> blok, std::size_t veta) {
    if (blok.size() > 1 && vyska_pasu(blok) > vyska_obsahu()) {
        for (Pas& pas : blok)
            pridej({std::move(pas)}, veta);
        return;
    }
    if (zalomit_) zacni_stranu(veta);
    const double mez = vyska_zahlavi_ + vyska_obsahu();
    const bool strana_zacata = y_ > vyska_zahlavi_;
    if (strana_zacata && y_ + vyska_pasu(blok) > mez) zacni_stranu(veta);
    y_ = rozmisti(blok, y_, DruhPasu::obsah);
    auto& pasy = document_.strany.back().pasy;
    presun(std::move(blok), pasy, pasy.end());
}

void Sazba::nova_strana() {
    zalomit_ = true;
}

Document Sazba::dokonci() {
    if (document_.strany.empty()) zacni_stranu(0);
    const int stran = static_cast<int>(document_.strany.size());
    for (int i = 0; i < stran; ++i) {
        const auto poradi = static_cast<std::size_t>(i);
        auto& pasy = document_.strany[poradi].pasy;
        const MistoStrany misto{i + 1, stran, prvni_vety_[poradi]};

        auto zahlavi = zahlavi_(misto);
        const double pod_titulem = i == 0 ? rozmisti(titul_, 0, DruhPasu::obsah) : 0;
        rozmisti(zahlavi, pod_titulem, DruhPasu::zahlavi_strany);
        presun(std::move(zahlavi), pasy, pasy.begin());
        if (i == 0) presun(std::move(titul_), pasy, pasy.begin());

        auto pata = pata_(misto);
        rozmisti(pata, document_.papir.vyska_sazby() - vyska_paty_, DruhPasu::pata_strany);
        presun(std::move(pata), pasy, pasy.end());
    }
    return std::move(document_);
}

}  // namespace report
