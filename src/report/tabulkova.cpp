#include "report/tabulkova.h"

#include <algorithm>
#include <utility>

#include "base/castky_text.h"
#include "base/text.h"
#include "report/sazba.h"

namespace report {

namespace {

constexpr double k_nejmensi_pismo = 5;
constexpr double k_pismo_nazvu = 13;
constexpr double k_mezera_mm = 2;

/// Columns and letters as they fit the paper.
struct Rozvrh {
    std::vector<SloupecSestavy> sloupce;
    double pismo = 9;
    double sirka = 0;  ///< of the paper between the margins
};

Rozvrh rozvrhni(const TabulkovaSestava& sestava, const Papir& papir) {
    Rozvrh rozvrh{sestava.sloupce, Document().velikost_pisma, papir.sirka_sazby()};
    double celkem = 0;
    for (const auto& sloupec : rozvrh.sloupce)
        celkem += sloupec.sirka_mm;
    if (celkem <= rozvrh.sirka) return rozvrh;
    const double zmenseni = rozvrh.sirka / celkem;
    for (auto& sloupec : rozvrh.sloupce)
        sloupec.sirka_mm *= zmenseni;
    rozvrh.pismo = std::max(rozvrh.pismo * zmenseni, k_nejmensi_pismo);
    return rozvrh;
}

Pas pas_textu(const std::string& text, double sirka, double velikost, bool tucne) {
    Pas pas;
    pas.vyska_mm = vyska_radku(velikost);
    pas.bunky.push_back({text, 0, sirka, Zarovnani::vlevo, tucne, velikost, {}});
    return pas;
}

Pas mezera() {
    Pas pas;
    pas.vyska_mm = k_mezera_mm;
    return pas;
}

Pas pas_radku(const Rozvrh& rozvrh, const std::vector<std::string>& texty, bool tucne = false) {
    Pas pas;
    pas.vyska_mm = vyska_radku(rozvrh.pismo);
    double x = 0;
    for (std::size_t i = 0; i < rozvrh.sloupce.size(); ++i) {
        const auto& sloupec = rozvrh.sloupce[i];
        const std::string text = i < texty.size() ? texty[i] : "";
        pas.bunky.push_back({text, x, sloupec.sirka_mm, sloupec.zarovnani, tucne, 0, {}});
        x += sloupec.sirka_mm;
    }
    return pas;
}

std::vector<Pas> titul(const TabulkovaSestava& sestava, double sirka) {
    std::vector<Pas> pasy;
    pasy.push_back(pas_textu(sestava.nazev, sirka, k_pismo_nazvu, true));
    for (const auto& radek : sestava.zahlavi)
        pasy.push_back(pas_textu(radek, sirka, Document().velikost_pisma, false));
    pasy.push_back(mezera());
    return pasy;
}

/// Headings of the columns; shorter ones stand at the bottom.
std::vector<Pas> nadpisy(const Rozvrh& rozvrh) {
    std::vector<std::vector<std::string>> casti;
    std::size_t radku = 1;
    for (const auto& sloupec : rozvrh.sloupce) {
        casti.push_back(base::rozdel_text(sloupec.nadpis, '\n'));
        radku = std::max(radku, casti.back().size());
    }
    std::vector<Pas> pasy;
    for (std::size_t radek = 0; radek < radku; ++radek) {
        std::vector<std::string> texty;
        for (const auto& cast : casti) {
            const std::size_t prazdnych = radku - cast.size();
            texty.push_back(radek < prazdnych ? "" : cast[radek - prazdnych]);
        }
        pasy.push_back(pas_radku(rozvrh, texty, true));
    }
    pasy.front().ozdoba.linka_nad = true;
    pasy.back().ozdoba.linka_pod = true;
    return pasy;
}

std::vector<Pas> pata(const std::string& nazev, double sirka, const MistoStrany& misto) {
    const std::string cislo =
        "strana " + std::to_string(misto.strana) + " z " + std::to_string(misto.stran);
    constexpr double k_pismo_paty = 8;
    constexpr double k_sirka_cisla = 40;
    Pas pas = pas_textu(nazev, sirka - k_sirka_cisla, k_pismo_paty, false);
    pas.bunky.push_back(
        {cislo, sirka - k_sirka_cisla, k_sirka_cisla, Zarovnani::vpravo, false, k_pismo_paty, {}});
    pas.ozdoba.linka_nad = true;
    return {mezera(), pas};
}

/// The sum of a column of texts, written as they are: in whole crowns or with hellers.
std::string soucet_sloupce(const TabulkovaSestava& sestava, std::size_t sloupec) {
    base::Castka soucet = 0;
    bool desetiny = false;
    for (const auto& radek : sestava.radky) {
        if (sloupec >= radek.size()) continue;
        std::string text = radek[sloupec];
        std::erase(text, ' ');
        desetiny = desetiny || text.find_first_of(",.") != std::string::npos;
        soucet += base::je_desetinne_cislo(text);
    }
    const std::string text = base::castka_s_oddelovaci(base::na_halere_k_sude(soucet));
    return desetiny ? text : text.substr(0, text.find(','));
}

std::vector<std::string> soucty(const TabulkovaSestava& sestava) {
    const auto scita = [](const SloupecSestavy& sloupec) { return sloupec.soucet; };
    if (!sestava.soucty.empty() || std::ranges::none_of(sestava.sloupce, scita)) {
        return sestava.soucty;
    }
    std::vector<std::string> texty;
    for (std::size_t i = 0; i < sestava.sloupce.size(); ++i) {
        texty.push_back(scita(sestava.sloupce[i]) ? soucet_sloupce(sestava, i) : "");
    }
    if (!scita(sestava.sloupce.front())) texty.front() = "Celkem";
    return texty;
}

}  // namespace

Document sestav_tabulku(const TabulkovaSestava& sestava) {
    Document zaklad;
    zaklad.nazev = sestava.nazev;
    zaklad.papir = papir_a4(sestava.na_sirku);
    const Rozvrh rozvrh = rozvrhni(sestava, zaklad.papir);
    zaklad.velikost_pisma = rozvrh.pismo;

    Sazba sazba(
        zaklad, titul(sestava, rozvrh.sirka),
        [&rozvrh](const MistoStrany&) { return nadpisy(rozvrh); },
        [&](const MistoStrany& misto) { return pata(sestava.nazev, rozvrh.sirka, misto); });

    const auto texty_souctu = soucty(sestava);
    for (std::size_t i = 0; i < sestava.radky.size(); ++i) {
        std::vector<Pas> blok{pas_radku(rozvrh, sestava.radky[i])};
        blok.front().ozdoba.podbarveni = i % 2 == 1;
        const bool posledni = i + 1 == sestava.radky.size();
        if (posledni && !texty_souctu.empty()) {
            blok.push_back(pas_radku(rozvrh, texty_souctu, true));
            blok.back().ozdoba.linka_nad = true;
        }
        sazba.pridej(std::move(blok), i);
    }
    return sazba.dokonci();
}

}  // namespace report
