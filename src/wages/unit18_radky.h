// Finding rows of gross wages over the months of the year, and their sums.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/vybery.h"
#include "wages/unit19_veta.h"

namespace wages {

/// What the operator looks for, as typed; blank does not limit. Numbers are a selection such as
/// "1,3,5:9" (base/vybery.h), any other text is a part of a name.
struct FiltrHrubych {
    std::string mesice;     ///< month expression, "2", "1:3" or "*"
    std::string pracovnik;  ///< numbers, or a part of surname or first name
    std::string sloupec;    ///< numbers of columns, or a part of their text
    std::string stredisko;  ///< numbers; 0 finds also rows without a cost centre
    std::string text;       ///< a part of the free text
    bool operator==(const FiltrHrubych&) const = default;
};

/// True for "*" and for numbers and ranges parted by commas.
bool je_vyber_cisel(std::string_view text);
/// The months of the expression; nothing when it does not give months 1 to 12 in order.
std::optional<base::RozsahMesicu> mesice_filtru(std::string_view mesice);

/// Rows by month, worker, module, column and entry. Months without a table are passed over.
std::vector<UlozenaVeta> najdi_vety(shell::Session& session, const base::RozsahMesicu& mesice,
                                    const FiltrHrubych& filtr);

struct SoucetHrubych {
    std::size_t pocet = 0;
    Castka dny = 0, hodiny = 0, koruny = 0;
    void pridej(const SoucetHrubych& dalsi);
};
SoucetHrubych secti_vety(const std::vector<UlozenaVeta>& vety);
/// "Položek: 3   Dny: 5   Hodiny: 40   Koruny: 4 820,00"
std::string soucet_slovy(const SoucetHrubych& soucet);

}  // namespace wages
