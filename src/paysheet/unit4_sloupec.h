// TForm4: one column of the pay sheet: its caption, and for modules 1 and 3 what gross-wage entry
// asks for and how the amount follows.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "base/obsluha.h"
#include "shell/session.h"
#include "store/table.h"

namespace paysheet {

class TForm4 final : public base::Obrazovka {
  public:
    /// `ridici` stands on the column; saving changes that row.
    TForm4(shell::Session& session, store::Table& ridici);
    std::string_view jmeno() const override { return "TForm4"; }

    static constexpr std::array<const char*, 3> k_dny{"žádné", "odpracované", "neodpracované"};
    static constexpr std::array<const char*, 4> k_hodiny{"žádné", "odpracované", "neodpracované",
                                                         "vedlejší poměr"};
    /// The eighth caption is not the formula (1 x 2 + 3 x 4), on purpose.
    static constexpr std::array<const char*, 12> k_vypocty{
        "hodnota 1",       "hodnota 2",     "hodnota 3",
        "hodnota 4",       "1 x 2",         "1 x 2 / 100",
        "1 x 2 x 3 / 100", "1 x 2 x 3 x 4", "1 x 2 x (3 + 100) / 100",
        "1 x 2 x 3",       "1 / 2 x 3 + 4", "1 x 2 / 100 x 3 / 100"};
    /// Legend of "předřadit": what value 0 to 12 means.
    static constexpr std::array<const char*, 13> k_predrazeno{
        "nic nepředřazovat",
        "zadané dny",
        "zadané hodiny",
        "průměr na dovolenou",
        "rezerva - nazadáno",
        "sazba za osobní třídu",
        "průměr hodinový",
        "konstantu",
        "externí vstup",
        "suma zadaných hrubých mezd",
        "průměr ze základního platu DENNÍ (prac. dny)",
        "průměr ze základního platu HODINOVÝ (TPD)",
        "průměr ze základního (koeficient 174)"};

    /// Fields of one input value, as typed. All but the caption are disabled while it is blank.
    struct Hodnota {
        std::string nadpis, predrazeno, min, max, konstanta;
        bool povoleno = false;
    };
    enum class Pole { predrazeno, min, max, konstanta };

    std::string nadpis;
    std::string modul, sloupec;  ///< read-only
    std::string text;            ///< caption of the column, at most 30 characters
    bool text_povolen = true;    ///< not in module 4
    bool detail_viditelny = false;
    int scDny = 0, scHodiny = 0;
    int scVypocet = -1;  ///< index into k_vypocty, -1 nothing chosen
    bool scDatum = false, scStredisko = false, scVykon = false, scStroj = false;
    std::array<Hodnota, 4> hodnoty;  ///< captions of at most 15 characters
    std::string fokus;               ///< name of the field that has the focus: "predrazeno_2"
    bool zavreno = false;
    bool ulozeno = false;

    /// Leaving the caption of value `poradi` (from 0): a blank one clears the value's fields.
    void opusteni_nadpisu(std::size_t poradi);
    /// True when `znak` may be typed at the end of `dosud` in a field; otherwise beeps.
    bool povol_klavesu(Pole pole, char znak, std::string_view dosud) const;
    /// "Uložit".
    void Button2Click();
    /// "Zpět": closes without any change.
    void Button1Click();

  private:
    shell::Session& session_;
    store::Table& ridici_;
    store::Table::Bookmark veta_;
    void nacti_vetu();
    void zablokuj_nepristupna_pole();
    bool odmitni(std::string pole, const std::string& zprava);
    bool zkontroluj_texty();
    bool zkontroluj_cisla(std::size_t poradi);
    bool proved_kontrolu_dat();
    void dosad_do_vety();
};

}  // namespace paysheet
