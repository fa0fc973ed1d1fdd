// The operator at a terminal: messages on the error output, questions answered by --ano or --ne or
// asked at a prompt, screens worked by the verb that expects them.
#pragma once

#include <functional>
#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

#include "base/obsluha.h"

namespace cli {

class ObsluhaTerminalu final : public base::Obsluha {
  public:
    /// `odpoved` answers every question; without it, questions are asked when `ptat_se`, and
    /// otherwise end the verb with their text (Konec with the status bez_odpovedi).
    ObsluhaTerminalu(std::istream& in, std::ostream& err, std::optional<bool> odpoved,
                     bool ptat_se);

    /// How a screen of this class is worked when it is shown.
    template <class Obrazovka>
    void pri_obrazovce(std::function<void(Obrazovka&)> prace) {
        prace_.push_back([prace = std::move(prace)](base::Obrazovka& obecna) {
            auto* obrazovka = dynamic_cast<Obrazovka*>(&obecna);
            if (obrazovka) prace(*obrazovka);
            return obrazovka != nullptr;
        });
    }
    /// Called whenever a long run lets events in.
    std::function<void()> pri_udalostech;

    void hlaska(const std::string& text) override;
    bool otazka_ano_ne(const std::string& text, const std::string& nadpis) override;
    void ukaz_hlasku(const std::string& text, int sekund) override;
    void skryj_hlasku() override {}
    std::optional<std::string> vyber_slozku(const std::string& vyzva,
                                            const std::string& vychozi) override;
    std::optional<std::string> vyber_soubor(const std::string& nadpis, const std::string& slozka,
                                            const std::string& filtr) override;
    void otevri_soubor(const std::string& cesta) override;
    void pust_udalosti() override;
    /// A screen that no verb works ends the verb with a text.
    void ukaz_modalne(base::Obrazovka& obrazovka) override;
    void pipni() override {}

  private:
    bool zeptej_se();

    std::istream& in_;
    std::ostream& err_;
    std::optional<bool> odpoved_;
    bool ptat_se_;
    std::vector<std::function<bool(base::Obrazovka&)>> prace_;
};

}  // namespace cli
