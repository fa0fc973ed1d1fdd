// Running verbs in process on a data root of their own.
#pragma once

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

#include "cli/hlavni.h"

#include "support/docasna_slozka.h"

namespace zkouska {

struct Vysledek {
    int stav = 0;
    std::string out, err;
};

/// A data root and a program folder; `firma` is given to every verb when it is not empty.
class Prikaz : public testing::Test {
  protected:
    Prikaz() {
        std::filesystem::create_directories(koren);
        std::filesystem::create_directories(program);
    }

    Vysledek spust(std::vector<std::string> slova, const std::string& vstup = "",
                   cli::Terminaly terminaly = {}) {
        std::ostringstream err;
        return spust(std::move(slova), vstup, terminaly, err);
    }

    Vysledek spust(std::vector<std::string> slova, const std::string& vstup,
                   cli::Terminaly terminaly, std::ostringstream& err) {
        std::vector<std::string> vse{(program / "zorvctl").string(), "--root", koren.string(),
                                     "--datum", "2022-03-01"};
        if (!firma.empty()) vse.insert(vse.end(), {"--firma", firma});
        vse.insert(vse.end(), slova.begin(), slova.end());
        std::istringstream in(vstup);
        std::ostringstream out;
        const int stav = cli::hlavni(vse, in, out, err, terminaly);
        return {stav, out.str(), err.str()};
    }

    /// A verb that has to succeed; returns its output.
    std::string projde(std::vector<std::string> slova, const std::string& vstup = "") {
        const auto vysledek = spust(slova, vstup);
        EXPECT_EQ(vysledek.stav, 0) << slova.front() << ": " << vysledek.err;
        return vysledek.out;
    }

    void zaloz_firmu(const std::string& nazev) {
        projde({"firma", "zaloz", nazev, "--nazev", "Pekárna Žďár", "--ico", "12345678"});
        firma = nazev;
    }

    DocasnaSlozka slozka;
    const std::filesystem::path koren = slozka / "data";
    const std::filesystem::path program = slozka / "program";
    std::string firma;
};

/// Two workers with the plain insurance and the advance tax; the first signed the declaration.
inline const std::string k_karty =
    "Cislo,Prijmeni,Jmeno,Zam_od,Jake_socialni,Jake_zdravotni,Jaka_dan,Kdo_plati_dan,tpd,"
    "Odp_poplatnik\n"
    "7,Žižková,Anežka,1.9.2019,1,1,1,0,40,2570\n"
    "12,Říha,Štěpán,1.1.2021,1,1,1,0,40,0\n";

inline const std::string k_hrube =
    "Mesic,Cislo_pracovnika,Prijmeni,Jmeno,Modul,Sloupec,Kc_cel\n"
    "1,7,Žižková,Anežka,1,1,28000.2\n"
    "1,7,Žižková,Anežka,1,2,1999\n"
    "1,12,Říha,Štěpán,1,1,12345.2\n";

}  // namespace zkouska
