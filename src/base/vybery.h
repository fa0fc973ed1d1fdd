// The short selection language of filter fields: workers, columns, modules, months.
#pragma once

#include <string>
#include <string_view>
#include <utility>

#include "base/datum.h"

namespace base {

/// A condition over one field: "1,3,5:9" on `pole` gives "(pole=1) OR (pole=3) OR (pole>=5 AND
/// pole<=9)";
/// "*" gives "". An invalid piece reaches the condition as it stands.
std::string vyber_hodnot(std::string_view text, std::string_view pole);

struct VyberSloupcu {
    std::string vcetne;  ///< items with "+"
    std::string krome;   ///< all the others
};
/// An expression over columns and modules: items "s5", "m3:5", bare numbers are columns, cut at
/// "+", "-",
/// "/" or "x"; "*" gives empty conditions.
VyberSloupcu vyber_sloupcu(std::string_view text);

struct RozsahMesicu {
    int od = 0;
    int do_ = 0;
    bool operator==(const RozsahMesicu&) const = default;
};
/// The month expression: "-" stands for ":", "*" for "1:12", one number n means n to n.
RozsahMesicu rozsah_mesicu(std::string_view text);
/// The same clamped to 1 to 12, as the first day of the first month and the last day of the last
/// month; the end is no earlier than the start month.
std::pair<Datum, Datum> rozsah_mesicu_datumy(std::string_view text, int rok);

}  // namespace base
