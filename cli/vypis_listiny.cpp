#include "cli/vypis_listiny.h"

#include <ostream>

#include "cli/tabulka.h"
#include "cli/texty.h"

namespace cli {

namespace {

/// Places of the fields in the result.
struct Pole {
    explicit Pole(const store::Rows& listina)
        : cislo(misto(listina, "Cislo_pracovnika")),
          prijmeni(misto(listina, "Prijmeni")),
          jmeno(misto(listina, "Jmeno")),
          modul(misto(listina, "Modul")),
          sloupec(misto(listina, "Sloupec")),
          co_je_to(misto(listina, "Co_je_to")),
          hodnota(misto(listina, "Hodnota")),
          poznamka(misto(listina, "Poznamka")) {}

    const std::size_t cislo, prijmeni, jmeno, modul, sloupec, co_je_to, hodnota, poznamka;

  private:
    static std::size_t misto(const store::Rows& listina, const char* pole) {
        return static_cast<std::size_t>(listina.column(pole));
    }
};

std::vector<std::string> bunky(const store::Row& radek, const Pole& pole) {
    const auto& sloupec = radek[pole.sloupec];
    const auto& hodnota = radek[pole.hodnota];
    return {radek[pole.modul].as_text(), sloupec.as_integer() == 0 ? "" : sloupec.as_text(),
            radek[pole.co_je_to].as_text(),
            hodnota.is_empty() ? "" : citelna_castka(hodnota.as_number()),
            radek[pole.poznamka].as_text()};
}

}  // namespace

void vypis_radky_listiny(const store::Rows& listina, std::ostream& out) {
    const Pole pole(listina);
    const auto& radky = listina.rows;
    for (std::size_t i = 0; i < radky.size();) {
        const auto& prvni = radky[i];
        out << "Pracovník " << prvni[pole.cislo].as_text() << "  " << prvni[pole.prijmeni].as_text()
            << ' ' << prvni[pole.jmeno].as_text() << '\n';
        Tabulka tabulka({{"modul", Strana::vpravo},
                         {"sloupec", Strana::vpravo},
                         {"co je to"},
                         {"hodnota", Strana::vpravo},
                         {"poznámka"}});
        for (; i < radky.size() && radky[i][pole.cislo] == prvni[pole.cislo]; ++i)
            tabulka.radek(bunky(radky[i], pole));
        tabulka.vypis(out, 2);
        out << '\n';
    }
}

}  // namespace cli
