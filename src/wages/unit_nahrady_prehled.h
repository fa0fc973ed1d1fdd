// TFNahrady: the year's compensations, as they were written. Read only; rows are corrected where
// gross items are. Opened from gross-wage entry.
#pragma once

#include <string_view>

#include "workers/ciselnik_seznam.h"

namespace wages {

class TFNahrady final : public workers::SeznamVet {
  public:
    explicit TFNahrady(shell::Session& session) : SeznamVet(session) {}
    std::string_view jmeno() const override { return "TFNahrady"; }

    /// "Tisk" has never printed anything; the list is printed by `acSestavaExecute`.
    static constexpr bool tisk_povoleny = false;

    /// Rows by worker, month and beginning; the kind in words, times as "h:mm".
    void FormShow();
    /// The printed list (`TForm123`).
    void acSestavaExecute();
};

/// Rows of compensations with `Typ_nahrady` in words and funds as "h:mm". The query selects these
/// fields, whatever else.
store::Rows vety_nahrad(store::Query& dotaz);

}  // namespace wages
