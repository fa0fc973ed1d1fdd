#include "wages/unit162_dochazka.h"

#include <fmt/format.h>

#include "base/castky_text.h"
#include "base/datum.h"
#include "base/klavesy.h"
#include "base/text.h"
#include "wages/tisk_sablony.h"
#include "wages/unit163_zadani_dochazky.h"

namespace wages {
namespace {

constexpr int k_cislic_cisla = 7;

std::string cele_jmeno(const store::Rows& vety, std::size_t radek) {
    const auto text = [&](const char* pole) {
        return vety.rows[radek][static_cast<std::size_t>(vety.column(pole))].as_text();
    };
    return base::orez(text("Prijmeni") + " " + text("Jmeno"));
}

std::string text_dne(const ListDochazky& list, std::size_t den, bool nepritomnost) {
    if (nepritomnost) return list.kody[den];
    return base::je_nula(list.hodiny[den]) ? "" : base::castka_prosta(list.hodiny[den]);
}

std::vector<std::string> sloupce_mrizky() {
    std::vector<std::string> sloupce{"Pocitadlo", "Cislo", "Pracovnik"};
    for (std::size_t den = 1; den <= k_dnu_dochazky; ++den)
        sloupce.push_back(fmt::format("Den{}", den));
    sloupce.insert(sloupce.end(), {"Suma_hod", "Suma_odprac", "Suma_neodprac", "Poznamka"});
    return sloupce;
}

}  // namespace

std::string mesic_v_seznamu(int mesic) {
    const std::string nazev = base::mesic_slovy(mesic, 0);
    return base::velkymi(base::znaky(nazev, 1, 1)) + base::znaky(nazev, 2, nazev.size());
}

TForm162::TForm162(shell::Session& session) : SeznamVet(session), mesic(session.mesic_v_poli - 1) {}

void TForm162::FormShow() {
    nadpis = "Evidence docházky - " + session_.firma;
    fokus = "mrizka";
    nacti(0);
    vyber_radek(0);
}

const char* TForm162::popisek_prepinace() const {
    return nepritomnost ? "Zobrazit odpracované hodiny" : "Zobrazit nepřítomnost";
}

TForm162::Den TForm162::den(int cislo_dne) const {
    if (cislo_dne > base::dni_v_mesici(mesic + 1, session_.rok)) return {};
    const base::Datum datum{session_.rok, mesic + 1, cislo_dne};
    const int v_tydnu = base::den_v_tydnu(datum);
    return {fmt::format("{}\n{}", cislo_dne, zkratka_dne(v_tydnu)), v_tydnu > 5,
            base::je_svatek(datum)};
}

bool TForm162::povol_klavesu_cisla(char znak, std::string_view dosud) const {
    return base::hlidej_cele_cislo_klavesy(znak, dosud, base::ZnamenkoRezim::bez_minus,
                                           k_cislic_cisla);
}

void TForm162::nacti(std::int64_t pocitadlo) {
    dochazka_ = dochazka_mesice(session_, mesic + 1, cislo, prijmeni);
    ukaz(pocitadlo);
}

void TForm162::ukaz(std::int64_t pocitadlo) {
    store::Rows nove{sloupce_mrizky(), {}};
    const auto hodnota = [this](std::size_t i, const char* pole) {
        return dochazka_.rows[i][static_cast<std::size_t>(dochazka_.column(pole))];
    };
    for (std::size_t i = 0; i < dochazka_.rows.size(); ++i) {
        const ListDochazky list = list_dochazky(dochazka_, i);
        store::Row& veta = nove.rows.emplace_back();
        veta = {hodnota(i, "Pocitadlo"), hodnota(i, "Cislo"), cele_jmeno(dochazka_, i)};
        for (std::size_t den = 0; den < k_dnu_dochazky; ++den)
            veta.push_back(text_dne(list, den, nepritomnost));
        for (const char* pole : {"Suma_hod", "Suma_odprac", "Suma_neodprac", "Poznamka"})
            veta.push_back(hodnota(i, pole));
    }
    prijmi(std::move(nove), pocitadlo);
}

void TForm162::zmena_mesice() {
    nacti(pocitadlo_radku());
}

void TForm162::zmena_filtru() {
    nacti(pocitadlo_radku());
}

void TForm162::acVseExecute() {
    cislo.clear();
    prijmeni.clear();
    nacti(pocitadlo_radku());
}

void TForm162::acOdpracovanoNepritomnostExecute() {
    nepritomnost = !nepritomnost;
    ukaz(pocitadlo_radku());
}

void TForm162::acOpravitExecute() {
    if (!je_veta()) return;
    nerusene([this] {
        const auto i = static_cast<std::size_t>(radek);
        const int cislo_pracovnika = static_cast<int>(hodnota_radku("Cislo").as_integer());
        TForm163 zadani(session_, mesic + 1, cele_jmeno(dochazka_, i), cislo_pracovnika,
                        list_dochazky(dochazka_, i));
        zadani.FormShow();
        session_.obsluha().ukaz_modalne(zadani);
        if (zadani.vysledek_ok) uloz_dochazku(session_, cislo_pracovnika, mesic + 1, zadani.list());
        fokus = "mrizka";
        nacti(pocitadlo_radku());
    });
}

void TForm162::acTiskExecute() {
    nerusene([this] {
        tiskni_sablonu(session_, "mz_evidence_dochazky.fr3", dochazka_,
                       {{"mesic", base::mesic_slovy(mesic + 1, session_.rok)}});
    });
}

}  // namespace wages
