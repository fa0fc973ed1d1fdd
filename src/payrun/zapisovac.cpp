#include "payrun/zapisovac.h"

#include "base/text.h"
#include "store/catalogue.h"

namespace payrun {
namespace {

constexpr std::size_t k_znaku_poznamky = 100;
constexpr std::size_t k_znaku_co_je_to = 30;
// Values up to this one make no row; in the modules that keep empty rows the field stays empty.
constexpr Castka k_zanedbatelne = 0.01L;

// Positions in the list of fields of TabulkaVet.
enum Pole : std::size_t {
    p_mesic,
    p_cislo,
    p_prijmeni,
    p_jmeno,
    p_modul,
    p_sloupec,
    p_co_je_to,
    p_hodnota,
    p_poznamka,
    p_mod_sl,
    p_volit
};

const std::vector<std::string>& pole_listiny() {
    static const std::vector<std::string> pole{
        "Mesic",   "Cislo_pracovnika", "Prijmeni", "Jmeno",   "Modul",   "Sloupec", "Co_je_to",
        "Hodnota", "Poznamka",         "Mod_sl",   "Volit_1", "Volit_2", "Volit_3", "Volit_4",
        "Volit_5", "Volit_6",          "Volit_7",  "Volit_8", "Volit_9", "Volit_10"};
    return pole;
}

bool zapisuje_se_i_prazdna(int modul) {
    return modul == 4 || modul == 9 || modul == 14 || (modul >= 87 && modul <= 94);
}

bool je_casova(int modul) {
    return (modul >= 51 && modul <= 55) || (modul >= 71 && modul <= 73);
}

// A text of no more bytes than that has no more characters either: the common case is not counted.
std::string_view zkrat(std::string_view text, std::size_t znaku, std::string& pamet) {
    if (text.size() <= znaku) return text;
    pamet = base::nejvyse(text, znaku);
    return pamet;
}

}  // namespace

TabulkaVet::TabulkaVet(store::Connection& data, int mesic)
    : mesic_(mesic), vkladac_(data, store::month_table("Listin", mesic), pole_listiny()) {}

void TabulkaVet::pridej(const Veta& veta) {
    const Karta& pracovnik = *veta.pracovnik;
    vkladac_.set(p_mesic, mesic_);
    vkladac_.set(p_cislo, pracovnik.cislo);
    if (!pracovnik.prijmeni.empty()) vkladac_.set(p_prijmeni, std::string_view(pracovnik.prijmeni));
    if (!pracovnik.jmeno_s_titulem.empty()) {
        vkladac_.set(p_jmeno, std::string_view(pracovnik.jmeno_s_titulem));
    }
    if (veta.modul != 0) vkladac_.set(p_modul, veta.modul);
    if (veta.sloupec != 0) vkladac_.set(p_sloupec, veta.sloupec);
    if (!veta.co_je_to.empty()) vkladac_.set(p_co_je_to, veta.co_je_to);
    if (veta.hodnota) vkladac_.set(p_hodnota, *veta.hodnota);
    if (!veta.poznamka.empty()) vkladac_.set(p_poznamka, veta.poznamka);
    vkladac_.set(p_mod_sl, veta.modul * 100 + veta.sloupec);
    for (std::size_t i = 0; i < pracovnik.volit.size(); ++i) {
        if (pracovnik.volit[i]) vkladac_.set(p_volit + i, *pracovnik.volit[i]);
    }
    vkladac_.insert();
}

void PametVet::pridej(const Veta& veta) {
    vety.push_back({veta.modul, veta.sloupec, std::string(veta.co_je_to),
                    std::string(veta.poznamka), veta.hodnota.value_or(0.0), veta.krok});
}

bool je_zanedbatelna(Castka hodnota) {
    return hodnota <= k_zanedbatelne && hodnota >= -k_zanedbatelne;
}

Castka ulozena_hodnota(int modul, Castka hodnota) {
    const Castka presna = bez_sumu(hodnota);
    return je_casova(modul) ? base::na_halere_k_sude(presna) : base::na_koruny_k_sude(presna);
}

void Zapisovac::zacni_pracovnika(const Karta& pracovnik, CilVet& cil, base::Stopa* stopa) {
    pracovnik_ = &pracovnik;
    cil_ = &cil;
    stopa_ = stopa;
    neco_zapsano_ = false;
}

std::optional<Castka> Zapisovac::zapis_vetu_do_vyplatni_listiny(const Polozka& polozka) {
    const bool prazdna = je_zanedbatelna(polozka.hodnota);
    if (prazdna && !zapisuje_se_i_prazdna(polozka.modul)) return std::nullopt;
    if (polozka.modul >= 1 && polozka.modul <= 14 && polozka.sloupec == 0) {
        chyby_.push_back("Pracovník " + std::to_string(pracovnik_->cislo) +
                         " : v parametrech není zadán");
        chyby_.push_back("     sloupec pro modul " + std::to_string(polozka.modul) + ".");
        return std::nullopt;
    }
    const Castka ulozeno = prazdna ? 0 : ulozena_hodnota(polozka.modul, polozka.hodnota);
    std::string co_je_to, poznamka;
    Veta veta;
    veta.pracovnik = pracovnik_;
    veta.modul = polozka.modul;
    veta.sloupec = polozka.sloupec;
    veta.co_je_to = zkrat(polozka.co_je_to, k_znaku_co_je_to, co_je_to);
    if (!prazdna) veta.hodnota = static_cast<double>(ulozeno);
    veta.poznamka = zkrat(polozka.poznamka, k_znaku_poznamky, poznamka);
    if (stopa_) veta.krok = krok_vety(polozka, ulozeno);
    cil_->pridej(veta);
    neco_zapsano_ = true;
    pricti_k_mesici(polozka.modul, ulozeno);
    return ulozeno;
}

int Zapisovac::krok_vety(const Polozka& polozka, Castka ulozeno) {
    const int krok = stopa_->krok_promenne(polozka.promenna, polozka.hodnota);
    if (krok >= 0 && ulozeno == polozka.hodnota) return krok;
    auto zapis = stopa_->krok(polozka.co_je_to);
    if (krok >= 0) {
        zapis.z("hodnota", polozka.promenna, polozka.hodnota);
    } else {
        zapis.udaj("hodnota", polozka.hodnota, polozka.zdroj);
    }
    if (je_zanedbatelna(polozka.hodnota)) {
        zapis.vetev("nejvýše haléř: pole zůstává prázdné");
    } else {
        zapis.zaokrouhleni(je_casova(polozka.modul) ? base::na_halere_k_sude
                                                    : base::na_koruny_k_sude);
    }
    return zapis.vysledek("veta_listiny", ulozeno);
}

void Zapisovac::pricti_k_mesici(int modul, Castka ulozeno) {
    switch (modul) {
        case 2:
            soucet_.hrube_mzdy += ulozeno;
            break;
        case 3:
            soucet_.naturalni_mzda += ulozeno;
            break;
        case 4:
            soucet_.socialni_davky += ulozeno;
            break;
        case 61:
            soucet_.zaklad_socialniho += ulozeno;
            break;
        case 62:
            soucet_.zaklad_zdravotniho += ulozeno;
            break;
        default:
            break;
    }
}

}  // namespace payrun
