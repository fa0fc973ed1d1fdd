#include "wages/unit19_oprava.h"

#include <fmt/format.h>

#include "base/castky_text.h"
#include "base/cekani.h"
#include "base/datum.h"
#include "base/text.h"
#include "wages/unit90_davky.h"
#include "workers/vykony.h"

namespace wages {
namespace {

constexpr int k_modul_karanteny = 4;
constexpr int k_modul_nahrad = 5;

bool ma_bezny_tiskopis(int modul) {
    return modul == 1 || modul == 3;
}

std::string nebo_nic(const std::optional<Castka>& castka) {
    return castka ? base::castka_prosta(*castka) : "";
}

std::optional<Castka> nebo_nic(const std::string& text) {
    if (!base::neprazdny(text)) return std::nullopt;
    return base::je_desetinne_cislo(text);
}

}  // namespace

TForm19::TForm19(shell::Session& session, std::int64_t pocitadlo)
    : nahrady(session),
      session_(session),
      puvodni_(nacti_vetu_hrubych_mezd(session, session.zpracovavany_mesic, pocitadlo)) {}

void TForm19::FormShow() {
    const VetaHrube& v = puvodni_.veta;
    nadpis = "Oprava hrubé mzdy - " + base::mesic_slovy(puvodni_.mesic, session_.rok);
    lbPracovnik = fmt::format("{}  {} {}", puvodni_.cislo, puvodni_.prijmeni, puvodni_.jmeno);
    lbPolozka = fmt::format("Modul {}, sloupec {}: {}", v.modul, v.sloupec, v.sloupec_slovy);
    lbPuvodni = "Zapsáno  " + base::castka_s_carkou(0, 2, v.kc_cel) + " Kč";
    nacti_kartu();
    zvol_stranku();
    Udelej_kontrolu();
    oznam_zmenu();
}

/// The row's column as the pay sheet has it now; false when there is none any more.
bool TForm19::nacti_sloupec() {
    store::Query q(session_.data(),
                   "SELECT * FROM Ridici WHERE (Modul = :modul) AND (Sloupec = :sloupec) "
                   "ORDER BY Pocitadlo");
    q.set("modul", puvodni_.veta.modul).set("sloupec", puvodni_.veta.sloupec);
    q.open();
    if (!q.eof()) {
        sloupec = sloupec_hrube(q);
        return true;
    }
    sloupec.modul = puvodni_.veta.modul;
    sloupec.sloupec = puvodni_.veta.sloupec;
    sloupec.text = puvodni_.veta.sloupec_slovy;
    return false;
}

/// The worker's card; of a worker without one only the number is known.
void TForm19::nacti_kartu() {
    store::Query q(session_.data(),
                   "SELECT Pocitadlo FROM Os_karty WHERE Cislo = :cislo ORDER BY Pocitadlo");
    q.set("cislo", puvodni_.cislo);
    q.open();
    if (q.eof()) {
        karta_.cislo = puvodni_.cislo;
    } else {
        karta_ = nacti_kartu_zadani(session_, q.integer("Pocitadlo"));
    }
}

void TForm19::zvol_stranku() {
    const bool je_sloupec = nacti_sloupec();
    if (const auto detail = detail_nahrady(session_, puvodni_)) {
        stranka = Stranka::nahrady;
        nahrady.nacti(sloupec, *detail);
        fokus = "scCisloDokladu";
    } else if (je_sloupec && ma_bezny_tiskopis(sloupec.modul)) {
        stranka = Stranka::ostatni;
        ciselniky_ = {workers::Nacti_vykony(session_), Nacti_stroje(session_)};
        zadani = zadani_vety(sloupec, puvodni_.veta);
    } else {
        stranka = Stranka::castka;
        ukaz_castku();
    }
}

void TForm19::ukaz_castku() {
    const bool davka = sloupec.modul == k_modul_karanteny;
    dny_hodiny_viditelne = !davka;
    scDny = nebo_nic(pole_dnu(puvodni_.veta));
    scHodiny = nebo_nic(pole_hodin(puvodni_.veta));
    scKoruny = base::castka_prosta(puvodni_.veta.kc_cel);
    davky_povolene = davka && pasma_z_textu(puvodni_.veta.text).has_value();
    fokus = "scKoruny";
}

/// Where the row keeps its days: there they stand already, otherwise among those not worked for a
/// compensation and among the worked ones for anything else.
std::optional<Castka>& TForm19::pole_dnu(VetaHrube& veta) const {
    if (veta.dny_neod) return veta.dny_neod;
    return veta.dny_od || veta.modul != k_modul_nahrad ? veta.dny_od : veta.dny_neod;
}

std::optional<Castka>& TForm19::pole_hodin(VetaHrube& veta) const {
    if (veta.hod_vedl) return veta.hod_vedl;
    if (veta.hod_neod) return veta.hod_neod;
    return veta.hod_od || veta.modul != k_modul_nahrad ? veta.hod_od : veta.hod_neod;
}

void TForm19::DnyExit() {
    if (base::neprazdny(zadani.dny) && sloupec.jake_hodiny != 0 &&
        !base::neprazdny(zadani.hodiny)) {
        zadani.hodiny = hodiny_ze_dnu(zadani.dny, karta_);
    }
    poleExit();
}

void TForm19::DatumExit() {
    zadani.datum = uprav_datum(zadani.datum, puvodni_.mesic);
    poleExit();
}

void TForm19::poleExit() {
    Udelej_kontrolu();
    oznam_zmenu();
}

void TForm19::nahradyExit(PoleNahrad pole) {
    if (ceka_na_obsluhu_) return;
    const base::Cekani ceka(ceka_na_obsluhu_);
    nahrady.opusteni(pole, karta_);
    oznam_zmenu();
}

/// Days and hours within the limits of entry, and an amount.
std::vector<std::string> TForm19::kontrola_castky() const {
    if (sloupec.modul == k_modul_karanteny && puvodni_.veta.text.empty())
        return Udelej_kontrolu_karanteny(scKoruny);
    SloupecHrube meze;
    ZadaniPolozky z;
    z.dny = scDny;
    z.hodiny = scHodiny;
    meze.jake_dny = base::neprazdny(scDny) ? 1 : 0;
    meze.jake_hodiny = base::neprazdny(scHodiny) ? 1 : 0;
    auto chyby = Udelej_kontrolu_bezneho_tiskopisu(meze, z, ciselniky_, session_.rok);
    if (!base::neprazdny(scKoruny)) chyby.emplace_back("Není zadaná částka k výplatě.");
    return chyby;
}

void TForm19::Udelej_kontrolu() {
    if (stranka == Stranka::nahrady) return;
    if (stranka == Stranka::castka) {
        scChyby = kontrola_castky();
        celkem_ = base::je_desetinne_cislo(scKoruny);
    } else {
        scChyby = Udelej_kontrolu_bezneho_tiskopisu(sloupec, zadani, ciselniky_, session_.rok);
        celkem_ = proved_vypocet_na_beznem_tiskopisu(sloupec, zadani);
    }
    scChyby_viditelne = !scChyby.empty();
    lbCelkem = "Celkem  " + base::castka_s_carkou(0, 2, celkem_) + " Kč";
}

void TForm19::acDavkyExecute() {
    if (ceka_na_obsluhu_ || !davky_povolene) return;
    const base::Cekani ceka(ceka_na_obsluhu_);
    TForm90 davky(session_, puvodni_.veta.text);
    davky.FormShow();
    session_.obsluha().ukaz_modalne(davky);
    if (davky.ulozeno) {
        puvodni_.veta.text = davky.text;
        scKoruny = base::castka_prosta(davky.celkem);
    }
    fokus = "scKoruny";
    poleExit();
}

/// The row as it is going to be written.
VetaHrube TForm19::opravena() const {
    if (stranka == Stranka::ostatni) return veta_bezneho_tiskopisu(sloupec, zadani, celkem_);
    VetaHrube veta = puvodni_.veta;
    if (dny_hodiny_viditelne) {
        pole_dnu(veta) = nebo_nic(scDny);
        pole_hodin(veta) = nebo_nic(scHodiny);
    }
    veta.kc_cel = celkem_;
    return veta;
}

void TForm19::acUlozitExecute() {
    if (ceka_na_obsluhu_) return;
    const base::Cekani ceka(ceka_na_obsluhu_);
    Udelej_kontrolu();
    if (stranka == Stranka::nahrady) {
        if (!nahrady.over()) {
            fokus = "scCisloDokladu";
            oznam_zmenu();
            return;
        }
        nahrady.oprav(puvodni_.pocitadlo);
    } else {
        if (scChyby_viditelne) {
            session_.obsluha().pipni();
            oznam_zmenu();
            return;
        }
        store::Transaction transakce(session_.data());
        oprav_vetu_hrubych_mezd(session_, puvodni_.mesic, puvodni_.pocitadlo, opravena());
        transakce.commit();
    }
    zmeneno = zavreno = true;
    oznam_zmenu();
}

void TForm19::acZpetExecute() {
    if (ceka_na_obsluhu_) return;
    zavreno = true;
    oznam_zmenu();
}

}  // namespace wages
