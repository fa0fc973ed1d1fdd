// The operator of tests: answers from a script and remembers what was shown. An unexpected question
// fails the test.
#pragma once

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "base/obsluha.h"

namespace zkouska {

class SkriptovanaObsluha : public base::Obsluha {
  public:
    struct Odpoved {
        std::string cast_textu;  ///< must occur in the question
        bool ano = false;
    };
    std::deque<Odpoved> odpovedi;
    std::vector<std::string> hlasky;    ///< texts of all modal messages, in order
    std::vector<std::string> otazky;    ///< texts of all questions, in order
    std::vector<std::string> oznameni;  ///< notices
    std::vector<std::string> otevrene_soubory;
    int pipnuti = 0;
    /// What happens on a screen shown modally and whenever events are let in; a screen shown
    /// without one fails.
    std::function<void(base::Obrazovka&)> pri_obrazovce;
    std::function<void()> pri_udalostech;

    void odpovez(std::string cast_textu, bool ano) {
        odpovedi.push_back({std::move(cast_textu), ano});
    }

    void hlaska(const std::string& text) override { hlasky.push_back(text); }
    bool otazka_ano_ne(const std::string& text, const std::string& nadpis) override {
        otazky.push_back(text);
        if (odpovedi.empty()) {
            ADD_FAILURE() << "nečekaná otázka: " << nadpis << ": " << text;
            return false;
        }
        const Odpoved odpoved = odpovedi.front();
        odpovedi.pop_front();
        EXPECT_NE(text.find(odpoved.cast_textu), std::string::npos) << "jiná otázka: " << text;
        return odpoved.ano;
    }
    void ukaz_hlasku(const std::string& text, int) override { oznameni.push_back(text); }
    void skryj_hlasku() override {}
    std::optional<std::string> vyber_slozku(const std::string&, const std::string&) override {
        return {};
    }
    std::optional<std::string> vyber_soubor(const std::string&, const std::string&,
                                            const std::string&) override {
        return {};
    }
    void otevri_soubor(const std::string& cesta) override { otevrene_soubory.push_back(cesta); }
    void pust_udalosti() override {
        if (pri_udalostech) pri_udalostech();
    }
    void ukaz_modalne(base::Obrazovka& obrazovka) override {
        if (pri_obrazovce) {
            pri_obrazovce(obrazovka);
        } else {
            ADD_FAILURE() << "nečekaná obrazovka: " << obrazovka.jmeno();
        }
    }
    void pipni() override { ++pipnuti; }
};

}  // namespace zkouska
