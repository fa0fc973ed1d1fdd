// The SQL dialect: a statement is refused with a message, or the engine takes its translation.
// Reading runs on a connection that cannot write, so nothing typed can change data.
#include <cstdlib>
#include <filesystem>
#include <unistd.h>

#include "store/catalogue.h"
#include "store/query.h"

namespace {

std::filesystem::path pripravena_slozka() {
    const auto slozka =
        std::filesystem::temp_directory_path() / ("zorv-fuzz-" + std::to_string(getpid()));
    std::filesystem::create_directories(slozka);
    store::Connection spojeni(slozka);
    for (const char* tabulka : {"Os_karty", "Nahrady", "Listin01", "Hrube01"}) {
        spojeni.create_table(store::definition_of(tabulka));
    }
    return slozka;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const auto slozka = pripravena_slozka();
    static store::Connection spojeni(slozka, store::Access::read_only);
    const std::string_view text(reinterpret_cast<const char*>(bytes), size);
    try {
        store::Query dotaz(spojeni, text);
        dotaz.open();
        if (dotaz.column_count() < 1) std::abort();
    } catch (const store::StoreError&) {
    }
    return 0;
}
