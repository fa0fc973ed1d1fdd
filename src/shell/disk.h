// Drive letters of paths.
#pragma once

#include <filesystem>
#include <optional>

namespace shell {

/// The upper-cased letter of a path "X:..."; nothing on a path without a drive.
std::optional<char> pismeno_disku(const std::filesystem::path& cesta);

}  // namespace shell
