// Insurance and income tax of the worker's month.
#include "base/castky_text.h"
#include "base/text.h"
#include "payrun/pracovnik_mesice.h"

namespace payrun {
namespace {

// "1 blok": a code or number, a blank, the mark.
void slozeni_poznamky(std::string& poznamka, int kod, const char* znacka) {
    poznamka = std::to_string(kod);
    poznamka += ' ';
    poznamka += znacka;
}

}  // namespace

void PracovnikMesice::zapis_soc_zdrav() {
    if (stopa_) stopa_->zacni_soucet("srazky_soucet", "srážky");
    zapis_socialni();
    zapis_zdravotni();
}

void PracovnikMesice::zapis_socialni() {
    const shell::RidiciZorv& ridici = parametry_.ridici;
    const shell::Nastaveni& nastaveni = parametry_.nastaveni;
    const Socialni kod = karta_->jake_socialni;
    ZakladyRoku& zaklady = vstupy_.zaklady(karta_->cislo);

    Castka z = zaklad_socialniho_pojisteni(kod, u_.hruba_do_socialniho, u_.hruba_mzda, stopa_);
    z = pod_strop(z, zaklady.socialni, nastaveni.max_vz_soc, "socialni_zaklad",
                  "Nastaveni.ini Legislativa2009/max_vz_soc");
    const VybranaHodnota zaklad =
        vyber(blok_->socialni_zaklad, "socialni_zaklad", "socialni_zaklad", z);
    slozeni_poznamky(poznamka_, static_cast<int>(kod), zaklad.znacka);
    zaklady.socialni +=
        zapis({61, 0, "sociální pojištění základ", zaklad.hodnota, poznamka_, "socialni_zaklad"})
            .value_or(0);

    const Castka sazba = kod == Socialni::druhy_pilir ? nastaveni.DruhyPilirPrac
                                                      : z_ulozeneho(ridici.proc_soc_pracovnik);
    const VybranaHodnota pojistne =
        vyber(blok_->socialni, "socialni", "socialni_kc",
              socialni_pojisteni_Kc(kod, zaklad.hodnota, sazba, stopa_));
    u_.socialni_kc = pojistne.hodnota;
    pricti(u_.srazky_soucet, "srazky_soucet", u_.socialni_kc, [] {
        return std::pair{"sociální pojištění", "socialni_kc"};
    });
    slozeni_poznamky(poznamka_, static_cast<int>(kod), pojistne.znacka);
    zapis({7, ridici.modul7, "sociální pojištění Kč", u_.socialni_kc, poznamka_, "socialni_kc"});
    if (kod != Socialni::druhy_pilir) return;

    // The second pillar's amount takes the place of the first one; the blocking reaches both.
    const VybranaHodnota pilir =
        vyber(blok_->socialni, "socialni", "druhy_pilir_kc",
              druhy_pilir_Kc(zaklad.hodnota, nastaveni.DruhyPilirPF, stopa_));
    u_.socialni_kc = pilir.hodnota;
    pricti(u_.srazky_soucet, "srazky_soucet", u_.socialni_kc, [] {
        return std::pair{"2. pilíř", "druhy_pilir_kc"};
    });
    slozeni_poznamky(poznamka_, karta_->cislo_penz_fondu, pilir.znacka);
    zapis({90, 0, "2. pilíř penzijní reformy", u_.socialni_kc, poznamka_, "druhy_pilir_kc"});
}

Castka PracovnikMesice::pod_strop(Castka zaklad, Castka predchozi, Castka maximum,
                                  const char* promenna, const char* klic) {
    const Castka z = strop(zaklad, predchozi, maximum);
    if (stopa_ && z != zaklad) {
        stopa_->krok("základ do ročního maxima")
            .z("základ", promenna, zaklad)
            .udaj("základy dřívějších měsíců roku", predchozi, "výplatní listiny roku")
            .nastaveni("roční maximum", maximum, klic)
            .predpis("§ 15a zák. č. 589/1992 Sb.")
            .vysledek(promenna, z);
    }
    return z;
}

void PracovnikMesice::zapis_zdravotni() {
    const shell::RidiciZorv& ridici = parametry_.ridici;
    const shell::Nastaveni& nastaveni = parametry_.nastaveni;
    const Karta& k = *karta_;
    ZakladyRoku& zaklady = vstupy_.zaklady(k.cislo);

    const ZdravotniPodminky podminky{k.jake_zdravotni, k.duchodce, k.student,
                                     static_cast<Castka>(ridici.duchodce_hranice),
                                     static_cast<Castka>(nastaveni.MinimalniMzda)};
    Castka z =
        zaklad_zdravotniho_pojisteni(podminky, u_.hruba_do_zdravotniho, u_.hruba_mzda, stopa_);
    z = pod_strop(z, zaklady.zdravotni, nastaveni.max_vz_zdr, "zdravotni_zaklad",
                  "Nastaveni.ini Legislativa2009/max_vz_zdr");
    const VybranaHodnota zaklad =
        vyber(blok_->zdravotni_zaklad, "zdravotni_zaklad", "zdravotni_zaklad", z);
    slozeni_poznamky(poznamka_, static_cast<int>(k.jake_zdravotni), zaklad.znacka);
    zaklady.zdravotni +=
        zapis({62, 0, "zdravotní pojištění základ", zaklad.hodnota, poznamka_, "zdravotni_zaklad"})
            .value_or(0);

    const VybranaHodnota pojistne =
        vyber(blok_->zdravotni, "zdravotni", "zdravotni_kc",
              zdravotni_pojisteni_Kc(k.jake_zdravotni, zaklad.hodnota,
                                     z_ulozeneho(ridici.proc_zdr_pracovnik), stopa_));
    u_.zdravotni_kc = pojistne.hodnota;
    pricti(u_.srazky_soucet, "srazky_soucet", u_.zdravotni_kc, [] {
        return std::pair{"zdravotní pojištění", "zdravotni_kc"};
    });
    zapis({8, ridici.modul8, "zdravotní pojíštění Kč", u_.zdravotni_kc, pojistne.znacka,
           "zdravotni_kc"});
    if (base::je_nula(u_.zdravotni_kc) && base::je_nula(u_.hruba_do_zdravotniho)) return;
    zapis_pojistovnu(zaklad.hodnota);
}

void PracovnikMesice::zapis_pojistovnu(Castka zaklad) {
    poznamka_ = base::cislo_s_nulami(karta_->cislo_zdrav_poj, 2);
    poznamka_ += " - ";
    poznamka_ += vstupy_.jmeno_pojistovny(karta_->cislo_zdrav_poj);
    zapis({87, 0, "jméno zdravotní pojišťovny", zaklad, poznamka_, "zdravotni_zaklad"});
}

void PracovnikMesice::zapis_dan() {
    Castka prijem = bez_sumu(u_.hruba_do_dane + u_.naturalni_mzda);
    if (stopa_) {
        stopa_->krok("příjem pro daň")
            .z("hrubá mzda do daně", "hruba_do_dane", u_.hruba_do_dane)
            .z("naturální mzda", "naturalni_mzda", u_.naturalni_mzda)
            .predpis("§ 6 zák. č. 586/1992 Sb.")
            .vysledek("prijem_pro_dan", prijem);
    }
    const VybranaHodnota vybrana = vyber(blok_->dan_zaklad, "dan_zaklad", "prijem_pro_dan", prijem);
    Castka zaklad = base::odriznout(bez_sumu(vybrana.hodnota));
    if (stopa_) {
        stopa_->krok("dílčí základ daně")
            .z("příjem pro daň", "prijem_pro_dan", vybrana.hodnota)
            .zaokrouhleni(base::odriznout)
            .vysledek("zaklad_dane", zaklad);
    }
    if (faze(*karta_) == Faze::A) {
        zapis_dilci_zaklad_cizi(zaklad, prijem, vybrana.znacka);
        return;
    }
    if (!zapisovac_.neco_zapsano()) return;

    const std::string pripisy = prevezmi_pripisy(zaklad, prijem);
    const DanPredSlevou pred_slevou = dan_kc(karta_->jaka_dan, zaklad, prijem,
                                             parametry_.nastaveni.limit_vydelku_srazkova, stopa_);
    if (pred_slevou.zalohova) stav_.dilci = pred_slevou.dilci;
    const VybranaHodnota dan = vyber(blok_->dan, "dan", "dan_pred_slevou", pred_slevou.dan);
    u_.dan_castka = dan.hodnota;

    poznamka_ = std::to_string(static_cast<int>(karta_->jaka_dan));
    poznamka_ += pripisy;
    poznamka_ += ' ';
    poznamka_ += dan.znacka;
    zapis({63, 0, "dílčí základ", zaklad, poznamka_, "zaklad_dane"});
    zapis({64, 0, "daň před slevou", u_.dan_castka, "", "dan_pred_slevou"});
    zapis_dilci_dane(pred_slevou.zalohova);

    Castka sleva_na_deti = 0;
    if (stopa_) {
        stopa_->krok("daň po slevách")
            .z("daň před slevou", "dan_pred_slevou", u_.dan_castka)
            .vysledek("dan_po_slevach", u_.dan_castka);
    }
    if (Budou_odpocitatelne()) {
        zapis_slevy();
        sleva_na_deti = zapis_deti();
    }
    uzavri_dan(sleva_na_deti, pred_slevou.text, dan.znacka);
}

// The income is taxed under somebody else: only the base is written and left for the second pass.
void PracovnikMesice::zapis_dilci_zaklad_cizi(Castka zaklad, Castka prijem, const char* znacka) {
    poznamka_ = "zdaňuje pracovník číslo ";
    poznamka_ += std::to_string(karta_->kdo_plati_dan);
    poznamka_ += ' ';
    poznamka_ += znacka;
    zapis({63, 0, "dílčí základ", zaklad, poznamka_, "zaklad_dane"});
    const std::size_t poradi =
        stav_.sloucene_zdaneni.pridej(karta_->cislo, karta_->kdo_plati_dan, zaklad, prijem);
    if (stopa_) {
        stopa_->krok("základ pracovníka č. " + std::to_string(karta_->cislo))
            .z("dílčí základ", "zaklad_dane", zaklad)
            .vysledek("sloucene_" + std::to_string(poradi), zaklad);
    }
}

// Adds the income of contracts taxed under this worker; returns what the note says about them.
std::string PracovnikMesice::prevezmi_pripisy(Castka& zaklad, Castka& prijem) {
    std::string text;
    const std::vector<Pripis> pripisy = stav_.sloucene_zdaneni.odeber_pro(karta_->cislo);
    if (pripisy.empty()) return text;
    const Castka vlastni = zaklad;
    for (const Pripis& pripis : pripisy) {
        zaklad += pripis.zaklad;
        prijem += pripis.prijem;
        text += "  (od pracovníka " + pripis.cislo + pripis.zaklad_textem + "  Kč)";
    }
    zaklad = bez_sumu(zaklad);
    prijem = bez_sumu(prijem);
    if (stopa_) {
        auto krok = stopa_->krok("sloučený základ daně");
        krok.z("vlastní základ", "zaklad_dane", vlastni);
        for (const Pripis& pripis : pripisy) {
            krok.z("od pracovníka " + pripis.cislo, "sloucene_" + std::to_string(pripis.poradi),
                   pripis.zaklad);
        }
        krok.vysledek("zaklad_dane", zaklad);
    }
    return text;
}

// Always written; without an advance they repeat those of the last worker who had one.
void PracovnikMesice::zapis_dilci_dane(bool teto_dane) {
    const DilciDane& d = stav_.dilci;
    const char* zdroj =
        teto_dane ? "záloha tohoto pracovníka" : "záloha pracovníka spočteného dříve (opakuje se)";
    zapis({91, 0, "dílčí základ 15%", d.zaklad_15, "", "", zdroj});
    zapis({92, 0, "dílčí základ 23%", d.zaklad_23, "", "", zdroj});
    zapis(
        {93, 0, "daň před slevou ze základu 15%", d.dan_15, "", teto_dane ? "dan_15" : "", zdroj});
    zapis(
        {94, 0, "daň před slevou ze základu 23%", d.dan_23, "", teto_dane ? "dan_23" : "", zdroj});
}

Castka PracovnikMesice::suma_odpocitatelnych() const {
    Castka suma = 0;
    for (const Dite& dite : vstupy_.deti(karta_->cislo))
        suma += dite.odpocitatelna_dan;
    return suma;
}

bool PracovnikMesice::Budou_odpocitatelne() {
    if (pracovni_pomer_trva(RezimPomeru::cely_mesic)) return true;
    if (!pracovni_pomer_trva(RezimPomeru::cast_mesice)) return false;
    const Slevy slevy{karta_->odp_poplatnik, karta_->odp_invalidita, karta_->odp_ostatni,
                      suma_odpocitatelnych()};
    const std::string text = text_slev(slevy);
    if (text.empty()) return false;
    return otazka_(*karta_, otazka_na_slevy(karta_->cislo, karta_->prijmeni, karta_->jmeno, text));
}

void PracovnikMesice::zapis_slevy() {
    const Karta& k = *karta_;
    zapis({66, 0, "sleva na poplatníka", static_cast<Castka>(k.odp_poplatnik), "", "",
           "Os_karty.Odp_poplatnik"});
    zapis({67, 0, "sleva na invaliditu", static_cast<Castka>(k.odp_invalidita),
           Stupen_invalidity(k.odp_invalidita, parametry_.ridici.invalidita_castky), "",
           "Os_karty.Odp_invalidita"});
    zapis({68, 0, "sleva na studenta", static_cast<Castka>(k.odp_ostatni), "", "",
           "Os_karty.Odp_ostatni"});
    const Castka pred = u_.dan_castka;
    u_.dan_castka -= Castka{0} + k.odp_poplatnik + k.odp_invalidita + k.odp_ostatni;
    const bool pod_nulou = u_.dan_castka < 0;
    if (pod_nulou) u_.dan_castka = 0;
    if (stopa_) {
        auto krok = stopa_->krok("daň po slevách");
        krok.z("daň před slevou", "dan_pred_slevou", pred)
            .udaj("na poplatníka", k.odp_poplatnik, "Os_karty.Odp_poplatnik")
            .udaj("na invaliditu", k.odp_invalidita, "Os_karty.Odp_invalidita")
            .udaj("na studenta", k.odp_ostatni, "Os_karty.Odp_ostatni");
        if (pod_nulou) krok.vetev("slevy nemohou vytvořit bonus: daň je 0");
        krok.predpis("§ 35ba zák. č. 586/1992 Sb.").vysledek("dan_po_slevach", u_.dan_castka);
    }
}

Castka PracovnikMesice::zapis_deti() {
    if (stopa_) stopa_->zacni_soucet("sleva_na_deti", "daňové zvýhodnění na děti");
    Castka sleva = 0;
    for (const Dite& dite : vstupy_.deti(karta_->cislo)) {
        poznamka_ = base::na_sirku(dite.prijmeni, 30);
        poznamka_ += base::na_sirku(dite.jmeno, 20);
        poznamka_ += base::na_sirku(dite.bydliste, 30);
        poznamka_ += base::na_sirku(dite.rodne_cislo, 13);
        poznamka_ += base::castka_do_sloupce(7, 0, dite.odpocitatelna_dan);
        zapis(
            {88, 0, "dítě pro daňové zvýhodnění", 0, poznamka_, "", "řádek nese dítě, ne částku"});
        pricti(sleva, "sleva_na_deti", dite.odpocitatelna_dan, [&] {
            return std::pair{dite.jmeno, "Deti.Odpocitatelna_dan"};
        });
    }
    return sleva;
}

void PracovnikMesice::uzavri_dan(Castka sleva_na_deti, const std::string& text_dane,
                                 const char* znacka) {
    const shell::Nastaveni& nastaveni = parametry_.nastaveni;
    if (!base::je_nula(sleva_na_deti)) {
        zapis({65, 0, "sleva na děti", sleva_na_deti, "", "sleva_na_deti"});
    }
    const Castka po_slevach = u_.dan_castka;
    const Castka po_detech = po_slevach - sleva_na_deti;
    const Castka prijem = bez_sumu(u_.hruba_mzda + u_.naturalni_mzda);
    u_.dan_castka = dan_po_pravidlech_bonusu(po_detech, prijem, nastaveni.MinimalniMzda,
                                             nastaveni.BonusMaximalni_Mesicni);
    const bool bonus = u_.dan_castka < -0.001L;
    if (stopa_) {
        auto krok = stopa_->krok(bonus ? "daňový bonus" : "daň");
        krok.z("daň po slevách", "dan_po_slevach", po_slevach);
        if (!base::je_nula(sleva_na_deti)) {
            krok.z("zvýhodnění na děti", "sleva_na_deti", sleva_na_deti);
        }
        if (po_detech < 0) {
            krok.z("hrubá mzda", "hruba_mzda", u_.hruba_mzda)
                .z("naturální mzda", "naturalni_mzda", u_.naturalni_mzda)
                .nastaveni("minimální mzda (bonus od poloviny)", nastaveni.MinimalniMzda,
                           "Nastaveni.ini Legislativa2009/MinimalniMzda")
                .konstanta("nejmenší bonus", k_nejmensi_bonus)
                .nastaveni("největší bonus", nastaveni.BonusMaximalni_Mesicni,
                           "Nastaveni.ini Legislativa2009/BonusMaximalni_Mesicni");
        }
        krok.predpis("§ 35c a § 35d zák. č. 586/1992 Sb.").vysledek("dan_castka", u_.dan_castka);
    }
    pricti(u_.srazky_soucet, "srazky_soucet", u_.dan_castka, [] {
        return std::pair{"daň", "dan_castka"};
    });
    poznamka_ = text_dane;
    poznamka_ += ' ';
    poznamka_ += znacka;
    zapis({9, parametry_.ridici.modul9, bonus ? "daň - bonus" : "daň", u_.dan_castka, poznamka_,
           "dan_castka"});
}

}  // namespace payrun
