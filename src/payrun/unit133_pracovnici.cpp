#include "payrun/unit133_pracovnici.h"

#include <algorithm>
#include <unordered_map>

#include "base/text.h"
#include "store/catalogue.h"
#include "store/query.h"

namespace payrun {

namespace {

/// What the list takes from the cards; of several cards of a number the first counts.
void dopln_z_karet(store::Connection& data, std::vector<PracovnikListiny>& pracovnici) {
    std::size_t misto = 0;
    store::Query karty(
        data,
        "SELECT Cislo, Dat_nar_cislo, Zam_do, Pocitadlo FROM Os_karty ORDER BY Cislo, Pocitadlo");
    int predchozi = 0;
    for (karty.open(); !karty.eof(); karty.next()) {
        const auto cislo = static_cast<int>(karty.integer(0));
        while (misto < pracovnici.size() && pracovnici[misto].cislo < cislo)
            ++misto;
        if (misto == pracovnici.size()) return;
        if (pracovnici[misto].cislo != cislo || cislo == predchozi) continue;
        pracovnici[misto].narozen = static_cast<int>(karty.integer(1));
        pracovnici[misto].odesel = base::neprazdny(karty.text_view(2));
        predchozi = cislo;
    }
}

class Poradi {
  public:
    Poradi(const std::vector<PracovnikListiny>& pracovnici, TrideniPracovniku trideni)
        : pracovnici_(pracovnici), trideni_(trideni) {}

    bool operator()(std::size_t a, std::size_t b) const {
        const PracovnikListiny &x = pracovnici_[a], &y = pracovnici_[b];
        switch (trideni_) {
            case TrideniPracovniku::cislo:
                break;
            case TrideniPracovniku::prijmeni:
                if (const int p = dvoji(x.prijmeni, y.prijmeni, x.jmeno, y.jmeno)) return p < 0;
                break;
            case TrideniPracovniku::jmeno:
                if (const int p = dvoji(x.jmeno, y.jmeno, x.prijmeni, y.prijmeni)) return p < 0;
                break;
            case TrideniPracovniku::narozen:
                if (x.narozen != y.narozen) return x.narozen < y.narozen;
                break;
        }
        return x.cislo < y.cislo;
    }

  private:
    static int dvoji(const std::string& a, const std::string& b, const std::string& a2,
                     const std::string& b2) {
        const int prvni = base::porovnej_cesky(a, b);
        return prvni != 0 ? prvni : base::porovnej_cesky(a2, b2);
    }

    const std::vector<PracovnikListiny>& pracovnici_;
    TrideniPracovniku trideni_;
};

}  // namespace

std::vector<PracovnikListiny> nacti_pracovniky_listiny(shell::Session& session, int mesic) {
    std::vector<PracovnikListiny> pracovnici;
    std::unordered_map<int, std::size_t> mista;
    const SazbyPodniku sazby = sazby_podniku(session);
    // Whoever has any row has one of module 89; a sheet that was not made by the run has others.
    store::Query radky(session.data(),
                       "SELECT Cislo_pracovnika, Modul, Hodnota, Prijmeni, Jmeno FROM " +
                           store::month_table("Listin", mesic) +
                           " WHERE Modul IN (2, 12, 14, 61, 62, 89)");
    for (radky.open(); !radky.eof(); radky.next()) {
        const auto cislo = static_cast<int>(radky.integer(0));
        const auto [misto, novy] = mista.try_emplace(cislo, pracovnici.size());
        if (novy) pracovnici.push_back({cislo, radky.text(3), radky.text(4), 0, false, {}});
        pracovnici[misto->second].soucet.pridej(radky.integer(1), z_ulozeneho(radky.number(2)),
                                                sazby);
    }
    std::sort(pracovnici.begin(), pracovnici.end(),
              [](const auto& a, const auto& b) { return a.cislo < b.cislo; });
    dopln_z_karet(session.data(), pracovnici);
    return pracovnici;
}

std::vector<std::size_t> vyber_pracovniky(const std::vector<PracovnikListiny>& pracovnici,
                                          std::string_view filtr, TrideniPracovniku trideni) {
    const auto cislo = base::cele_cislo_z_textu(filtr);
    const std::string cast = base::velkymi(base::orez(filtr));
    const auto projde = [&](const PracovnikListiny& p) {
        if (cast.empty()) return true;
        if (cislo) return p.cislo == *cislo;
        return base::velkymi(p.prijmeni).find(cast) != std::string::npos ||
               base::velkymi(p.jmeno).find(cast) != std::string::npos;
    };
    std::vector<std::size_t> vybrani;
    for (std::size_t i = 0; i < pracovnici.size(); ++i) {
        if (projde(pracovnici[i])) vybrani.push_back(i);
    }
    if (trideni != TrideniPracovniku::cislo) {
        std::sort(vybrani.begin(), vybrani.end(), Poradi(pracovnici, trideni));
    }
    return vybrani;
}

}  // namespace payrun
