// Choosing a work calendar for a worker. The calendars' screen lives in a folder above this one, so
// the card is given the choosing as a function.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "shell/session.h"

namespace workers {

/// A row of `Rpd`.
struct ZvolenyKalendar {
    std::int64_t pocitadlo = 0;
    int rok = 0;
    std::string nazev;
};

/// Shows the calendars to choose from; nothing when the operator gave up.
using VyberKalendare = std::function<std::optional<ZvolenyKalendar>(shell::Session&)>;

}  // namespace workers
