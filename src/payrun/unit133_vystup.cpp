#include "payrun/unit133_vystup.h"

#include <algorithm>
#include <fmt/format.h>

#include "base/castky_text.h"
#include "store/transfer.h"

namespace payrun {

namespace {

using report::Zarovnani;

std::string prosta(const std::optional<Castka>& castka) {
    return castka ? base::castka_prosta(*castka) : "";
}

/// For the eye: thousands parted, two decimals.
std::string koruny(const std::optional<Castka>& castka) {
    return castka ? base::castka_s_oddelovaci(*castka) : "";
}

/// Row 89 keeps data of the card in its note, no text for people.
constexpr int k_modul_indikace = 89;

std::string poznamka(const RadekListiny& r) {
    return r.modul == k_modul_indikace ? "" : r.poznamka;
}

std::string bez_oddelovacu(std::string text) {
    std::replace_if(
        text.begin(), text.end(), [](char c) { return c == '\t' || c == '\n' || c == '\r'; }, ' ');
    return text;
}

void pridej_radek(std::string& text, const std::vector<std::string>& pole) {
    for (std::size_t i = 0; i < pole.size(); ++i) {
        if (i > 0) text += '\t';
        text += bez_oddelovacu(pole[i]);
    }
    text += '\n';
}

store::Value nebo_prazdne(const std::optional<Castka>& castka) {
    return castka ? store::Value(*castka) : store::Value();
}

}  // namespace

TabulkaTextu tabulka_pracovniku(const std::vector<PracovnikListiny>& pracovnici) {
    TabulkaTextu t{{"Číslo", "Příjmení", "Jméno", "K výplatě"}, {}};
    for (const PracovnikListiny& p : pracovnici) {
        t.radky.push_back({std::to_string(p.cislo), p.prijmeni, p.jmeno,
                           base::castka_prosta(p.soucet.k_vyplate)});
    }
    return t;
}

TabulkaTextu tabulka_radku(const RadkyListiny& radky) {
    TabulkaTextu t{{"Modul", "Sloupec", "Text", "Dny", "Hodiny", "Částka", "Poznámka"}, {}};
    for (const RadekListiny& r : radky) {
        t.radky.push_back({std::to_string(r.modul), r.sloupec ? std::to_string(r.sloupec) : "",
                           r.co_je_to, prosta(r.dny), prosta(r.hodiny), prosta(r.hodnota),
                           r.poznamka});
    }
    return t;
}

std::string text_tabulky(const TabulkaTextu& tabulka) {
    std::string text;
    pridej_radek(text, tabulka.nadpisy);
    for (const auto& radek : tabulka.radky)
        pridej_radek(text, radek);
    return text;
}

std::string csv_listiny(const std::vector<PracovnikListiny>& pracovnici,
                        const std::unordered_map<int, RadkyListiny>& radky) {
    store::Rows vety{{"Cislo_pracovnika", "Prijmeni", "Jmeno", "Modul", "Sloupec", "Co_je_to",
                      "Dny", "Hodiny", "Hodnota", "Poznamka"},
                     {}};
    for (const PracovnikListiny& p : pracovnici) {
        const auto jeho = radky.find(p.cislo);
        if (jeho == radky.end()) continue;
        for (const RadekListiny& r : jeho->second) {
            vety.rows.push_back({p.cislo, p.prijmeni, p.jmeno, r.modul,
                                 r.sloupec ? store::Value(r.sloupec) : store::Value(), r.co_je_to,
                                 nebo_prazdne(r.dny), nebo_prazdne(r.hodiny),
                                 nebo_prazdne(r.hodnota), r.poznamka});
        }
    }
    return store::rows_to_csv(vety);
}

report::TabulkovaSestava sestava_pracovniku(const std::vector<PracovnikListiny>& pracovnici,
                                            const SoucetMezd& soucet, const SazbyPodniku& sazby) {
    report::TabulkovaSestava s;
    s.nazev = "Výplatní listina";
    s.sloupce = {{"Číslo", 16, Zarovnani::vpravo},      {"Příjmení a jméno", 62},
                 {"Hrubá mzda", 28, Zarovnani::vpravo}, {"Srážky", 28, Zarovnani::vpravo},
                 {"K výplatě", 28, Zarovnani::vpravo},  {"Náklad", 28, Zarovnani::vpravo}};
    const auto castky = [&sazby](std::vector<std::string> zacatek, const SoucetMezd& m) {
        for (const Castka castka : {m.hruba, m.srazky, m.k_vyplate, m.naklad(sazby)})
            zacatek.push_back(base::castka_s_oddelovaci(castka));
        return zacatek;
    };
    for (const PracovnikListiny& p : pracovnici) {
        s.radky.push_back(castky({std::to_string(p.cislo), p.prijmeni + " " + p.jmeno}, p.soucet));
    }
    s.soucty = castky({"", fmt::format("Celkem pracovníků: {}", pracovnici.size())}, soucet);
    return s;
}

report::TabulkovaSestava sestava_radku(const PracovnikListiny& pracovnik,
                                       const RadkyListiny& radky) {
    report::TabulkovaSestava s;
    s.nazev = "Výplatní listina";
    s.zahlavi = {
        fmt::format("Pracovník {}  {} {}", pracovnik.cislo, pracovnik.prijmeni, pracovnik.jmeno)};
    s.sloupce = {{"Modul", 14, Zarovnani::vpravo},
                 {"Sl.", 10, Zarovnani::vpravo},
                 {"Text", 56},
                 {"Dny", 16, Zarovnani::vpravo},
                 {"Hodiny", 18, Zarovnani::vpravo},
                 {"Částka", 28, Zarovnani::vpravo},
                 {"Poznámka", 48}};
    for (const RadekListiny& r : radky) {
        s.radky.push_back({std::to_string(r.modul), r.sloupec ? std::to_string(r.sloupec) : "",
                           r.co_je_to, prosta(r.dny), prosta(r.hodiny), koruny(r.hodnota),
                           poznamka(r)});
    }
    return s;
}

}  // namespace payrun
