#include "workers/ciselnik.h"

#include <algorithm>
#include <fmt/format.h>
#include <numeric>

#include "base/datum.h"
#include "base/text.h"
#include "report/nahled.h"
#include "report/tabulkova.h"
#include "workers/ciselnik_veta.h"

namespace workers {
namespace {

constexpr double k_mm_na_znak = 1.9;
constexpr int k_mezera_znaku = 2;  ///< between columns

bool je_cislo(DruhPole druh) {
    return druh == DruhPole::cele || druh == DruhPole::desetinne;
}

/// Numbers stay numbers, so that they sort and align as such.
store::Value ukazana_hodnota(const PoleCiselniku& pole, const store::Value& hodnota) {
    return je_cislo(pole.druh) ? hodnota : store::Value(text_pole(pole, hodnota));
}

/// Negative, 0 or positive; an empty value stands first.
int porovnej(const store::Value& a, const store::Value& b, bool cislo) {
    if (a.is_empty() != b.is_empty()) return a.is_empty() ? -1 : 1;
    if (!cislo) return base::porovnej_cesky_bez_velikosti(a.as_text(), b.as_text());
    return a.as_number() < b.as_number() ? -1 : a.as_number() > b.as_number() ? 1 : 0;
}

std::string polozek(std::size_t pocet) {
    return fmt::format("{} {}", pocet,
                       pocet == 1               ? "položka"
                       : pocet > 1 && pocet < 5 ? "položky"
                                                : "položek");
}

/// Headings of several words stand in more lines.
report::SloupecSestavy sloupec_sestavy(const PoleCiselniku& pole) {
    std::string nadpis = pole.nadpis;
    std::replace(nadpis.begin(), nadpis.end(), ' ', '\n');
    int znaku = pole.znaku;
    for (const std::string& slovo : base::rozdel_text(nadpis, '\n'))
        znaku = std::max(znaku, static_cast<int>(base::pocet_znaku(slovo)));
    return {nadpis, (znaku + k_mezera_znaku) * k_mm_na_znak,
            je_cislo(pole.druh) ? report::Zarovnani::vpravo : report::Zarovnani::vlevo};
}

/// True when the columns do not fit the narrow side of the paper.
bool patri_na_sirku(const std::vector<report::SloupecSestavy>& sloupce) {
    const double sirka = std::accumulate(
        sloupce.begin(), sloupce.end(), 0.0,
        [](double soucet, const report::SloupecSestavy& s) { return soucet + s.sirka_mm; });
    return sirka > report::papir_a4(false).sirka_sazby();
}

}  // namespace

Ciselnik::Ciselnik(shell::Session& session, PopisCiselniku popis)
    : SeznamVet(session), popis_(std::move(popis)) {}

void Ciselnik::FormShow() {
    nadpis = fmt::format("{} - {}", popis_.nadpis, session_.firma);
    fokus = "mrizka";
    nacti(0);
    vyber_radek(0);
}

void Ciselnik::nacti(std::int64_t pocitadlo) {
    store::Query dotaz(session_.data(), fmt::format("SELECT * FROM {} ORDER BY {}, Pocitadlo",
                                                    popis_.tabulka, popis_.pole.front().pole));
    vsechny_ = {{"Pocitadlo"}, {}};
    for (const PoleCiselniku& pole : popis_.pole)
        vsechny_.columns.push_back(pole.pole);
    for (dotaz.open(); !dotaz.eof(); dotaz.next()) {
        store::Row& veta = vsechny_.rows.emplace_back();
        veta.push_back(dotaz.value("Pocitadlo"));
        for (const PoleCiselniku& pole : popis_.pole)
            veta.push_back(ukazana_hodnota(pole, dotaz.value(pole.pole)));
    }
    ukaz(pocitadlo);
}

/// Shows the rows that the search lets through, in the chosen order.
void Ciselnik::ukaz(std::int64_t pocitadlo) {
    const std::string hledane = base::velkymi(base::orez(hledat));
    const auto ma_hledane = [&](const store::Row& veta) {
        for (std::size_t i = 0; i < popis_.pole.size(); ++i) {
            const std::string text = text_pole(popis_.pole[i], veta[i + 1]);
            if (base::velkymi(text).find(hledane) != std::string::npos) return true;
        }
        return false;
    };
    store::Rows nove{vsechny_.columns, {}};
    std::copy_if(vsechny_.rows.begin(), vsechny_.rows.end(), std::back_inserter(nove.rows),
                 ma_hledane);
    const auto sloupec = static_cast<std::size_t>(trideni) + 1;
    const bool cislo = je_cislo(popis_.pole[static_cast<std::size_t>(trideni)].druh);
    std::stable_sort(nove.rows.begin(), nove.rows.end(),
                     [&](const store::Row& a, const store::Row& b) {
                         const int poradi = porovnej(a[sloupec], b[sloupec], cislo);
                         return sestupne ? poradi > 0 : poradi < 0;
                     });
    const std::size_t celkem = vsechny_.rows.size();
    pocet = nove.rows.size() == celkem
                ? polozek(celkem)
                : fmt::format("{} z {}", nove.rows.size(),
                              celkem == 1 ? "1 položky" : fmt::format("{} položek", celkem));
    prijmi(std::move(nove), pocitadlo);
}

void Ciselnik::zmena_hledani() {
    ukaz(pocitadlo_radku());
}

void Ciselnik::zmena_trideni(int pole) {
    sestupne = pole == trideni && !sestupne;
    trideni = pole;
    ukaz(pocitadlo_radku());
}

void Ciselnik::acPridatExecute() {
    uprav(Rezim::novy);
}

void Ciselnik::acOpravitExecute() {
    if (je_veta()) uprav(Rezim::oprava);
}

void Ciselnik::acKopirovatExecute() {
    if (je_veta()) uprav(Rezim::kopie);
}

void Ciselnik::otevri(store::Table& tabulka) {
    tabulka.set_connection(session_.data());
    tabulka.set_table_name(popis_.tabulka);
    tabulka.open();
}

void Ciselnik::uprav(Rezim rezim) {
    nerusene([this, rezim] {
        store::Table tabulka;
        otevri(tabulka);
        TextyPoli hodnoty(popis_.pole.size());
        if (rezim != Rezim::novy) {
            if (!tabulka.locate("Pocitadlo", pocitadlo_radku())) return nacti(0);
            for (std::size_t i = 0; i < hodnoty.size(); ++i)
                hodnoty[i] = text_pole(popis_.pole[i], tabulka.value(popis_.pole[i].pole));
        }
        rezim == Rezim::oprava ? tabulka.edit() : tabulka.append();
        const char* const titul = rezim == Rezim::novy     ? "Nový záznam"
                                  : rezim == Rezim::oprava ? "Oprava záznamu"
                                                           : "Kopie záznamu";
        VetaCiselniku veta(session_, popis_, tabulka, titul, std::move(hodnoty));
        session_.obsluha().ukaz_modalne(veta);
        fokus = "mrizka";
        nacti(veta.ulozeno ? tabulka.integer("Pocitadlo") : pocitadlo_radku());
    });
}

/// The question before a row is deleted, with a warning when other tables know it by its number
/// and no other row bears the number.
std::string Ciselnik::otazka_smazani() {
    const std::string otazka = "Smazat vybraný záznam?";
    const store::Value cislo = hodnota_radku(popis_.pole.front().pole);
    const auto se_stejnym = std::count_if(vsechny_.rows.begin(), vsechny_.rows.end(),
                                          [&](const store::Row& veta) { return veta[1] == cislo; });
    if (!popis_.pouziti || se_stejnym > 1) return otazka;
    const auto pouziti = popis_.pouziti(session_, cislo.as_integer());
    if (pouziti.empty()) return otazka;
    return fmt::format("POZOR:\r\n{}\r\n\r\n{}", fmt::join(pouziti, "\r\n"), otazka);
}

void Ciselnik::acSmazatExecute() {
    if (!je_veta()) return;
    nerusene([this] {
        if (session_.obsluha().otazka_ano_ne(otazka_smazani(), "Smazání záznamu")) {
            store::Table tabulka;
            otevri(tabulka);
            store::Transaction transakce(session_.data());
            if (tabulka.locate("Pocitadlo", pocitadlo_radku())) tabulka.remove();
            transakce.commit();
        }
        fokus = "mrizka";
        nacti(pocitadlo_radku());
    });
}

void Ciselnik::acTiskExecute() {
    nerusene([this] {
        report::TabulkovaSestava sestava;
        sestava.nazev = nadpis;
        sestava.zahlavi = {base::datum_textem(session_.hodiny().dnes())};
        if (base::neprazdny(hledat)) sestava.zahlavi.push_back("Jen položky s textem: " + hledat);
        for (const PoleCiselniku& pole : popis_.pole)
            sestava.sloupce.push_back(sloupec_sestavy(pole));
        sestava.na_sirku = patri_na_sirku(sestava.sloupce);
        for (const store::Row& veta : vety.rows) {
            auto& radek_sestavy = sestava.radky.emplace_back();
            for (std::size_t i = 0; i < popis_.pole.size(); ++i)
                radek_sestavy.push_back(text_pole(popis_.pole[i], veta[i + 1]));
        }
        report::TFUsrPrev nahled(report::sestav_tabulku(sestava));
        session_.obsluha().ukaz_modalne(nahled);
    });
}

}  // namespace workers
