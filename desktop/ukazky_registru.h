// States of the register of workers that are worth a picture.
#pragma once

#include <memory>

#include "base/obsluha.h"
#include "shell/session.h"

namespace desktop {

/// On a worker who has fixed items, among those whose employment lasts.
std::shared_ptr<base::Obrazovka> registr_fixni(shell::Session& session);
/// Workers with children, on the page that shows them.
std::shared_ptr<base::Obrazovka> registr_deti(shell::Session& session);
/// The digest of the first worker, a criterion chosen and a number that is none.
std::shared_ptr<base::Obrazovka> registr_info(shell::Session& session);

}  // namespace desktop
