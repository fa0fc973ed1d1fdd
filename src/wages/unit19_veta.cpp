#include "wages/unit19_veta.h"

#include <fmt/format.h>

#include "base/castky_text.h"
#include "base/text.h"
#include "store/catalogue.h"
#include "store/command.h"

namespace wages {
namespace {

constexpr const char* k_pole_kc[k_hodnot] = {"Kc1", "Kc2", "Kc3", "Kc4"};

std::optional<Castka> castka(const store::Query& q, const char* pole) {
    if (q.is_empty(pole)) return std::nullopt;
    return static_cast<Castka>(q.number(pole));
}

std::optional<int> cislo(const store::Query& q, const char* pole) {
    if (q.is_empty(pole)) return std::nullopt;
    return static_cast<int>(q.integer(pole));
}

std::string text(const std::optional<Castka>& castka) {
    return castka ? base::castka_prosta(*castka) : "";
}

std::string text(const std::optional<int>& cislo) {
    return cislo ? std::to_string(*cislo) : "";
}

[[noreturn]] void neni_veta(std::string_view tabulka, std::int64_t pocitadlo) {
    throw store::StoreError(
        fmt::format("V tabulce {} už není věta s Pocitadlo = {}.", tabulka, pocitadlo));
}

}  // namespace

Castka UlozenaVeta::dny() const {
    return veta.dny_od.value_or(0) + veta.dny_neod.value_or(0);
}

Castka UlozenaVeta::hodiny() const {
    return veta.hod_od.value_or(0) + veta.hod_neod.value_or(0) + veta.hod_vedl.value_or(0);
}

UlozenaVeta ulozena_veta(const store::Query& hrube, int mesic) {
    UlozenaVeta v;
    v.mesic = mesic;
    v.pocitadlo = hrube.integer("Pocitadlo");
    v.cislo = static_cast<int>(hrube.integer("Cislo_pracovnika"));
    v.prijmeni = hrube.text("Prijmeni");
    v.jmeno = hrube.text("Jmeno");
    v.veta.modul = static_cast<int>(hrube.integer("Modul"));
    v.veta.sloupec = static_cast<int>(hrube.integer("Sloupec"));
    v.veta.sloupec_slovy = hrube.text("Sloupec_slovy");
    v.veta.dny_od = castka(hrube, "Dny_od");
    v.veta.dny_neod = castka(hrube, "Dny_neod");
    v.veta.hod_od = castka(hrube, "Hod_od");
    v.veta.hod_neod = castka(hrube, "Hod_neod");
    v.veta.hod_vedl = castka(hrube, "Hod_vedl");
    v.veta.datum = hrube.text("Datum");
    v.veta.stredisko = cislo(hrube, "Stredisko");
    v.veta.vykon = cislo(hrube, "Vykon");
    v.veta.stroj = cislo(hrube, "Stroj");
    for (std::size_t i = 0; i < k_hodnot; ++i)
        v.veta.kc[i] = castka(hrube, k_pole_kc[i]);
    v.veta.kc_cel = static_cast<Castka>(hrube.number("Kc_cel"));
    v.veta.text = hrube.text("Text");
    return v;
}

UlozenaVeta nacti_vetu_hrubych_mezd(shell::Session& session, int mesic, std::int64_t pocitadlo) {
    const std::string tabulka = store::month_table("Hrube", mesic);
    store::Query q(session.data(), "SELECT * FROM " + tabulka + " WHERE Pocitadlo = :pocitadlo");
    q.set("pocitadlo", pocitadlo);
    q.open();
    if (q.eof()) neni_veta(tabulka, pocitadlo);
    return ulozena_veta(q, mesic);
}

ZadaniPolozky zadani_vety(const SloupecHrube& sloupec, const VetaHrube& veta) {
    ZadaniPolozky z;
    z.dny = text(sloupec.jake_dny == 2 ? veta.dny_neod : veta.dny_od);
    z.hodiny = text(sloupec.jake_hodiny == 3   ? veta.hod_vedl
                    : sloupec.jake_hodiny == 2 ? veta.hod_neod
                                               : veta.hod_od);
    z.datum = base::jen_cislice(veta.datum);
    z.stredisko = text(veta.stredisko);
    z.vykon = text(veta.vykon);
    // An empty machine is how 0 is stored.
    z.stroj = sloupec.stroj ? std::to_string(veta.stroj.value_or(0)) : "";
    for (std::size_t i = 0; i < k_hodnot; ++i)
        z.hodnoty[i] = text(veta.kc[i]);
    z.text = veta.text;
    return z;
}

void oprav_vetu_hrubych_mezd(shell::Session& session, int mesic, std::int64_t pocitadlo,
                             const VetaHrube& veta) {
    store::Table hrube;
    otevri_vetu(hrube, session, store::month_table("Hrube", mesic), pocitadlo);
    hrube.edit();
    napln_vetu_hrubych_mezd(hrube, veta);
    hrube.post();
}

void smaz_vetu_hrubych_mezd(shell::Session& session, const UlozenaVeta& veta) {
    const auto smaz = [&session](const std::string& tabulka, std::int64_t pocitadlo) {
        store::Command prikaz(session.data(),
                              "DELETE FROM " + tabulka + " WHERE Pocitadlo = :pocitadlo");
        prikaz.set("pocitadlo", pocitadlo);
        if (prikaz.execute() == 0) neni_veta(tabulka, pocitadlo);
    };
    if (const auto detail = detail_nahrady(session, veta)) smaz("Nahrady", *detail);
    smaz(store::month_table("Hrube", veta.mesic), veta.pocitadlo);
}

std::optional<std::int64_t> detail_nahrady(shell::Session& session, const UlozenaVeta& veta) {
    store::Query q(session.data(),
                   "SELECT Pocitadlo FROM Nahrady WHERE (Id_hrube = :hrube) AND (Mesic = :mesic) "
                   "AND (Cislo_pracovnika = :cislo)");
    q.set("hrube", veta.pocitadlo).set("mesic", veta.mesic).set("cislo", veta.cislo);
    q.open();
    if (q.eof()) return std::nullopt;
    return q.integer("Pocitadlo");
}

void otevri_vetu(store::Table& tabulka, shell::Session& session, std::string_view nazev,
                 std::int64_t pocitadlo) {
    tabulka.set_connection(session.data());
    tabulka.set_table_name(nazev);
    tabulka.open();
    if (!tabulka.locate("Pocitadlo", pocitadlo)) neni_veta(nazev, pocitadlo);
}

}  // namespace wages
