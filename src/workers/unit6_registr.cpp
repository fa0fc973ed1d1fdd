#include "workers/unit6_registr.h"

#include <algorithm>
#include <fmt/format.h>
#include <fmt/ranges.h>

#include "base/cekani.h"
#include "base/datum.h"
#include "report/nahled.h"
#include "store/table.h"
#include "workers/ciselnik_seznam.h"
#include "workers/pojistovny.h"
#include "workers/unit6_smazani.h"
#include "workers/unit7_karta.h"

namespace workers {

TForm6::TForm6(shell::Session& session, VyberKalendare vyber_kalendare)
    : nadpis("Pracovníci - " + session.radek_firmy),
      session_(session),
      vyber_kalendare_(std::move(vyber_kalendare)) {
    hlediska.emplace_back("vyber volitelné");
    const auto& nazvy = session.ridici_zorv.volitelna_hlediska;
    for (std::size_t i = 0; i < nazvy.size(); ++i)
        hlediska.push_back(fmt::format("{} - {}", i + 1, nazvy[i]));
}

void TForm6::FormShow() {
    pojistovny_ = Nacti_pojistovny(session_);
    fokus = "mrizka";
    znovu_otevri(0);
}

// --- The list -----------------------------------------------------------------------------------

const RadekRegistru* TForm6::pracovnik() const {
    return radek < 0 ? nullptr : radky[static_cast<std::size_t>(radek)];
}

std::int64_t TForm6::pocitadlo_radku() const {
    return pracovnik() ? pracovnik()->Pocitadlo : 0;
}

/// Takes a new list over; the cursor goes to the worker, or to the first row when he is not on it.
void TForm6::prijmi_seznam(std::vector<const RadekRegistru*> nove, std::int64_t pocitadlo) {
    radky = std::move(nove);
    ++vydani_seznamu;
    pocet_slovy = fmt::format("Zobrazeno {} z {}", radky.size(), registr_.pocet());
    const auto kde =
        std::ranges::find(radky, pocitadlo, [](const RadekRegistru* r) { return r->Pocitadlo; });
    vyber_radek(kde == radky.end() ? 0 : static_cast<int>(kde - radky.begin()));
}

/// Reads the cards again after a change of data. What is typed in the filter may be half of a
/// number, so the list follows the last filter that gave one.
void TForm6::znovu_otevri(std::int64_t pocitadlo) {
    radky.clear();
    radek = -1;
    registr_.nacti(session_);
    prijmi_seznam(registr_.vyber(session_, platny_filtr_), pocitadlo);
}

void TForm6::zmena_filtru() {
    std::vector<const RadekRegistru*> nove;
    try {
        nove = registr_.vyber(session_, filtr);
    } catch (const store::StoreError& chyba) {
        chyba_filtru = chyba.what();
        oznam_zmenu();
        return;
    }
    chyba_filtru.clear();
    platny_filtr_ = filtr;
    prijmi_seznam(std::move(nove), pocitadlo_radku());
}

void TForm6::scMajiDetiClick() {
    if (filtr.maji_deti) stranka = Stranka::deti;
    zmena_filtru();
}

void TForm6::scMajiEPodaniClick() {
    if (filtr.maji_epodani) stranka = Stranka::epodani;
    zmena_filtru();
}

void TForm6::cbVolitelneChange(std::size_t ktere) {
    VolitelneHledisko& volitelne = filtr.volitelne.at(ktere);
    if (volitelne.hledisko == 0) {
        volitelne.hodnota.clear();
    } else {
        fokus = fmt::format("edVolitelne{}", ktere + 1);
    }
    zmena_filtru();
}

void TForm6::acVseExecute() {
    const PoradiRegistru poradi = filtr.poradi;
    filtr = {};
    filtr.poradi = poradi;
    zmena_filtru();
}

void TForm6::vyber_radek(int novy) {
    radek = novy >= 0 && novy < static_cast<int>(radky.size()) ? novy : -1;
    nacti_stranku();
    oznam_zmenu();
}

// --- The card -----------------------------------------------------------------------------------

void TForm6::acPridatExecute() {
    if (ceka_na_obsluhu_) return;
    const base::Cekani cekani(ceka_na_obsluhu_);
    const std::int64_t puvodni = pocitadlo_radku();
    TForm7 karta(session_, vyber_kalendare_);
    karta.acPridatExecute();
    karta.FormShow();
    session_.obsluha().ukaz_modalne(karta);
    fokus = "mrizka";
    znovu_otevri(karta.ulozeno ? karta.Pocitadlo : puvodni);
}

void TForm6::acOpravitExecute() {
    if (ceka_na_obsluhu_ || !pracovnik()) return;
    const base::Cekani cekani(ceka_na_obsluhu_);
    const std::int64_t opravovany = pocitadlo_radku();
    TForm7 karta(session_, vyber_kalendare_);
    karta.acOpravitExecute(opravovany);
    karta.FormShow();
    session_.obsluha().ukaz_modalne(karta);
    fokus = "mrizka";
    znovu_otevri(opravovany);
}

void TForm6::seznam_dvojklik() {
    if (stranka != Stranka::ispv) acOpravitExecute();
}

/// `Pocitadlo` of the row below the cursor, of the one above where there is none below.
std::int64_t TForm6::sousedni_pocitadlo() const {
    const auto kde = static_cast<std::size_t>(radek);
    if (kde + 1 < radky.size()) return radky[kde + 1]->Pocitadlo;
    return kde > 0 ? radky[kde - 1]->Pocitadlo : 0;
}

/// Tells what stands in the way of the removal, or what goes with the worker.
bool TForm6::lze_smazat(std::int64_t cislo, bool& ma_udaje) {
    std::string text;
    if (byl_pracovnik_ve_vyplatach(session_, cislo, text)) {
        session_.obsluha().hlaska(
            fmt::format("Pracovníka číslo {} nelze vypustit, protože:\r\n{}", cislo, text));
        return false;
    }
    ma_udaje = je_pracovnik_ve_fixnich(session_, cislo, text);
    if (ma_udaje) {
        session_.obsluha().hlaska("POZOR:  \r\n" + text +
                                  "\r\n\r\nTyto hodnoty budou nyní vymazané.");
    }
    return true;
}

void TForm6::smaz_kartu(const RadekRegistru& kdo, bool ma_udaje) {
    store::Table karty;
    karty.set_connection(session_.data());
    karty.set_table_name("Os_karty");
    store::Transaction transakce(session_.data());
    if (ma_udaje) Vymaz_udaje_o_pracovnikovi(session_, kdo.Cislo);
    karty.open();
    if (karty.locate("Pocitadlo", kdo.Pocitadlo)) karty.remove();
    transakce.commit();
}

void TForm6::acSmazatExecute() {
    if (ceka_na_obsluhu_ || !pracovnik()) return;
    const base::Cekani cekani(ceka_na_obsluhu_);
    fokus = "mrizka";
    const RadekRegistru kdo = *pracovnik();
    bool ma_udaje = false;
    if (session_.obsluha().otazka_ano_ne("Opravdu chcete vypustit označeného pracovníka?",
                                         "Smazání záznamu") &&
        lze_smazat(kdo.Cislo, ma_udaje)) {
        const std::int64_t soused = sousedni_pocitadlo();
        smaz_kartu(kdo, ma_udaje);
        znovu_otevri(soused);
    } else {
        oznam_zmenu();
    }
}

// --- Print and the rest -------------------------------------------------------------------------

report::TabulkovaSestava TForm6::sestava() const {
    using enum report::Zarovnani;
    report::TabulkovaSestava s;
    s.nazev = "Pracovníci - " + session_.firma;
    const auto vyber = filtr_slovy(platny_filtr_, session_.ridici_zorv.volitelna_hlediska);
    if (!vyber.empty()) s.zahlavi.push_back(fmt::format("Výběr: {}", fmt::join(vyber, "; ")));
    s.zahlavi.push_back(fmt::format(
        "Třídění: {}", k_poradi_registru.at(static_cast<std::size_t>(platny_filtr_.poradi))));
    s.zahlavi.push_back(fmt::format("Dne {}, počet pracovníků: {}",
                                    base::datum_textem(session_.hodiny().dnes()), radky.size()));
    s.sloupce = {{"Číslo", 13, vpravo},     {"Příjmení", 36, vlevo},    {"Jméno", 26, vlevo},
                 {"Titul", 14, vlevo},      {"Rodné číslo", 27, vlevo}, {"Narozen", 19, vlevo},
                 {"Středisko", 17, vpravo}, {"Poměr od", 19, vlevo},    {"Poměr do", 19, vlevo}};
    for (const RadekRegistru* r : radky) {
        s.radky.push_back({std::to_string(r->Cislo), r->Prijmeni, r->Jmeno, r->Titul,
                           r->Rodne_cislo, r->Dat_nar_text, r->Stredisko, r->Zam_od, r->Zam_do});
    }
    return s;
}

void TForm6::acTiskniExecute() {
    if (ceka_na_obsluhu_) return;
    const base::Cekani cekani(ceka_na_obsluhu_);
    report::TFUsrPrev nahled(report::sestav_tabulku(sestava()));
    session_.obsluha().ukaz_modalne(nahled);
}

void TForm6::neni_soucasti(const char* co) {
    session_.obsluha().hlaska(fmt::format("{} není součástí této verze.", co));
}

void TForm6::acPrepocetDovoleneExecute() {
    neni_soucasti("Přepočet dovolené");
}

void TForm6::acZpetExecute() {
    zavreno = true;
    oznam_zmenu();
}

}  // namespace workers
