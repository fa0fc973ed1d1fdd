// How long a month's pay run takes, against the bare insertion of the same rows into the same
// table.
//
//     bench_vyplaty [workers...]        (1000 10000 when none are given)
//
// Each worker has five gross rows, two fixed items and a child. The two measured works alternate
// and the best of the repeats counts, so that a busy machine disturbs the ratio little.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fmt/format.h>
#include <fstream>
#include <limits>
#include <sqlite3.h>
#include <stdexcept>
#include <string>
#include <vector>

#include "bench/mereni.h"
#include "payrun/unit21_vypocet_vyplat.h"
#include "paysheet/listina.h"
#include "paysheet/sloupce.h"
#include "paysheet/unit2_struktura.h"
#include "shell/nova_firma.h"
#include "shell/session.h"
#include "store/catalogue.h"
#include "store/table.h"

namespace {

namespace fs = std::filesystem;
using mereni::DocasnaSlozka;
using mereni::NikdoUKlaves;
using mereni::sekundy;

constexpr int k_opakovani = 5;
constexpr const char* k_listina = "Listin01";

/// Peak resident memory of this process in MiB.
double nejvyssi_pamet() {
    std::ifstream stav("/proc/self/status");
    for (std::string radek; std::getline(stav, radek);) {
        if (radek.starts_with("VmHWM:")) return std::strtod(radek.c_str() + 6, nullptr) / 1024;
    }
    return 0;
}

/// A company of `pracovniku` workers with the gross wages of January.
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
        paysheet::TForm2 struktura(session);
        paysheet::Vypln_formular_2(struktura);
        struktura.btOKClick();
        shell::uplatni_ridici_zorv(session);
        paysheet::Nacti_sloupce_slovy(session);
        shell::zaloz_chybejici_tabulky(session);
        session.zpracovavany_mesic = 1;
        naplni(pracovniku);
        paysheet::zaloz_vyplatni_listinu(session, 1);
    }

    const fs::path& slozka() const { return slozka_.cesta; }

  private:
    DocasnaSlozka slozka_;
    NikdoUKlaves obsluha_;
    base::SystemoveHodiny hodiny_;
    base::SystemovaNahoda nahoda_;

  public:
    shell::Session session{{obsluha_, hodiny_, nahoda_}, slozka_.cesta / "program"};

  private:
    void naplni(int pracovniku) {
        store::Connection& data = session.data();
        store::Transaction transakce(data);
        data.create_table(store::definition_of("Hrube01"));
        vloz_pojistovnu(data);
        vloz_karty(data, pracovniku);
        vloz_hrube(data, pracovniku);
        vloz_fixni(data, pracovniku);
        vloz_deti(data, pracovniku);
        transakce.commit();
    }

    static void vloz_pojistovnu(store::Connection& data) {
        store::Inserter poj(data, "Zdr_poj", {"Cislo", "Nazev"});
        poj.set(0, 11);
        poj.set(1, "Všeobecná zdravotní pojišťovna");
        poj.insert();
    }

    static void vloz_karty(store::Connection& data, int pracovniku) {
        store::Inserter k(
            data, "Os_karty",
            {"Cislo", "Prijmeni", "Jmeno", "Ulice", "Bydliste", "Rodne_cislo", "Jake_socialni",
             "Jake_zdravotni", "Jaka_dan", "tpd", "Zamestnanec", "Odp_poplatnik", "Cislo_zdrav_poj",
             "Volit_1", "PdovD4min", "Prum_nemoc_1"});
        for (int cislo = 1; cislo <= pracovniku; ++cislo) {
            k.set(0, cislo);
            k.set(1, "Dvořáková");
            k.set(2, "Růžena");
            k.set(3, "Dlouhá 123/45");
            k.set(4, "Žďár nad Sázavou");
            k.set(5, "75-51-01/1234");
            for (std::size_t kod = 6; kod <= 8; ++kod)
                k.set(kod, 1);
            k.set(9, 40.0);
            k.set(10, true);
            k.set(11, 2570);
            k.set(12, 11);
            k.set(13, cislo % 7);
            k.set(14, 1432.5);
            k.set(15, 1388.0);
            k.insert();
        }
    }

    static void vloz_hrube(store::Connection& data, int pracovniku) {
        struct Radek {
            int modul, sloupec;
            double hodin, kc;
        };
        const Radek radky[] = {{1, 1, 152, 24350.5},
                               {1, 1, 8, 1200},
                               {1, 2, 0, 2500.4},
                               {3, 4, 0, 900.2},
                               {5, 7, 0, 1500}};
        store::Inserter h(data, "Hrube01",
                          {"Mesic", "Cislo_pracovnika", "Modul", "Sloupec", "Sloupec_slovy",
                           "Hod_od", "Dny_neod", "Kc_cel"});
        for (int cislo = 1; cislo <= pracovniku; ++cislo) {
            for (const Radek& r : radky) {
                h.set(0, 1);
                h.set(1, cislo);
                h.set(2, r.modul);
                h.set(3, r.sloupec);
                h.set(4, "položka hrubých mezd");
                h.set(5, r.hodin);
                h.set(6, r.modul == 5 ? 2.0 : 0.0);
                h.set(7, r.kc + cislo % 100);
                h.insert();
            }
        }
    }

    static void vloz_fixni(store::Connection& data, int pracovniku) {
        store::Inserter f(data, "Fixni", {"Cislo_pracovnika", "Sloupec", "Kcs"});
        for (int cislo = 1; cislo <= pracovniku; ++cislo) {
            for (int sloupec = 13; sloupec <= 14; ++sloupec) {
                f.set(0, cislo);
                f.set(1, sloupec);
                f.set(2, 100 * sloupec);
                f.insert();
            }
        }
    }

    static void vloz_deti(store::Connection& data, int pracovniku) {
        store::Inserter d(data, "Deti",
                          {"Cislo_pracovnika", "Prijmeni", "Jmeno", "Bydliste", "Rodne_cislo",
                           "Odpocitatelna_dan"});
        for (int cislo = 1; cislo <= pracovniku; ++cislo) {
            d.set(0, cislo);
            d.set(1, "Dvořák");
            d.set(2, "Jiří");
            d.set(3, "Žďár nad Sázavou");
            d.set(4, "15-01-01/1234");
            d.set(5, 1267);
            d.insert();
        }
    }
};

void over(int kod, sqlite3* db) {
    if (kod != SQLITE_OK && kod != SQLITE_ROW && kod != SQLITE_DONE) {
        throw std::runtime_error(sqlite3_errmsg(db));
    }
}

/// A database file used without any layer above it.
class HolaDatabaze {
  public:
    explicit HolaDatabaze(const fs::path& soubor) {
        over(sqlite3_open(soubor.c_str(), &db), db);
        sqlite3_create_collation(db, "cs", SQLITE_UTF8, nullptr,
                                 [](void*, int, const void*, int, const void*) { return 0; });
        proved("PRAGMA journal_mode=DELETE");
        proved("PRAGMA synchronous=EXTRA");
        proved("PRAGMA cache_size=-32000");
    }
    ~HolaDatabaze() { sqlite3_close(db); }
    HolaDatabaze(const HolaDatabaze&) = delete;
    HolaDatabaze& operator=(const HolaDatabaze&) = delete;

    void proved(const std::string& sql) {
        over(sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr), db);
    }
    sqlite3_stmt* priprav(const std::string& sql) {
        sqlite3_stmt* prikaz = nullptr;
        over(sqlite3_prepare_v2(db, sql.c_str(), -1, &prikaz, nullptr), db);
        return prikaz;
    }
    sqlite3* db = nullptr;
};

/// The rows of the sheet and what makes its table, taken from the company's database.
struct Predloha {
    std::vector<std::string> definice;
    std::vector<std::vector<sqlite3_value*>> vety;
    ~Predloha() {
        for (auto& veta : vety) {
            for (sqlite3_value* hodnota : veta)
                sqlite3_value_free(hodnota);
        }
    }
    Predloha() = default;
    Predloha(const Predloha&) = delete;
    Predloha& operator=(const Predloha&) = delete;
};

void nacti_predlohu(const fs::path& soubor, Predloha& predloha) {
    HolaDatabaze zdroj(soubor);
    sqlite3_stmt* prikaz = zdroj.priprav(
        fmt::format("SELECT sql FROM sqlite_master WHERE lower(tbl_name) = lower('{}')"
                    " AND sql IS NOT NULL ORDER BY type DESC",
                    k_listina));
    while (sqlite3_step(prikaz) == SQLITE_ROW) {
        predloha.definice.emplace_back(
            reinterpret_cast<const char*>(sqlite3_column_text(prikaz, 0)));
    }
    sqlite3_finalize(prikaz);
    prikaz = zdroj.priprav(fmt::format("SELECT * FROM {} ORDER BY Pocitadlo", k_listina));
    while (sqlite3_step(prikaz) == SQLITE_ROW) {
        std::vector<sqlite3_value*>& veta = predloha.vety.emplace_back();
        for (int i = 0; i < sqlite3_column_count(prikaz); ++i) {
            veta.push_back(sqlite3_value_dup(sqlite3_column_value(prikaz, i)));
        }
    }
    sqlite3_finalize(prikaz);
}

/// Inserts the rows by one prepared statement in one transaction into an identical table.
double zmer_hole_vkladani(const Predloha& predloha, const fs::path& soubor) {
    fs::remove(soubor);
    HolaDatabaze cil(soubor);
    for (const std::string& sql : predloha.definice)
        cil.proved(sql);
    std::string otazniky;
    for (std::size_t i = 0; i < predloha.vety.at(0).size(); ++i)
        otazniky += i == 0 ? "?" : ",?";
    return sekundy([&] {
        cil.proved("BEGIN IMMEDIATE");
        sqlite3_stmt* vloz =
            cil.priprav(fmt::format("INSERT INTO {} VALUES ({})", k_listina, otazniky));
        for (const auto& veta : predloha.vety) {
            for (std::size_t i = 0; i < veta.size(); ++i) {
                sqlite3_bind_value(vloz, static_cast<int>(i) + 1, veta[i]);
            }
            over(sqlite3_step(vloz), cil.db);
            sqlite3_reset(vloz);
        }
        sqlite3_finalize(vloz);
        cil.proved("COMMIT");
    });
}

double zmer_vypocet(Firma& firma) {
    paysheet::zaloz_vyplatni_listinu(firma.session, 2);
    return sekundy([&] {
        payrun::TForm21 obrazovka(firma.session);
        obrazovka.FormShow();
        obrazovka.Button2Click();
        if (!obrazovka.vysledky_viditelne) throw std::runtime_error("výpočet neskončil výsledky");
    });
}

void zmer(int pracovniku) {
    Firma firma(pracovniku);
    double vypocet = zmer_vypocet(firma);
    const double pamet = nejvyssi_pamet();
    firma.session.zavri_spojeni();
    Predloha predloha;
    nacti_predlohu(firma.session.cesta_dat / store::Connection::file_name(), predloha);
    double hole = std::numeric_limits<double>::max();
    for (int i = 0; i < k_opakovani; ++i) {
        hole = std::min(hole, zmer_hole_vkladani(predloha, firma.slozka() / "hola.db"));
        vypocet = std::min(vypocet, zmer_vypocet(firma));
    }
    fmt::print("{:>9} {:>9} {:>9.3f} {:>9.3f} {:>7.2f} {:>14.1f} {:>10.0f}\n", pracovniku,
               predloha.vety.size(), vypocet, hole, vypocet / hole, vypocet * 1e6 / pracovniku,
               pamet);
    std::fflush(stdout);
}

}  // namespace

int main(int argc, char** argv) {
    try {
        std::vector<int> pocty;
        for (int i = 1; i < argc; ++i)
            pocty.push_back(std::atoi(argv[i]));
        if (pocty.empty()) pocty = {1000, 10000};
        fmt::print("{:>9} {:>9} {:>9} {:>9} {:>7} {:>14} {:>10}\n", "workers", "rows", "run_s",
                   "raw_s", "ratio", "us_per_worker", "peak_mib");
        for (const int pocet : pocty) {
            if (pocet < 1) throw std::runtime_error("počet pracovníků musí být číslo od 1");
            zmer(pocet);
        }
    } catch (const std::exception& chyba) {
        fmt::print(stderr, "bench_vyplaty: {}\n", chyba.what());
        return 1;
    }
    return 0;
}
