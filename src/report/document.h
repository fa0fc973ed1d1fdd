// A report as data: pages of bands of cells. It is made by `tabulkova.h` or by a template
// (`sablona.h`) and shown by the renderers `text.h` and `pdf.h`, which know nothing of its source.
#pragma once

#include <string>
#include <vector>

namespace report {

enum class Zarovnani { vlevo, vpravo, na_stred };

/// Paper and its margins.
struct Papir {
    double sirka_mm = 210;
    double vyska_mm = 297;
    double okraj_mm = 10;  ///< the same on all four sides

    double sirka_sazby() const { return sirka_mm - 2 * okraj_mm; }
    double vyska_sazby() const { return vyska_mm - 2 * okraj_mm; }
};
Papir papir_a4(bool na_sirku);

/// Rules over the whole width of a band or cell, and light shading behind it.
struct Ozdoba {
    bool linka_nad = false;
    bool linka_pod = false;
    bool podbarveni = false;
};

struct Bunka {
    std::string text;  ///< one line
    double x_mm = 0;   ///< from the left margin
    double sirka_mm = 0;
    Zarovnani zarovnani = Zarovnani::vlevo;
    bool tucne = false;
    double velikost = 0;  ///< of the letters, in points; 0: the document's
    Ozdoba ozdoba;
};

/// Bands repeated on every page are shown once in a text, which has no pages.
enum class DruhPasu { obsah, zahlavi_strany, pata_strany };

/// One line of cells.
struct Pas {
    DruhPasu druh = DruhPasu::obsah;
    double y_mm = 0;  ///< of the upper edge, from the top margin
    double vyska_mm = 0;
    std::vector<Bunka> bunky;
    Ozdoba ozdoba;
};

struct Strana {
    std::vector<Pas> pasy;  ///< from top to bottom
};

struct Document {
    std::string nazev;
    Papir papir;
    double velikost_pisma = 9;  ///< in points
    std::vector<Strana> strany;
};

/// The height of a line of letters of this size.
double vyska_radku(double velikost);
/// The summed height of bands that follow one another.
double vyska_pasu(const std::vector<Pas>& pasy);

}  // namespace report
