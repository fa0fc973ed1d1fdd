// The text fields of TForm14 as data: name, caption, page, and where the value is kept. Filling,
// checking and storing all walk this table; a face builds its pages from it.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "paysheet/unit14_nastaveni.h"

namespace paysheet {

/// The two stores that the screen edits.
struct UlozisteNastaveni {
    shell::RidiciZorv& zaznam;
    shell::Nastaveni& nastaveni;
};

using MistoHodnoty =
    std::variant<std::uint8_t*, std::int16_t*, int*, double*, base::Castka*, std::string*>;

/// What a blank number means.
enum class Prazdne {
    nula,     ///< stores 0, and 0 is shown as a blank field
    odmitni,  ///< is refused
    zvlast    ///< a check of its own decides; stores 0, and 0 is shown
};

enum class Soubor { ridici_zorv, nastaveni_ini };

struct PoleNastaveni {
    Stranka stranka;
    const char* ovladac;  ///< "Edit13"
    const char* popisek;  ///< "Sociální / Pracovník"
    std::string TForm14::*text;
    Prazdne prazdne;
    int nejvyse;  ///< characters of a text or the largest value of a whole number; 0: by the store
    Soubor soubor;
    MistoHodnoty (*misto)(UlozisteNastaveni);
};

std::span<const PoleNastaveni> pole_nastaveni();

/// The value as the field shows it.
std::string hodnota_do_pole(const PoleNastaveni& pole, UlozisteNastaveni uloziste);
/// Puts the field's text into its store; the text was checked before.
void pole_do_hodnoty(const PoleNastaveni& pole, std::string_view text, UlozisteNastaveni uloziste);
/// "" or a Czech sentence saying what the field should hold.
std::string chyba_pole(const PoleNastaveni& pole, std::string_view text);
/// The same for a column number outside a base: blank, or a whole number up to 32767.
std::string chyba_cisla_sloupce(std::string_view popisek, std::string_view text);

}  // namespace paysheet
