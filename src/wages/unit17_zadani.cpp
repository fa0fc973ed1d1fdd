// TForm17: opening, the two grids, which page is shown, writing.
#include "wages/unit17_zadani.h"

#include <algorithm>
#include <fmt/format.h>
#include <unordered_map>

#include "base/cekani.h"
#include "base/datum.h"
#include "base/text.h"
#include "store/catalogue.h"
#include "wages/hromadne_obrazovka.h"
#include "wages/unit18_prohlizeni.h"
#include "wages/unit20_sumarizace.h"
#include "wages/unit43_vykony.h"
#include "wages/unit_nahrady_prehled.h"
#include "workers/vykony.h"

namespace wages {
namespace {

constexpr int k_modul_karanteny = 4;
constexpr int k_modul_nahrad = 5;
constexpr const char* k_karantena = "Karanténa příspěvek";
constexpr const char* k_panel_pracovniku = "pracovnici";
constexpr const char* k_panel_sloupcu = "sloupce";

/// Sums of `kc_cel` by a whole-number field.
std::unordered_map<std::int64_t, Castka> soucty(store::Query& q, const char* klic) {
    std::unordered_map<std::int64_t, Castka> vysledek;
    for (q.open(); !q.eof(); q.next())
        vysledek[q.integer(klic)] = static_cast<Castka>(q.number("soucet"));
    return vysledek;
}

Castka najdi(const std::unordered_map<std::int64_t, Castka>& soucty, std::int64_t klic) {
    const auto nalezeny = soucty.find(klic);
    return nalezeny == soucty.end() ? 0 : nalezeny->second;
}

}  // namespace

TForm17::TForm17(shell::Session& session, VazbyZadani vazby)
    : nahrady(session), nemoc(session), session_(session), vazby_(std::move(vazby)) {}

bool TForm17::FormShow() {
    nadpis = base::mesic_slovy(session_.zpracovavany_mesic, session_.rok);
    registr_.nacti(session_);
    if (registr_.pocet() == 0) {
        session_.obsluha().hlaska("V kartotéce není žádný pracovník - nelze zadávat hrubé zorv.");
        return false;
    }
    ciselniky_ = {workers::Nacti_vykony(session_), Nacti_stroje(session_)};
    const shell::PomocnyRidici& volby = session_.pomocny_ridici;
    stredisko_z_karty = volby.hrube_z_karty_1;
    stredisko_po_f2_nech = volby.hrube_po_f2_nech_1;
    vykon_z_karty = volby.hrube_z_karty_2;
    vykon_po_f2_nech = volby.hrube_po_f2_nech_2;
    po_zapisu_zvolit = static_cast<PoZapisu>(std::clamp<int>(volby.hrube_fokus, 1, 3));
    nemoc.vymaz();
    nacti_sloupce();
    Filtruj_adresy();
    if (!sloupce.empty()) vyber_sloupec(0);
    fokus = k_panel_pracovniku;
    zmeneno = false;
    return true;
}

void TForm17::nacti_sloupce() {
    const shell::Nastaveni& n = session_.nastaveni;
    store::Query q(session_.data(),
                   fmt::format("select * from ridici where ((modul=1) or (modul=3) or (modul=4) or "
                               "( (modul=5) and ((sloupec={}) or (sloupec={}) or (sloupec={}) or "
                               "(sloupec={})) )) order by modul,sloupec,Pocitadlo",
                               n.NahradaNemocSloupec, n.NahradaKarantenaSloupec,
                               n.NahradaOCRSloupec, n.NahradaPPMSloupec));
    sloupce.clear();
    for (q.open(); !q.eof(); q.next())
        sloupce.push_back({sloupec_hrube(q), 0});
    ++vydani_sloupcu;
}

void TForm17::Filtruj_adresy() {
    const std::int64_t puvodni = karta_.Pocitadlo;
    workers::FiltrRegistru f;
    f.poradi = trideni;
    if (base::cele_cislo_z_textu(base::orez(filtr))) {
        f.cislo = base::orez(filtr);
    } else {
        f.jmeno = filtr;
    }
    pracovnici.clear();
    for (const workers::RadekRegistru* karta : registr_.vyber(session_, f))
        pracovnici.push_back({karta, 0});
    nacti_soucty_pracovniku();
    const auto stejny =
        std::find_if(pracovnici.begin(), pracovnici.end(),
                     [puvodni](const PracovnikZadani& p) { return p.karta->Pocitadlo == puvodni; });
    const auto misto = stejny == pracovnici.end() ? pracovnici.begin() : stejny;
    vyber_pracovnika(pracovnici.empty() ? -1 : static_cast<int>(misto - pracovnici.begin()));
}

void TForm17::btXClick() {
    filtr.clear();
    Filtruj_adresy();
}

void TForm17::nacti_soucty_pracovniku() {
    store::Query q(session_.data(), "select cislo_pracovnika, sum(kc_cel) as soucet from " +
                                        store::month_table("Hrube", session_.zpracovavany_mesic) +
                                        " group by cislo_pracovnika");
    const auto podle_cisla = soucty(q, "cislo_pracovnika");
    for (PracovnikZadani& p : pracovnici)
        p.koruny = najdi(podle_cisla, p.karta->Cislo);
    ++vydani_pracovniku;
}

void TForm17::nacti_soucty_sloupcu() {
    store::Query q(session_.data(),
                   "select cislo_pracovnika, sloupec, sum(kc_cel) as soucet from " +
                       store::month_table("Hrube", session_.zpracovavany_mesic) +
                       " where cislo_pracovnika = :cislo group by cislo_pracovnika, sloupec");
    q.set("cislo", karta_.cislo);
    const auto podle_sloupce = soucty(q, "sloupec");
    for (SloupecZadani& s : sloupce)
        s.koruny = najdi(podle_sloupce, s.sloupec.sloupec);
    ++vydani_sloupcu;
}

void TForm17::vyber_pracovnika(int radek) {
    pracovnik = radek;
    const std::int64_t dosavadni = karta_.Pocitadlo;
    karta_ = radek < 0
                 ? KartaZadani{}
                 : nacti_kartu_zadani(session_,
                                      pracovnici[static_cast<std::size_t>(radek)].karta->Pocitadlo);
    // What stands on the page was computed from the calendars and the average of another worker.
    if (karta_.Pocitadlo != dosavadni && stranka == Stranka::nahrady) nahrady.vymaz();
    nacti_soucty_sloupcu();
    Udelej_kontrolu();
    oznam_zmenu();
}

const SloupecHrube* TForm17::zvoleny() const {
    return sloupec < 0 ? nullptr : &sloupce[static_cast<std::size_t>(sloupec)].sloupec;
}

void TForm17::vyber_sloupec(int radek) {
    sloupec = radek;
    zapsat_viditelne = true;
    const SloupecHrube* s = zvoleny();
    if (!s) return;
    if (s->modul == k_modul_nahrad) {
        stranka = Stranka::nahrady;
        nahrady.zvol_sloupec(*s);
        scChyby_viditelne = po_zapisu_viditelne = zapsat_viditelne = false;
    } else if (s->modul == k_modul_karanteny) {
        stranka = Stranka::karantena;
        karantena_kc = "0";
    } else {
        stranka = Stranka::ostatni;
    }
    Udelej_kontrolu();
    oznam_zmenu();
}

void TForm17::nahradyExit(PoleNahrad pole) {
    if (ceka_na_obsluhu_) return;
    const base::Cekani ceka(ceka_na_obsluhu_);
    nahrady.opusteni(pole, karta_);
    oznam_zmenu();
}

void TForm17::acZapsatNahrady() {
    if (pracovnik < 0 || ceka_na_obsluhu_) return;
    const base::Cekani ceka(ceka_na_obsluhu_);
    if (nahrady.over()) {
        nahrady.zapis(karta_);
        nahrady.vymaz();
        nacti_soucty_pracovniku();
        nacti_soucty_sloupcu();
    }
    fokus = "scCisloDokladu";
    oznam_zmenu();
}

/// Writes the item of the page at hand and marks the month.
void TForm17::zapis_polozku() {
    const SloupecHrube& s = *zvoleny();
    VetaHrube veta;
    if (s.modul == k_modul_karanteny) {
        veta.modul = s.modul;
        veta.sloupec = s.sloupec;
        veta.sloupec_slovy = k_karantena;
        veta.dny_neod = veta.hod_neod = 0;
        veta.kc_cel = base::je_desetinne_cislo(karantena_kc);
    } else {
        veta = veta_bezneho_tiskopisu(s, zadani, celkem_);
    }
    store::Transaction transakce(session_.data());
    zapis_vetu_hrubych_mezd(session_, session_.zpracovavany_mesic, karta_, veta);
    transakce.commit();
    zmeneno = true;
}

void TForm17::Button2Click() {
    const SloupecHrube* s = zvoleny();
    if (!s || pracovnik < 0 || !zapsat_povoleno || !zapsat_viditelne || ceka_na_obsluhu_) return;
    // From the page of the old benefits this button means the allowance, which may not be filled.
    if (s->modul == k_modul_karanteny && !projde(Stranka::karantena)) return;
    zapis_polozku();
    if (s->modul == k_modul_karanteny) {
        karantena_kc = "0";
    } else {
        zadani.dny.clear();
        zadani.hodiny.clear();
        zadani.stroj.clear();
        zadani.text.clear();
        zadani.hodnoty.fill("");
        if (!stredisko_po_f2_nech) zadani.stredisko.clear();
        if (!vykon_po_f2_nech) zadani.vykon.clear();
    }
    po_zapisu();
}

void TForm17::Button3Click() {
    const SloupecHrube* s = zvoleny();
    if (!s || pracovnik < 0 || !zapsat_viditelne || ceka_na_obsluhu_) return;
    const base::Cekani ceka(ceka_na_obsluhu_);
    if (s->modul == k_modul_karanteny) {
        if (!base::neprazdny(nemoc.scKVyplate)) {
            stranka = Stranka::nemoc_2008;
            session_.obsluha().hlaska("Nezadali jste koruny u sociálních dávek.");
            fokus = "scKVyplate";
            oznam_zmenu();
            return;
        }
        if (!projde(Stranka::nemoc_2008)) return;
        store::Transaction transakce(session_.data());
        zapis_vetu_hrubych_mezd(session_, session_.zpracovavany_mesic, karta_,
                                nemoc.veta(*s, karta_));
        transakce.commit();
        zmeneno = true;
    } else {
        if (!zapsat_povoleno) return;
        zapis_polozku();
    }
    session_.obsluha().hlaska("Věta byla zapsaná do souboru.");
    po_zapisu();
}

/// Shows the page with its check; true when nothing stands against writing it.
bool TForm17::projde(Stranka ktera) {
    stranka = ktera;
    Udelej_kontrolu();
    if (!scChyby_viditelne) return true;
    fokus = prvni_pole();
    oznam_zmenu();
    return false;
}

/// Sums anew, the check of what is left in the inputs, the focus where the operator wants it.
void TForm17::po_zapisu() {
    nacti_soucty_pracovniku();
    nacti_soucty_sloupcu();
    Udelej_kontrolu();
    jdi_na(po_zapisu_zvolit);
}

void TForm17::acKlavesaF2() {
    if (stranka == Stranka::nahrady) {
        acZapsatNahrady();
    } else if (!scChyby_viditelne) {
        Button2Click();
    }
}

void TForm17::jdi_na(PoZapisu kam) {
    fokus = kam == PoZapisu::panel_pracovniku ? k_panel_pracovniku
            : kam == PoZapisu::panel_sloupcu  ? k_panel_sloupcu
                                              : prvni_pole();
    oznam_zmenu();
}

void TForm17::acVolitPracovnika() {
    jdi_na(PoZapisu::panel_pracovniku);
}
void TForm17::acVolitDruh() {
    jdi_na(PoZapisu::panel_sloupcu);
}
void TForm17::acZadavatUdaje() {
    jdi_na(PoZapisu::zadani);
}

std::string TForm17::prvni_pole() const {
    if (stranka == Stranka::nahrady) return "scCisloDokladu";
    if (stranka == Stranka::karantena) return "scKarantena";
    if (stranka == Stranka::nemoc_2008) return "scDoklad";
    const SloupecHrube* s = zvoleny();
    if (!s) return k_panel_sloupcu;
    const std::pair<bool, const char*> pole[] = {{s->jake_dny != 0, "scDny"},
                                                 {s->jake_hodiny != 0, "scHodiny"},
                                                 {s->datum, "scDatum"},
                                                 {s->stredisko, "scStredisko"},
                                                 {s->vykon, "scVykon"},
                                                 {s->stroj, "scStroj"},
                                                 {s->hodnoty[0].zadava_se(), "scHodnota1"},
                                                 {s->hodnoty[1].zadava_se(), "scHodnota2"},
                                                 {s->hodnoty[2].zadava_se(), "scHodnota3"},
                                                 {s->hodnoty[3].zadava_se(), "scHodnota4"}};
    const auto* prvni =
        std::find_if(std::begin(pole), std::end(pole), [](const auto& p) { return p.first; });
    return prvni == std::end(pole) ? "scText" : prvni->second;
}

/// Where the cursor goes is deliberately told by the order of workers, not by "Po zápisu zvolit".
void TForm17::smazat_zadani() {
    zadani = {};
    nemoc.vymaz();
    karantena_kc = "0";
    Udelej_kontrolu();
    if (trideni != workers::PoradiRegistru::datum_narozeni) {
        jdi_na(static_cast<PoZapisu>(static_cast<int>(trideni) + 1));
    } else {
        oznam_zmenu();
    }
}

void TForm17::kalkulacka_cssz() {
    session_.obsluha().otevri_soubor(
        (session_.slozka_programu / "Sablony" / "Kalkulacka_karantena_2022.xlsm").string());
}

void TForm17::acZeSouboru() {
    if (ceka_na_obsluhu_) return;
    const base::Cekani ceka(ceka_na_obsluhu_);
    TFHromadneZadani hromadne(session_);
    hromadne.FormShow();
    session_.obsluha().ukaz_modalne(hromadne);
    if (!hromadne.zmeneno) return;
    zmeneno = true;
    nacti_soucty_pracovniku();
    nacti_soucty_sloupcu();
    oznam_zmenu();
}

void TForm17::acBlok() {
    if (ceka_na_obsluhu_ || !vazby_.blok) return;
    const base::Cekani ceka(ceka_na_obsluhu_);
    vazby_.blok(session_);
}

void TForm17::acNahrady() {
    if (ceka_na_obsluhu_) return;
    const base::Cekani ceka(ceka_na_obsluhu_);
    TFNahrady prehled(session_);
    prehled.FormShow();
    session_.obsluha().ukaz_modalne(prehled);
}

void TForm17::acProhlizeniMezd() {
    if (ceka_na_obsluhu_ || !vazby_.prohlizeni_mezd) return;
    const base::Cekani ceka(ceka_na_obsluhu_);
    vazby_.prohlizeni_mezd(session_);
}

void TForm17::acProhlizeni() {
    if (ceka_na_obsluhu_) return;
    const base::Cekani ceka(ceka_na_obsluhu_);
    FiltrHrubych filtr_vet;
    if (pracovnik >= 0) filtr_vet.pracovnik = std::to_string(karta_.cislo);
    TForm18 prohlizeni(session_, filtr_vet);
    prohlizeni.FormShow();
    session_.obsluha().ukaz_modalne(prohlizeni);
    po_opravach(prohlizeni.zmeneno, prohlizeni.zmenene_mesice);
}

void TForm17::acSumarizace() {
    if (ceka_na_obsluhu_) return;
    const base::Cekani ceka(ceka_na_obsluhu_);
    TForm20 sumarizace(session_);
    sumarizace.FormShow();
    session_.obsluha().ukaz_modalne(sumarizace);
    po_opravach(sumarizace.zmeneno, sumarizace.zmenene_mesice);
}

/// Takes over what was corrected on a screen opened from here.
void TForm17::po_opravach(bool opraveno, const std::set<int>& mesice) {
    zmeneno = zmeneno || opraveno;
    zmenene_mesice.insert(mesice.begin(), mesice.end());
    nacti_soucty_pracovniku();
    nacti_soucty_sloupcu();
    oznam_zmenu();
}

void TForm17::acVykony() {
    if (ceka_na_obsluhu_) return;
    const base::Cekani ceka(ceka_na_obsluhu_);
    TForm43 vykony(session_, ciselniky_.vykony);
    vykony.FormShow(zadani.vykon);
    session_.obsluha().ukaz_modalne(vykony);
    const SloupecHrube* s = zvoleny();
    if (vykony.zvoleny && s && s->vykon) {
        zadani.vykon = *vykony.zvoleny;
        Udelej_kontrolu();
        fokus = "scVykon";
    }
    oznam_zmenu();
}

/// Leaving keeps the preferences for the next run of the program.
void TForm17::acZpet() {
    if (ceka_na_obsluhu_) return;
    shell::PomocnyRidici& volby = session_.pomocny_ridici;
    volby.hrube_z_karty_1 = stredisko_z_karty;
    volby.hrube_po_f2_nech_1 = stredisko_po_f2_nech;
    volby.hrube_z_karty_2 = vykon_z_karty;
    volby.hrube_po_f2_nech_2 = vykon_po_f2_nech;
    volby.hrube_fokus = static_cast<std::uint8_t>(po_zapisu_zvolit);
    shell::zapis_zaznam(session_.cesta_dat / "rid_pom.idx", shell::bajty(volby));
    zavreno = true;
    oznam_zmenu();
}

}  // namespace wages
