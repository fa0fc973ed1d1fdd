#include "wages/unit20_sumarizace.h"

#include <algorithm>
#include <fmt/format.h>

#include "base/castky_text.h"
#include "base/cekani.h"
#include "base/datum.h"
#include "base/text.h"
#include "shell/ulozeni_csv.h"
#include "store/catalogue.h"
#include "store/transfer.h"
#include "wages/unit18_prohlizeni.h"
#include "wages/unit18_vystup.h"

namespace wages {
namespace {

/// How rows are put together, and what the sums are called.
struct Seskupeni {
    const char* klic;   ///< field
    const char* text;   ///< more fields, which say it in words
    const char* podle;  ///< grouping and order
    const char* nadpis_klice;
    const char* nadpis_textu;
    std::string FiltrHrubych::*filtr;  ///< that finds the rows behind
    const char* soubor;
};
constexpr std::array<Seskupeni, k_sumarizaci> k_seskupeni{
    {{"Sloupec", ", MAX(Sloupec_slovy) AS Text_1", "Modul, Sloupec", "Sl.", "Druh",
      &FiltrHrubych::sloupec, "sloupce"},
     {"Cislo_pracovnika", ", MAX(Prijmeni) AS Text_1, MAX(Jmeno) AS Text_2", "Cislo_pracovnika",
      "Číslo", "Příjmení a jméno", &FiltrHrubych::pracovnik, "pracovnici"},
     {"Stredisko", "", "Stredisko", "Stř.", "", &FiltrHrubych::stredisko, "strediska"}}};

const Seskupeni& seskupeni(PodleCeho podle) {
    return k_seskupeni[static_cast<std::size_t>(podle)];
}

std::string text_radku(const store::Query& q, PodleCeho podle) {
    switch (podle) {
        case PodleCeho::sloupce:
            return q.text("Text_1");
        case PodleCeho::pracovnika:
            return q.text("Text_1") + " " + q.text("Text_2");
        default:
            return q.integer("Klic") == 0 ? "bez střediska" : "";
    }
}

Castka soucet_poli(const store::Query& q, std::initializer_list<const char*> pole) {
    Castka soucet = 0;
    for (const char* p : pole)
        soucet += static_cast<Castka>(q.number(p));
    return soucet;
}

std::string nebo_nic(Castka castka) {
    return base::je_nula(castka) ? "" : base::castka_prosta(castka);
}

}  // namespace

std::vector<RadekSumarizace> sumarizace(shell::Session& session, int mesic, PodleCeho podle) {
    const Seskupeni& s = seskupeni(podle);
    store::Query q(
        session.data(),
        fmt::format("SELECT {} AS Klic{}, COUNT(*) AS Pocet, SUM(Dny_od) AS D1, "
                    "SUM(Dny_neod) AS D2, SUM(Hod_od) AS H1, SUM(Hod_neod) AS H2, "
                    "SUM(Hod_vedl) AS H3, SUM(Kc_cel) AS Kc FROM {} GROUP BY {} "
                    "ORDER BY {}",
                    s.klic, s.text, store::month_table("Hrube", mesic), s.podle, s.podle));
    std::vector<RadekSumarizace> radky;
    for (q.open(); !q.eof(); q.next()) {
        const SoucetHrubych soucet{static_cast<std::size_t>(q.integer("Pocet")),
                                   soucet_poli(q, {"D1", "D2"}), soucet_poli(q, {"H1", "H2", "H3"}),
                                   static_cast<Castka>(q.number("Kc"))};
        const int klic = static_cast<int>(q.integer("Klic"));
        // An empty cost centre and 0 are the same to the operator, two groups to the store.
        if (podle == PodleCeho::strediska && !radky.empty() && radky.back().klic == klic) {
            radky.back().soucet.pridej(soucet);
        } else {
            radky.push_back({klic, text_radku(q, podle), soucet});
        }
    }
    return radky;
}

TForm20::TForm20(shell::Session& session) : session_(session) {}

void TForm20::FormShow() {
    nadpis =
        "Sumarizace hrubých mezd - " + base::mesic_slovy(session_.zpracovavany_mesic, session_.rok);
    nacti();
    fokus = "mrizka";
    vyber_radek(0);
}

void TForm20::nacti() {
    radky = sumarizace(session_, session_.zpracovavany_mesic, podle);
    lbSoucty = soucet_slovy(celkem());
    ++vydani;
}

SoucetHrubych TForm20::celkem() const {
    SoucetHrubych vse;
    for (const RadekSumarizace& r : radky)
        vse.pridej(r.soucet);
    return vse;
}

void TForm20::zvol(PodleCeho novy) {
    podle = novy;
    nacti();
    vyber_radek(0);
}

void TForm20::vyber_radek(int novy) {
    radek = novy >= 0 && novy < static_cast<int>(radky.size()) ? novy : -1;
    oznam_zmenu();
}

void TForm20::acPolozkyExecute() {
    if (ceka_na_obsluhu_ || !je_radek()) return;
    const base::Cekani ceka(ceka_na_obsluhu_);
    FiltrHrubych filtr;
    filtr.*seskupeni(podle).filtr = std::to_string(radky[static_cast<std::size_t>(radek)].klic);
    TForm18 prohlizeni(session_, filtr);
    prohlizeni.FormShow();
    session_.obsluha().ukaz_modalne(prohlizeni);
    zmeneno = zmeneno || prohlizeni.zmeneno;
    zmenene_mesice.insert(prohlizeni.zmenene_mesice.begin(), prohlizeni.zmenene_mesice.end());
    const int misto = radek;
    nacti();
    fokus = "mrizka";
    vyber_radek(std::min(misto, static_cast<int>(radky.size()) - 1));
}

void TForm20::acTiskExecute() {
    using report::Zarovnani;
    if (ceka_na_obsluhu_ || radky.empty()) return;
    const base::Cekani ceka(ceka_na_obsluhu_);
    const Seskupeni& s = seskupeni(podle);
    report::TabulkovaSestava sestava;
    sestava.nazev = nadpis;
    sestava.zahlavi = {k_podle_ceho[static_cast<std::size_t>(podle)]};
    sestava.sloupce = {{s.nadpis_klice, 16, Zarovnani::vpravo}, {s.nadpis_textu, 66},
                       {"Položek", 18, Zarovnani::vpravo},      {"Dny", 22, Zarovnani::vpravo},
                       {"Hodiny", 24, Zarovnani::vpravo},       {"Koruny", 32, Zarovnani::vpravo}};
    const auto radek_sestavy = [](std::string klic, std::string text, const SoucetHrubych& m) {
        return std::vector<std::string>{
            std::move(klic), std::move(text),    std::to_string(m.pocet),
            nebo_nic(m.dny), nebo_nic(m.hodiny), base::castka_s_oddelovaci(m.koruny)};
    };
    for (const RadekSumarizace& r : radky)
        sestava.radky.push_back(radek_sestavy(std::to_string(r.klic), r.text, r.soucet));
    sestava.soucty = radek_sestavy("", "Celkem", celkem());
    ukaz_sestavu(session_, std::move(sestava));
}

void TForm20::acExportExecute() {
    if (ceka_na_obsluhu_ || radky.empty()) return;
    const base::Cekani ceka(ceka_na_obsluhu_);
    const Seskupeni& s = seskupeni(podle);
    store::Rows csv{{s.klic, "Text", "Pocet", "Dny", "Hodiny", "Kc_cel"}, {}};
    for (const RadekSumarizace& r : radky) {
        csv.rows.push_back({r.klic, r.text, static_cast<std::int64_t>(r.soucet.pocet), r.soucet.dny,
                            r.soucet.hodiny, r.soucet.koruny});
    }
    shell::uloz_csv(
        session_, fmt::format("Hrube{:02}-{}.csv", session_.zpracovavany_mesic, s.soubor),
        store::rows_to_csv(csv), {"Složka pro sumarizaci", nadpis, "Sumarizace je v souboru"});
}

void TForm20::acZpetExecute() {
    if (ceka_na_obsluhu_) return;
    zavreno = true;
    oznam_zmenu();
}

}  // namespace wages
