// The pages beside the list of workers: fixed items, children, electronic submissions, the digest.
#include <algorithm>
#include <fmt/format.h>

#include "base/cekani.h"
#include "base/datum.h"
#include "base/text.h"
#include "paysheet/sloupce.h"
#include "store/table.h"
#include "workers/ciselnik_seznam.h"
#include "workers/fixni.h"
#include "workers/unit13_fixni_pracovnika.h"
#include "workers/unit6_info.h"
#include "workers/unit6_registr.h"
#include "workers/unit9_dite.h"

namespace workers {

namespace {

constexpr int k_cislic_kodu = 4;  ///< of a bank and of a constant symbol

/// A code with its leading zeros; an empty one stays empty.
store::Value kod(const store::Query& dotaz, const char* pole) {
    if (dotaz.is_empty(pole)) return {};
    return base::cislo_s_nulami(dotaz.integer(pole), k_cislic_kodu);
}

std::string cas_textem(const base::DatumCas& cas) {
    if (cas.je_prazdny()) return "";
    return fmt::format("{} {}:{:02}", base::datum_textem(cas.datum), cas.hodina, cas.minuta);
}

/// Opens a query of a worker's rows on the first of them.
store::Query vety_pracovnika(shell::Session& session, const char* dotaz, std::int64_t cislo) {
    store::Query vety(session.data(), dotaz);
    vety.set("cislo", cislo);
    vety.open();
    return vety;
}

void smaz_vetu(shell::Session& session, const char* nazev, std::int64_t pocitadlo) {
    store::Table tabulka;
    tabulka.set_connection(session.data());
    tabulka.set_table_name(nazev);
    store::Transaction transakce(session.data());
    tabulka.open();
    if (tabulka.locate("Pocitadlo", pocitadlo)) tabulka.remove();
    transakce.commit();
}

}  // namespace

std::int64_t MrizkaStranky::Pocitadlo() const {
    return radek < 0 ? 0 : vety.rows[static_cast<std::size_t>(radek)][0].as_integer();
}

void MrizkaStranky::prijmi(store::Rows nove, std::int64_t pocitadlo) {
    const int misto = std::max(radek, 0);
    vety = std::move(nove);
    const auto kde = std::ranges::find(vety.rows, pocitadlo,
                                       [](const store::Row& veta) { return veta[0].as_integer(); });
    const int posledni = static_cast<int>(vety.rows.size()) - 1;
    radek = kde == vety.rows.end() ? std::min(misto, posledni)
                                   : static_cast<int>(kde - vety.rows.begin());
}

// --- Reading ------------------------------------------------------------------------------------

void TForm6::vyber_stranku(Stranka nova) {
    stranka = nova;
    nacti_stranku();
    oznam_zmenu();
}

void TForm6::vyber_stranku_info(StrankaInfo nova) {
    stranka_info = nova;
    oznam_zmenu();
}

/// Only the page that is shown follows the cursor of the list.
void TForm6::nacti_stranku() {
    switch (stranka) {
        case Stranka::fixni:
            return nacti_fixni(0);
        case Stranka::deti:
            return nacti_deti(0);
        case Stranka::epodani:
            return nacti_epodani(0);
        case Stranka::info:
            return nacti_info();
        case Stranka::ispv:
            return;
    }
}

void TForm6::nacti_fixni(std::int64_t pocitadlo) {
    store::Rows nove{{"Pocitadlo", "Sloupec", "Text", "Kč", "Účet", "Kód banky", "Variabilní",
                      "Konstantní", "Specifický"},
                     {}};
    if (pracovnik()) {
        store::Query q = vety_pracovnika(
            session_,
            "SELECT * FROM Fixni WHERE Cislo_pracovnika=:cislo ORDER BY Sloupec, Pocitadlo",
            pracovnik()->Cislo);
        for (; !q.eof(); q.next()) {
            const int sloupec = static_cast<int>(q.integer("Sloupec"));
            nove.rows.push_back({q.value("Pocitadlo"), sloupec,
                                 paysheet::sloupec_slovy(session_, sloupec), q.value("Kcs"),
                                 q.value("Ucet"), kod(q, "Kod_banky"), q.value("Variabilni"),
                                 kod(q, "Konstantni"), q.value("Specificky")});
        }
    }
    fixni.prijmi(std::move(nove), pocitadlo);
}

void TForm6::nacti_deti(std::int64_t pocitadlo) {
    store::Rows nove{{"Pocitadlo", "Pořadí", "Jméno", "Příjmení", "Rodné číslo", "Narozeno",
                      "Zvýhodnění", "Bydliště"},
                     {}};
    if (pracovnik()) {
        store::Query q = vety_pracovnika(session_,
                                         "SELECT * FROM Deti WHERE Cislo_pracovnika=:cislo "
                                         "ORDER BY Poradi, Datum_narozeni, Pocitadlo",
                                         pracovnik()->Cislo);
        for (; !q.eof(); q.next()) {
            nove.rows.push_back({q.value("Pocitadlo"), q.value("Poradi"), q.value("Jmeno"),
                                 q.value("Prijmeni"), q.value("Rodne_cislo"),
                                 q.value("Datum_narozeni"), q.value("Odpocitatelna_dan"),
                                 q.value("Bydliste")});
        }
    }
    deti.prijmi(std::move(nove), pocitadlo);
    Suma_odpocitatelnych();
}

void TForm6::Suma_odpocitatelnych() {
    const store::Query soucet =
        vety_pracovnika(session_,
                        "SELECT SUM(Odpocitatelna_dan) AS SQL_odpocitatelna FROM deti where "
                        "(cislo_pracovnika = :cislo)",
                        pracovnik() ? pracovnik()->Cislo : 0);
    suma_odpocitatelnych = std::to_string(soucet.integer("SQL_odpocitatelna"));
}

void TForm6::nacti_epodani(std::int64_t pocitadlo) {
    store::Rows nove{{"Pocitadlo", "XML soubor", "Vytvořen", "Typ", "Platnost ke dni"}, {}};
    if (pracovnik()) {
        store::Query q = vety_pracovnika(
            session_, "select * from epodani where cislo_pracovnika=:cislo order by odeslano desc",
            pracovnik()->Cislo);
        for (; !q.eof(); q.next()) {
            nove.rows.push_back({q.value("Pocitadlo"), q.value("Soubor"),
                                 cas_textem(q.value("Odeslano").as_timestamp()),
                                 q.value("Typ_podani"), q.value("Platnost_ke_dni")});
        }
    }
    epodani.prijmi(std::move(nove), pocitadlo);
}

void TForm6::nacti_info() {
    osobni = plat = {};
    if (!pracovnik()) return;
    store::Query karta(session_.data(), "SELECT * FROM Os_karty WHERE Pocitadlo=:pocitadlo");
    karta.set("pocitadlo", pracovnik()->Pocitadlo);
    karta.open();
    osobni = osobni_udaje(karta, pojistovny_);
    plat = platove_udaje(karta, session_.ridici_zorv);
}

// --- Children -----------------------------------------------------------------------------------

void TForm6::ukaz_dite(std::int64_t pocitadlo) {
    if (ceka_na_obsluhu_ || !pracovnik()) return;
    const base::Cekani cekani(ceka_na_obsluhu_);
    TForm9 dite(session_, pocitadlo, static_cast<int>(pracovnik()->Cislo));
    dite.FormShow();
    session_.obsluha().ukaz_modalne(dite);
    registr_.nacti_vazby(session_);
    nacti_deti(dite.ulozeno ? dite.Pocitadlo : deti.Pocitadlo());
    fokus = "mrizka_deti";
    oznam_zmenu();
}

void TForm6::acDetiPridatExecute() {
    ukaz_dite(0);
}

void TForm6::acDetiOpravitExecute() {
    if (deti.radek >= 0) ukaz_dite(deti.Pocitadlo());
}

void TForm6::acDetiSmazatExecute() {
    if (ceka_na_obsluhu_ || deti.radek < 0) return;
    const base::Cekani cekani(ceka_na_obsluhu_);
    if (session_.obsluha().otazka_ano_ne("Smazat záznam?", "Smazázní záznamu dítěte")) {
        smaz_vetu(session_, "Deti", deti.Pocitadlo());
        registr_.nacti_vazby(session_);
    }
    nacti_deti(deti.Pocitadlo());
    fokus = "mrizka_deti";
    oznam_zmenu();
}

// --- Fixed items --------------------------------------------------------------------------------

void TForm6::ukaz_fixni(std::int64_t pocitadlo) {
    TForm13 polozka(session_, pocitadlo, static_cast<int>(pracovnik()->Cislo));
    polozka.FormShow();
    session_.obsluha().ukaz_modalne(polozka);
    nacti_fixni(polozka.ulozeno ? polozka.Pocitadlo : fixni.Pocitadlo());
    fokus = "mrizka_fixni";
    oznam_zmenu();
}

void TForm6::acFixniPridatExecute() {
    if (ceka_na_obsluhu_ || !pracovnik()) return;
    const base::Cekani cekani(ceka_na_obsluhu_);
    if (je_modul_pro_fixni(session_.ridici_zorv)) {
        ukaz_fixni(0);
    } else {
        session_.obsluha().hlaska(k_neni_modul_pro_fixni);
    }
}

void TForm6::acFixniOpravitExecute() {
    if (ceka_na_obsluhu_ || fixni.radek < 0) return;
    const base::Cekani cekani(ceka_na_obsluhu_);
    if (je_modul_pro_opravu_fixnich(session_.ridici_zorv)) {
        ukaz_fixni(fixni.Pocitadlo());
    } else {
        session_.obsluha().hlaska(k_neni_modul_pro_opravu);
    }
}

void TForm6::acFixniSmazatExecute() {
    if (ceka_na_obsluhu_ || fixni.radek < 0) return;
    const base::Cekani cekani(ceka_na_obsluhu_);
    smaz_fixni_polozku(session_, fixni.Pocitadlo());
    nacti_fixni(fixni.Pocitadlo());
    fokus = "mrizka_fixni";
    oznam_zmenu();
}

// --- Electronic submissions and the wage survey -------------------------------------------------

void TForm6::acEPodaniSmazatExecute() {
    if (ceka_na_obsluhu_ || epodani.radek < 0) return;
    const base::Cekani cekani(ceka_na_obsluhu_);
    if (session_.obsluha().otazka_ano_ne("Smazat záznam? (Vygenerovaný XML soubor bude zachován.)",
                                         "Smazání záznamu ePodání.")) {
        smaz_vetu(session_, "epodani", epodani.Pocitadlo());
        registr_.nacti_vazby(session_);
    }
    nacti_epodani(epodani.Pocitadlo());
    fokus = "mrizka_epodani";
    oznam_zmenu();
}

void TForm6::acEpodPridatExecute() {
    neni_soucasti("Nové ePodání");
}

void TForm6::acEPortalExecute() {
    neni_soucasti("ePortál");
}

void TForm6::acIspvExecute() {
    session_.obsluha().hlaska(k_ispv);
}

void TForm6::acPriruckaISPVExecute() {
    neni_soucasti("Příručka ISPV");
}

}  // namespace workers
