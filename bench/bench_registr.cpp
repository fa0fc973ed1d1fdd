// How fast the register of workers answers a key typed into a filter, a tick, a change of order.
//
//     bench_registr [workers]        (10000 when not given)
//
// Each change is made on the screen's class and repeated; the worst time is printed beside the time
// of the plain query for the same filter. The rows of both are compared.
#include <algorithm>
#include <fmt/format.h>
#include <string>
#include <vector>

#include "bench/mereni.h"
#include "shell/nova_firma.h"
#include "store/table.h"
#include "workers/unit6_registr.h"

namespace {

constexpr int k_opakovani = 7;
constexpr double k_milisekund = 1000;

constexpr const char* k_prijmeni[] = {
    "Novák",    "Nováková",  "Dvořák", "Dvořáková", "Černý",    "Černá",    "Chalupa",
    "Hybš",     "Chytilová", "Šimek",  "Šimková",   "Žák",      "Žáková",   "Říha",
    "Řezáčová", "Čermák",    "Ďuriš",  "Ťoupal",    "Ivan",     "Jelínek",  "Procházka",
    "Urbanová", "Úlehla",    "Zeman",  "Zemanová",  "Beneš",    "Benešová", "Růžička",
    "Kučera",   "Kučerová",  "Krejčí", "Horák",     "Horáková", "Němec",    "Němcová"};
constexpr const char* k_druha[] = {"", " ml.", " st.", "-Bartošová", "-Chlupatá", "-Ševčík", " II"};
constexpr const char* k_jmena[] = {"Jiří",   "Jana",  "Růžena", "Čeněk",  "Šárka", "Žofie",
                                   "Ondřej", "Chloe", "Hynek",  "Zdeňka", "Ivo",   "Eva"};

template <std::size_t N>
const char* ze_seznamu(const char* const (&seznam)[N], int poradi) {
    return seznam[static_cast<std::size_t>(poradi) % N];
}

/// A company of workers; every third has a child, every seventh is a former one.
class Firma {
  public:
    explicit Firma(int pracovniku) {
        const std::string chyba =
            shell::zaloz_slozku_firmy(slozka_.cesta, "BENCH22", {"Měřená firma", "12345678"});
        if (!chyba.empty()) throw std::runtime_error(chyba);
        session.koren_dat = slozka_.cesta;
        session.firma = "BENCH22";
        shell::cti_konfiguracni_soubor(session);
        session.ridici_zorv = shell::vychozi_ridici_zorv(session.slozka_programu);
        shell::zaloz_chybejici_tabulky(session);
        store::Transaction transakce(session.data());
        vloz(pracovniku);
        transakce.commit();
    }

  private:
    mereni::DocasnaSlozka slozka_;
    mereni::NikdoUKlaves obsluha_;
    base::SystemoveHodiny hodiny_;
    base::SystemovaNahoda nahoda_;

  public:
    shell::Session session{{obsluha_, hodiny_, nahoda_}, slozka_.cesta / "program"};

  private:
    void vloz(int pracovniku) {
        store::Inserter karty(
            session.data(), "Os_karty",
            {"Cislo", "Prijmeni", "Jmeno", "Ulice", "Bydliste", "Rodne_cislo", "Dat_nar_cislo",
             "Zam_do", "Rocni_zuctovani", "Id_rpd", "Volit_1", "Volit_2"});
        store::Inserter deti(session.data(), "Deti", {"Cislo_pracovnika", "Jmeno"});
        for (int i = 0; i < pracovniku; ++i) {
            const int cislo = (i * 7919) % pracovniku + 1;
            karty.set(0, cislo);
            karty.set(1, std::string(ze_seznamu(k_prijmeni, i)) + ze_seznamu(k_druha, i / 35));
            karty.set(2, ze_seznamu(k_jmena, i / 5));
            karty.set(3, "Dlouhá 123/45");
            karty.set(4, "Žďár nad Sázavou");
            karty.set(5, "75-51-01/1234");
            karty.set(6, 19500101 + i % 5000);
            if (i % 7 == 0) karty.set(7, "31.3.2022");
            karty.set(8, i % 2 == 0);
            karty.set(9, i % 4);
            karty.set(10, i % 10);
            karty.set(11, i % 100);
            karty.insert();
            if (i % 3 != 0) continue;
            deti.set(0, cislo);
            deti.set(1, "Jiří");
            deti.insert();
        }
    }
};

struct Zmena {
    const char* nazev;
    void (*nastav)(workers::FiltrRegistru&);
};

constexpr Zmena k_zmeny[] = {
    {"vše", [](auto&) {}},
    {"mají děti", [](auto& f) { f.maji_deti = true; }},
    {"mají ePodání", [](auto& f) { f.maji_epodani = true; }},
    {"roční zúčtování", [](auto& f) { f.rocni_zuctovani = true; }},
    {"aktivní", [](auto& f) { f.aktivni = true; }},
    {"nemá kalendář", [](auto& f) { f.nema_kalendar = true; }},
    {"číslo", [](auto& f) { f.cislo = "4321"; }},
    {"číslo výrazem", [](auto& f) { f.cislo = "4000+321"; }},
    {"volitelné 1",
     [](auto& f) {
         f.volitelne[0] = {1, "3"};
     }},
    {"obě volitelná",
     [](auto& f) {
         f.volitelne = {workers::VolitelneHledisko{1, "3"}, {2, "13"}};
     }},
    {"jméno n", [](auto& f) { f.jmeno = "n"; }},
    {"jméno nová", [](auto& f) { f.jmeno = "nová"; }},
    {"jméno s %", [](auto& f) { f.jmeno = "n%k"; }},
};

void vypis(const std::string& nazev, std::size_t radku, double obrazovka, double dotaz) {
    fmt::print("{:<42} {:>6} {:>12.2f} {:>12.2f}\n", nazev, radku, obrazovka * k_milisekund,
               dotaz * k_milisekund);
}

/// The screen must list what the query lists.
void porovnej(const workers::TForm6& form, const store::Rows& vety) {
    const bool stejne = std::ranges::equal(
        form.radky, vety.rows, [](const workers::RadekRegistru* r, const store::Row& veta) {
            return r->Pocitadlo == veta[0].as_integer();
        });
    if (!stejne) throw std::runtime_error("seznam se liší od dotazu");
}

void zmer_filtr(Firma& firma, workers::TForm6& form, const std::string& nazev,
                const workers::FiltrRegistru& filtr) {
    double obrazovka = 0;
    for (int i = 0; i < k_opakovani; ++i) {
        form.filtr = filtr;
        obrazovka = std::max(obrazovka, mereni::sekundy([&] { form.zmena_filtru(); }));
    }
    store::Rows vety;
    const double dotaz = mereni::sekundy(
        [&] { vety = workers::pracovnici_registru(firma.session, filtr, "Pocitadlo"); });
    porovnej(form, vety);
    vypis(nazev, form.radky.size(), obrazovka, dotaz);
}

void zmer(int pracovniku) {
    Firma firma(pracovniku);
    workers::TForm6 form(firma.session, nullptr);
    const double otevreni = mereni::sekundy([&] { form.FormShow(); });
    vypis("otevření", form.radky.size(), otevreni, 0);
    for (std::size_t p = 0; p < workers::k_poradi_registru.size(); ++p) {
        form.filtr = {};
        form.filtr.poradi = static_cast<workers::PoradiRegistru>(p);
        const double prvni = mereni::sekundy([&] { form.zmena_filtru(); });
        vypis(fmt::format("{}: první použití", workers::k_poradi_registru[p]), form.radky.size(),
              prvni, 0);
        for (const Zmena& zmena : k_zmeny) {
            workers::FiltrRegistru filtr;
            filtr.poradi = static_cast<workers::PoradiRegistru>(p);
            zmena.nastav(filtr);
            zmer_filtr(firma, form,
                       fmt::format("{}: {}", workers::k_poradi_registru[p], zmena.nazev), filtr);
        }
    }
}

}  // namespace

int main(int argc, char** argv) {
    try {
        const int pracovniku = argc > 1 ? std::atoi(argv[1]) : 10000;
        if (pracovniku < 1) throw std::runtime_error("počet pracovníků musí být číslo od 1");
        fmt::print("{:<42} {:>6} {:>12} {:>12}\n", "change", "rows", "screen_ms", "query_ms");
        zmer(pracovniku);
    } catch (const std::exception& chyba) {
        fmt::print(stderr, "bench_registr: {}\n", chyba.what());
        return 1;
    }
    return 0;
}
