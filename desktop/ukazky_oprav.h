// States worth seeing of the screens that browse, correct and sum rows of gross wages.
#pragma once

#include <memory>

#include "base/obsluha.h"
#include "shell/session.h"

namespace desktop {

std::shared_ptr<base::Obrazovka> prohlizeni_hrubych(shell::Session& session);
/// A row of the ordinary form with an input out of range.
std::shared_ptr<base::Obrazovka> oprava_hrube(shell::Session& session);
std::shared_ptr<base::Obrazovka> rucni_oprava(shell::Session& session);
/// A stored sickness.
std::shared_ptr<base::Obrazovka> oprava_nahrady(shell::Session& session);
std::shared_ptr<base::Obrazovka> sumarizace_hrubych(shell::Session& session);
std::shared_ptr<base::Obrazovka> vykony(shell::Session& session);
std::shared_ptr<base::Obrazovka> oprava_davky(shell::Session& session);

}  // namespace desktop
