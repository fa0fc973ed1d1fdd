#include "base/strom_vypoctu.h"

#include <algorithm>

namespace base {

namespace {

constexpr const char* k_pevna_hodnota = "pevná hodnota výpočtu";

const StopaKrok& krok_stopy(const Stopa& stopa, int krok) {
    return stopa.kroky().at(static_cast<std::size_t>(krok));
}

DruhUzlu druh_vstupu(const StopaVstup& vstup) {
    if (vstup.krok >= 0) return DruhUzlu::vypocet;
    if (vstup.hodnota.empty() && vstup.zdroj.empty()) return DruhUzlu::poznamka;
    if (vstup.zdroj == k_pevna_hodnota) return DruhUzlu::konstanta;
    for (const char* soubor : {"rid_zorv.idx", "Nastaveni.ini"}) {
        if (vstup.zdroj.starts_with(soubor)) return DruhUzlu::nastaveni;
    }
    return DruhUzlu::udaj;
}

void dopln_krok(UzelVypoctu& uzel, const StopaKrok& krok) {
    uzel.zaokrouhleni = krok.zaokrouhleni;
    uzel.predpis = krok.predpis;
    if (krok.dosazeno) uzel.druh = DruhUzlu::udaj;
    // A rule that only repeats the name, or begins with it, is said once.
    if (uzel.nazev.starts_with(krok.pravidlo)) return;
    if (krok.pravidlo.starts_with(uzel.nazev)) {
        uzel.nazev = krok.pravidlo;
    } else {
        uzel.pravidlo = krok.pravidlo;
    }
}

UzelVypoctu uzel_vstupu(const Stopa& stopa, const StopaVstup& vstup) {
    UzelVypoctu uzel;
    uzel.druh = druh_vstupu(vstup);
    uzel.nazev = vstup.nazev;
    uzel.hodnota = vstup.hodnota;
    uzel.zdroj = vstup.zdroj;
    uzel.krok = vstup.krok;
    if (vstup.krok >= 0) dopln_krok(uzel, krok_stopy(stopa, vstup.krok));
    return uzel;
}

}  // namespace

// Goes down branch by branch without recursion: a tree may be as deep as the trace is long.
StromVypoctu::StromVypoctu(const Stopa& stopa, int krok) : stopa_(&stopa) {
    if (krok < 0 || krok >= static_cast<int>(stopa.kroky().size())) return;
    const StopaKrok& koren = krok_stopy(stopa, krok);
    uzly_.push_back(
        {DruhUzlu::vypocet, koren.pravidlo, "", koren.vysledek, "", "", "", krok, false, {}});
    dopln_krok(uzly_.front(), koren);
    std::vector<bool> videno(stopa.kroky().size(), false);
    for (std::vector<int> cekaji{0}; !cekaji.empty();) {
        const int index = cekaji.back();
        cekaji.pop_back();
        UzelVypoctu& uzel = uzly_[static_cast<std::size_t>(index)];
        if (uzel.krok < 0) continue;
        const auto misto = static_cast<std::size_t>(uzel.krok);
        uzel.znovu = videno[misto];
        if (uzel.znovu) continue;
        videno[misto] = true;
        pridej_vetve(index);
        const std::vector<int>& vetve = uzly_[static_cast<std::size_t>(index)].vetve;
        cekaji.insert(cekaji.end(), vetve.rbegin(), vetve.rend());
    }
}

bool StromVypoctu::ma_vetve(int index) const {
    const UzelVypoctu& u = uzel(index);
    return u.krok >= 0 && !krok_stopy(*stopa_, u.krok).vstupy.empty();
}

void StromVypoctu::rozbal(int index) {
    if (!uzel(index).vetve.empty() || !ma_vetve(index)) return;
    pridej_vetve(index);
    for (const int vetev : uzel(index).vetve) {
        UzelVypoctu& u = uzly_[static_cast<std::size_t>(vetev)];
        u.znovu = u.krok >= 0;
    }
}

void StromVypoctu::pridej_vetve(int index) {
    for (const StopaVstup& vstup : krok_stopy(*stopa_, uzel(index).krok).vstupy) {
        uzly_[static_cast<std::size_t>(index)].vetve.push_back(static_cast<int>(uzly_.size()));
        uzly_.push_back(uzel_vstupu(*stopa_, vstup));
    }
}

}  // namespace base
