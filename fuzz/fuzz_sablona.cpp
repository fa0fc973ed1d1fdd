// Report templates: a fault is told, never worse; a sound one can be filled and shown.
#include <cstdlib>
#include <string_view>

#include "base/chyba.h"
#include "report/sablona.h"
#include "report/text.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(bytes), size);
    const store::Rows vety{{"Sloupec", "Prijmeni", "Kcs"},
                           {{57, "Žižková", 1000.5}, {57, "Říha", store::Value()}, {60, "", -1}}};
    try {
        const auto sablona = report::sablona_z_textu(text, "fuzz.fr3");
        const auto document = report::vypln_sablonu(sablona, vety, {{"firma", "PEKARNA22"}});
        if (document.strany.empty()) std::abort();
        report::jako_text(document);
    } catch (const base::ChybaDat&) {
    }
    return 0;
}
