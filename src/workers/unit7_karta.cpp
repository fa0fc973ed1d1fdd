#include "workers/unit7_karta.h"

#include <fmt/format.h>

#include "base/castky_text.h"
#include "base/cekani.h"
#include "base/chyba.h"
#include "base/text.h"
#include "workers/unit7_osoba.h"
#include "workers/unit7_vyber_pracovnika.h"

namespace workers {
namespace {

constexpr int k_dan_srazkova_u_dohod = 1;  ///< place of the item in the list of taxes
constexpr int k_muz = 0;                   ///< the same in the list of sexes

const PoleKarty& pole_ovladace(std::string_view ovladac) {
    return pole_karty()[poradi_pole(ovladac)];
}

std::string jmeno_nebo_nic(const PojistovnaKarty* pojistovna) {
    return pojistovna ? pojistovna->nazev : "";
}

}  // namespace

TForm7::TForm7(shell::Session& session, VyberKalendare vyber_kalendare)
    : session_(session),
      vyber_kalendare_(std::move(vyber_kalendare)),
      ciselniky_(session),
      podklady_(session),
      ostatni_(session.data()) {
    nadpis_minuly_rok = fmt::format("Minulý rok {}", session.rok - 1);
    nadpis_aktualni_rok = fmt::format("Aktuální rok {}", session.rok);
}

void TForm7::acPridatExecute() {
    Pocitadlo = 0;
    hodnoty = nova_karta(session_, ciselniky_);
    Nastav_vychozi_hodnoty();
}

void TForm7::acOpravitExecute(std::int64_t pocitadlo) {
    store::Query dotaz(session_.data(), "SELECT * FROM Os_karty WHERE Pocitadlo = :veta");
    dotaz.set("veta", pocitadlo);
    dotaz.open();
    if (dotaz.eof()) {
        throw base::ChybaDat(
            fmt::format("Tabulka Os_karty: karta s počitadlem {} neexistuje.", pocitadlo));
    }
    Pocitadlo = pocitadlo;
    hodnoty = CtenarKaret(dotaz).precti(ciselniky_);
    Nastav_vychozi_hodnoty();
}

void TForm7::Nastav_vychozi_hodnoty() {
    puvodni_ = totoznost();
    posledni_chyba_ = -1;
    jdi_na("Cislo");
}

void TForm7::FormShow() {
    zkontroluj();
}

Totoznost TForm7::totoznost() const {
    return {hodnoty.cislo("Cislo"), hodnoty.text("Prijmeni"), hodnoty.text("Jmeno"),
            hodnoty.text("Titul")};
}

void TForm7::zkontroluj() {
    chyby = hledej_chyby(hodnoty, podklady_);
    napovedy = najdi_napovedy(hodnoty, podklady_, ostatni_, session_.hodiny().dnes());
    ulozit_povoleno = chyby.empty();
    poznamka_dane_viditelna = hodnoty["Jaka_dan"].index == k_dan_srazkova_u_dohod;
    pocet_deti_povolen = hodnoty["CSSZ102"].index != k_muz;
    obnov_jmena();
    obnov_nadpis();
    oznam_zmenu();
}

void TForm7::obnov_jmena() {
    jmeno_pojistovny = jmeno_nebo_nic(hodnoty.zadano("Cislo_zdrav_poj")
                                          ? podklady_.pojistovna(hodnoty.cislo("Cislo_zdrav_poj"))
                                          : nullptr);
    jmeno_fondu = jmeno_nebo_nic(podklady_.pojistovna(hodnoty.cislo("Cislo_penz_fondu")));
    const std::string* platce = ostatni_.jmeno(hodnoty.cislo("Kdo_plati_dan"));
    jmeno_platce_dane = platce ? *platce : "";
}

void TForm7::obnov_nadpis() {
    nadpis = nadpis_karty(hodnoty);
    if (nadpis.empty()) nadpis = Pocitadlo == 0 ? "Nový záznam" : "Oprava záznamu";
}

void TForm7::psani(std::string_view ovladac, const std::string& text) {
    if (nereaguje()) return;
    const DruhPoleKarty druh = pole_ovladace(ovladac).druh;
    std::string& hodnota = hodnoty[ovladac].text;
    hodnota = druh == DruhPoleKarty::datum   ? datum_pri_psani(text)
              : druh == DruhPoleKarty::velka ? base::velkymi(text)
                                             : text;
    obnov_nadpis();
    oznam_zmenu();
}

void TForm7::vstup_do_pole(std::string_view ovladac) {
    if (nereaguje()) return;
    aktivni_pole_ = ovladac;
    const bool prazdne = !hodnoty[ovladac].je_zadana();
    if (prazdne && (ovladac == "CSSZ105" || ovladac == "CSSZ107")) {
        hodnoty[ovladac].text = hodnoty.text("CSSZ101");
        vybrat_text = ovladac;
    } else if (prazdne && ovladac == "CSSZ114") {
        Pocatek_vydelecne_cinnosti(hodnoty.text("Zam_od"), hodnoty[ovladac].text);
    }
    panel_sazby_pf_viditelny = ovladac == "penz_fond_podnik_sazba";
    oznam_zmenu();
}

void TForm7::opusteni_pole(std::string_view ovladac) {
    if (nereaguje()) return;
    po_opusteni(ovladac);
    zkontroluj();
}

void TForm7::po_opusteni(std::string_view ovladac) {
    aktivni_pole_.clear();
    panel_sazby_pf_viditelny = false;
    if (ovladac == "Rodne_cislo") {
        hodnoty["CSSZ102"].index = urci_pohlavi(hodnoty.text("Rodne_cislo"));
    } else if (ovladac == "Cislo_penz_fondu" && !hodnoty.zadano("Cislo_penz_fondu")) {
        hodnoty["penz_fond_podnik_sazba"].text.clear();
        hodnoty["penz_fond_podnik_smlouva"].text.clear();
    }
}

void TForm7::zmena_volby(std::string_view ovladac) {
    if (nereaguje()) return;
    if (ovladac == "Invalidita") {
        hodnoty["Odp_invalidita"].text =
            std::to_string(sleva_na_invaliditu(hodnoty["Invalidita"].index, session_.nastaveni));
    }
    zkontroluj();
}

void TForm7::acRpdExecute() {
    zvol_kalendar("Id_rpd", session_.rok, "Musíte vybrat kalendář aktuálního roku.");
}

void TForm7::acRpdMinExecute() {
    zvol_kalendar("Id_rpd_min", session_.rok - 1, "Musíte vybrat kalendář minulého roku.");
}

void TForm7::zvol_kalendar(const char* ovladac, int rok, const char* hlaska) {
    if (zaneprazdnen_) return;
    const base::Cekani cekani(zaneprazdnen_);
    const auto kalendar = vyber_kalendare_(session_);
    if (!kalendar) return;
    if (kalendar->rok != rok) {
        session_.obsluha().hlaska(hlaska);
        return;
    }
    hodnoty[ovladac].cislo = kalendar->pocitadlo;
    hodnoty[ovladac].text = kalendar_textem(kalendar->rok, kalendar->nazev);
    oznam_zmenu();
}

void TForm7::btRpdXClick() {
    smaz_kalendar("Id_rpd");
}

void TForm7::btRpdMinXClick() {
    smaz_kalendar("Id_rpd_min");
}

void TForm7::smaz_kalendar(const char* ovladac) {
    if (zaneprazdnen_) return;
    hodnoty[ovladac].cislo = 0;
    hodnoty[ovladac].text = k_vyberte_kalendar;
    oznam_zmenu();
}

void TForm7::btKdoPlatiDanClick() {
    if (zaneprazdnen_) return;
    {
        const base::Cekani cekani(zaneprazdnen_);
        TFVyberPracovnika vyber(session_, hodnoty.cislo("Kdo_plati_dan"));
        vyber.FormShow();
        session_.obsluha().ukaz_modalne(vyber);
        if (vyber.zvoleno == 0) return;
        hodnoty["Kdo_plati_dan"].text = std::to_string(vyber.zvoleno);
    }
    zkontroluj();
}

void TForm7::acPrepocetExecute() {
    if (zaneprazdnen_) return;
    hodnoty["Dovolena_narok"].text = base::castka_prosta(narok_dovolene(
        session_.rok, hodnoty.text("Zam_od"), hodnoty.text("Zam_do"),
        session_.nastaveni.tydnu_dovolene, base::je_desetinne_cislo(hodnoty.text("tpd"))));
    oznam_zmenu();
}

void TForm7::jdi_na(std::string_view ovladac) {
    stranka = pole_ovladace(ovladac).stranka;
    fokus = ovladac;
}

void TForm7::vyber_chybu(int radek) {
    const int chyb = static_cast<int>(chyby.size());
    if (radek < 0 || radek >= chyb + static_cast<int>(napovedy.size())) return;
    posledni_chyba_ = radek;
    const auto& seznam = radek < chyb ? chyby : napovedy;
    jdi_na(seznam[static_cast<std::size_t>(radek < chyb ? radek : radek - chyb)].ovladac);
    oznam_zmenu();
}

void TForm7::dalsi_chyba() {
    const int vsech = static_cast<int>(chyby.size() + napovedy.size());
    if (vsech > 0) vyber_chybu((posledni_chyba_ + 1) % vsech);
}

bool TForm7::pracovnik_uz_existuje() {
    const int cislo = hodnoty.cislo("Cislo");
    if (cislo == puvodni_.cislo) return false;
    store::Query dotaz(session_.data(), "select cislo from Os_karty where cislo = :cislo");
    dotaz.set("cislo", cislo);
    dotaz.open();
    return !dotaz.eof();
}

/// What the key filters would not have let in is refused here.
bool TForm7::hodnoty_lze_zapsat() {
    for (const PoleKarty& pole : pole_karty()) {
        const std::string chyba = chyba_zapisu(pole, hodnoty[pole.ovladac], popisek(pole));
        if (chyba.empty()) continue;
        session_.obsluha().hlaska(chyba);
        jdi_na(pole.ovladac);
        oznam_zmenu();
        return false;
    }
    return true;
}

void TForm7::acUlozitExecute() {
    if (zaneprazdnen_) return;
    // The shortcut leaves the focus in its field.
    if (!aktivni_pole_.empty()) po_opusteni(std::string(aktivni_pole_));
    zkontroluj();
    if (!ulozit_povoleno) {
        vyber_chybu(0);
        return;
    }
    const base::Cekani cekani(zaneprazdnen_);
    if (!hodnoty_lze_zapsat()) return;
    if (pracovnik_uz_existuje()) {
        session_.obsluha().hlaska(
            fmt::format("Pracovník číslo {} už existuje - hodnoty nelze zapsat.",
                        base::orez(hodnoty.text("Cislo"))));
        jdi_na("Cislo");
        oznam_zmenu();
        return;
    }
    zapis();
    ulozeno = zavreno = true;
    oznam_zmenu();
}

/// The card and all that repeats its number and names, in one transaction.
void TForm7::zapis() {
    try {
        store::Transaction transakce(session_.data());
        const std::int64_t veta = zapis_vetu();
        const Totoznost nova = totoznost();
        if (puvodni_.cislo != 0 && nova != puvodni_) {
            Oprav_hodnoty_v_ostatnich_souborech(
                session_.data(), puvodni_.cislo, nova,
                [this](int procent, const std::string& text) { ukaz_postup(procent, text); });
        }
        transakce.commit();
        Pocitadlo = veta;
    } catch (...) {
        postup_viditelny = false;
        oznam_zmenu();
        throw;
    }
    postup_viditelny = false;
}

/// Returns the row's key.
std::int64_t TForm7::zapis_vetu() {
    store::Table karty;
    karty.set_connection(session_.data());
    karty.set_table_name("Os_karty");
    karty.open();
    if (Pocitadlo == 0) {
        karty.append();
        karty.set("Vyplatni_misto", 1);
    } else {
        if (!karty.locate("Pocitadlo", Pocitadlo)) {
            throw base::ChybaDat(
                fmt::format("Tabulka Os_karty: karta s počitadlem {} mezitím zmizela.", Pocitadlo));
        }
        karty.edit();
    }
    Zapis_konecne_hodnoty(hodnoty, ciselniky_, karty);
    karty.set("Dat_nar_cislo", spocitej_datum_narozeni_cislem());
    karty.post();
    return karty.integer("Pocitadlo");
}

/// yyyymmdd for sorting by age, 0 for a blank day.
int TForm7::spocitej_datum_narozeni_cislem() const {
    return base::datum_jako_cislo(hodnoty.text("Dat_nar_text"));
}

/// Every action of the card refuses while it is being stored, so events may run between the tables.
void TForm7::ukaz_postup(int procent, const std::string& text) {
    postup = procent;
    postup_text = text;
    postup_viditelny = true;
    oznam_zmenu();
    session_.obsluha().pust_udalosti();
}

void TForm7::acZpetExecute() {
    if (zaneprazdnen_) return;
    zavreno = true;
    oznam_zmenu();
}

}  // namespace workers
