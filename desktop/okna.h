// Which window shows which screen: the one list of all modal windows.
#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "base/obsluha.h"
#include "desktop/okno.h"
#include "shell/session.h"

namespace desktop {

struct DruhOkna {
    std::string_view obrazovka;  ///< the screen's `jmeno`
    std::unique_ptr<Okno> (*vyrob)(base::Obrazovka& obrazovka, const shell::Session& session,
                                   QWidget* rodic);
};

const std::vector<DruhOkna>& vsechna_okna();

/// The window of the screen; nothing when the screen has none.
std::unique_ptr<Okno> vyrob_okno(base::Obrazovka& obrazovka, const shell::Session& session,
                                 QWidget* rodic);

}  // namespace desktop
