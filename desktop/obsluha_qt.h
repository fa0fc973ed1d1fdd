// The operator at the desktop: message boxes, pickers, notices, and screens as windows.
#pragma once

#include <QPointer>
#include <memory>

#include "base/obsluha.h"
#include "desktop/okno_hlaska.h"
#include "shell/session.h"

namespace desktop {

/// Needs a running QApplication.
class ObsluhaQt : public base::Obsluha {
  public:
    /// The session whose screens are going to be shown; it outlives their windows.
    void pripoj(const shell::Session& session) { session_ = &session; }

    void hlaska(const std::string& text) override;
    bool otazka_ano_ne(const std::string& text, const std::string& nadpis) override;
    void ukaz_hlasku(const std::string& text, int sekund) override;
    void skryj_hlasku() override;
    std::optional<std::string> vyber_slozku(const std::string& vyzva,
                                            const std::string& vychozi) override;
    /// `filtr` is "description|pattern".
    std::optional<std::string> vyber_soubor(const std::string& nadpis, const std::string& slozka,
                                            const std::string& filtr) override;
    void otevri_soubor(const std::string& cesta) override;
    void pust_udalosti() override;
    /// A screen that has no window is told about in a message.
    void ukaz_modalne(base::Obrazovka& obrazovka) override;
    void pipni() override;

  private:
    const shell::Session* session_ = nullptr;
    std::unique_ptr<TFHlaska> oznameni_;
};

}  // namespace desktop
