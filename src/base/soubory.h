// Small whole files: read with a limit, written so that a crash leaves the old or the new one.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

#include "base/chyba.h"

namespace base {

/// All bytes of a file. Throws ChybaDat naming the file when it is missing, unreadable or longer
/// than `nejvyse`.
std::string precti_soubor(const std::filesystem::path& soubor, std::size_t nejvyse);

/// Writes to a neighbour file, flushes it to the disk and renames it over the old one; the file is
/// readable by its owner alone. Throws ChybaDat naming the file; the old content stays then.
void zapis_soubor(const std::filesystem::path& soubor, std::string_view obsah);

}  // namespace base
