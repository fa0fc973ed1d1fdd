#include "workers/unit7_kontrola.h"

#include <algorithm>
#include <fmt/format.h>

#include "base/datum.h"
#include "base/rodne_cislo.h"
#include "base/text.h"
#include "base/zaokrouhleni.h"
#include "store/query.h"
#include "workers/vykony.h"

namespace workers {
namespace {

constexpr int k_prvni_fond = 51;
constexpr int k_dan_srazkova_u_dohod = 1;  ///< place of the item in the list of taxes
constexpr base::Castka k_nejmensi_tpd = 0.01L;

/// One run of the check: the card, the lists and what was found so far.
struct Kontrola {
    const HodnotyKarty& karta;
    const PodkladyKarty& podklady;
    std::vector<ChybaKarty> nalezene;

    bool zadano(const char* ovladac) const { return karta.zadano(ovladac); }
    const std::string& text(const char* ovladac) const { return karta.text(ovladac); }
    void chyba(const char* ovladac, std::string text_chyby) {
        nalezene.push_back({std::move(text_chyby), ovladac});
    }
};

void over_cislo(Kontrola& k) {
    if (k.karta.cislo("Cislo") == 0) k.chyba("Cislo", "1 Chybí číslo pracovníka.");
}

void over_jmena(Kontrola& k) {
    if (!k.zadano("Prijmeni")) k.chyba("Prijmeni", "1 Chybí příjmení pracovníka.");
    if (!k.zadano("Jmeno")) k.chyba("Jmeno", "1 Chybí jméno pracovníka.");
}

void over_rodne_cislo(Kontrola& k) {
    if (k.zadano("Rodne_cislo") && !base::rodne_cislo_ok(k.text("Rodne_cislo"))) {
        k.chyba("Rodne_cislo", "1 Rodné číslo má chybnou strukturu.");
    }
}

void over_narozeni(Kontrola& k) {
    if (!base::datum_ok(k.text("Dat_nar_text"))) {
        k.chyba("Dat_nar_text", "Chybné datum narození.");
    }
}

void over_slevu(Kontrola& k) {
    if (k.karta["Jaka_dan"].index != k_dan_srazkova_u_dohod) return;
    if (k.karta.cislo("Odp_poplatnik") <= 0) return;
    k.chyba("Odp_poplatnik", "2  U zadaného kódu pro daň");
    k.chyba("Odp_poplatnik", "   nesmí být sleva na dani.");
}

bool ma_pevne_slozky(const Kontrola& k) {
    return std::ranges::any_of(
        std::initializer_list<const char*>{"Staly_plat", "Os_oh_1", "Os_oh_2", "Os_oh_3", "Os_oh_4",
                                           "Os_oh_5"},
        [&](const char* ovladac) { return k.zadano(ovladac); });
}

void over_vykon(Kontrola& k) {
    if (!ma_pevne_slozky(k)) {
        if (k.zadano("Vykon")) k.chyba("Vykon", "1 Nelze zadávat výkon.");
        return;
    }
    int index = -1;
    if (!vykon_souhlasi(k.podklady.vykony, k.text("Vykon"), index)) {
        k.chyba("Vykon", "1 Výkon není povolen.");
    } else if (!stredisko_souhlasi(k.text("Stredisko"),
                                   k.podklady.vykony[static_cast<std::size_t>(index)])) {
        k.chyba("Stredisko", "1 Výkon nemá povolené středisko.");
    }
}

void over_tydenni_dobu(Kontrola& k) {
    const base::Castka tpd = base::je_desetinne_cislo(k.text("tpd"));
    if (tpd > -k_nejmensi_tpd && tpd < k_nejmensi_tpd) {
        k.chyba("tpd", "1 Chybí týdenní prac. doba.");
    }
}

void over_sporeni(Kontrola& k) {
    if (!k.zadano("Cely_plat_sporit")) return;
    const int od = k.podklady.zaznam.modul10_od, do_ = k.podklady.zaznam.modul10_do;
    const int sloupec = k.karta.cislo("Cely_plat_sporit");
    if (od == 0) {
        k.chyba("Cely_plat_sporit", "1 Nelze zadávat sloupec");
        k.chyba("Cely_plat_sporit", "  pro \"celý plat spořit\".");
    } else if (sloupec < od || sloupec > do_) {
        k.chyba("Cely_plat_sporit", "1 Sloupec \"celý plat spořit\"");
        k.chyba("Cely_plat_sporit", fmt::format("  musí být v intervalu {} - {}.", od, do_));
    }
}

void over_dny_pomeru(Kontrola& k) {
    if (k.zadano("Zam_od") && !base::datum_ok(k.text("Zam_od"))) {
        k.chyba("Zam_od", "2 Chybné datum nástupu");
    }
    if (k.zadano("Zam_do") && !base::datum_ok(k.text("Zam_do"))) {
        k.chyba("Zam_do", "2 Chybné datum výstupu");
    }
}

void over_pojistovnu(Kontrola& k) {
    const char* const pole = "Cislo_zdrav_poj";
    if (!k.zadano(pole)) {
        k.chyba(pole, "2 Chybí číslo zdr. poj.");
        return;
    }
    const int cislo = k.karta.cislo(pole);
    if (cislo >= k_prvni_fond) {
        k.chyba(pole, "2 Zdr. poj. musí být");
        k.chyba(pole, "  v intervalu 0-50.");
    } else if (!k.podklady.pojistovna(cislo)) {
        k.chyba(pole, fmt::format("2 Zdr. poj. {} neexistuje.", cislo));
    }
}

/// Funds begin where the insurers end; the words of the first message say the opposite and stay.
void over_penzijni_fond(Kontrola& k) {
    const char* const pole = "Cislo_penz_fondu";
    if (k.zadano(pole)) {
        const int cislo = k.karta.cislo(pole);
        if (cislo < k_prvni_fond) {
            k.chyba(pole, "2 Penzijní fond musí být");
            k.chyba(pole, "  v intervalu 0-50.");
        } else if (!k.podklady.pojistovna(cislo)) {
            k.chyba(pole, fmt::format("2 Penzijní fond č. {} neexistuje.", cislo));
        }
    }
    const bool sazba = k.zadano("penz_fond_podnik_sazba");
    if (sazba != k.zadano("penz_fond_podnik_smlouva")) {
        const char* const chybi = sazba ? "penz_fond_podnik_smlouva" : "penz_fond_podnik_sazba";
        k.chyba(chybi, "2 Chybná kombinace");
        k.chyba(chybi, "  \"sazba-č.smlouvy\" u PF");
    }
}

void over_trvani_pomeru(Kontrola& k) {
    const auto od = base::datum_z_textu(k.text("Zam_od"));
    const auto do_ = base::datum_z_textu(k.text("Zam_do"));
    if (od && do_ && *od > *do_) k.chyba("Zam_do", "2 Chyba u \"pracovní poměr trvá\".");
}

void over_duchod(Kontrola& k) {
    if (k.zadano("CSSZ112") && !base::datum_ddmmrr_ok(k.text("CSSZ112"))) {
        k.chyba("CSSZ112", "5 Chybné datum \"důchod pobírán od\".");
    }
}

void over_prohlaseni(Kontrola& k) {
    if (k.karta["Podepsal_prohlaseni"].ano != k.zadano("PROHLASENI_MESICE")) {
        k.chyba("PROHLASENI_MESICE", "Prohlášení na měsíce");
    }
}

void over_vstup_do_zamestnani(Kontrola& k) {
    if (k.zadano("CSSZ114") && !base::datum_ddmmrr_ok(k.text("CSSZ114"))) {
        k.chyba("CSSZ114", "5 Chybné datum skutečného");
        k.chyba("CSSZ114", "  vstupu do zaměstnání.");
    }
}

/// The order of the messages.
constexpr void (*k_pravidla[])(Kontrola&) = {
    over_cislo,      over_jmena,      over_rodne_cislo,        over_narozeni,
    over_slevu,      over_vykon,      over_tydenni_dobu,       over_sporeni,
    over_dny_pomeru, over_pojistovnu, over_penzijni_fond,      over_trvani_pomeru,
    over_duchod,     over_prohlaseni, over_vstup_do_zamestnani};

}  // namespace

PodkladyKarty::PodkladyKarty(shell::Session& session)
    : zaznam(session.ridici_zorv), vykony(Nacti_vykony(session)) {
    store::Query dotaz(session.data(),
                       "SELECT Cislo, Nazev, Kod_zp FROM Zdr_poj ORDER BY Cislo, "
                       "Pocitadlo");
    for (dotaz.open(); !dotaz.eof(); dotaz.next()) {
        pojistovny.push_back({static_cast<int>(dotaz.integer(0)), dotaz.text(1), dotaz.text(2)});
    }
}

const PojistovnaKarty* PodkladyKarty::pojistovna(int cislo) const {
    const auto kde = std::ranges::find(pojistovny, cislo, &PojistovnaKarty::cislo);
    return kde == pojistovny.end() ? nullptr : &*kde;
}

std::vector<ChybaKarty> hledej_chyby(const HodnotyKarty& karta, const PodkladyKarty& podklady) {
    Kontrola kontrola{karta, podklady, {}};
    for (const auto pravidlo : k_pravidla)
        pravidlo(kontrola);
    return std::move(kontrola.nalezene);
}

}  // namespace workers
