#include "cli/obrazovka_vyplat.h"

#include <ostream>

#include "cli/preruseni.h"
#include "cli/tabulka.h"
#include "cli/vypis_listiny.h"

#include "store/query.h"

namespace cli {

namespace {

/// One line of progress, overwritten until it is cleared.
class RadekPrubehu {
  public:
    RadekPrubehu(payrun::TForm21& obrazovka, std::ostream& err, bool kreslit)
        : obrazovka_(obrazovka), err_(err), kreslit_(kreslit) {
        if (kreslit_) obrazovka_.zmeneno = [this] { vykresli(); };
    }
    RadekPrubehu(const RadekPrubehu&) = delete;
    RadekPrubehu& operator=(const RadekPrubehu&) = delete;
    ~RadekPrubehu() {
        if (!kreslit_) return;
        obrazovka_.zmeneno = nullptr;
        err_ << k_zacatek_radku << std::flush;
    }

  private:
    static constexpr const char* k_zacatek_radku = "\r\x1b[K";

    void vykresli() const {
        if (obrazovka_.prubeh.empty()) return;
        err_ << k_zacatek_radku << obrazovka_.prubeh << "  (" << obrazovka_.prubeh_pozice << " z "
             << obrazovka_.prubeh_max << ")" << std::flush;
    }

    payrun::TForm21& obrazovka_;
    std::ostream& err_;
    bool kreslit_;
};

/// While it lives, Ctrl-C presses "Přerušit" as soon as the run lets events in.
class TlacitkoPrerusit {
  public:
    TlacitkoPrerusit(payrun::TForm21& obrazovka, ObsluhaTerminalu& obsluha) : obsluha_(obsluha) {
        obsluha_.pri_udalostech = [this, &obrazovka] {
            if (ctrl_c_.prislo()) obrazovka.Button3Click();
        };
    }
    TlacitkoPrerusit(const TlacitkoPrerusit&) = delete;
    TlacitkoPrerusit& operator=(const TlacitkoPrerusit&) = delete;
    ~TlacitkoPrerusit() { obsluha_.pri_udalostech = nullptr; }

  private:
    ObsluhaTerminalu& obsluha_;
    ZachytPreruseni ctrl_c_;
};

void spust(payrun::TForm21& obrazovka, Kontext& kontext) {
    const TlacitkoPrerusit prerusit(obrazovka, kontext.obsluha);
    const RadekPrubehu prubeh(obrazovka, kontext.err, kontext.terminaly.chyby);
    obrazovka.Button2Click();
}

void vypis_dvojice(const std::vector<std::pair<std::string, std::string>>& dvojice,
                   std::ostream& out) {
    Tabulka tabulka({{"hodnota"}, {"Kč", Strana::vpravo}});
    for (const auto& [popis, castka] : dvojice)
        tabulka.radek({popis, castka});
    tabulka.vypis(out, 2);
}

void vypis_vysledky(const payrun::TForm21& obrazovka, std::ostream& out) {
    out << obrazovka.nadpis_vysledku << '\n';
    vypis_dvojice(obrazovka.vysledky, out);
    if (obrazovka.vysledky_organizace.empty()) return;
    out << "ORGANIZACE BUDE PLATIT:\n";
    vypis_dvojice(obrazovka.vysledky_organizace, out);
}

}  // namespace

void vypis_zaporne(payrun::TForm66& prohlizeni, std::ostream& out) {
    out << prohlizeni.nadpis << '\n';
    vypis_radky_listiny(prohlizeni.vety, out);
    prohlizeni.Button1Click();
}

bool proved_vypocet(payrun::TForm21& obrazovka, Kontext& kontext) {
    spust(obrazovka, kontext);
    if (obrazovka.preruseno) {
        kontext.err << "Výpočet výplat byl přerušen." << std::endl;
        return false;
    }
    for (const auto& chyba : obrazovka.scChyby)
        kontext.err << chyba << '\n';
    const bool nelze_pokracovat = obrazovka.nelze_pokracovat;
    if (nelze_pokracovat) kontext.err << "Nelze pokračovat" << std::endl;
    obrazovka.BitBtn1Click();
    if (obrazovka.vysledky_viditelne) vypis_vysledky(obrazovka, kontext.out);
    if (!obrazovka.zavreno) obrazovka.Button1Click();
    return !nelze_pokracovat;
}

}  // namespace cli
