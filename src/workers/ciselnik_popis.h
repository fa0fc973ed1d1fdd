// What a code list is made of: its table, fields and the rules of its rows. The screens of all code
// lists are made from these descriptions.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "shell/session.h"
#include "store/value.h"

namespace workers {

enum class DruhPole {
    text,
    cislice,  ///< a text of digits
    cele,
    kod,  ///< a whole number shown with leading zeros to its length, blank for 0
    desetinne
};

struct PoleCiselniku {
    const char* pole;     ///< field of the table
    const char* nadpis;   ///< "Název", as the grid and messages call it
    const char* popisek;  ///< "&Název:" beside the input
    DruhPole druh = DruhPole::text;
    int znaku = 0;  ///< longest text; of a decimal number its whole digits
};

/// Texts of a row's fields, in the order of the description.
using TextyPoli = std::vector<std::string>;

/// The first field is the number by which other tables know a row.
struct PopisCiselniku {
    const char* tabulka;
    const char* obrazovka;       ///< class name of the list
    const char* obrazovka_vety;  ///< class name of the record form
    const char* nadpis;
    std::vector<PoleCiselniku> pole;
    long long nejmensi_cislo = 0, nejvetsi_cislo = 0;
    /// What knows a row by its number, as lines of a warning; empty when nothing does.
    std::function<std::vector<std::string>(shell::Session&, long long cislo)> pouziti = {};
    /// What a row should not be, yet may: questions asked before it is written.
    std::function<std::vector<std::string>(const TextyPoli&)> pochybnosti = {};
};

/// Decimals that a rate may have.
inline constexpr int k_desetinnych_mist = 4;

/// A stored value as the screens show it, decimals with a comma.
std::string text_pole(const PoleCiselniku& pole, const store::Value& hodnota);
/// The typed text as the value to store, empty for a blank one. The text is one that
/// `chyba_pole` found sound.
store::Value hodnota_pole(const PoleCiselniku& pole, const std::string& text);
/// "" or what is wrong with the typed text, as a sentence.
std::string chyba_pole(const PoleCiselniku& pole, const std::string& text);
/// True when `znak` may be typed at the end of `dosud`.
bool povoleny_znak(const PoleCiselniku& pole, char znak, std::string_view dosud);

}  // namespace workers
