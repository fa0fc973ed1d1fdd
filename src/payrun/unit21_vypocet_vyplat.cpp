#include "payrun/unit21_vypocet_vyplat.h"

#include <algorithm>

#include "base/castky_text.h"
#include "base/datum.h"
#include "base/text.h"
#include "payrun/pracovnik_mesice.h"
#include "payrun/unit133_prohlizeni_mezd.h"
#include "payrun/unit66_prohlizeni.h"
#include "payrun/zaporne_povoleni.h"
#include "store/catalogue.h"
#include "store/query.h"

namespace payrun {
namespace {

constexpr const char* k_zaporna = "Zaporna";

void smaz_tabulku(store::Connection& data, const std::string& tabulka) {
    if (data.table_exists(tabulka)) data.delete_table(tabulka);
}

/// Holds a flag up for the length of a scope.
class Prapor {
  public:
    explicit Prapor(bool& prapor) : prapor_(prapor) { prapor_ = true; }
    ~Prapor() { prapor_ = false; }
    Prapor(const Prapor&) = delete;
    Prapor& operator=(const Prapor&) = delete;

  private:
    bool& prapor_;
};

}  // namespace

struct TForm21::Beh {
    Beh(const shell::Session& session, std::vector<std::string>& chyby)
        : mesic(session.zpracovavany_mesic),
          listina(store::month_table("Listin", mesic)),
          svazana_tabulka(listina),
          stav{chyby, {}, {}, {}} {}

    int mesic;
    std::string listina;
    std::string svazana_tabulka;  ///< the table that "Zpět" may delete
    bool bezi = false;
    bool ceka_na_odpoved = false;
    StavBehu stav;
    SoucetMesice soucet;
};

TForm21::TForm21(shell::Session& session)
    : beh_(std::make_unique<Beh>(session, scChyby)), session_(session) {
    // Throws when the sheet was not made.
    session.data().describe(beh_->listina);
    nadpis = "Výpočet výplat - " + session.radek_firmy;
    scMesic = base::mesic_slovy(beh_->mesic, session.rok);
    nadpis_vysledku = "Základní mzdové hodnoty  -  " + scMesic;
    zapornych_povoleno = jsou_povoleny_zaporne(session.data());
}

TForm21::~TForm21() = default;

void TForm21::FormShow() {
    pracovni_dny_mesice = base::pracovni_dny_mesice(beh_->mesic, session_.rok);
    nelze_pokracovat = false;
    prohlizet_zaporne_viditelne = session_.data().table_exists(k_zaporna);
    oznam_zmenu();
}

void TForm21::Button2Click() {
    if (beh_->bezi || !zpracuj_povoleno) return;
    const Prapor bezi(beh_->bezi);
    priprav_beh();
    try {
        proved_vypocet();
    } catch (...) {
        vrat_po_chybe();
        throw;
    }
    prubeh.clear();
    oznam_zmenu();
}

void TForm21::Button3Click() {
    if (!beh_->bezi || beh_->ceka_na_odpoved) return;
    preruseno = true;
}

void TForm21::Button1Click() {
    if (beh_->bezi || !zpet_povoleno) return;
    // One line a worker in both lists: equal counts mean negative pay alone.
    if (!scChyby.empty() && scChyby.size() != beh_->stav.seznam_zapornych.size()) {
        store::Transaction transakce(session_.data());
        smaz_tabulku(session_.data(), beh_->svazana_tabulka);
        transakce.commit();
        nelze_pokracovat = false;
    }
    vysledky_viditelne = false;
    zavreno = true;
    oznam_zmenu();
}

void TForm21::BitBtn1Click() {
    if (beh_->bezi || !prohlizet_zaporne_viditelne) return;
    TForm66 prohlizeni(session_, "PROHLÍŽÍME  ZÁPORNÉ  VÝPLATY",
                       "select * from Zaporna order by cislo_pracovnika,modul,sloupec,Pocitadlo");
    session_.obsluha().ukaz_modalne(prohlizeni);
}

void TForm21::acProhlizeniMezdExecute() {
    if (beh_->bezi || !vysledky_viditelne) return;
    TForm133 prohlizeni(session_, beh_->mesic);
    prohlizeni.FormShow();
    session_.obsluha().ukaz_modalne(prohlizeni);
}

void TForm21::priprav_beh() {
    preruseno = false;
    zpet_povoleno = zpracuj_povoleno = false;
    prerusit_viditelne = true;
    prohlizet_zaporne_viditelne = nelze_pokracovat = vysledky_viditelne = false;
    scChyby.clear();
    vysledky.clear();
    vysledky_organizace.clear();
    beh_->stav.seznam_zapornych.clear();
    beh_->stav.sloucene_zdaneni = {};
    beh_->soucet = {};
    pracovni_dny_mesice = base::pracovni_dny_mesice(beh_->mesic, session_.rok);
    oznam_zmenu();
}

// After a broken card or a failing store the sheet is as it was: the run may be started again.
void TForm21::vrat_po_chybe() {
    zpracuj_povoleno = zpet_povoleno = true;
    prerusit_viditelne = false;
    prubeh.clear();
    prubeh_pozice = prubeh_max = 0;
    scChyby.clear();
    beh_->stav.seznam_zapornych.clear();
    beh_->stav.dilci = {};
    prohlizet_zaporne_viditelne = session_.data().table_exists(k_zaporna);
    oznam_zmenu();
}

// The outer transaction holds everything that the run does to the folder, the inner one the rows.
void TForm21::proved_vypocet() {
    store::Connection& data = session_.data();
    store::Transaction cely_beh(data);
    smaz_tabulku(data, k_zaporna);
    {
        store::Transaction vety(data);
        projdi_pracovniky(*beh_);
        if (!preruseno) uzavri_bez_preruseni();
        if (preruseno) {
            vety.rollback();
        } else if (scChyby.empty() || !beh_->stav.seznam_zapornych.empty()) {
            vety.commit();
        } else {
            vety.rollback();
        }
    }
    if (preruseno) zrus_preruseny_vypocet();
    cely_beh.commit();
    prerusit_viditelne = false;
    prubeh_pozice = prubeh_max = 0;
    if (preruseno) {
        zavreno = true;
        return;
    }
    zpet_povoleno = true;
    prohlizet_zaporne_viditelne = data.table_exists(k_zaporna);
    nelze_pokracovat = !scChyby.empty();
    if (scChyby.empty()) zobrazit_vysledky_vypoctu();
}

void TForm21::projdi_pracovniky(Beh& beh) {
    const ParametryMesice parametry{session_.ridici_zorv, session_.nastaveni,
                                    session_.rok,         beh.mesic,
                                    pracovni_dny_mesice,  zapornych_povoleno};
    VstupyMesice vstupy(session_, beh.mesic, beh.mesic);
    const std::vector<Karta> karty = nacti_karty(session_.data(), beh.mesic);
    TabulkaVet tabulka(session_.data(), beh.mesic);
    Zapisovac zapisovac(scChyby);
    PracovnikMesice vypocet(
        parametry, vstupy, zapisovac, beh.stav,
        [this](const Karta&, const std::string& text) { return zeptej_se_na_slevy(text); });
    prubeh_max = static_cast<int>(karty.size());
    for (const Faze faze : {Faze::A, Faze::B}) {
        const char* uvod = faze == Faze::A ? "A: Pracovník " : "B: Pracovník ";
        prubeh_pozice = 0;
        for (std::size_t i = 0; i < karty.size() && !preruseno; ++i) {
            prubeh = uvod;
            prubeh += std::to_string(karty[i].cislo);
            if (PracovnikMesice::faze(karty[i]) == faze && vypocet.je_v_mesici(karty[i])) {
                vypocet.spocti(karty[i], tabulka, nullptr);
            }
            posun_prubeh(i + 1);
        }
    }
    beh.soucet = zapisovac.soucet_mesice();
}

// The record number after the move to the next worker; behind the last one it stays.
void TForm21::posun_prubeh(std::size_t zpracovano) {
    prubeh_pozice = std::min(static_cast<int>(zpracovano) + 1, prubeh_max);
    oznam_zmenu();
    session_.obsluha().pust_udalosti();
}

bool TForm21::zeptej_se_na_slevy(const std::string& text) {
    const Prapor ceka(beh_->ceka_na_odpoved);
    return session_.obsluha().otazka_ano_ne(text, "Potvrzení");
}

// Errors that show only at the end, and what a run with negative pay leaves behind.
void TForm21::uzavri_bez_preruseni() {
    for (std::string& hlaska : beh_->stav.sloucene_zdaneni.hlasky_o_nespotrebovanych()) {
        scChyby.push_back(std::move(hlaska));
    }
    if (beh_->stav.seznam_zapornych.empty()) return;
    if (!mame_zaporne_vyplaty()) return;
    session_.data().rename_table(beh_->listina, k_zaporna);
    beh_->svazana_tabulka = k_zaporna;
}

// Leaves only the rows of workers with negative pay; false when it was interrupted.
bool TForm21::mame_zaporne_vyplaty() {
    store::Connection& data = session_.data();
    store::Query pocet(data, "SELECT COUNT(*) AS Pocet FROM " + beh_->listina);
    pocet.open();
    prubeh_max = static_cast<int>(pocet.integer(0));
    pocet.close();
    std::size_t vet = 0;
    int predchozi = 0;
    store::Query vety(
        data, "SELECT Cislo_pracovnika, Pocitadlo FROM " + beh_->listina + " ORDER BY Pocitadlo");
    for (vety.open(); !vety.eof() && !preruseno; vety.next()) {
        const int cislo = static_cast<int>(vety.integer(0));
        ++vet;
        if (cislo != predchozi) posun_prubeh(vet - 1);
        predchozi = cislo;
    }
    vety.close();
    if (preruseno) return false;
    std::string cisla;
    for (const std::string& cislo : beh_->stav.seznam_zapornych) {
        cisla += (cisla.empty() ? "" : ",") + std::to_string(base::je_cele_cislo(cislo));
    }
    data.execute("DELETE FROM " + beh_->listina + " WHERE NOT (Cislo_pracovnika IN (" + cisla +
                 "))");
    return true;
}

void TForm21::zrus_preruseny_vypocet() {
    smaz_tabulku(session_.data(), beh_->listina);
}

void TForm21::zobrazit_vysledky_vypoctu() {
    const SoucetMesice& s = beh_->soucet;
    const auto castka = [](Castka kc) { return base::castka_do_sloupce(0, 2, kc); };
    vysledky = {{"Hrubé mzdy:", castka(s.hrube_mzdy)},
                {"Sociální dávky:", castka(s.socialni_davky)},
                {"Naturální mzda:", castka(s.naturalni_mzda)}};
    const Castka sazba_zdravotni = z_ulozeneho(session_.ridici_zorv.proc_zdr_zamestnavatel);
    vysledky_organizace = {
        {"Sociální pojištění:",
         castka(base::procenta(s.zaklad_socialniho, session_.nastaveni.proc_soc2))},
        {"Zdravotní pojištění:", castka(base::procenta(s.zaklad_zdravotniho, sazba_zdravotni))}};
    vysledky_viditelne = true;
}

}  // namespace payrun
