// TForm17: the ordinary form. Events of its fields, values offered, the check and the total.
#include <fmt/format.h>

#include "base/castky_text.h"
#include "base/text.h"
#include "wages/unit17_zadani.h"

namespace wages {
namespace {

constexpr int k_externi_vstup = 8;
constexpr int k_mezer_pred_bez_chyby = 21;

}  // namespace

void TForm17::DnyExit() {
    const SloupecHrube* s = zvoleny();
    if (s && base::neprazdny(zadani.dny) && s->jake_hodiny != 0 &&
        !base::neprazdny(zadani.hodiny)) {
        zadani.hodiny = hodiny_ze_dnu(zadani.dny, karta_);
    }
    poleExit();
}

void TForm17::DatumExit() {
    zadani.datum = uprav_datum(zadani.datum, session_.zpracovavany_mesic);
    poleExit();
}

void TForm17::StrediskoEnter() {
    if (stredisko_z_karty && !base::neprazdny(zadani.stredisko))
        zadani.stredisko = karta_.stredisko;
    oznam_zmenu();
}

void TForm17::VykonEnter() {
    if (vykon_z_karty && !base::neprazdny(zadani.vykon)) zadani.vykon = karta_.vykon;
    oznam_zmenu();
}

void TForm17::HodnotaEnter(std::size_t n) {
    const SloupecHrube* s = zvoleny();
    if (s && !base::neprazdny(zadani.hodnoty[n])) {
        const Castka koruny =
            pracovnik < 0 ? 0 : pracovnici[static_cast<std::size_t>(pracovnik)].koruny;
        zadani.hodnoty[n] = Co_predsadit(s->hodnoty[n], *s, zadani, karta_, koruny,
                                         session_.zpracovavany_mesic, session_.rok);
    }
    poleExit();
}

void TForm17::HodnotaExit(std::size_t n) {
    const SloupecHrube* s = zvoleny();
    if (s && s->hodnoty[n].predrazeno == k_externi_vstup) hledej_externi_vstup(zadani.hodnoty[n]);
    poleExit();
}

void TForm17::poleExit() {
    Udelej_kontrolu();
    oznam_zmenu();
}

/// A work number typed in place of a value is replaced by its rate.
void TForm17::hledej_externi_vstup(std::string& hodnota) {
    if (!base::neprazdny(hodnota)) return;
    if (!session_.data().table_exists("Vstup_ex")) {
        session_.obsluha().hlaska(
            "Nebyl nalezen soubor \"VSTUP_EX.DB\", nelze zadávat externí vstup.");
        return;
    }
    const auto cislo =
        static_cast<std::int64_t>(base::na_koruny_k_sude(base::je_desetinne_cislo(hodnota)));
    store::Query q(
        session_.data(),
        "SELECT Sazba, Text FROM Vstup_ex WHERE Cislo_prace = :cislo ORDER BY Pocitadlo");
    q.set("cislo", cislo);
    q.open();
    if (q.eof()) {
        session_.obsluha().hlaska("POZOR !!!   Položka nebyla v souboru \"VSTUP_EX.DB\" nalezena.");
        return;
    }
    zadani.text = base::nejvyse(q.text("Text") + ": " + base::orez(hodnota), k_znaku_textu);
    hodnota = base::castka_prosta(static_cast<Castka>(q.number("Sazba")));
}

/// The check of the page at hand; of the ordinary one with its total.
void TForm17::Udelej_kontrolu() {
    const SloupecHrube* s = zvoleny();
    if (!s) {
        zapsat_povoleno = false;
        return;
    }
    if (stranka == Stranka::karantena) {
        ukaz_chyby(Udelej_kontrolu_karanteny(karantena_kc));
    } else if (stranka == Stranka::nemoc_2008) {
        ukaz_chyby(nemoc.Udelej_kontrolu_soc_davek(karta_));
    } else if (stranka == Stranka::ostatni) {
        ukaz_chyby(Udelej_kontrolu_bezneho_tiskopisu(*s, zadani, ciselniky_, session_.rok));
        celkem_ = proved_vypocet_na_beznem_tiskopisu(*s, zadani);
        lbCelkem = "Celkem  " + base::castka_s_carkou(0, 2, celkem_) + " Kč";
    }
}

void TForm17::ukaz_chyby(std::vector<std::string> chyby) {
    scChyby_viditelne = !chyby.empty();
    po_zapisu_viditelne = zapsat_povoleno = chyby.empty();
    scChyby = std::move(chyby);
    if (scChyby.empty()) scChyby = {"", "", base::mezery(k_mezer_pred_bez_chyby) + "BEZ  CHYBY."};
}

void TForm17::karantenaKeyUp() {
    poleExit();
}

void TForm17::nemocOdExit() {
    nemoc.scOdExit(karta_);
    poleExit();
}

}  // namespace wages
