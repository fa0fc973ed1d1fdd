// One item of gross wages on the ordinary form: what its column asks for, whether what was typed
// may be written, and the crowns it makes. Entry by hand, correction and import of files share it.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "base/zaokrouhleni.h"
#include "shell/session.h"
#include "store/query.h"

namespace wages {

using base::Castka;

inline constexpr std::size_t k_hodnot = 4;
/// Characters of the free text.
inline constexpr std::size_t k_znaku_textu = 30;

/// What an entered value of the column is; `nadpis` blank: the column has no such value.
struct HodnotaSloupce {
    std::string nadpis;
    int predrazeno = 0;
    long min = 0, max = 0;
    Castka konstanta = 0;
    bool zadava_se() const;
};

/// A row of `Ridici` as entry reads it.
struct SloupecHrube {
    int modul = 0, sloupec = 0;
    std::string text;
    int jake_dny = 0;     ///< 0 not asked for, 1 worked, 2 not worked
    int jake_hodiny = 0;  ///< 0 not asked for, 1 worked, 2 not worked, 3 of a side job
    bool datum = false, stredisko = false, vykon = false, stroj = false;
    std::array<HodnotaSloupce, k_hodnot> hodnoty;
    int var_vyp = 0;
};
/// From the current row of a query over `Ridici`.
SloupecHrube sloupec_hrube(const store::Query& ridici);

/// The inputs of the form as typed.
struct ZadaniPolozky {
    std::string dny, hodiny, datum, stredisko, vykon, stroj;
    std::array<std::string, k_hodnot> hodnoty;
    std::string text;
};

/// Lists that the check looks into; see Nacti_vykony and Nacti_stroje.
struct CiselnikyPolozky {
    std::vector<std::string> vykony;
    std::vector<std::string> stroje;  ///< six digits each
};
/// One text of six digits a row of `Stroje`, in the order of `By_Tr1`.
std::vector<std::string> Nacti_stroje(shell::Session& session);
/// 0 always passes; any other number must stand in the list.
bool stroj_souhlasi(const std::vector<std::string>& stroje, long cislo);

/// Exactly four digits ddmm of a day that exists in that month of the year; any month passes.
bool Spravne_datum(std::string_view text, int rok);
/// A day of one or two characters gets its leading zero and the month; any other text stays.
std::string uprav_datum(std::string_view text, int mesic);

/// All messages, in the order of the inputs; empty when the item may be written. Inputs that the
/// column does not ask for are not looked at.
std::vector<std::string> Udelej_kontrolu_bezneho_tiskopisu(const SloupecHrube& sloupec,
                                                           const ZadaniPolozky& zadani,
                                                           const CiselnikyPolozky& ciselniky,
                                                           int rok);

/// The same of the quarantine allowance: its amount is a whole number other than 0.
std::vector<std::string> Udelej_kontrolu_karanteny(std::string_view castka);

/// Crowns of the item rounded to hellers (a tie to even), by the column's variant. A value that is
/// blank or not asked for counts as 0; a division by zero gives what floating division gives.
Castka proved_vypocet_na_beznem_tiskopisu(const SloupecHrube& sloupec, const ZadaniPolozky& zadani);

}  // namespace wages
