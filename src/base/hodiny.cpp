#include "base/hodiny.h"

#include <algorithm>
#include <ctime>
#include <random>
#include <time.h>

namespace base {

DatumCas SystemoveHodiny::nyni() const {
    const std::time_t ted = std::time(nullptr);
    std::tm cas{};
    localtime_r(&ted, &cas);
    return {{cas.tm_year + 1900, cas.tm_mon + 1, cas.tm_mday},
            cas.tm_hour,
            cas.tm_min,
            std::min(cas.tm_sec, 59)};  // a leap second is no second of ours
}

int SystemovaNahoda::pod(int hranice) {
    std::random_device zdroj;
    return std::uniform_int_distribution<int>(0, hranice - 1)(zdroj);
}

}  // namespace base
