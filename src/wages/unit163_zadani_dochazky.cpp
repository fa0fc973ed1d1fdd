#include "wages/unit163_zadani_dochazky.h"

#include <fmt/format.h>

#include "base/castky_text.h"
#include "base/datum.h"
#include "base/klavesy.h"
#include "base/kodova_stranka.h"
#include "base/text.h"

namespace wages {
namespace {

constexpr int k_cislic_hodin = 2, k_cislic_souctu = 3, k_desetinnych = 2;

/// Days without hours are left blank, so that the others stand out.
std::string hodiny_textem(base::Castka hodiny) {
    return base::je_nula(hodiny) ? "" : base::castka_prosta(hodiny);
}

}  // namespace

TForm163::TForm163(shell::Session& session, int mesic, std::string pracovnik_,
                   int cislo_pracovnika_, const ListDochazky& list)
    : nadpis("Docházka v měsíci " + base::mesic_slovy(mesic, 0)),
      pracovnik(std::move(pracovnik_)),
      cislo_pracovnika(std::to_string(cislo_pracovnika_)),
      Poznamka(list.poznamka),
      session_(session),
      mesic_(mesic) {
    // Days that the month does not have stay without hours, whatever the row held.
    for (std::size_t i = 0; i < static_cast<std::size_t>(dnu()); ++i) {
        Hod[i] = hodiny_textem(list.hodiny[i]);
        Typ[i] = list.kody[i];
    }
    ukaz_soucty(list);
}

void TForm163::FormShow() {
    fokus = "Hod1";
    oznam_zmenu();
}

int TForm163::dnu() const {
    return base::dni_v_mesici(mesic_, session_.rok);
}

TForm163::Den TForm163::den(int cislo) const {
    if (cislo > dnu()) return {"", false, false, false};
    const base::Datum datum{session_.rok, mesic_, cislo};
    const int v_tydnu = base::den_v_tydnu(datum);
    return {zkratka_dne(v_tydnu), true, v_tydnu > 5, base::je_svatek(datum)};
}

bool TForm163::povol_klavesu_hodin(char znak, std::string_view dosud) const {
    return base::hlidej_desetinne_cislo_klavesy(znak, dosud, base::ZnamenkoRezim::bez_minus,
                                                k_cislic_hodin, k_desetinnych);
}

bool TForm163::povol_klavesu_souctu(char znak, std::string_view dosud) const {
    return base::hlidej_desetinne_cislo_klavesy(znak, dosud, base::ZnamenkoRezim::bez_minus,
                                                k_cislic_souctu, k_desetinnych);
}

void TForm163::vstup_do_kodu() {
    kody_viditelne = true;
    oznam_zmenu();
}

void TForm163::klavesa_kodu(int cislo, char znak) {
    if (const auto kod = kod_z_klavesy(znak)) {
        Typ[static_cast<std::size_t>(cislo - 1)] = std::string(1, *kod);
        oznam_zmenu();
    } else {
        session_.obsluha().pipni();
    }
}

void TForm163::opusteni_kodu(int cislo) {
    std::string& kod = Typ[static_cast<std::size_t>(cislo - 1)];
    kod = base::orez(kod);
    kody_viditelne = false;
    oznam_zmenu();
}

void TForm163::sipka(int cislo, Sloupec sloupec, int kam) {
    const int novy = cislo + kam;
    if (novy < 1 || novy > dnu()) return;
    fokus = fmt::format("{}{}", sloupec == Sloupec::hodiny ? "Hod" : "Typ", novy);
    oznam_zmenu();
}

ListDochazky TForm163::list() const {
    ListDochazky list;
    for (std::size_t i = 0; i < k_dnu_dochazky; ++i) {
        list.hodiny[i] = base::je_desetinne_cislo(Hod[i]);
        list.kody[i] = base::orez(Typ[i]);
    }
    list.poznamka = Poznamka;
    list.suma_hod = base::je_desetinne_cislo(Suma_hod);
    list.suma_odprac = base::je_cele_cislo(Suma_odprac);
    list.suma_neodprac = base::je_cele_cislo(Suma_neodprac);
    return list;
}

void TForm163::ukaz_soucty(const ListDochazky& list) {
    Suma_hod = base::castka_prosta(list.suma_hod);
    Suma_odprac = std::to_string(list.suma_odprac);
    Suma_neodprac = std::to_string(list.suma_neodprac);
}

void TForm163::acPrepocitejExecute() {
    ListDochazky spoctena = list();
    secti(spoctena, dnu());
    ukaz_soucty(spoctena);
    oznam_zmenu();
}

void TForm163::acUlozitExecute() {
    const ListDochazky zadana = list();
    if (base::je_nula(zadana.suma_hod) && zadana.suma_odprac == 0 && zadana.suma_neodprac == 0) {
        session_.obsluha().hlaska("Vyplňte součty.");
        fokus = "Suma_hod";
        oznam_zmenu();
        return;
    }
    if (!base::je_v_1250(Poznamka)) {
        session_.obsluha().hlaska("Poznámka obsahuje znak, který nelze uložit.");
        fokus = "Poznamka";
        oznam_zmenu();
        return;
    }
    vysledek_ok = true;
    acZpetExecute();
}

void TForm163::acZpetExecute() {
    zavreno = true;
    oznam_zmenu();
}

}  // namespace wages
