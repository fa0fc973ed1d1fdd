// What a template says, as it is kept after reading. Only for the files sablona_*.cpp.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "report/document.h"

namespace report {

/// A piece of a field's text: itself, or what is put in its place.
struct Cast {
    enum class Druh { text, sloupec, parametr, soucet, pocet, strana, stran };
    Druh druh = Druh::text;
    std::string hodnota;  ///< the text, or the name of the column or parameter
};

/// How numbers and days of a field are written.
enum class Format { bez, castka, koruny, datum };

struct Pole {
    Bunka bunka;  ///< without its text
    std::vector<Cast> casti;
    Format format = Format::bez;
    bool prazdna_nula = false;
    int radek_souboru = 0;
};

struct RadekSablony {
    std::vector<Pole> pole;
    double vyska_mm = 0;
    Ozdoba ozdoba;
};

/// Holds when the parameter has the value.
struct Podminka {
    std::string parametr;
    std::string hodnota;
    int radek_souboru = 0;
};

struct PasSablony {
    std::vector<RadekSablony> radky;
};

struct Skupina {
    std::string podle;  ///< a column
    std::optional<Podminka> kdyz;
    bool nova_strana = false;
    bool pohromade = false;  ///< not divided between pages when it fits on one
    PasSablony zahlavi, pata;
    int radek_souboru = 0;
};

struct PredpisSablony {
    std::string soubor;  ///< for messages
    std::vector<Cast> nazev;
    int radek_nazvu = 0;
    Papir papir;
    double pismo = 9;
    bool stridat = false;  ///< every second detail is shaded
    PasSablony titul, zahlavi_strany, detail, souhrn, pata_strany;
    std::vector<Skupina> skupiny;  ///< the outermost first
};

}  // namespace report
