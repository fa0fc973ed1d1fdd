// Control records: whatever the bytes, a record is either refused or reads back as the bytes it
// writes.
#include <cstdlib>
#include <vector>

#include "shell/control_files.h"

namespace {

template <class Cteni>
void zkus(const std::vector<std::byte>& data, Cteni cti) {
    try {
        const auto zaznam = cti(data, "fuzz");
        const auto zapsano = shell::bajty(zaznam);
        if (zapsano.size() != data.size()) std::abort();
        if (shell::bajty(cti(zapsano, "fuzz")) != zapsano) std::abort();
    } catch (const base::ChybaDat&) {
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    if (size == 0) return 0;
    // The first byte picks the record; the rest is stretched to its size, so that mutations get
    // past the length check.
    const std::size_t velikosti[] = {shell::k_velikost_ridici_zorv, shell::k_velikost_pomocny,
                                     shell::k_velikost_bankovni, shell::k_velikost_ucetni};
    const std::size_t druh = bytes[0] % 4;
    const auto* zacatek = reinterpret_cast<const std::byte*>(bytes + 1);
    std::vector<std::byte> data(zacatek, zacatek + (size - 1));
    if (bytes[0] < 128) data.resize(velikosti[druh]);
    switch (druh) {
        case 0:
            zkus(data, shell::ridici_zorv_z_bajtu);
            break;
        case 1:
            zkus(data, shell::pomocny_ridici_z_bajtu);
            break;
        case 2:
            zkus(data, shell::bankovni_ridici_z_bajtu);
            break;
        default:
            zkus(data, shell::ucetni_ridici_z_bajtu);
    }
    return 0;
}
