// Selection expressions: whatever the operator types, the condition is SQL text that the dialect
// either takes as one condition or refuses; it never becomes another statement.
#include <cstdlib>
#include <string>

#include "base/vybery.h"
#include "store/catalogue.h"
#include "store/connection.h"
#include "store/dialect.h"

namespace {

std::optional<store::TableDef> schema(std::string_view nazev) {
    const auto* zaznam = store::find_entry(nazev);
    if (!zaznam) return {};
    return store::definition_of(nazev);
}

void zkus_podminku(const std::string& podminka) {
    if (podminka.empty()) return;
    try {
        const auto preklad = store::translate("SELECT * FROM Listin01 WHERE " + podminka, schema);
        if (preklad.kind != store::StatementKind::select) std::abort();
    } catch (const store::StoreError&) {
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(bytes), size);
    zkus_podminku(base::vyber_hodnot(text, "CISLO_PRACOVNIKA"));
    const auto sloupce = base::vyber_sloupcu(text);
    zkus_podminku(sloupce.vcetne);
    zkus_podminku(sloupce.krome);
    const auto [od, do_] = base::rozsah_mesicu_datumy(text, 2022);
    if (od > do_ || od.rok != 2022 || do_.rok != 2022) std::abort();
    return 0;
}
