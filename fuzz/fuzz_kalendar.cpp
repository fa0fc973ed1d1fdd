// Calendar texts: never a fault, minutes stay within the day, and a written text reads back the
// same.
#include <cstdlib>
#include <string_view>

#include "wages/kalendar.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(bytes), size);
    const auto mesic = wages::mesic_z_textu(text);
    bool v_mezich = true;
    for (const int minuty : mesic) {
        if (minuty < 0) std::abort();
        v_mezich = v_mezich && minuty <= 24 * 60;
    }
    const auto zapsano = wages::mesic_na_text(mesic);
    if (wages::mesic_z_textu(zapsano) != mesic) std::abort();
    if (wages::kontrola_textu_mesice(zapsano).empty() != v_mezich) std::abort();
    return 0;
}
