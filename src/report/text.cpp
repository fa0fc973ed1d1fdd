#include "report/text.h"

#include <string_view>
#include <utility>
#include <vector>

#include "base/text.h"
#include "report/jeden_radek.h"
#include "report/text_mrizka.h"

namespace report {

namespace {

/// A line of characters, each as its own text.
class Radek {
  public:
    void napis(const std::string& text, std::size_t kde) {
        const std::size_t delka = base::pocet_znaku(text);
        if (znaky_.size() < kde + delka) znaky_.resize(kde + delka, " ");
        std::size_t znak = kde;
        for (std::size_t i = 0; i < text.size(); ++znak) {
            const std::size_t zacatek = i++;
            while (i < text.size() && (static_cast<unsigned char>(text[i]) & 0xC0U) == 0x80U)
                ++i;
            znaky_[znak] = text.substr(zacatek, i - zacatek);
        }
    }
    std::string text() const {
        std::string vysledek;
        for (const auto& znak : znaky_)
            vysledek += znak;
        vysledek.erase(vysledek.find_last_not_of(' ') + 1);
        return vysledek;
    }

  private:
    std::vector<std::string> znaky_;
};

class Kreslic {
  public:
    explicit Kreslic(const Document& document) : mrizka_(document) {}

    void pas(const Pas& pas) {
        if (pas.ozdoba.linka_nad) linka();
        Radek radek;
        for (const Bunka& bunka : pas.bunky) {
            if (!bunka.text.empty()) napis(radek, bunka, mrizka_.misto(pas, bunka));
        }
        const std::string text = radek.text();
        if (!text.empty() || !posledni_prazdny_) vystup_ += text + "\n";
        posledni_prazdny_ = text.empty();
        posledni_linka_ = false;
        if (pas.ozdoba.linka_pod) linka();
    }

    std::string vystup() && { return std::move(vystup_); }

  private:
    void linka() {
        if (posledni_linka_) return;
        vystup_ += std::string(mrizka_.sirka(), '-') + "\n";
        posledni_linka_ = true;
        posledni_prazdny_ = false;
    }

    static void napis(Radek& radek, const Bunka& bunka, const TextovaMrizka::Misto& misto) {
        const std::string text = jeden_radek(bunka.text);
        const std::size_t delka = base::pocet_znaku(text);
        const std::size_t vejde_se = misto.konec - misto.od;
        const bool vpravo = bunka.zarovnani == Zarovnani::vpravo;
        if (delka > vejde_se) {
            radek.napis(vpravo ? std::string(vejde_se, '#') : base::nejvyse(text, vejde_se),
                        misto.od);
            return;
        }
        const std::size_t volno = vejde_se - delka;
        const std::size_t posun = vpravo                                   ? volno
                                  : bunka.zarovnani == Zarovnani::na_stred ? volno / 2
                                                                           : 0;
        radek.napis(text, misto.od + posun);
    }

    TextovaMrizka mrizka_;
    std::string vystup_;
    bool posledni_linka_ = false;
    bool posledni_prazdny_ = true;
};

bool opakuje_se(const Pas& pas, bool prvni_strana) {
    return pas.druh == DruhPasu::pata_strany ||
           (pas.druh == DruhPasu::zahlavi_strany && !prvni_strana);
}

}  // namespace

std::string jako_text(const Document& document) {
    Kreslic kreslic(document);
    for (const Strana& strana : document.strany) {
        const bool prvni_strana = &strana == &document.strany.front();
        for (const Pas& pas : strana.pasy) {
            if (!opakuje_se(pas, prvni_strana)) kreslic.pas(pas);
        }
    }
    return std::move(kreslic).vystup();
}

}  // namespace report
