// States of a child and of the fixed items that are worth a picture.
#pragma once

#include <memory>

#include "base/obsluha.h"
#include "shell/session.h"

namespace desktop {

/// A new child, partly filled.
std::shared_ptr<base::Obrazovka> nove_dite(shell::Session& session);
/// The list with its sums and the connection of a row.
std::shared_ptr<base::Obrazovka> fixni_polozky(shell::Session& session);
/// A new item of the list beside an archive of two connections; nothing is stored.
std::shared_ptr<base::Obrazovka> fixni_polozka_s_archivem(shell::Session& session);
/// A new item of a worker on a column without a bank connection.
std::shared_ptr<base::Obrazovka> fixni_polozka_pracovnika(shell::Session& session);
std::shared_ptr<base::Obrazovka> oprava_korun(shell::Session& session);

}  // namespace desktop
