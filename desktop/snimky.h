// Pictures of all windows, for documentation and for looking them over.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "desktop/obsluha_qt.h"
#include "shell/session.h"

class QWidget;

namespace desktop {

/// A screen brought into a state that is worth seeing, in the session's month. Pay sheets of the
/// month are computed anew, so this is for a made-up company.
struct Ukazka {
    std::string_view obrazovka;
    std::shared_ptr<base::Obrazovka> (*priprav)(shell::Session& session);
    const char* dodatek = "";  ///< to the picture's name, where a screen has more of them
};

/// One for every window of `vsechna_okna`.
const std::vector<Ukazka>& ukazky();

/// The operator while pictures are taken: nothing waits for an answer, every question gets a yes.
class TichaObsluha final : public ObsluhaQt {
  public:
    void hlaska(const std::string&) override {}
    bool otazka_ano_ne(const std::string&, const std::string&) override { return true; }
    void ukaz_hlasku(const std::string&, int) override {}
};

/// Writes a PNG of the main form and of each window into the folder, which is made when missing.
void uloz_snimky(QWidget& hlavni_okno, shell::Session& session,
                 const std::filesystem::path& slozka);

}  // namespace desktop
