#include "workers/zvyhodneni.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>

namespace workers {
namespace {

struct Obdobi {
    int od;  ///< year * 100 + month of the first month
    std::array<int, 3> castky;
};

/// Each period lasts until the next one begins.
constexpr std::array k_obdobi{
    Obdobi{200001, {1117, 1117, 1117}}, Obdobi{201501, {1117, 1317, 1417}},
    Obdobi{201605, {1117, 1417, 1717}}, Obdobi{201707, {1117, 1617, 2017}},
    Obdobi{201801, {1267, 1617, 2017}}, Obdobi{202201, {1267, 1860, 2320}},
};
constexpr int k_posledni_rok = 2022;

}  // namespace

int mesicni_zvyhodneni_na_dite(int poradi, int mesic, int rok) {
    const int obdobi = rok * 100 + mesic;
    const auto dalsi = std::upper_bound(k_obdobi.begin(), k_obdobi.end(), obdobi,
                                        [](int o, const Obdobi& r) { return o < r.od; });
    if (dalsi == k_obdobi.begin() || rok > k_posledni_rok) return 0;
    return std::prev(dalsi)->castky[static_cast<std::size_t>(std::clamp(poradi, 1, 3) - 1)];
}

}  // namespace workers
