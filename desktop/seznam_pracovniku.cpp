#include "desktop/seznam_pracovniku.h"

#include <QTableView>
#include <array>

#include "desktop/text_qt.h"
#include "desktop/vzhled.h"

namespace desktop {

namespace {

using workers::RadekRegistru;

struct TextovySloupec {
    const char* nadpis;
    int znaku;
    std::string RadekRegistru::*pole;
    bool cislo = false;
};

constexpr std::array<TextovySloupec, 7> k_texty{{
    {"příjmení", 0, &RadekRegistru::Prijmeni},
    {"jméno", 11, &RadekRegistru::Jmeno},
    {"titul", 5, &RadekRegistru::Titul},
    {"narozen", 9, &RadekRegistru::Dat_nar_text},
    {"středisko", 8, &RadekRegistru::Stredisko, true},
    {"poměr od", 9, &RadekRegistru::Zam_od},
    {"poměr do", 9, &RadekRegistru::Zam_do},
}};

}  // namespace

ModelSeznamu* model_pracovniku(const workers::TForm6& form, QTableView& tabulka) {
    std::vector<SloupecSeznamu> sloupce{{"číslo", 6, true, [&form](std::size_t radek) {
                                             return QString::number(form.radky[radek]->Cislo);
                                         }}};
    for (const TextovySloupec& s : k_texty) {
        sloupce.push_back({s.nadpis, s.znaku, s.cislo, [&form, pole = s.pole](std::size_t radek) {
                               return do_qt(form.radky[radek]->*pole);
                           }});
    }
    return new ModelSeznamu(
        std::move(sloupce), [&form] { return form.radky.size(); },
        [&form, &tabulka](std::size_t radek, int, int role) -> QVariant {
            if (role != Qt::ForegroundRole || !form.radky[radek]->byvaly) return {};
            return barva_upozorneni(tabulka.palette());
        },
        &tabulka);
}

}  // namespace desktop
