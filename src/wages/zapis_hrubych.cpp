#include "wages/zapis_hrubych.h"

#include <fmt/format.h>

#include "base/castky_text.h"
#include "base/datum.h"
#include "base/text.h"
#include "store/catalogue.h"
#include "workers/prumery.h"

namespace wages {
namespace {

constexpr int k_pracovnich_dnu_tydne = 5;
constexpr int k_hodin_mesice = 174;
constexpr const char* k_pole_kc[k_hodnot] = {"Kc1", "Kc2", "Kc3", "Kc4"};

std::string pole(const char* zaklad, std::size_t n) {
    return fmt::format("{}_{}", zaklad, n);
}

std::string text_nebo_prazdny(const store::Query& karta, const char* nazev) {
    return karta.is_empty(nazev) ? std::string() : karta.text(nazev);
}

std::optional<int> cislo(bool zadava_se, const std::string& text) {
    if (!zadava_se || !base::neprazdny(text)) return std::nullopt;
    return base::je_cele_cislo(text);
}

/// From the current row of a query over all fields of `Os_karty`.
KartaZadani karta_z_vety(const store::Query& q, int mesic) {
    const auto cele = [&](const char* nazev) { return static_cast<int>(q.integer(nazev)); };
    KartaZadani k;
    k.Pocitadlo = q.integer("Pocitadlo");
    k.cislo = cele("Cislo");
    k.cislo_min_rok = cele("Cislo_min_rok");
    k.prijmeni = q.text("Prijmeni");
    k.jmeno = q.text("Jmeno");
    k.stredisko = text_nebo_prazdny(q, "Stredisko");
    k.vykon = text_nebo_prazdny(q, "Vykon");
    k.tpd = static_cast<Castka>(q.number("tpd"));
    k.sazba_ot = static_cast<Castka>(q.number("Sazba_OT"));
    k.zakladni_plat = static_cast<Castka>(q.integer("Staly_plat"));
    for (std::size_t i = 1; i <= 5; ++i)
        k.zakladni_plat += static_cast<Castka>(q.integer(pole("Os_oh", i)));
    k.prumer_denni = static_cast<Castka>(
        q.number(workers::pole_prumeru_na_dovolenou(workers::DruhPrumeru::denni, mesic)));
    k.prumer_hodinovy = static_cast<Castka>(
        q.number(workers::pole_prumeru_na_dovolenou(workers::DruhPrumeru::hodinovy, mesic)));
    k.id_rpd = cele("Id_rpd");
    k.id_rpd_min = cele("Id_rpd_min");
    k.osamela_osoba = q.boolean("Osamela_osoba");
    for (std::size_t i = 0; i < k.prum_nemoc.size(); ++i)
        k.prum_nemoc[i] = static_cast<Castka>(q.number(pole("Prum_nemoc", i)));
    for (std::size_t i = 0; i < k.volit.size(); ++i)
        k.volit[i] = q.value(pole("Volit", i + 1));
    return k;
}

template <class Hodnota>
void nastav(store::Table& tabulka, const char* nazev, const std::optional<Hodnota>& hodnota) {
    tabulka.set(nazev, hodnota ? store::Value(*hodnota) : store::Value());
}

void nastav(store::Table& tabulka, const char* nazev, const std::string& text) {
    tabulka.set(nazev, text.empty() ? store::Value() : store::Value(text));
}

void nastav_kartu(store::Table& hrube, const KartaZadani& karta) {
    hrube.set("Cislo_pracovnika", karta.cislo);
    hrube.set("Prijmeni", karta.prijmeni);
    hrube.set("Jmeno", karta.jmeno);
    for (std::size_t i = 0; i < karta.volit.size(); ++i)
        hrube.set(pole("Volit", i + 1), karta.volit[i]);
}

}  // namespace

KartaZadani nacti_kartu_zadani(shell::Session& session, std::int64_t pocitadlo) {
    store::Query q(session.data(), "SELECT * FROM Os_karty WHERE Pocitadlo = :pocitadlo");
    q.set("pocitadlo", pocitadlo);
    q.open();
    if (q.eof()) {
        throw store::StoreError(
            fmt::format("V tabulce Os_karty není věta s Pocitadlo = {}.", pocitadlo));
    }
    return karta_z_vety(q, session.zpracovavany_mesic);
}

std::unordered_map<int, KartaZadani> nacti_karty_zadani(shell::Session& session, int mesic) {
    std::unordered_map<int, KartaZadani> karty;
    store::Query q(session.data(), "SELECT * FROM Os_karty ORDER BY Pocitadlo");
    for (q.open(); !q.eof(); q.next()) {
        KartaZadani karta = karta_z_vety(q, mesic);
        karty.emplace(karta.cislo, std::move(karta));
    }
    return karty;
}

Castka Denni_prumer_ze_zakladniho_platu(const KartaZadani& karta, int mesic, int rok) {
    const auto dnu = static_cast<Castka>(base::pracovni_dny_mesice(mesic, rok));
    return base::na_halere_k_sude(karta.zakladni_plat / dnu);
}

Castka denni_prumer_ze_zakladniho_platu_174(const KartaZadani& karta) {
    return base::na_halere_k_sude(karta.zakladni_plat / k_hodin_mesice);
}

std::string hodiny_ze_dnu(const std::string& dny, const KartaZadani& karta) {
    return base::castka_prosta(base::je_desetinne_cislo(dny) * karta.tpd / k_pracovnich_dnu_tydne);
}

std::string Co_predsadit(const HodnotaSloupce& hodnota, const SloupecHrube& sloupec,
                         const ZadaniPolozky& zadani, const KartaZadani& karta, Castka koruny,
                         int mesic, int rok) {
    const Castka denni = Denni_prumer_ze_zakladniho_platu(karta, mesic, rok);
    switch (hodnota.predrazeno) {
        case 1:
            return sloupec.jake_dny != 0 ? zadani.dny : "";
        case 2:
            return sloupec.jake_hodiny != 0 ? zadani.hodiny : "";
        case 3:
            return base::castka_prosta(karta.prumer_denni);
        case 5:
            return base::castka_prosta(karta.sazba_ot);
        case 6:
            return base::castka_prosta(karta.prumer_hodinovy);
        case 7:
            return base::castka_prosta(hodnota.konstanta);
        case 9:
            return base::castka_prosta(koruny);
        case 10:
            return base::castka_prosta(denni);
        case 11:
            if (base::je_nula(karta.tpd)) return "";
            return base::castka_prosta(
                base::na_halere_k_sude(denni / karta.tpd * k_pracovnich_dnu_tydne));
        case 12:
            return base::castka_prosta(denni_prumer_ze_zakladniho_platu_174(karta));
        default:
            return "";
    }
}

VetaHrube veta_bezneho_tiskopisu(const SloupecHrube& sloupec, const ZadaniPolozky& zadani,
                                 Castka celkem) {
    VetaHrube v;
    v.modul = sloupec.modul;
    v.sloupec = sloupec.sloupec;
    v.sloupec_slovy = sloupec.text;
    const Castka dny = base::je_desetinne_cislo(zadani.dny);
    if (sloupec.jake_dny == 1) v.dny_od = dny;
    if (sloupec.jake_dny == 2) v.dny_neod = dny;
    const Castka hodiny = base::je_desetinne_cislo(zadani.hodiny);
    if (sloupec.jake_hodiny == 1) v.hod_od = hodiny;
    if (sloupec.jake_hodiny == 2) v.hod_neod = hodiny;
    if (sloupec.jake_hodiny == 3) v.hod_vedl = hodiny;
    // F2 inside the field may come before its check.
    if (sloupec.datum && base::neprazdny(zadani.datum))
        v.datum = base::znaky(zadani.datum, 1, 2) + "." + base::znaky(zadani.datum, 3, 2) + ".";
    v.stredisko = cislo(sloupec.stredisko, zadani.stredisko);
    v.vykon = cislo(sloupec.vykon, zadani.vykon);
    v.stroj = cislo(sloupec.stroj, zadani.stroj);
    if (v.stroj == 0) v.stroj.reset();
    for (std::size_t i = 0; i < k_hodnot; ++i) {
        if (sloupec.hodnoty[i].zadava_se()) v.kc[i] = base::je_desetinne_cislo(zadani.hodnoty[i]);
    }
    v.kc_cel = celkem;
    v.text = zadani.text;
    return v;
}

void napln_vetu_hrubych_mezd(store::Table& hrube, const VetaHrube& veta) {
    hrube.set("Modul", veta.modul);
    hrube.set("Sloupec", veta.sloupec);
    nastav(hrube, "Sloupec_slovy", veta.sloupec_slovy);
    nastav(hrube, "Dny_od", veta.dny_od);
    nastav(hrube, "Dny_neod", veta.dny_neod);
    nastav(hrube, "Hod_od", veta.hod_od);
    nastav(hrube, "Hod_neod", veta.hod_neod);
    nastav(hrube, "Hod_vedl", veta.hod_vedl);
    nastav(hrube, "Datum", veta.datum);
    nastav(hrube, "Stredisko", veta.stredisko);
    nastav(hrube, "Vykon", veta.vykon);
    nastav(hrube, "Stroj", veta.stroj);
    for (std::size_t i = 0; i < k_hodnot; ++i)
        nastav(hrube, k_pole_kc[i], veta.kc[i]);
    hrube.set("Kc_cel", static_cast<double>(veta.kc_cel));
    nastav(hrube, "Text", veta.text);
}

ZapisovacHrubych::ZapisovacHrubych(shell::Session& session, int mesic) : mesic_(mesic) {
    hrube_.set_connection(session.data());
    hrube_.set_table_name(store::month_table("Hrube", mesic));
    hrube_.open();
}

std::int64_t ZapisovacHrubych::zapis(const KartaZadani& karta, const VetaHrube& veta) {
    hrube_.append();
    hrube_.set("Mesic", mesic_);
    nastav_kartu(hrube_, karta);
    napln_vetu_hrubych_mezd(hrube_, veta);
    hrube_.post();
    return hrube_.integer("Pocitadlo");
}

std::int64_t zapis_vetu_hrubych_mezd(shell::Session& session, int mesic, const KartaZadani& karta,
                                     const VetaHrube& veta) {
    return ZapisovacHrubych(session, mesic).zapis(karta, veta);
}

}  // namespace wages
