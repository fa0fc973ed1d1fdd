// TForm51: one row of blocked values of a month.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "base/obsluha.h"
#include "shell/session.h"
#include "store/table.h"

namespace payrun {

/// One of the six values that can be blocked, in the order in which the screens show them.
struct DruhBlokace {
    const char* skupina;  ///< "Sociální pojištění"
    const char* popisek;  ///< "Základ"
    const char* pole;     ///< fields of the table: `pole`_abs and `pole`_dif
};
inline constexpr std::array<DruhBlokace, 6> k_druhy_blokace{{
    {"Sociální pojištění", "Základ", "socialni_zaklad"},
    {"Sociální pojištění", "Pojistné", "socialni"},
    {"Zdravotní pojištění", "Základ", "zdravotni_zaklad"},
    {"Zdravotní pojištění", "Pojistné", "zdravotni"},
    {"Daň z příjmu", "Dílčí základ", "dan_zaklad"},
    {"Daň z příjmu", "Sražená daň", "dan"},
}};
inline constexpr const char* k_blokace_absolutne = "Absolutně";
inline constexpr const char* k_blokace_rozdil = "Rozdíl";

class TForm51 final : public base::Obrazovka {
  public:
    /// `blok` has a row in append or edit; saving posts it, leaving cancels it.
    TForm51(shell::Session& session, store::Table& blok, std::string nadpis_);
    std::string_view jmeno() const override { return "TForm51"; }

    /// Texts of one value's two fields, as typed; blank stands for 0.
    struct Dvojice {
        std::string abs, dif;
    };

    std::string nadpis;
    std::string cislo_pracovnika;
    std::array<Dvojice, k_druhy_blokace.size()> hodnoty;
    std::string fokus;  ///< field that has the focus: "socialni_zaklad_abs"
    bool vysledek_ok = false;
    bool zavreno = false;

    /// True when `znak` may be typed at the end of `dosud`; otherwise beeps. Digits and a sign, at
    /// most seven digits.
    bool povol_klavesu(char znak, std::string_view dosud) const;
    /// "Uložit".
    void Button2Click();
    /// "Zpět".
    void Button1Click();

  private:
    shell::Session& session_;
    store::Table& blok_;
    bool zkontroluj(const std::string& pole, const std::string& text);
    bool zkontroluj_vse();
};

}  // namespace payrun
