// The order of the steps, the means that all steps use, and the benefits (modules 4, 5, 6).
#include "payrun/pracovnik_mesice.h"

#include "base/castky_text.h"
#include "base/text.h"
#include "payrun/kraceni.h"
#include "store/catalogue.h"

namespace payrun {

PracovnikMesice::PracovnikMesice(const ParametryMesice& parametry, VstupyMesice& vstupy,
                                 Zapisovac& zapisovac, StavBehu& stav, OtazkaNaSlevy otazka)
    : parametry_(parametry),
      vstupy_(vstupy),
      zapisovac_(zapisovac),
      stav_(stav),
      otazka_(std::move(otazka)) {}

bool PracovnikMesice::je_v_mesici(const Karta& karta) const {
    return payrun::pracovni_pomer_trva(RezimPomeru::cast_mesice, karta.pomer, parametry_.mesic,
                                       parametry_.rok) ||
           !vstupy_.hrube(karta.cislo).empty();
}

void PracovnikMesice::spocti(const Karta& karta, CilVet& cil, base::Stopa* stopa) {
    karta_ = &karta;
    blok_ = &vstupy_.blokovane(karta.cislo);
    stopa_ = stopa;
    u_ = {};
    zapisovac_.zacni_pracovnika(karta, cil, stopa);

    zapis_socialni_davky();
    zapis_davky_z_modulu_5();
    zapis_hrube_mzdy();
    zapis_naturalni_mzdu();
    zapis_ostatni_davky();
    zapis_soc_zdrav();
    zapis_dan();
    zapis_ostatni_srazky();
    zapis_k_vyplate();
    zapis_osobni_indikaci_pracovnika();
}

bool PracovnikMesice::pracovni_pomer_trva(RezimPomeru rezim) const {
    return payrun::pracovni_pomer_trva(rezim, karta_->pomer, parametry_.mesic, parametry_.rok);
}

std::optional<Castka> PracovnikMesice::zapis(const Polozka& polozka) {
    return zapisovac_.zapis_vetu_do_vyplatni_listiny(polozka);
}

VybranaHodnota PracovnikMesice::vyber(const BlokovanaHodnota& blok, const char* pole,
                                      const char* promenna, Castka hodnota) {
    const VybranaHodnota vybrana = vyber_hodnotu(blok, hodnota);
    if (stopa_ && *vybrana.znacka != '\0') {
        stopa_->krok("blokovaná hodnota")
            .z("vypočteno", promenna, hodnota)
            .udaj("absolutně", static_cast<Castka>(blok.abs), zdroj("Blok", pole) + "_abs")
            .udaj("rozdíl", static_cast<Castka>(blok.dif), zdroj("Blok", pole) + "_dif")
            .vetev(blok.abs != 0 ? "platí pevná hodnota" : "k vypočtené hodnotě se přičítá rozdíl")
            .vysledek(promenna, vybrana.hodnota);
    }
    return vybrana;
}

std::string PracovnikMesice::zdroj(const char* tabulka, const char* pole) const {
    return store::month_table(tabulka, parametry_.mesic) + "." + pole;
}

std::string PracovnikMesice::zdroj_radku(const HrubyRadek& radek) const {
    return zdroj("Hrube", "Kc_cel") + ", Pocitadlo " + std::to_string(radek.pocitadlo);
}

// The step of one column of fixed items, under the variable "fixni".
void PracovnikMesice::stopa_fixnich(const FixniSkupina& skupina, const std::string& nazev) {
    if (!stopa_) return;
    auto krok =
        stopa_->krok("fixní položky, sloupec " + std::to_string(skupina.sloupec) + " " + nazev);
    for (const FixniRadek& r : vstupy_.fixni(karta_->cislo)) {
        if (r.sloupec != skupina.sloupec) continue;
        krok.udaj("položka", r.kcs, "Fixni.Kcs, Pocitadlo " + std::to_string(r.pocitadlo));
    }
    krok.vysledek("fixni", skupina.kcs);
}

void PracovnikMesice::zapis_socialni_davky() {
    if (stopa_) {
        stopa_->zacni_soucet("ostatni_davky", "dávky a náhrady mimo hrubou mzdu");
        stopa_->zacni_soucet("socialni_davky", "sociální dávky");
        stopa_->zacni_soucet("dny_odpracovane", "dny odpracované");
        stopa_->zacni_soucet("dny_neodpracovane", "dny neodpracované");
        stopa_->zacni_soucet("hodiny_odpracovane", "hodiny odpracované");
        stopa_->zacni_soucet("hodiny_neodpracovane", "hodiny neodpracované");
        stopa_->zacni_soucet("hodiny_vedlejsi", "hodiny vedlejší poměr");
    }
    for (const HrubyRadek& r : vstupy_.hrube(karta_->cislo)) {
        if (r.modul != 4) continue;
        if (stopa_) {
            stopa_->krok("řádek hrubých mezd, sloupec " + std::to_string(r.sloupec))
                .udaj("částka", r.kc_cel, zdroj_radku(r))
                .vysledek("hruby_radek", r.kc_cel);
        }
        zapis({4, r.sloupec, "karanténa příspěvek", r.kc_cel, r.text, "hruby_radek"});
        const auto puvod = [] { return std::pair{"karanténa příspěvek", "hruby_radek"}; };
        pricti(u_.ostatni_davky, "ostatni_davky", r.kc_cel, puvod);
        pricti(u_.socialni_davky, "socialni_davky", r.kc_cel, puvod);
    }
    // Time not worked is that of the lowest column alone.
    const auto& skupiny = vstupy_.hrube_podle_sloupcu(karta_->cislo, 4);
    if (skupiny.empty()) return;
    pricti(u_.dny_neodpracovane, "dny_neodpracovane", skupiny.front().dny_neod, [&] {
        return std::pair{"dávky, první sloupec", zdroj("Hrube", "Dny_neod")};
    });
    pricti(u_.hodiny_neodpracovane, "hodiny_neodpracovane", skupiny.front().hod_neod, [&] {
        return std::pair{"dávky, první sloupec", zdroj("Hrube", "Hod_neod")};
    });
}

void PracovnikMesice::zapis_davky_z_modulu_5() {
    for (const HrubyRadek& r : vstupy_.hrube(karta_->cislo)) {
        if (r.modul != 5) continue;
        if (stopa_) {
            stopa_->krok("řádek hrubých mezd, sloupec " + std::to_string(r.sloupec))
                .udaj("částka", r.kc_cel, zdroj_radku(r))
                .vysledek("hruby_radek", r.kc_cel);
        }
        poznamka_ = std::to_string(r.pocitadlo);
        zapis({5, r.sloupec, r.sloupec_slovy, r.kc_cel, poznamka_, "hruby_radek"});
        pricti(u_.ostatni_davky, "ostatni_davky", r.kc_cel, [&] {
            return std::pair{r.sloupec_slovy, "hruby_radek"};
        });
        pricti(u_.dny_neodpracovane, "dny_neodpracovane", r.dny_neod, [&] {
            return std::pair{r.sloupec_slovy, zdroj("Hrube", "Dny_neod")};
        });
        pricti(u_.hodiny_neodpracovane, "hodiny_neodpracovane", r.hod_neod, [&] {
            return std::pair{r.sloupec_slovy, zdroj("Hrube", "Hod_neod")};
        });
    }
}

void PracovnikMesice::zapis_ostatni_davky() {
    const shell::RidiciZorv& ridici = parametry_.ridici;
    const auto& skupiny =
        vstupy_.fixni_podle_sloupcu(karta_->cislo, ridici.modul5_od, ridici.modul5_do);
    for (const FixniSkupina& s : skupiny) {
        const std::string& nazev = vstupy_.sloupec_slovy(s.sloupec);
        stopa_fixnich(s, nazev);
        pricti(u_.ostatni_davky, "ostatni_davky", s.kcs, [&] { return std::pair{nazev, "fixni"}; });
        zapis({5, s.sloupec, nazev, s.kcs, "", "fixni"});
    }
    zkontroluj_sloupec_fondu(skupiny, ridici.sloupec_penzijni_davky);
    if (karta_->cislo_penz_fondu != 0) zapis_penzijni_fond(5, ridici.sloupec_penzijni_davky);

    const Castka prijem = u_.hruba_mzda + u_.ostatni_davky;
    if (stopa_) {
        stopa_->krok("příjem celkem")
            .z("hrubá mzda", "hruba_mzda", u_.hruba_mzda)
            .z("dávky a náhrady", "ostatni_davky", u_.ostatni_davky)
            .vysledek("prijem_celkem", prijem);
    }
    zapis({6, ridici.modul6, "příjem celkem", prijem, "", "prijem_celkem"});
}

// The column of the organisation's payment to the pension fund must not be entered by hand; only
// the last column of the items is looked at.
void PracovnikMesice::zkontroluj_sloupec_fondu(const std::vector<FixniSkupina>& skupiny,
                                               int sloupec_fondu) {
    if (skupiny.empty() || sloupec_fondu == 0) return;
    const FixniSkupina& posledni = skupiny.back();
    if (posledni.sloupec != sloupec_fondu || base::je_nula(posledni.kcs)) return;
    stav_.chyby.push_back("Pracovník " + std::to_string(karta_->cislo) + " : fixní, sl. " +
                          std::to_string(posledni.sloupec) + " nesmí mít");
    stav_.chyby.emplace_back("   zadné koruny (jde o PF organizace).");
}

// The contribution shows as income and as deduction and does not touch the payable amount.
void PracovnikMesice::zapis_penzijni_fond(int modul, int sloupec) {
    const Castka castka = prispevek_penzijniho_fondu(karta_->penz_fond_sazba, u_.hruba_mzda);
    if (stopa_) {
        stopa_->krok("příspěvek organizace penzijnímu fondu")
            .udaj("sazba", karta_->penz_fond_sazba, "Os_karty.penz_fond_podnik_sazba")
            .z("hrubá mzda", "hruba_mzda", u_.hruba_mzda)
            .zaokrouhleni(base::na_halere_k_sude)
            .vysledek("penzijni_fond", castka);
    }
    zapis({modul, sloupec, vstupy_.sloupec_slovy(sloupec), castka, poznamka_fondu("PF org: "),
           "penzijni_fond"});
}

const std::string& PracovnikMesice::poznamka_fondu(const char* zacatek) {
    poznamka_ = zacatek;
    poznamka_ += base::cislo_s_nulami(karta_->cislo_penz_fondu, 2);
    poznamka_ += " - ";
    poznamka_ += base::castka_prosta(karta_->penz_fond_smlouva);
    return poznamka_;
}

}  // namespace payrun
