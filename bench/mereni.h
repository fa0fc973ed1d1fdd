// What the measuring programs share: a temporary folder, an operator who is not there, a stopwatch.
#pragma once

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>

#include "base/obsluha.h"

namespace mereni {

/// Wall-clock seconds of the work.
double sekundy(const auto& prace) {
    const auto od = std::chrono::steady_clock::now();
    prace();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - od).count();
}

/// A folder that lives as long as the measurement.
class DocasnaSlozka {
  public:
    DocasnaSlozka() {
        std::string vzor = (std::filesystem::temp_directory_path() / "zorv-bench-XXXXXX").string();
        if (!mkdtemp(vzor.data())) throw std::runtime_error("mkdtemp: " + vzor);
        cesta = vzor;
    }
    ~DocasnaSlozka() {
        std::error_code chyba;
        std::filesystem::remove_all(cesta, chyba);
    }
    DocasnaSlozka(const DocasnaSlozka&) = delete;
    DocasnaSlozka& operator=(const DocasnaSlozka&) = delete;
    std::filesystem::path cesta;
};

/// Nobody sits at the keyboard: a question would stop the measurement.
class NikdoUKlaves final : public base::Obsluha {
  public:
    void hlaska(const std::string&) override {}
    bool otazka_ano_ne(const std::string& text, const std::string&) override {
        throw std::runtime_error("nečekaná otázka: " + text);
    }
    void ukaz_hlasku(const std::string&, int) override {}
    void skryj_hlasku() override {}
    std::optional<std::string> vyber_slozku(const std::string&, const std::string&) override {
        return {};
    }
    std::optional<std::string> vyber_soubor(const std::string&, const std::string&,
                                            const std::string&) override {
        return {};
    }
    void otevri_soubor(const std::string&) override {}
    void pust_udalosti() override {}
    void ukaz_modalne(base::Obrazovka&) override {}
    void pipni() override {}
};

}  // namespace mereni
