#include "payrun/unit133_prohlizeni_mezd.h"

#include <algorithm>
#include <fmt/format.h>

#include "base/castky_text.h"
#include "base/cekani.h"
#include "base/datum.h"
#include "base/text.h"
#include "payrun/unit133_vystup.h"
#include "payrun/unit50_blokace.h"
#include "paysheet/listina.h"
#include "report/nahled.h"
#include "shell/prace_v_mesici.h"
#include "shell/ulozeni_csv.h"
#include "store/catalogue.h"

namespace payrun {

namespace {

constexpr int k_modul_k_vyplate = 14;
constexpr const char* k_zmenilo_se = "Karta nebo zadání se od výpočtu změnily: ";

std::string kc(const std::optional<Castka>& castka) {
    return base::castka_prosta(castka.value_or(0));
}

/// What is said of a row whose explained amount is not the stored one.
std::string text_rozdilu(const VysvetlenyRadek& r) {
    if (r.souhlasi) return "";
    if (r.vypocteno) {
        return fmt::format("{}v listině je {}, nyní vychází {}.", k_zmenilo_se, kc(r.ulozeno),
                           kc(r.vypocteno));
    }
    return fmt::format("{}v listině je {}, výpočet takový řádek už nedává.", k_zmenilo_se,
                       kc(r.ulozeno));
}

std::string text_noveho_radku(const VysvetlenyRadek& r) {
    const std::string kde = r.sloupec ? fmt::format("modul {}, sloupec {}", r.modul, r.sloupec)
                                      : fmt::format("modul {}", r.modul);
    return fmt::format("{}nově vychází {} ({}) {}, v listině není.", k_zmenilo_se, r.co_je_to, kde,
                       kc(r.vypocteno));
}

const char* jmeno_oblasti(OblastMezd oblast) {
    switch (oblast) {
        case OblastMezd::pracovnici:
            return "pracovnici";
        case OblastMezd::radky:
            return "radky";
        case OblastMezd::vysvetleni:
            return "vysvetleni";
    }
    return "";
}

}  // namespace

TForm133::TForm133(shell::Session& session, int mesic)
    : sazby(sazby_podniku(session)), session_(session), mesic_(mesic) {
    for (int m = 1; m <= 12; ++m) {
        if (paysheet::is_prazdne_listin(session, m)) continue;
        if (m == mesic) mesic_index = static_cast<int>(mesice.size());
        mesice.push_back(m);
    }
    nadpis = "Prohlížení mezd - " + base::mesic_slovy(mesic_, session.rok);
    hlaska = mesic_index < 0 ? hlaska_bez_listiny(session, mesic) : "";
}

void TForm133::FormShow() {
    if (hlaska.empty()) {
        nacti_mesic();
        fokus = jmeno_oblasti(oblast);
    }
    oznam_zmenu();
}

void TForm133::vyber_mesic(int index) {
    if (index < 0 || index >= static_cast<int>(mesice.size())) return;
    mesic_index = index;
    mesic_ = mesice[static_cast<std::size_t>(index)];
    nadpis = "Prohlížení mezd - " + base::mesic_slovy(mesic_, session_.rok);
    nacti_mesic();
    oznam_zmenu();
}

void TForm133::nacti_mesic() {
    vsichni_ = nacti_pracovniky_listiny(session_, mesic_);
    cislo_radku_ = 0;
    Filtruj_adresy();
}

void TForm133::Filtruj_adresy() {
    const int cislo = pracovnik < 0 ? 0 : pracovnici.at(static_cast<std::size_t>(pracovnik)).cislo;
    pracovnici.clear();
    soucet_vsech = {};
    for (const std::size_t i :
         vyber_pracovniky(vsichni_, filtr, static_cast<TrideniPracovniku>(trideni))) {
        pracovnici.push_back(vsichni_[i]);
        soucet_vsech.pridej(vsichni_[i].soucet);
    }
    ++zmeny.pracovnici;
    const auto it = std::find_if(pracovnici.begin(), pracovnici.end(),
                                 [cislo](const auto& p) { return p.cislo == cislo; });
    vyber_pracovnika(it == pracovnici.end() ? 0 : static_cast<int>(it - pracovnici.begin()));
}

void TForm133::btXClick() {
    filtr.clear();
    Filtruj_adresy();
}

void TForm133::vyber_pracovnika(int novy) {
    pracovnik = novy >= 0 && novy < static_cast<int>(pracovnici.size()) ? novy : -1;
    const int cislo = pracovnik < 0 ? 0 : pracovnici[static_cast<std::size_t>(pracovnik)].cislo;
    if (cislo == 0 || cislo != cislo_radku_) {
        nacti_radky(cislo);
    } else {
        oznam_zmenu();
    }
}

void TForm133::nacti_radky(int cislo) {
    const int modul = radek < 0 ? k_modul_k_vyplate : radky[static_cast<std::size_t>(radek)].modul;
    const int sloupec = radek < 0 ? 0 : radky[static_cast<std::size_t>(radek)].sloupec;
    radky = cislo == 0 ? RadkyListiny() : nacti_radky_listiny(session_, mesic_, cislo);
    cislo_radku_ = cislo;
    radek = -1;
    zapomen_vysvetleni();
    ++zmeny.radky;
    // The clerk compares an item of one worker after another, at first what is paid out.
    const auto najdi = [this](auto podminka) {
        const auto it = std::find_if(radky.begin(), radky.end(), podminka);
        return it == radky.end() ? -1 : static_cast<int>(it - radky.begin());
    };
    int misto = najdi([=](const auto& r) { return r.modul == modul && r.sloupec == sloupec; });
    if (misto < 0) misto = najdi([](const auto& r) { return r.modul == k_modul_k_vyplate; });
    vyber_radek(std::max(misto, 0));
}

void TForm133::vyber_radek(int novy) {
    radek = novy >= 0 && novy < static_cast<int>(radky.size()) ? novy : -1;
    if (vysvetleni_) {
        ukaz_vysvetleni();
    } else {
        ceka_na_vysvetleni = radek >= 0;
    }
    oznam_zmenu();
}

void TForm133::zapomen_vysvetleni() {
    vysvetleni_.reset();
    strom = {};
    rozdil.clear();
    scChyby.clear();
    ceka_na_vysvetleni = radek >= 0;
    ++zmeny.vysvetleni;
}

void TForm133::vysvetli() {
    if (radek < 0 || !ceka_na_vysvetleni) return;
    if (!vysvetleni_) vysvetli_pracovnika_listiny();
    ukaz_vysvetleni();
    oznam_zmenu();
}

// A month whose inputs are gone or a card that cannot be computed leaves the sheet to be read, only
// unexplained.
void TForm133::vysvetli_pracovnika_listiny() {
    const int cislo = pracovnici.at(static_cast<std::size_t>(pracovnik)).cislo;
    try {
        if (!session_.data().table_exists(store::month_table("Hrube", mesic_))) {
            throw base::ChybaDat(fmt::format("Hrubé mzdy za  {} nejsou, částky nelze vysvětlit.",
                                             base::mesic_slovy(mesic_, session_.rok)));
        }
        vysvetleni_ = std::make_unique<Vysvetleni>(vysvetli_pracovnika(session_, mesic_, cislo));
        scChyby = vysvetleni_->chyby;
        if (!vysvetleni_->pracovnik_nalezen) {
            scChyby.push_back(fmt::format(
                "Pracovník {} v kartotéce už není, jeho částky nelze vysvětlit.", cislo));
        }
    } catch (const base::ChybaDat& chyba) {
        vysvetleni_ = std::make_unique<Vysvetleni>();
        scChyby = {chyba.what()};
    }
    for (const VysvetlenyRadek& r : vysvetleni_->radky) {
        if (!r.ulozeno) scChyby.push_back(text_noveho_radku(r));
    }
}

void TForm133::ukaz_vysvetleni() {
    ceka_na_vysvetleni = false;
    ++zmeny.vysvetleni;
    strom = {};
    rozdil.clear();
    const VysvetlenyRadek* r = vysvetleni_radku(radek);
    if (!r) return;
    strom = base::StromVypoctu(vysvetleni_->stopa, r->krok);
    rozdil = text_rozdilu(*r);
}

/// The explanation of a row: of several rows of a module and column the one of the same order.
const VysvetlenyRadek* TForm133::vysvetleni_radku(int radek_listiny) const {
    if (!vysvetleni_ || radek_listiny < 0) return nullptr;
    const auto je_stejny = [&](const auto& r) {
        const RadekListiny& hledany = radky[static_cast<std::size_t>(radek_listiny)];
        return r.modul == hledany.modul && r.sloupec == hledany.sloupec;
    };
    auto poradi = std::count_if(radky.begin(), radky.begin() + radek_listiny, je_stejny);
    for (const VysvetlenyRadek& r : vysvetleni_->radky) {
        if (r.ulozeno && je_stejny(r) && poradi-- == 0) return &r;
    }
    return nullptr;
}

bool TForm133::lisi_se(int radek_listiny) const {
    const VysvetlenyRadek* r = vysvetleni_radku(radek_listiny);
    return r && !r->souhlasi;
}

void TForm133::rozbal(int uzel) {
    strom.rozbal(uzel);
}

void TForm133::jdi_na(OblastMezd kam) {
    oblast = kam;
    fokus = jmeno_oblasti(kam);
    oznam_zmenu();
}

std::string TForm133::kopie() const {
    switch (oblast) {
        case OblastMezd::pracovnici:
            return text_tabulky(tabulka_pracovniku(pracovnici));
        case OblastMezd::radky:
            return text_tabulky(tabulka_radku(radky));
        case OblastMezd::vysvetleni:
            break;
    }
    const VysvetlenyRadek* r = vysvetleni_radku(radek);
    return r ? vysvetleni_->stopa.strom(r->krok) : "";
}

void TForm133::acExportExecute() {
    if (ceka_na_obsluhu_ || pracovnici.empty()) return;
    const base::Cekani cekani(ceka_na_obsluhu_);
    shell::uloz_csv(session_, store::month_table("Listin", mesic_) + ".csv",
                    csv_listiny(pracovnici, nacti_radky_vsech(session_, mesic_)),
                    {"Složka pro výplatní listinu", nadpis, "Výplatní listina je v souboru"});
}

void TForm133::acTiskExecute() {
    if (ceka_na_obsluhu_ || pracovnici.empty()) return;
    const base::Cekani cekani(ceka_na_obsluhu_);
    const std::string obdobi = base::mesic_slovy(mesic_, session_.rok);
    report::TabulkovaSestava sestava =
        oblast == OblastMezd::pracovnici
            ? sestava_pracovniku(pracovnici, soucet_vsech, sazby)
            : sestava_radku(pracovnici[static_cast<std::size_t>(pracovnik)], radky);
    sestava.nazev += " - " + obdobi;
    sestava.zahlavi.insert(sestava.zahlavi.begin(), session_.radek_firmy);
    if (oblast == OblastMezd::pracovnici && base::neprazdny(filtr)) {
        sestava.zahlavi.push_back("Filtr: " + filtr);
    }
    report::TFUsrPrev nahled(report::sestav_tabulku(sestava));
    session_.obsluha().ukaz_modalne(nahled);
}

void TForm133::acBlokExecute() {
    if (ceka_na_obsluhu_ || !hlaska.empty()) return;
    const base::Cekani cekani(ceka_na_obsluhu_);
    const shell::PraceVMesici mesic(session_, mesic_);
    zaloz_soubor_pro_blokovani(session_);
    TForm50 blokace(session_);
    blokace.FormShow();
    if (pracovnik >= 0) {
        blokace.najdi_pracovnika(pracovnici[static_cast<std::size_t>(pracovnik)].cislo);
    }
    session_.obsluha().ukaz_modalne(blokace);
    // A changed value changes what would come out now.
    zapomen_vysvetleni();
    fokus = jmeno_oblasti(oblast);
    oznam_zmenu();
}

void TForm133::acZpetExecute() {
    zavreno = true;
    oznam_zmenu();
}

std::string pracovnik_slovy(const TForm133& form) {
    if (form.pracovnik < 0) return "";
    const PracovnikListiny& p = form.pracovnici[static_cast<std::size_t>(form.pracovnik)];
    return fmt::format("{}  {} {}", p.cislo, p.prijmeni, p.jmeno);
}

std::string hlaska_bez_listiny(const shell::Session& session, int mesic) {
    return "Výplatní listina za  " + base::mesic_slovy(mesic, session.rok) +
           " neexistuje, nejprve zpracujte výplaty.";
}

}  // namespace payrun
