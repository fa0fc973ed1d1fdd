// States of the lists of compensations worth a picture.
#pragma once

#include <memory>

#include "base/obsluha.h"
#include "shell/session.h"

namespace desktop {

/// The year's compensations; a company without any is shown with a few made-up ones.
std::shared_ptr<base::Obrazovka> prehled_nahrad(shell::Session& session);
/// The printed list of one worker.
std::shared_ptr<base::Obrazovka> tisk_nahrad(shell::Session& session);

}  // namespace desktop
