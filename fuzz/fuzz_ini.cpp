// Ini texts: any text opens; what was set is read back, also after the text was written and read
// again.
#include <cstdlib>
#include <string_view>

#include "base/ini.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(bytes), size);
    try {
        auto ini = base::IniSoubor::z_textu(text, "fuzz.ini");
        ini.nastav("Legislativa2009", "MinimalniMzda", "17300");
        const auto znovu = base::IniSoubor::z_textu(ini.text(), "fuzz.ini");
        if (znovu.hodnota("legislativa2009", "minimalnimzda") != "17300") std::abort();
    } catch (const base::ChybaDat&) {
    }
    return 0;
}
