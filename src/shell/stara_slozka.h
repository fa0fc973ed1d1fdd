// The layout before the accounting module had a folder of its own: `Setup` lay in `Firma`.
#pragma once

#include <filesystem>

namespace shell {

/// Moves `Setup` from the company's folder `Firma` into `Ucet`, drops `Verze` and removes `Firma`
/// when nothing else is left in it. A `Setup` that `Ucet` already has is kept, and `Firma` too.
void prenes_starou_slozku(const std::filesystem::path& slozka_firmy);

}  // namespace shell
