// The query behind the list of workers: the state of its filters as SQL of the payroll's dialect.
// The register's screen and the command line list workers by the same conditions.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "shell/session.h"
#include "store/query.h"

namespace workers {

/// Orders of the list, in the order in which they are offered.
enum class PoradiRegistru { cislo, prijmeni, jmeno, datum_narozeni };
inline constexpr std::array<const char*, 4> k_poradi_registru{
    "Čísla pracovníka", "Příjmení a jména", "Jména a příjmení", "Datumu narození"};

/// One of the free criteria of the card with the value asked for.
struct VolitelneHledisko {
    int hledisko = 0;     ///< 1 to 10 is `Volit_1` to `Volit_10`, 0 is none
    std::string hodnota;  ///< as typed; blank does not restrict
    bool operator==(const VolitelneHledisko&) const = default;
};

/// What the controls above the list say. Everything set holds at once; the default restricts
/// nothing.
struct FiltrRegistru {
    bool maji_deti = false;
    bool maji_epodani = false;
    bool rocni_zuctovani = false;
    bool aktivni = false;  ///< `Zam_do` blank
    bool nema_kalendar = false;
    std::string cislo;  ///< number field as typed
    std::array<VolitelneHledisko, 2> volitelne;
    std::string jmeno;  ///< a part of surname or first name, in any case of letters
    PoradiRegistru poradi = PoradiRegistru::cislo;
    bool operator==(const FiltrRegistru&) const = default;
};

/// The statement for the filter; `sloupce` is its list of fields. The number and the values of the
/// criteria stand in it as they were typed, so it may be no valid statement: run it on a connection
/// that cannot write. A filter by name leaves the parameter `:jmeno` open, see `vzor_jmena`.
std::string dotaz_registru(const FiltrRegistru& filtr, std::string_view sloupce = "*");

/// The pattern for `:jmeno`: the text in upper case between percent signs. Percent and underscore
/// in the text stand for any characters.
std::string vzor_jmena(const FiltrRegistru& filtr);

/// Rows of the filter in its order. Opens a connection of its own that cannot write. Throws
/// store::StoreError where a number or value is not one.
store::Rows pracovnici_registru(const shell::Session& session, const FiltrRegistru& filtr,
                                std::string_view sloupce = "*");

/// The filter in words for the heading of a print, one line a condition; `hlediska` are the names
/// of the ten criteria.
std::vector<std::string> filtr_slovy(const FiltrRegistru& filtr,
                                     const std::array<std::string, 10>& hlediska);

}  // namespace workers
