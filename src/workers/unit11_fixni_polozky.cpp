#include "workers/unit11_fixni_polozky.h"

#include <algorithm>
#include <fmt/format.h>

#include "base/cekani.h"
#include "base/klavesy.h"
#include "base/text.h"
#include "report/nahled.h"
#include "workers/fixni.h"
#include "workers/fixni_hromadne.h"
#include "workers/fixni_sestava.h"
#include "workers/unit12_fixni_polozka.h"
#include "workers/unit75_oprava_korun.h"

namespace workers {

namespace {

std::string co_bude_s_platbou(const BankovniSpojeni& spojeni) {
    if (ucet_mimo_prikaz(spojeni.Ucet)) return "Na bankovní příkaz se neuvádí.";
    if (!base::neprazdny(spojeni.Ucet)) return "Bankovní spojení není zadáno.";
    return "";
}

}  // namespace

TForm11::TForm11(shell::Session& session)
    : nadpis("Fixní položky - " + session.radek_firmy), session_(session) {}

void TForm11::FormShow() {
    obnov(0);
    fokus = "mrizka";
    oznam_zmenu();
}

std::int64_t TForm11::pocitadlo_radku() const {
    return radek < 0 ? 0 : vety[static_cast<std::size_t>(radek)].pocitadlo;
}

/// Reads the rows and sums anew and returns the cursor to a row; when it is gone, the cursor stays
/// at its place in the grid.
void TForm11::obnov(std::int64_t pocitadlo) {
    const int misto = std::max(radek, 0);
    vety = nacti_fixni(session_, omezeni, zvolene_trideni());
    ++vydani;
    lbOmezeni = jake_omezeni(omezeni);
    Pocitej_Query_na_Form11();
    const auto kde = std::find_if(vety.begin(), vety.end(), [pocitadlo](const RadekFixnich& r) {
        return r.pocitadlo == pocitadlo;
    });
    vyber_radek(kde != vety.end() ? static_cast<int>(kde - vety.begin())
                                  : std::min(misto, static_cast<int>(vety.size()) - 1));
}

void TForm11::Pocitej_Query_na_Form11() {
    soucty = soucty_fixnich(session_, omezeni);
}

void TForm11::vyber_radek(int novy) {
    radek = novy >= 0 && novy < static_cast<int>(vety.size()) ? novy : -1;
    penize = radek < 0 ? BankovniSpojeni{} : vety[static_cast<std::size_t>(radek)].spojeni;
    penize_slovy = radek < 0 ? "" : co_bude_s_platbou(penize);
    oznam_zmenu();
}

void TForm11::TrideniZmena() {
    obnov(pocitadlo_radku());
}

void TForm11::OmezeniZmena() {
    obnov(pocitadlo_radku());
}

void TForm11::acVseExecute() {
    omezeni = {};
    obnov(pocitadlo_radku());
}

void TForm11::ukaz_polozku(std::int64_t pocitadlo) {
    if (ceka_na_obsluhu_) return;
    const base::Cekani cekani(ceka_na_obsluhu_);
    TForm12 polozka(session_, pocitadlo);
    polozka.FormShow();
    session_.obsluha().ukaz_modalne(polozka);
    obnov(polozka.ulozeno ? polozka.Pocitadlo : pocitadlo_radku());
    fokus = "mrizka";
    oznam_zmenu();
}

void TForm11::acPridatExecute() {
    ukaz_polozku(0);
}

void TForm11::acOpravitExecute() {
    if (radek >= 0) ukaz_polozku(pocitadlo_radku());
}

void TForm11::acSmazatExecute() {
    if (ceka_na_obsluhu_ || radek < 0) return;
    const base::Cekani cekani(ceka_na_obsluhu_);
    smaz_fixni_polozku(session_, pocitadlo_radku());
    obnov(pocitadlo_radku());
    fokus = "mrizka";
    oznam_zmenu();
}

void TForm11::acSumarizaceExecute() {
    sumarizace_viditelna = !sumarizace_viditelna;
    oznam_zmenu();
}

void TForm11::acKamPenizeExecute() {
    penize_viditelne = !penize_viditelne;
    oznam_zmenu();
}

void TForm11::acHromadnaOpravaExecute() {
    if (ceka_na_obsluhu_) return;
    const base::Cekani cekani(ceka_na_obsluhu_);
    TForm75 oprava(session_, omezeni, zvolene_trideni());
    oprava.FormShow();
    session_.obsluha().ukaz_modalne(oprava);
    obnov(pocitadlo_radku());
}

/// The range test of the bulk operations.
bool TForm11::over_sloupec(const std::string& text, const char* pole) {
    if (sloupec_fixnich(session_.ridici_zorv, base::je_cele_cislo(text))) return true;
    session_.obsluha().hlaska(
        fmt::format("Sloupec {} neodpovídá intervalu dávek ani srážek.", base::orez(text)));
    fokus = pole;
    oznam_zmenu();
    return false;
}

/// The end of a bulk operation: the list is shown anew, then the message.
void TForm11::ohlas(const std::string& zprava) {
    obnov(pocitadlo_radku());
    session_.obsluha().hlaska(zprava);
}

void TForm11::btPridejClick() {
    if (ceka_na_obsluhu_) return;
    const base::Cekani cekani(ceka_na_obsluhu_);
    for (const auto& [pole, text] :
         {std::pair{"pridej_od", &pridej_od}, std::pair{"pridej_do", &pridej_do}}) {
        if (base::neprazdny(*text)) continue;
        session_.obsluha().hlaska("Nezadali jste interval pracovníků.");
        fokus = pole;
        oznam_zmenu();
        return;
    }
    if (!over_sloupec(pridej_sloupec, "pridej_sloupec")) return;
    const int sloupec = base::je_cele_cislo(pridej_sloupec);
    const int vet = pridej_fixni(session_, base::je_cele_cislo(pridej_od),
                                 base::je_cele_cislo(pridej_do), sloupec);
    ohlas(
        fmt::format("Fixní položky (bez korun) pro sloupec {} byly zapsány.\r\n\r\n"
                    "Počet zapsaných vět: {}.",
                    sloupec, vet));
}

void TForm11::btVynulujClick() {
    if (ceka_na_obsluhu_) return;
    const base::Cekani cekani(ceka_na_obsluhu_);
    if (!over_sloupec(pro_sloupec, "pro_sloupec")) return;
    const int sloupec = base::je_cele_cislo(pro_sloupec);
    const int vet = vynuluj_fixni(session_, sloupec);
    ohlas(
        fmt::format("Fixní položky ve sloupci {} byly vynulovány.\r\n\r\n"
                    "Počet vynulovaných vět: {}.",
                    sloupec, vet));
}

void TForm11::btSmazZaznamClick() {
    if (ceka_na_obsluhu_) return;
    const base::Cekani cekani(ceka_na_obsluhu_);
    if (!over_sloupec(pro_sloupec, "pro_sloupec")) return;
    const int sloupec = base::je_cele_cislo(pro_sloupec);
    const std::string otazka = fmt::format(
        "Opravdu chcete vypustit všechny položky ze sloupce {}?\r\n\r\n"
        "(Vypuštěním zrušíte všechny hodnoty včetně bankovního spojení).",
        sloupec);
    if (!session_.obsluha().otazka_ano_ne(otazka, "Smazání fixních položek")) return;
    const int vet = smaz_fixni(session_, sloupec);
    ohlas(
        fmt::format("Fixní položky ve sloupci {} byly vypuštěny ze souboru.\r\n\r\n"
                    "Počet vypuštěných vět: {}.",
                    sloupec, vet));
}

void TForm11::acTiskExecute() {
    if (ceka_na_obsluhu_) return;
    const base::Cekani cekani(ceka_na_obsluhu_);
    report::TFUsrPrev nahled(sestava_fixnich(session_, vety, zvolene_trideni(), lbOmezeni));
    session_.obsluha().ukaz_modalne(nahled);
}

void TForm11::acZpetExecute() {
    if (ceka_na_obsluhu_) return;
    zavreno = true;
    oznam_zmenu();
}

bool TForm11::povol_klavesu_pracovnika(char znak, std::string_view dosud) const {
    return pipni_kdyz(!base::hlidej_cele_cislo_klavesy(znak, dosud, base::ZnamenkoRezim::bez_minus,
                                                       k_cislic_pracovnika));
}

bool TForm11::povol_klavesu_sloupce(char znak, std::string_view dosud) const {
    return pipni_kdyz(!base::hlidej_cele_cislo_klavesy(znak, dosud, base::ZnamenkoRezim::bez_minus,
                                                       k_cislic_sloupce));
}

bool TForm11::pipni_kdyz(bool odmitnuto) const {
    if (odmitnuto) session_.obsluha().pipni();
    return !odmitnuto;
}

}  // namespace workers
