#include "workers/unit7_pole.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>
#include <map>
#include <stdexcept>

#include "base/datum.h"
#include "store/catalogue.h"

namespace workers {
namespace {

using D = DruhPoleKarty;
using C = CiselnikKarty;
using S = StrankaKarty;

constexpr int k_mist_castky = 2;

/// Builds the table: the helpers below say what a kind of field needs, and no more.
class Seznam {
  public:
    std::vector<PoleKarty> pole;

    void stranka(S stranka) { stranka_ = stranka; }

    PoleKarty& pridej(const std::string& nazev, const std::string& popisek, D druh) {
        PoleKarty nove;
        nove.stranka = stranka_;
        nove.ovladac = nove.pole = nazev;
        nove.popisek = popisek;
        nove.druh = druh;
        pole.push_back(std::move(nove));
        return pole.back();
    }
    PoleKarty& text(const std::string& nazev, const std::string& popisek, D druh = D::text) {
        PoleKarty& nove = pridej(nazev, popisek, druh);
        nove.delka = delka_v_tabulce(nazev);
        return nove;
    }
    PoleKarty& cele(const std::string& nazev, const std::string& popisek, int cislic) {
        PoleKarty& nove = pridej(nazev, popisek, D::cele);
        nove.delka = cislic;
        return nove;
    }
    PoleKarty& desetinne(const std::string& nazev, const std::string& popisek, int celych,
                         int mist = k_mist_castky) {
        PoleKarty& nove = pridej(nazev, popisek, D::desetinne);
        nove.delka = celych;
        nove.mist = mist;
        return nove;
    }
    PoleKarty& ano_ne(const std::string& nazev, const std::string& popisek) {
        return pridej(nazev, popisek, D::logicke);
    }
    PoleKarty& seznam(const std::string& nazev, const std::string& popisek, C ciselnik) {
        PoleKarty& nove = pridej(nazev, popisek, D::seznam);
        nove.ciselnik = ciselnik;
        return nove;
    }

  private:
    S stranka_{};
    const store::TableDef karty_ = store::definition_of("Os_karty");

    int delka_v_tabulce(const std::string& nazev) const {
        const int kde = karty_.field_index(nazev);
        if (kde < 0) throw std::logic_error("karta nemá pole " + nazev);
        return karty_.fields[static_cast<std::size_t>(kde)].size;
    }
};

void osobni(Seznam& s) {
    s.stranka(S::osobni);
    s.cele("Cislo", "Číslo pracovníka - nyní", 6);
    s.cele("Cislo_min_rok", "- minulý rok", 6).napoveda =
        "číslo, pod kterým se pracovník najde v souborech minulého roku";
    s.text("Jmeno", "Jméno");
    s.text("Prijmeni", "Příjmení");
    s.text("Titul", "Titul");
    s.text("Prijmeni_puvodni", "Rodné příjmení");
    s.text("Rodne_cislo", "Rodné číslo").napoveda = "formát: RR-MM-DD/XXXX";
    s.text("Dat_nar_text", "Datum narození", D::datum).napoveda = "formát: den, měsíc, rok";
    s.text("Misto_narozeni", "Místo narození");
    s.text("Ulice", "Ulice a číslo");
    s.text("Bydliste", "Bydliště");
    s.text("PSC", "PSČ");
    s.text("Posta", "Pošta");
    s.cele("Staly_plat", "Stálý plat", 7);
    for (int i = 1; i <= 5; ++i)
        s.cele(fmt::format("Os_oh_{}", i), "", 7).minus = true;
    s.cele("Stredisko", "Kmenové středisko", 2);
    s.cele("Vykon", "Účtovat na výkon", 3);
    s.desetinne("tpd", "Týdenní pracovní doba", 3).napoveda = "hodin týdně";
    s.cele("Osobni_ucet", "Osobní účet", 4);
    s.desetinne("Sazba_OT", "Sazba za osobní třídu", 6);
    s.cele("Cely_plat_sporit", "Celý plat spořit do sloupce", 3);
    s.desetinne("Dovolena_nevycerpano", "nevyčerpaná k 1.1. (dny)", 4).minus = true;
    s.desetinne("DOVOLENA_NEVYCERPANO_HOD", "nevyčerpaná k 1.1. (hodiny)", 4).minus = true;
    s.desetinne("Dovolena_narok", "nárok za běžný rok", 4).minus = true;
    s.pridej("Id_rpd", "Kalendář běžného roku", D::kalendar);
    s.pridej("Id_rpd_min", "Kalendář minulého roku", D::kalendar);
    s.ano_ne("KratitPlat", "Stálý plat a osob. ohodnocení krátit podle RPD vč. dnů a hod.");
}

void danove(Seznam& s) {
    s.stranka(S::danove);
    s.ano_ne("Clenstvi_OS", "Člen odborového svazu");
    s.ano_ne("Zamestnanec", "Zaměstnanec (opak člena)");
    s.ano_ne("Duchodce", "Důchodce 1. 1.");
    s.ano_ne("Student", "Student");
    s.ano_ne("Osamela_osoba", "Osamělá osoba");
    s.ano_ne("Podepsal_prohlaseni", "Podepsal prohlášení na měsíce:");
    s.text("PROHLASENI_MESICE", "Prohlášení na měsíce").napoveda = "například 1-12";
    s.ano_ne("NEREZIDENT", "Daňový nerezident");
    s.ano_ne("Rocni_zuctovani", "Roční zúčtování");
    s.cele("Cislo_zdrav_poj", "Zdravotní pojišťovna", 3);
    s.cele("Odp_poplatnik", "Sleva na dani - poplatník", 6);
    s.cele("Odp_manzelka", "Sleva na dani - manželka", 6).jen_cist = true;
    s.seznam("Invalidita", "Invalidita", C::invalidita);
    s.cele("Odp_invalidita", "Sleva na dani - invalidita", 6).jen_cist = true;
    s.cele("Odp_ostatni", "Sleva na dani - student", 6);
    s.cele("Cislo_penz_fondu", "Penzijní fond", 3);
    s.desetinne("penz_fond_podnik_sazba", "Penzijní fond - sazba podniku", 5, 4);
    s.cele("penz_fond_podnik_smlouva", "Penzijní fond - číslo smlouvy", 12);
    s.seznam("Jake_socialni", "Sociální pojištění", C::socialni);
    s.seznam("Jake_zdravotni", "Zdravotní pojištění", C::zdravotni);
    s.seznam("Jaka_dan", "Daň", C::dan);
    s.ano_ne("Vzdy_superhruba", "Vždy superhrubá mzda");
    s.cele("Kdo_plati_dan", "Mzdu bude zdaňovat pracovník", 6);
    s.text("Zam_od", "Pracovní poměr trvá od", D::datum);
    s.text("Zam_do", "Pracovní poměr trvá do", D::datum);
}

void prumery(Seznam& s) {
    s.stranka(S::prumery);
    s.desetinne("Prum_nemoc_0", "Průměr na nemoc - prosinec minulého roku", 7);
    for (int mesic = 1; mesic <= 12; ++mesic)
        s.desetinne(fmt::format("Prum_nemoc_{}", mesic),
                    "Průměr na nemoc - " + base::mesic_slovy(mesic, 0), 7);
    s.desetinne("PdovD4min", "Průměr na dovolenou - 4. čtvrtletí minulého roku, denní", 7);
    s.desetinne("PdovH4min", "Průměr na dovolenou - 4. čtvrtletí minulého roku, hodinový", 7);
    for (int ctvrtleti = 1; ctvrtleti <= 4; ++ctvrtleti) {
        s.desetinne(fmt::format("PdovD{}akt", ctvrtleti),
                    fmt::format("Průměr na dovolenou - {}. čtvrtletí, denní", ctvrtleti), 7);
        s.desetinne(fmt::format("PdovH{}akt", ctvrtleti),
                    fmt::format("Průměr na dovolenou - {}. čtvrtletí, hodinový", ctvrtleti), 7);
    }
}

void hlediska_a_texty(Seznam& s) {
    s.stranka(S::hlediska);
    for (int i = 1; i <= 10; ++i)
        s.cele(fmt::format("Volit_{}", i), "", 6);
    for (int mesic = 1; mesic <= 12; ++mesic)
        s.desetinne(fmt::format("Benefit{}", mesic), "Benefit - " + base::mesic_slovy(mesic, 0), 7);
    // May edits April's field: the two cannot be entered apart.
    std::find_if(s.pole.begin(), s.pole.end(), [](const PoleKarty& p) {
        return p.ovladac == "Benefit5";
    })->pole = "Benefit4";
    s.stranka(S::texty);
    for (int i = 1; i <= 12; ++i)
        s.text(fmt::format("Text_ml_{}", i), fmt::format("{}. řádek", i));
}

void cssz(Seznam& s) {
    s.stranka(S::cssz);
    s.text("CSSZ113", "Všechna předchozí příjmení");
    s.desetinne("CSSZ108", "Předpokl. hrubý měsíční příjem", 7);
    s.text("CSSZ106", "Druh činnosti (platný do roku 2008)");
    s.desetinne("CSSZ110", "Úvazek týdně: dny", 2);
    s.desetinne("CSSZ109", "Úvazek týdně: hodiny", 3);
    s.seznam("CSSZ102", "Pohlaví", C::pohlavi);
    s.seznam("CSSZ103", "Rodinný stav", C::rodinny_stav);
    s.seznam("Cssz_druh_cinnosti", "Druh činnosti", C::druh_cinnosti);
    s.ano_ne("Zam_maleho_rozsahu", "Zaměstnání malého rozsahu");
    s.ano_ne("Splnuje_slevy", "Splňuje podmínky pro slevy na pojistném");
    s.text("CSSZ101", "Zkratka státu", D::velka);
    s.text("CSSZ105", "Státní občanství", D::velka);
    s.text("CSSZ107", "Místo výkonu práce", D::velka);
    s.cele("CSSZ104", "Počet dětí", 2).napoveda = "jen u žen";
    s.text("CSSZ114", "Skutečný vstup do zaměstnání", D::ddmmrr).napoveda = "formát: DDMMRR";
    s.seznam("CSSZ111", "Důchod", C::duchod);
    s.text("CSSZ112", "Důchod pobírán od", D::ddmmrr).napoveda = "formát: DDMMRR";
    s.text("Cssz_inso", "Nynější orgán nemocenského pojištění jiný než ČSSZ");
    s.text("Cssz_insp", "Předchozí orgán nemocenského pojištění jiný než ČSSZ");
}

void cizozemci(Seznam& s) {
    s.stranka(S::cizozemci);
    s.text("CSSZ121", "Pobyt v ČR - ulice");
    s.text("CSSZ122", "Pobyt v ČR - obec");
    s.text("CSSZ123", "Pobyt v ČR - číslo domu");
    s.text("CSSZ124", "Pobyt v ČR - PSČ");
    s.text("CSSZ131", "Pojištění v cizině - název");
    s.text("CSSZ132", "Pojištění v cizině - ulice");
    s.text("CSSZ133", "Pojištění v cizině - obec");
    s.text("CSSZ134", "Pojištění v cizině - číslo domu");
    s.text("CSSZ137", "Pojištění v cizině - číslo pojištění");
    s.text("CSSZ135", "Pojištění v cizině - PSČ");
    s.text("CSSZ136", "Pojištění v cizině - stát", D::velka);
    s.seznam("Cnp_specifikace", "Pojištění v cizině - nositel", C::nositel_pojisteni);
}

std::map<std::string, std::size_t, std::less<>> mista_podle_jmena() {
    std::map<std::string, std::size_t, std::less<>> mista;
    for (const PoleKarty& pole : pole_karty())
        mista.emplace(pole.ovladac, mista.size());
    return mista;
}

}  // namespace

const char* stranka_slovy(StrankaKarty stranka) {
    constexpr std::array<const char*, k_stranek_karty> k_nazvy{
        "Osobní data", "Daňové údaje", "Průměry",       "Volitelná hlediska",
        "Texty",       "ČSSZ",         "ČSSZ cizozemci"};
    return k_nazvy[static_cast<std::size_t>(stranka)];
}

const std::vector<PoleKarty>& pole_karty() {
    static const std::vector<PoleKarty> k_pole = [] {
        Seznam seznam;
        for (const auto pridej : {osobni, danove, prumery, hlediska_a_texty, cssz, cizozemci}) {
            pridej(seznam);
        }
        return std::move(seznam.pole);
    }();
    return k_pole;
}

std::size_t poradi_pole(std::string_view ovladac) {
    static const auto k_mista = mista_podle_jmena();
    const auto kde = k_mista.find(ovladac);
    if (kde == k_mista.end()) {
        throw std::logic_error("na kartě není " + std::string(ovladac));
    }
    return kde->second;
}

std::string popisek_pole(const PoleKarty& pole, const shell::Session& session) {
    if (!pole.popisek.empty()) return pole.popisek;
    const std::size_t carka = pole.ovladac.rfind('_') + 1;
    const auto poradi = static_cast<std::size_t>(std::stoul(pole.ovladac.substr(carka))) - 1;
    return pole.ovladac.starts_with("Os_oh_") ? session.ridici_zorv.text_os_oh.at(poradi)
                                              : session.ridici_zorv.volitelna_hlediska.at(poradi);
}

}  // namespace workers
