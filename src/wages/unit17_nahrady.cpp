#include "wages/unit17_nahrady.h"

#include <algorithm>
#include <fmt/format.h>

#include "base/castky_text.h"
#include "base/text.h"
#include "store/table.h"
#include "wages/bunky_kalendare.h"
#include "wages/unit19_veta.h"
#include "wages/veta_nahrady.h"
#include "workers/prumery.h"

namespace wages {
namespace {

constexpr base::Datum k_prvni_den_nahrad{2009, 1, 1};
constexpr const char* k_tabulka_nahrad = "Nahrady";

/// An amount of the page and the field of the detail that keeps it.
struct CastkaDetailu {
    const char* pole;
    std::string StrankaNahrad::*text;
};
constexpr CastkaDetailu k_castky_detailu[] = {
    {"Prum_hod_vydelek", &StrankaNahrad::scPrumHodVydelek},
    {"Red_hod_vydelek", &StrankaNahrad::scRedHodVydelek},
    {"Hod_nahrada_A", &StrankaNahrad::scHodNahradaA},
    {"Hod_nahrada_B", &StrankaNahrad::scHodNahradaB},
    {"Nahrada_A", &StrankaNahrad::scNahradaA},
    {"Nahrada_B", &StrankaNahrad::scNahradaB},
    {"Celkova_nahrada", &StrankaNahrad::scCelkovaNahrada}};

std::string dve_mista(Castka castka) {
    return base::castka_s_carkou(0, 2, castka);
}

int minuty(const std::string& fond) {
    return base::cas_na_minuty(base::orez(fond));
}

/// A fund typed as hours alone, or with another separator, as "h:mm".
std::string uprav_fond(const std::string& text) {
    std::string cas = base::orez(text);
    std::replace_if(
        cas.begin(), cas.end(), [](char c) { return c == ',' || c == '.'; }, ':');
    const bool jen_hodiny = !cas.empty() && base::jen_cislice(cas) == cas;
    return jen_hodiny ? cas + ":00" : cas;
}

/// The calendar of a card's field, with its year; nothing when there is no such row.
std::optional<std::pair<int, RokKalendare>> kalendar_karty(shell::Session& session, int id_rpd) {
    store::Query q(session.data(), "SELECT * FROM Rpd WHERE Pocitadlo = :id");
    q.set("id", id_rpd);
    q.open();
    if (id_rpd == 0 || q.eof()) return std::nullopt;
    RokKalendare kalendar{};
    for (std::size_t m = 0; m < kalendar.size(); ++m)
        kalendar[m] = mesic_z_textu(q.text(fmt::format("Fond{}", m + 1)));
    return std::pair{static_cast<int>(q.integer("Rok")), kalendar};
}

std::optional<TypNahrady> typ_sloupce(const shell::Nastaveni& nastaveni, int sloupec) {
    const int sloupce[] = {nastaveni.NahradaNemocSloupec, nastaveni.NahradaKarantenaSloupec,
                           nastaveni.NahradaOCRSloupec, nastaveni.NahradaPPMSloupec};
    std::optional<TypNahrady> typ;
    for (int i = 0; i < 4; ++i)
        if (sloupce[i] == sloupec) typ = static_cast<TypNahrady>(i);
    return typ;
}

}  // namespace

StrankaNahrad::StrankaNahrad(shell::Session& session) : session_(session) {
    vymaz();
}

void StrankaNahrad::zvol_sloupec(const SloupecHrube& sloupec) {
    sloupec_ = sloupec;
    titulek = "> " + sloupec.text;
    zvol_typ(typ_sloupce(session_.nastaveni, sloupec.sloupec).value_or(NahradaTyp));
}

void StrankaNahrad::zvol_typ(TypNahrady typ) {
    NahradaTyp = typ;
    castky_povolene = sazby_nahrady(typ).plati_se();
    vymaz();
}

void StrankaNahrad::vymaz() {
    scCisloDokladu.clear();
    scTrvaniOd.clear();
    scTrvaniDo.clear();
    scDnuKalendarnich = scDnuPracovnich = "0";
    scFondA = scFondB = scFondC = k_bez_prace;
    for (std::string* castka : {&scPrumHodVydelek, &scRedHodVydelek, &scHodNahradaA, &scHodNahradaB,
                                &scNahradaA, &scNahradaB, &scCelkovaNahrada})
        *castka = "0,00";
    panel_viditelny = false;
    zmeneno_ = false;
    stopa_.vymaz();
    vysvetli();
}

void StrankaNahrad::opusteni(PoleNahrad pole, const KartaZadani& karta) {
    for (std::string* fond : {&scFondA, &scFondB, &scFondC})
        *fond = uprav_fond(*fond);
    if (pole != PoleNahrad::celkova_nahrada) proved_kroky(pole, karta);
    vysvetli();
}

void StrankaNahrad::proved_kroky(PoleNahrad pole, const KartaZadani& karta) {
    const bool od_pocatku = pole <= PoleNahrad::trvani_do;
    if (zmeneno_ && od_pocatku && !(krok_fondy(karta) && krok_prumer(karta))) return;
    if (zmeneno_ && pole <= PoleNahrad::prum_hod_vydelek) krok_redukce();
    if (pole <= PoleNahrad::fond_c) {
        krok_hodinova('A');
        krok_hodinova('B');
    }
    if (pole <= PoleNahrad::hod_nahrada_a) krok_castka('A');
    if (pole <= PoleNahrad::fond_c || pole == PoleNahrad::hod_nahrada_b) krok_castka('B');
    krok_celkem();
}

/// An input of a step: when it is not what the trace computed last, somebody typed it.
Castka StrankaNahrad::vstup_kroku(const char* promenna, Castka hodnota) {
    const int krok = stopa_.krok_promenne(promenna, hodnota);
    const bool vypocteny = krok < 0 ? base::je_nula(hodnota)
                                    : stopa_.kroky()[static_cast<std::size_t>(krok)].vysledek ==
                                          base::castka_prosta(hodnota);
    if (!vypocteny) stopa_.dosad(promenna, hodnota, "zadáno ručně");
    return hodnota;
}

Castka StrankaNahrad::castka_pole(const char* promenna, const std::string& text) {
    return vstup_kroku(promenna, base::je_desetinne_cislo(text));
}

void StrankaNahrad::vysvetli() {
    const Castka celkem = castka_pole("celkova_nahrada", scCelkovaNahrada);
    krok_celkove_ = stopa_.krok_promenne("celkova_nahrada", celkem);
    strom = base::StromVypoctu(stopa_, krok_celkove_);
    ++vydani_stromu;
}

std::string StrankaNahrad::vysvetleni(int odsazeni) const {
    return stopa_.strom(krok_celkove_, odsazeni);
}

/// False for a date that is none; the operator was told.
bool StrankaNahrad::krok_fondy(const KartaZadani& karta) {
    if (!base::neprazdny(scTrvaniOd) || !base::neprazdny(scTrvaniDo)) {
        panel_viditelny = false;
        return true;
    }
    const auto od = base::datum_z_textu(base::orez(scTrvaniOd));
    const auto do_ = base::datum_z_textu(base::orez(scTrvaniDo));
    if (!od || !do_) {
        session_.obsluha().hlaska("\"" + (od ? scTrvaniDo : scTrvaniOd) + "\" není platné datum.");
        return false;
    }
    stopa_.vymaz();  // all other steps follow
    ukaz_rezim(*od);
    const FondyNahrady fondy = fondy_nahrady(*od, *do_, session_.zpracovavany_mesic, session_.rok,
                                             nacti_kalendare(karta, od->rok), &stopa_);
    scFondA = cas_textem(fondy.a);
    scFondB = cas_textem(fondy.b);
    scFondC = cas_textem(fondy.c);
    scDnuKalendarnich = std::to_string(fondy.kalendarnich);
    scDnuPracovnich = std::to_string(fondy.pracovnich);
    panel_viditelny = true;
    return true;
}

void StrankaNahrad::ukaz_rezim(const base::Datum& od) {
    const RezimNahrady& rezim = rezim_nahrady(od);
    for (std::size_t i = 0; i < popisky_fondu.size(); ++i)
        popisky_fondu[i] = rezim.popisky[i];
    fond_a_viditelny = rezim.fond_a_viditelny;
}

KalendareNahrady StrankaNahrad::nacti_kalendare(const KartaZadani& karta, int rok_od) {
    KalendareNahrady kalendare;
    const auto minuly = kalendar_karty(session_, karta.id_rpd_min);
    if (minuly) {
        kalendare.rok_minuleho = minuly->first;
        kalendare.minuly = minuly->second;
    } else if (rok_od < session_.rok) {
        session_.obsluha().hlaska("Nenalezen kalendář RPD minulého roku.");
    }
    const auto aktualni = kalendar_karty(session_, karta.id_rpd);
    if (aktualni) {
        kalendare.aktualni = aktualni->second;
    } else {
        session_.obsluha().hlaska("Nenalezen kalendář RPD aktálního roku.");
    }
    return kalendare;
}

bool StrankaNahrad::krok_prumer(const KartaZadani& karta) {
    if (!castky_povolene) return true;
    const auto od = base::datum_z_textu(base::orez(scTrvaniOd));
    if (!od) {
        session_.obsluha().hlaska("\"" + scTrvaniOd + "\" není platné datum.");
        return false;
    }
    const int mesic = od->rok < session_.rok ? 1 : od->mesic;
    const auto druh = workers::DruhPrumeru::hodinovy;
    const Castka z_karty = workers::prumer_na_dovolenou(session_, karta.cislo, druh, mesic);
    const Castka prumer = base::na_halere_k_sude(z_karty);
    scPrumHodVydelek = dve_mista(prumer);
    stopa_.krok("průměrný hodinový výdělek předchozího čtvrtletí")
        .udaj("z karty", z_karty,
              fmt::format("Os_karty.{}", workers::pole_prumeru_na_dovolenou(druh, mesic)))
        .zaokrouhleni(base::na_halere_k_sude)
        .predpis("§ 354 zák. č. 262/2006 Sb.")
        .vysledek("prum_hod_vydelek", prumer);
    return true;
}

void StrankaNahrad::krok_redukce() {
    if (!castky_povolene) return;
    const auto od = base::datum_z_textu(base::orez(scTrvaniOd));
    if (!od) return;
    const auto redukovany =
        redukovany_vydelek(castka_pole("prum_hod_vydelek", scPrumHodVydelek), od->rok, &stopa_);
    if (redukovany) scRedHodVydelek = dve_mista(*redukovany);
}

void StrankaNahrad::krok_hodinova(char fond) {
    const SazbyNahrady sazby = sazby_nahrady(NahradaTyp);
    const Castka redukovany = castka_pole("red_hod_vydelek", scRedHodVydelek);
    const bool a = fond == 'A';
    (a ? scHodNahradaA : scHodNahradaB) =
        dve_mista(hodinova_nahrada(redukovany, a ? sazby.fond_a : sazby.fond_b, fond, &stopa_));
}

void StrankaNahrad::krok_castka(char fond) {
    const bool a = fond == 'A';
    const Castka hodinova =
        castka_pole(a ? "hod_nahrada_a" : "hod_nahrada_b", a ? scHodNahradaA : scHodNahradaB);
    const int minut = minuty(a ? scFondA : scFondB);
    vstup_kroku(a ? "fond_a" : "fond_b", static_cast<Castka>(minut));
    (a ? scNahradaA : scNahradaB) = dve_mista(castka_nahrady(hodinova, minut, fond, &stopa_));
}

void StrankaNahrad::krok_celkem() {
    const Castka a = castka_pole("nahrada_a", scNahradaA);
    const Castka b = castka_pole("nahrada_b", scNahradaB);
    scCelkovaNahrada = dve_mista(celkova_nahrada(a, b, &stopa_));
}

std::vector<std::string> StrankaNahrad::kontrola() const {
    std::vector<std::string> chyby;
    const auto od = base::datum_z_textu(base::orez(scTrvaniOd));
    const auto do_ = base::datum_z_textu(base::orez(scTrvaniDo));
    const int m = session_.zpracovavany_mesic;
    const base::Datum konec{session_.rok, m, base::dni_v_mesici(m, session_.rok)};
    if (!base::neprazdny(scCisloDokladu))
        chyby.emplace_back("Údaj <Číslo dokladu> musí být vyplněn.");
    if (!base::neprazdny(scTrvaniOd)) {
        chyby.emplace_back("Údaj <Trvání od> musí být vyplněn.");
    } else if (!od || *od < k_prvni_den_nahrad) {
        chyby.emplace_back("Údaj <Trvání od> musí být od 1.1.2009 výše.");
    }
    if (!base::neprazdny(scTrvaniDo)) {
        chyby.emplace_back("Údaj <Trvání do> musí být vyplněn.");
    } else if (!do_ || *do_ > konec) {
        chyby.push_back("Údaj <Trvání do> musí být do " + base::datum_textem(konec) + ".");
    }
    if (od && do_ && *od > *do_)
        chyby.emplace_back("<Trvání do> musí být větší nebo roven než <Trvání od>.");
    if (base::je_cele_cislo(scDnuKalendarnich) == 0)
        chyby.emplace_back("Údaj <Kalendářních dnů> musí být vyplněn.");
    return chyby;
}

bool StrankaNahrad::over() const {
    const std::vector<std::string> chyby = kontrola();
    if (chyby.empty()) return true;
    std::string text;
    for (const std::string& chyba : chyby)
        text += chyba + "\r\n";
    session_.obsluha().hlaska(text + "\r\nOpravte chyby a zkuste údaje uložit znovu.");
    return false;
}

/// What the gross-wage row takes over from the page.
void StrankaNahrad::nastav_castky(VetaHrube& veta) const {
    veta.kc_cel = base::je_desetinne_cislo(scCelkovaNahrada);
    veta.dny_neod = base::je_desetinne_cislo(scDnuPracovnich);
    veta.hod_neod = hodiny_nahrady(minuty(scFondA) + minuty(scFondB) + minuty(scFondC));
}

void StrankaNahrad::zapis(const KartaZadani& karta) {
    VetaHrube veta;
    veta.modul = sloupec_.modul;
    veta.sloupec = sloupec_.sloupec;
    veta.sloupec_slovy = sloupec_.text;
    nastav_castky(veta);
    store::Transaction transakce(session_.data());
    pridej_detail(karta,
                  zapis_vetu_hrubych_mezd(session_, session_.zpracovavany_mesic, karta, veta));
    transakce.commit();
}

void StrankaNahrad::oprav(std::int64_t id_hrube) {
    const int mesic = session_.zpracovavany_mesic;
    VetaHrube veta = nacti_vetu_hrubych_mezd(session_, mesic, id_hrube).veta;
    nastav_castky(veta);
    store::Transaction transakce(session_.data());
    oprav_vetu_hrubych_mezd(session_, mesic, id_hrube, veta);
    store::Table nahrady;
    otevri_vetu(nahrady, session_, k_tabulka_nahrad, detail_);
    nahrady.edit();
    napln_detail(nahrady);
    nahrady.post();
    transakce.commit();
}

void StrankaNahrad::nacti(const SloupecHrube& sloupec, std::int64_t pocitadlo_detailu) {
    zvol_sloupec(sloupec);
    detail_ = pocitadlo_detailu;
    store::Table nahrady;
    otevri_vetu(nahrady, session_, k_tabulka_nahrad, detail_);
    zvol_typ(static_cast<TypNahrady>(nahrady.integer("Typ_nahrady")));
    const base::Datum od = nahrady.date("Trvani_od");
    scCisloDokladu = nahrady.text("Cislo_dokladu");
    scTrvaniOd = base::datum_textem(od);
    scTrvaniDo = base::datum_textem(nahrady.date("Trvani_do"));
    scFondA = fond_z_vety(nahrady.text("Fond_A"));
    scFondB = fond_z_vety(nahrady.text("Fond_B"));
    scFondC = fond_z_vety(nahrady.text("Fond_C"));
    scDnuKalendarnich = std::to_string(nahrady.integer("Dnu_kalendarnich"));
    scDnuPracovnich = std::to_string(nahrady.integer("Dnu_pracovnich"));
    for (const CastkaDetailu& c : k_castky_detailu)
        this->*c.text = dve_mista(static_cast<Castka>(nahrady.number(c.pole)));
    ukaz_rezim(od);
    panel_viditelny = true;
    prevezmi_ulozene();
}

/// Stored values are neither computed now nor typed.
void StrankaNahrad::prevezmi_ulozene() {
    const auto dosad = [this](const char* promenna, Castka hodnota) {
        stopa_.dosad(promenna, hodnota, "uloženo při zápisu");
    };
    dosad("fond_a", static_cast<Castka>(minuty(scFondA)));
    dosad("fond_b", static_cast<Castka>(minuty(scFondB)));
    for (const CastkaDetailu& c : k_castky_detailu)
        dosad(base::malymi(c.pole).c_str(), base::je_desetinne_cislo(this->*c.text));
    vysvetli();
}

void StrankaNahrad::pridej_detail(const KartaZadani& karta, std::int64_t id_hrube) {
    store::Table nahrady;
    nahrady.set_connection(session_.data());
    nahrady.set_table_name(k_tabulka_nahrad);
    nahrady.open();
    nahrady.append();
    nahrady.set("Vytvoreno", session_.hodiny().nyni());
    nahrady.set("Cislo_pracovnika", karta.cislo);
    nahrady.set("Id_hrube", id_hrube);
    nahrady.set("Mesic", session_.zpracovavany_mesic);
    nahrady.set("Typ_nahrady", static_cast<int>(NahradaTyp));
    napln_detail(nahrady);
    nahrady.post();
}

void StrankaNahrad::napln_detail(store::Table& nahrady) const {
    const auto od = base::datum_z_textu(base::orez(scTrvaniOd)).value_or(base::Datum{});
    const auto do_ = base::datum_z_textu(base::orez(scTrvaniDo)).value_or(base::Datum{});
    nahrady.set("Zmeneno", session_.hodiny().nyni());
    nahrady.set("Cislo_dokladu", base::orez(scCisloDokladu));
    nahrady.set("Trvani_od", od);
    nahrady.set("Trvani_do", do_);
    nahrady.set("Fond_A", fond_do_vety(scFondA));
    nahrady.set("Fond_B", fond_do_vety(scFondB));
    nahrady.set("Fond_C", fond_do_vety(scFondC));
    nahrady.set("Dnu_kalendarnich",
                static_cast<double>(base::je_desetinne_cislo(scDnuKalendarnich)));
    nahrady.set("Dnu_pracovnich", static_cast<double>(base::je_desetinne_cislo(scDnuPracovnich)));
    for (const CastkaDetailu& c : k_castky_detailu)
        nahrady.set(c.pole, static_cast<double>(base::je_desetinne_cislo(this->*c.text)));
    nahrady.set("Vyloucene_dny",
                base::vyloucene_dny(session_.zpracovavany_mesic, session_.rok, od, do_));
}

}  // namespace wages
