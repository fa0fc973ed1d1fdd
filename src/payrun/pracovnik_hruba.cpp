// Gross wages of the worker's month: columns, fixed salary and assessments, wage in kind, time.
#include <algorithm>

#include "base/castky_text.h"
#include "base/chyba.h"
#include "base/text.h"
#include "payrun/kraceni.h"
#include "payrun/pracovnik_mesice.h"

namespace payrun {
namespace {

constexpr std::size_t k_sirka_nazvu_ohodnoceni = 20;
constexpr const char* k_nazvy_ohodnoceni[] = {"osobní ohodnocení 1", "osobní ohodnocení 2",
                                              "osobní ohodnocení 3", "osobní ohodnocení 4",
                                              "osobní ohodnocení 5"};
constexpr const char* k_pole_ohodnoceni[] = {"Os_karty.Os_oh_1", "Os_karty.Os_oh_2",
                                             "Os_karty.Os_oh_3", "Os_karty.Os_oh_4",
                                             "Os_karty.Os_oh_5"};

}  // namespace

void PracovnikMesice::zapis_hrube_mzdy() {
    if (stopa_) {
        stopa_->zacni_soucet("hruba_mzda", "hrubá mzda");
        stopa_->zacni_soucet("hruba_do_socialniho", "hrubá mzda do sociálního pojištění");
        stopa_->zacni_soucet("hruba_do_zdravotniho", "hrubá mzda do zdravotního pojištění");
        stopa_->zacni_soucet("hruba_do_dane", "hrubá mzda do daně");
    }
    for (const HrubaSkupina& s : vstupy_.hrube_podle_sloupcu(karta_->cislo, 1)) {
        zapis_sloupec_hrube_mzdy(s);
    }
    zapis_stale_platy();
    zapis({2, parametry_.ridici.modul2, "hrubá celkem", u_.hruba_mzda, "", "hruba_mzda"});
    zapis_casy();
}

void PracovnikMesice::zapis_sloupec_hrube_mzdy(const HrubaSkupina& skupina) {
    pricti_casy(skupina);
    const Castka x = base::sloupec_na_koruny(skupina.kc_cel);
    const std::string& nazev = vstupy_.sloupec_slovy(skupina.sloupec);
    if (stopa_) {
        auto krok = stopa_->krok("sloupec " + std::to_string(skupina.sloupec) + " " + nazev);
        for (const HrubyRadek& r : vstupy_.hrube(karta_->cislo)) {
            if (r.modul != 1 || r.sloupec != skupina.sloupec) continue;
            krok.udaj("řádek hrubých mezd", r.kc_cel, zdroj_radku(r));
        }
        krok.zaokrouhleni(base::sloupec_na_koruny).vysledek("hruby_sloupec", x);
    }
    pricti_k_hrube(skupina.sloupec, x, "hruby_sloupec", nazev);
    zapis({1, skupina.sloupec, nazev, x, "", "hruby_sloupec"});
    zapis_sledovane_sloupce(skupina);
}

void PracovnikMesice::pricti_casy(const HrubaSkupina& skupina) {
    struct Cas {
        Castka& ucet;
        const char* promenna;
        Castka castka;
        const char* pole;
    };
    const Cas casy[] = {
        {u_.dny_odpracovane, "dny_odpracovane", skupina.dny_od, "Dny_od"},
        {u_.dny_neodpracovane, "dny_neodpracovane", skupina.dny_neod, "Dny_neod"},
        {u_.hodiny_odpracovane, "hodiny_odpracovane", skupina.hod_od, "Hod_od"},
        {u_.hodiny_neodpracovane, "hodiny_neodpracovane", skupina.hod_neod, "Hod_neod"},
        {u_.hodiny_vedlejsi, "hodiny_vedlejsi", skupina.hod_vedl, "Hod_vedl"},
    };
    for (const Cas& cas : casy) {
        pricti(cas.ucet, cas.promenna, cas.castka, [&] {
            return std::pair{"sloupec " + std::to_string(skupina.sloupec),
                             zdroj("Hrube", cas.pole)};
        });
    }
}

// Rows of the columns that the settings watch.
void PracovnikMesice::zapis_sledovane_sloupce(const HrubaSkupina& skupina) {
    struct Sledovany {
        int sloupec;
        int modul;
        const char* co_je_to;
        Castka hodnota;
        const char* zdroj;
    };
    const shell::RidiciZorv& ridici = parametry_.ridici;
    const Sledovany sledovane[] = {
        {ridici.sloupec_dovolena_dny, 71, "čerpaná dovolená", skupina.dny_neod, "HrubeMM.Dny_neod"},
        {ridici.sloupec_dovolena_hodiny, 72, "hodiny vyčerpané dovolené", skupina.hod_neod,
         "HrubeMM.Hod_neod"},
        {ridici.sloupec_neplacene_volno, 73, "neplacené volno", skupina.kc1, "HrubeMM.Kc1"},
    };
    for (const Sledovany& s : sledovane) {
        if (s.sloupec == 0 || s.sloupec != skupina.sloupec) continue;
        zapis({s.modul, 0, s.co_je_to, s.hodnota, "", "", s.zdroj});
    }
}

void PracovnikMesice::pricti_k_hrube(int sloupec, Castka castka, std::string_view promenna,
                                     std::string_view nazev) {
    const shell::Nastaveni& nastaveni = parametry_.nastaveni;
    const auto puvod = [&] { return std::pair{std::string(nazev), std::string(promenna)}; };
    pricti(u_.hruba_mzda, "hruba_mzda", castka, puvod);
    if (Jde_do_socialniho_pojisteni(nastaveni, sloupec)) {
        pricti(u_.hruba_do_socialniho, "hruba_do_socialniho", castka, puvod);
    }
    if (Jde_do_zdravotniho_pojisteni(nastaveni, sloupec)) {
        pricti(u_.hruba_do_zdravotniho, "hruba_do_zdravotniho", castka, puvod);
    }
    if (Jde_do_dane(nastaveni, sloupec)) {
        pricti(u_.hruba_do_dane, "hruba_do_dane", castka, puvod);
    }
}

void PracovnikMesice::zapis_stale_platy() {
    const auto& os_oh = karta_->os_oh;
    const bool nejaky_plat = karta_->staly_plat >= 1;
    const auto zadane = [](int castka) { return castka >= 1; };
    if (!nejaky_plat && std::none_of(os_oh.begin(), os_oh.end(), zadane)) return;
    const Fondy fondy = fondy_pracovni_doby();
    if (nejaky_plat) zapis_staly_plat(fondy);
    for (std::size_t i = 0; i < os_oh.size(); ++i) {
        if (os_oh[i] >= 1) zapis_osobni_ohodnoceni(i, fondy);
    }
}

PracovnikMesice::Fondy PracovnikMesice::fondy_pracovni_doby() {
    const Karta& k = *karta_;
    if (base::je_nula(k.tpd)) {
        throw base::ChybaDat("Os_karty: pracovník " + std::to_string(k.cislo) +
                             ", pole tpd: stálý plat nelze zkrátit bez týdenní pracovní doby,"
                             " očekává se počet hodin větší než 0");
    }
    const int dny_pomeru =
        kolik_dni_trval_pracovni_pomer(k.pomer, parametry_.mesic, parametry_.rok);
    Fondy f;
    f.mesice = hodiny_za_dny(parametry_.pracovni_dny_mesice, k.tpd);
    f.odpracovano = hodiny_za_dny(dny_pomeru, k.tpd) - u_.hodiny_neodpracovane;
    Castka rpd_pomeru = 0;
    if (k.kratit_plat) {
        if (const wages::RokKalendare* kalendar = vstupy_.kalendar(k.id_rpd)) {
            const int rok = parametry_.rok, mesic = parametry_.mesic;
            f.rpd_mesice = wages::fond_hodin_rpd(*kalendar, rok, mesic, {}, {});
            rpd_pomeru = wages::fond_hodin_rpd(*kalendar, rok, mesic, k.zam_od, k.zam_do);
            f.rpd_dny = wages::fond_dni_rpd(*kalendar, rok, mesic, k.zam_od, k.zam_do);
        }
        f.rpd_odpracovano = rpd_pomeru - u_.hodiny_neodpracovane;
    }
    if (stopa_) stopa_fondu(f, dny_pomeru, rpd_pomeru);
    return f;
}

void PracovnikMesice::stopa_fondu(const Fondy& fondy, int dny_pomeru, Castka rpd_pomeru) {
    const Karta& k = *karta_;
    stopa_->krok("hodiny pracovního poměru v měsíci")
        .udaj("pracovní dny poměru", dny_pomeru, "Os_karty.Zam_od, Zam_do")
        .udaj("týdenní pracovní doba", k.tpd, "Os_karty.tpd")
        .z("hodiny neodpracované", "hodiny_neodpracovane", u_.hodiny_neodpracovane)
        .vysledek("hodiny_platu", fondy.odpracovano);
    stopa_->krok("fond hodin měsíce")
        .udaj("pracovní dny měsíce", parametry_.pracovni_dny_mesice, "kalendář měsíce")
        .udaj("týdenní pracovní doba", k.tpd, "Os_karty.tpd")
        .vysledek("fond_hodin_mesice", fondy.mesice);
    if (k.kratit_plat) {
        const std::string kalendar = "Rpd.Fond" + std::to_string(parametry_.mesic) +
                                     ", Pocitadlo " + std::to_string(k.id_rpd);
        stopa_->krok("hodiny pracovního poměru podle kalendáře")
            .udaj("fond poměru", rpd_pomeru, kalendar)
            .z("hodiny neodpracované", "hodiny_neodpracovane", u_.hodiny_neodpracovane)
            .vysledek("hodiny_platu_rpd", fondy.rpd_odpracovano);
        stopa_->krok("fond hodin měsíce podle kalendáře")
            .udaj("fond měsíce", fondy.rpd_mesice, kalendar)
            .vysledek("fond_hodin_rpd", fondy.rpd_mesice);
    }
}

Castka PracovnikMesice::zkraceny_plat(Castka castka, const Fondy& fondy, const char* nazev,
                                      const char* pole, const char* promenna) {
    const bool rpd = karta_->kratit_plat;
    const Castka fond = rpd ? fondy.rpd_mesice : fondy.mesice;
    const Castka hodiny = rpd ? fondy.rpd_odpracovano : fondy.odpracovano;
    const Castka x = zkracena_castka(castka, fond, hodiny);
    if (stopa_) {
        auto krok = stopa_->krok(nazev);
        krok.udaj("částka na kartě", castka, pole)
            .z("fond hodin", rpd ? "fond_hodin_rpd" : "fond_hodin_mesice", fond)
            .z("hodiny", rpd ? "hodiny_platu_rpd" : "hodiny_platu", hodiny);
        krok.vetev(rpd ? "krátí se podle pracovního kalendáře"
                       : "krátí se podle pracovních dní poměru");
        krok.zaokrouhleni(base::plat_na_koruny).vysledek(promenna, x);
    }
    return x;
}

void PracovnikMesice::zapis_staly_plat(const Fondy& fondy) {
    const Karta& k = *karta_;
    const Castka dny = dny_za_hodiny(fondy.odpracovano, k.tpd);
    const Castka pridej_dny = k.kratit_plat ? fondy.rpd_dny - u_.dny_neodpracovane : dny;
    const Castka pridej_hodiny = k.kratit_plat ? fondy.rpd_odpracovano : fondy.odpracovano;
    pricti(u_.dny_odpracovane, "dny_odpracovane", pridej_dny, [] {
        return std::pair{"stálý plat", "dny stálého platu"};
    });
    pricti(u_.hodiny_odpracovane, "hodiny_odpracovane", pridej_hodiny, [&] {
        return std::pair{"stálý plat", k.kratit_plat ? "hodiny_platu_rpd" : "hodiny_platu"};
    });
    const Castka x =
        zkraceny_plat(k.staly_plat, fondy, "stálý plat", "Os_karty.Staly_plat", "staly_plat");
    const int sloupec = parametry_.ridici.sloupec_staly_plat;
    pricti_k_hrube(sloupec, x, "staly_plat", "stálý plat");
    poznamka_ = "ST PLAT: ";
    poznamka_ += base::cislo_s_nulami(k.stredisko, 2);
    poznamka_ += ' ';
    poznamka_ += base::cislo_s_nulami(k.vykon, 3);
    poznamka_ += base::castka_s_carkou(10, 2, dny);
    poznamka_ += base::castka_s_carkou(10, 2, fondy.odpracovano);
    poznamka_ += " *";
    poznamka_ += std::to_string(k.staly_plat);
    poznamka_ += '*';
    zapis({1, sloupec, "stálý plat", x, poznamka_, "staly_plat"});
}

void PracovnikMesice::zapis_osobni_ohodnoceni(std::size_t poradi, const Fondy& fondy) {
    const Karta& k = *karta_;
    const char* nazev = k_nazvy_ohodnoceni[poradi];
    const Castka x =
        zkraceny_plat(k.os_oh[poradi], fondy, nazev, k_pole_ohodnoceni[poradi], "os_oh");
    const int sloupec = parametry_.ridici.sloupec_os_oh[poradi];
    pricti_k_hrube(sloupec, x, "os_oh", nazev);
    poznamka_ = "OS OH ";
    poznamka_ += std::to_string(poradi + 1);
    poznamka_ += ": ";
    poznamka_ += base::cislo_s_nulami(k.stredisko, 2);
    poznamka_ += ' ';
    poznamka_ += base::cislo_s_nulami(k.vykon, 3);
    poznamka_ += ' ';
    poznamka_ += base::na_sirku(parametry_.ridici.text_os_oh[poradi], k_sirka_nazvu_ohodnoceni);
    poznamka_ += " *";
    poznamka_ += std::to_string(k.os_oh[poradi]);
    poznamka_ += '*';
    zapis({1, sloupec, nazev, x, poznamka_, "os_oh"});
}

void PracovnikMesice::zapis_casy() {
    zapis({51, 0, "dny odpracované", u_.dny_odpracovane, "", "dny_odpracovane"});
    zapis({52, 0, "dny neodpracované", u_.dny_neodpracovane, "", "dny_neodpracovane"});
    zapis({53, 0, "hodiny odpracované", u_.hodiny_odpracovane, "", "hodiny_odpracovane"});
    zapis({54, 0, "hodiny neodpracované", u_.hodiny_neodpracovane, "", "hodiny_neodpracovane"});
    zapis({55, 0, "hodiny vedlejší poměr", u_.hodiny_vedlejsi, "", "hodiny_vedlejsi"});
}

// Wage in kind enters the bases and the tax, not the payable amount.
void PracovnikMesice::zapis_naturalni_mzdu() {
    if (stopa_) stopa_->zacni_soucet("naturalni_mzda", "naturální mzda");
    const shell::Nastaveni& nastaveni = parametry_.nastaveni;
    for (const HrubaSkupina& s : vstupy_.hrube_podle_sloupcu(karta_->cislo, 3)) {
        const std::string& nazev = vstupy_.sloupec_slovy(s.sloupec);
        const Castka do_zakladu = base::sloupec_na_koruny(s.kc_cel);
        if (stopa_) {
            auto krok = stopa_->krok("sloupec " + std::to_string(s.sloupec) + " " + nazev);
            for (const HrubyRadek& r : vstupy_.hrube(karta_->cislo)) {
                if (r.modul != 3 || r.sloupec != s.sloupec) continue;
                krok.udaj("řádek hrubých mezd", r.kc_cel, zdroj_radku(r));
            }
            krok.vysledek("naturalni_sloupec", s.kc_cel);
            stopa_->krok("naturální mzda do pojištění")
                .z("sloupec", "naturalni_sloupec", s.kc_cel)
                .zaokrouhleni(base::sloupec_na_koruny)
                .vysledek("naturalni_do_pojisteni", do_zakladu);
        }
        pricti(u_.naturalni_mzda, "naturalni_mzda", s.kc_cel, [&] {
            return std::pair{nazev, "naturalni_sloupec"};
        });
        zapis({3, s.sloupec, nazev, s.kc_cel, "", "naturalni_sloupec"});
        const auto puvod = [&] { return std::pair{nazev, "naturalni_do_pojisteni"}; };
        if (Jde_do_socialniho_pojisteni(nastaveni, s.sloupec)) {
            pricti(u_.hruba_do_socialniho, "hruba_do_socialniho", do_zakladu, puvod);
        }
        if (Jde_do_zdravotniho_pojisteni(nastaveni, s.sloupec)) {
            pricti(u_.hruba_do_zdravotniho, "hruba_do_zdravotniho", do_zakladu, puvod);
        }
    }
}

}  // namespace payrun
