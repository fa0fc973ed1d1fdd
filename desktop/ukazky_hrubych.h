// States of gross-wage entry worth a picture.
#pragma once

#include <memory>

#include "base/obsluha.h"
#include "shell/session.h"

namespace desktop {

/// The ordinary form with a column that asks for several inputs, one of them wrong.
std::shared_ptr<base::Obrazovka> zadani_hrubych(shell::Session& session);
/// The page of compensations with a computed sickness.
std::shared_ptr<base::Obrazovka> zadani_nahrady(shell::Session& session);

/// A file of items with a faulty row.
std::shared_ptr<base::Obrazovka> hrube_ze_souboru(shell::Session& session);

}  // namespace desktop
