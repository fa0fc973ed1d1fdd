// Deductions, the union fee, the payable amount and the identification row of the worker's month.
#include "base/castky_text.h"
#include "base/text.h"
#include "payrun/pracovnik_mesice.h"

namespace payrun {
namespace {

constexpr std::string_view k_znacka_fondu = "*PF*";

bool ma_znacku_fondu(const std::string& nazev_sloupce) {
    // The cheap test first: only a caption with a star can hold the mark.
    return nazev_sloupce.find('*') != std::string::npos &&
           base::velkymi(nazev_sloupce).find(k_znacka_fondu) != std::string::npos;
}

}  // namespace

void PracovnikMesice::zapis_ostatni_srazky() {
    if (!zapisovac_.neco_zapsano() && !parametry_.zapornych_povoleno) return;
    if (!pracovni_pomer_trva(RezimPomeru::cast_mesice)) return;
    zapis_fixni_srazky();
    if (karta_->cislo_penz_fondu != 0) {
        zapis_penzijni_fond(10, parametry_.ridici.sloupec_penzijni_srazky);
    }
    if (pracovni_pomer_trva(RezimPomeru::cely_mesic) && karta_->clenstvi_os) zapis_odbory();
}

void PracovnikMesice::zapis_fixni_srazky() {
    const shell::RidiciZorv& ridici = parametry_.ridici;
    const auto& skupiny =
        vstupy_.fixni_podle_sloupcu(karta_->cislo, ridici.modul10_od, ridici.modul10_do);
    for (const FixniSkupina& s : skupiny) {
        const std::string& nazev = vstupy_.sloupec_slovy(s.sloupec);
        stopa_fixnich(s, nazev);
        if (karta_->cely_plat_sporit != 0 && karta_->cely_plat_sporit == s.sloupec) {
            u_.sporeni += s.kcs;
            continue;
        }
        pricti(u_.srazky_soucet, "srazky_soucet", s.kcs, [&] { return std::pair{nazev, "fixni"}; });
        const std::string_view poznamka = ma_znacku_fondu(nazev)
                                              ? std::string_view(poznamka_fondu("PF pra: "))
                                              : std::string_view{};
        zapis({10, s.sloupec, nazev, s.kcs, poznamka, "fixni"});
    }
    zkontroluj_sloupec_fondu(skupiny, ridici.sloupec_penzijni_srazky);
}

void PracovnikMesice::zapis_odbory() {
    const Castka cisty =
        u_.hruba_mzda - u_.socialni_kc - u_.zdravotni_kc - u_.dan_castka + u_.socialni_davky;
    if (stopa_) {
        stopa_->krok("čistý příjem pro odbory")
            .z("hrubá mzda", "hruba_mzda", u_.hruba_mzda)
            .z("sociální pojištění",
               karta_->jake_socialni == Socialni::druhy_pilir ? "druhy_pilir_kc" : "socialni_kc",
               u_.socialni_kc)
            .z("zdravotní pojištění", "zdravotni_kc", u_.zdravotni_kc)
            .z("daň", "dan_castka", u_.dan_castka)
            .z("sociální dávky", "socialni_davky", u_.socialni_davky)
            .vysledek("cisty_pro_odbory", cisty);
    }
    const Castka prispevek = odborovy_prispevek(karta_->cislo, cisty, parametry_.ridici, stopa_);
    pricti(u_.srazky_soucet, "srazky_soucet", prispevek, [] {
        return std::pair{"příspěvek odborovému svazu", "odborovy_prispevek"};
    });
    zapis({11, parametry_.ridici.modul11, "příspěvek odborový svaz", prispevek, "",
           "odborovy_prispevek"});
}

void PracovnikMesice::zapis_k_vyplate() {
    const int sloupec_zalohy = parametry_.ridici.modul13;
    Castka zaloha = 0;
    if (stopa_) stopa_->krok("záloha").vetev("bez zálohy").vysledek("zaloha", 0);
    for (const FixniSkupina& s :
         vstupy_.fixni_podle_sloupcu(karta_->cislo, sloupec_zalohy, sloupec_zalohy)) {
        stopa_fixnich(s, "záloha");
        zaloha = s.kcs;
        if (stopa_) stopa_->krok("záloha").z("fixní", "fixni", zaloha).vysledek("zaloha", zaloha);
        zapis({13, s.sloupec, "záloha", s.kcs, "", "zaloha"});
    }
    const Castka k_vyplate = bez_sumu(u_.hruba_mzda + u_.ostatni_davky - u_.srazky_soucet - zaloha);
    if (stopa_) {
        stopa_->krok("k výplatě")
            .z("hrubá mzda", "hruba_mzda", u_.hruba_mzda)
            .z("dávky a náhrady", "ostatni_davky", u_.ostatni_davky)
            .z("srážky (odečítají se)", "srazky_soucet", u_.srazky_soucet)
            .z("záloha (odečítá se)", "zaloha", zaloha)
            .vysledek("k_vyplate", k_vyplate);
    }
    if (k_vyplate < 0 && !parametry_.zapornych_povoleno) zapis_zapornou_vyplatu(k_vyplate);
    if (karta_->cely_plat_sporit != 0) {
        zapis_sporeni_celeho_platu(k_vyplate);
        return;
    }
    if (zapisovac_.neco_zapsano()) {
        zapis({14, parametry_.ridici.modul14, "k výplatě", k_vyplate, "", "k_vyplate"});
    }
    zapis({12, parametry_.ridici.modul12, "srážky celkem", u_.srazky_soucet + u_.sporeni, "",
           "srazky_soucet"});
}

void PracovnikMesice::zapis_zapornou_vyplatu(Castka k_vyplate) {
    stav_.chyby.push_back("Pracovník  č.  " + std::to_string(karta_->cislo) + ":   " +
                          base::castka_prosta(k_vyplate) + "  Kč");
    stav_.seznam_zapornych.push_back(base::cislo_s_nulami(karta_->cislo, 6));
}

// The whole payable amount goes to savings.
void PracovnikMesice::zapis_sporeni_celeho_platu(Castka k_vyplate) {
    const shell::RidiciZorv& ridici = parametry_.ridici;
    if (zapisovac_.neco_zapsano()) {
        zapis({14, ridici.modul14, "k výplatě", 0, "", "", "celý plat se spoří"});
    }
    const int sloupec = karta_->cely_plat_sporit;
    zapis({10, sloupec, vstupy_.sloupec_slovy(sloupec), k_vyplate, "", "k_vyplate"});
    const Castka srazky = u_.srazky_soucet + k_vyplate;
    if (stopa_) {
        stopa_->krok("srážky celkem")
            .z("srážky", "srazky_soucet", u_.srazky_soucet)
            .z("spoření", "k_vyplate", k_vyplate)
            .vysledek("srazky_celkem", srazky);
    }
    zapis({12, ridici.modul12, "srážky celkem", srazky, "", "srazky_celkem"});
}

void PracovnikMesice::zapis_osobni_indikaci_pracovnika() {
    if (!zapisovac_.neco_zapsano()) return;
    const Karta& k = *karta_;
    std::string& p = poznamka_;
    p = base::na_sirku(k.ulice, 30);
    p += base::na_sirku(k.bydliste, 30);
    p += base::na_sirku(k.rodne_cislo, 13);
    p += base::cislo_s_nulami(k.cislo, 6);
    p += base::cislo_s_nulami(k.stredisko, 2);
    p += base::cislo_s_nulami(k.osobni_ucet, 3);
    p += base::cislo_s_nulami(k.cislo_zdrav_poj, 2);
    p += k.zamestnanec ? '0' : '1';
    p += k.duchodce ? '1' : '0';
    p += k.student ? '1' : '0';
    p += base::castka_do_sloupce(5, 0, k.prumer_na_dovolenou);
    p += base::castka_do_sloupce(5, 0, k.prumer_na_nemoc);
    zapis({89, 0, "indikace pracovníka", 0, p, "", "řádek nese údaje karty, ne částku"});
}

}  // namespace payrun
