// The actions of the main menu, as data: what a face shows as buttons and menu items. What they do
// is TForm1::proved_akci.
#pragma once

#include <string_view>
#include <vector>

namespace menu {

/// Work areas of the main menu, in the order of the work of a month and a year.
enum class Skupina {
    evidence,
    hrube_mzdy,
    vypocet,
    vystupy,
    uzaverka,
    rok,
    vykazy,
    nastaveni,
    program
};

struct Akce {
    const char* nazev;    ///< "acVypocetVyplat"
    const char* popisek;  ///< "Výpočet výplat"; "" for an action without a caption
    int tag;              ///< 1: needs an open company
    const char* zkratka;  ///< "F12", "Escape" or ""
    Skupina skupina;
};

/// Every action, in the order of the main menu; those of one group do not all stand together.
const std::vector<Akce>& vsechny_akce();

/// The action of that name; nullptr when there is none.
const Akce* najdi_akci(std::string_view nazev);

/// Heading of a group, for example "Hrubé mzdy".
const char* skupina_slovy(Skupina skupina);

}  // namespace menu
