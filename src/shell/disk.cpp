#include "shell/disk.h"

#include <string>

#include "base/text.h"

namespace shell {

std::optional<char> pismeno_disku(const std::filesystem::path& cesta) {
    const std::string text = cesta.string();
    if (text.size() < 2 || text[1] != ':') return std::nullopt;
    const char velke = base::velkymi(text.substr(0, 1))[0];
    if (velke < 'A' || velke > 'Z') return std::nullopt;
    return velke;
}

}  // namespace shell
