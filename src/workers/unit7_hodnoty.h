// What stands in the controls of the worker's card, and how it comes from a row of `Os_karty` and
// goes back.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "store/query.h"
#include "store/table.h"
#include "workers/unit7_pole.h"

namespace workers {

/// Content of one control; which member counts is told by the kind of the field.
struct HodnotaPole {
    std::string text;        ///< as typed; of a list the stored value of an item it does not offer
    bool ano = false;        ///< check box
    int index = -1;          ///< item of a list, -1 none
    std::int64_t cislo = 0;  ///< `Pocitadlo` of a calendar, 0 none
    std::string puvodni;     ///< `text` as it came from the row

    bool je_zadana() const;
};

/// The contents of all controls. Two controls of one field share their content.
class HodnotyKarty {
  public:
    HodnotyKarty();
    /// By the control's name; throws std::logic_error for a name that is not there.
    HodnotaPole& operator[](std::string_view ovladac);
    const HodnotaPole& operator[](std::string_view ovladac) const;

    std::int64_t pocitadlo = 0;  ///< of the row, 0 for a new one

    const std::string& text(std::string_view ovladac) const { return (*this)[ovladac].text; }
    /// Whole number of a text, 0 when it is none.
    int cislo(std::string_view ovladac) const;
    bool zadano(std::string_view ovladac) const { return (*this)[ovladac].je_zadana(); }

  private:
    std::vector<HodnotaPole> hodnoty_;
};

/// What the controls show beside the row itself: code lists with the present rates, calendars.
class CiselnikyKarty {
  public:
    explicit CiselnikyKarty(shell::Session& session);
    const std::vector<PolozkaCiselniku>& polozky(CiselnikKarty ciselnik) const;
    /// "2022  (Základní 8:00 hodin)", k_vyberte_kalendar for 0, and a text saying so for a
    /// calendar that is not there.
    std::string kalendar_slovy(std::int64_t pocitadlo) const;

  private:
    std::vector<std::vector<PolozkaCiselniku>> polozky_;
    std::vector<std::pair<std::int64_t, std::string>> kalendare_;
};

inline constexpr const char* k_vyberte_kalendar = "vyberte klepnutím zde";

/// "2022  (Základní 8:00 hodin)".
std::string kalendar_textem(int rok, std::string_view nazev);

/// Reads the cards of a query over whole rows of `Os_karty`, the one under its cursor.
class CtenarKaret {
  public:
    explicit CtenarKaret(const store::Query& dotaz);
    HodnotyKarty precti(const CiselnikyKarty& ciselniky) const;

  private:
    const store::Query& dotaz_;
    std::vector<int> sloupce_;  ///< of the query, by the order of pole_karty
    int pocitadlo_;
};

/// A new worker's card.
HodnotyKarty nova_karta(const shell::Session& session, const CiselnikyKarty& ciselniky);

/// "7 - Ing. Petr Vzorný": number, title and names as far as they are filled.
std::string nadpis_karty(const HodnotyKarty& karta);

/// "" or a Czech sentence on what the field should hold to be stored.
std::string chyba_zapisu(const PoleKarty& pole, const HodnotaPole& hodnota,
                         std::string_view popisek);

/// Puts the contents into the row being edited. A number whose text was not touched stays as it is
/// stored, to the last decimal.
void Zapis_konecne_hodnoty(const HodnotyKarty& hodnoty, const CiselnikyKarty& ciselniky,
                           store::Table& karty);

}  // namespace workers
