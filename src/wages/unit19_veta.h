// A stored row of `HrubeMM`: reading it back, correcting and deleting it. A compensation's detail
// in `Nahrady` goes with its row.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "wages/zapis_hrubych.h"

namespace wages {

/// A row as it stands in its month's table.
struct UlozenaVeta {
    int mesic = 0;
    std::int64_t pocitadlo = 0;
    int cislo = 0;
    std::string prijmeni, jmeno;
    VetaHrube veta;

    Castka dny() const;     ///< worked and not worked
    Castka hodiny() const;  ///< worked, not worked, of a side job
};
/// From the current row of a query over the month's table.
UlozenaVeta ulozena_veta(const store::Query& hrube, int mesic);
/// Throws store::StoreError when the row is not there any more.
UlozenaVeta nacti_vetu_hrubych_mezd(shell::Session& session, int mesic, std::int64_t pocitadlo);

/// The row as the inputs of the ordinary form, so that writing them unchanged gives the same row.
ZadaniPolozky zadani_vety(const SloupecHrube& sloupec, const VetaHrube& veta);

/// Writes the contents over the row; what was copied from the card stays. Needs a Transaction.
void oprav_vetu_hrubych_mezd(shell::Session& session, int mesic, std::int64_t pocitadlo,
                             const VetaHrube& veta);
/// Deletes the row, and the detail of its compensation when it has one. Needs a Transaction.
void smaz_vetu_hrubych_mezd(shell::Session& session, const UlozenaVeta& veta);

/// `Pocitadlo` of the row's detail in `Nahrady`; nothing when it carries none.
std::optional<std::int64_t> detail_nahrady(shell::Session& session, const UlozenaVeta& veta);

/// Opens a table on the row. Throws store::StoreError when the row is not there.
void otevri_vetu(store::Table& tabulka, shell::Session& session, std::string_view nazev,
                 std::int64_t pocitadlo);

}  // namespace wages
