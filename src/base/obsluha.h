// The operator port: everything that the core asks of or shows to the person at the keyboard.
// Implementations: the desktop's dialogs, the terminal, and a script for tests.
#pragma once

#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace base {

/// A screen: a plain class with the state of its controls and methods for its events. It knows no
/// toolkit; a face repaints when `zmeneno` is called.
class Obrazovka {
  public:
    virtual ~Obrazovka() = default;
    /// The class name of the screen, for example "TForm21".
    virtual std::string_view jmeno() const = 0;
    /// Called after every change of the public state; may be empty.
    std::function<void()> zmeneno;

  protected:
    void oznam_zmenu() const {
        if (zmeneno) zmeneno();
    }
};

/// Thrown where the application has to end at once (an old data year, a refused upgrade). A face
/// catches it in its main loop, closes and returns. The message was shown before.
class UkonceniProgramu : public std::exception {
  public:
    const char* what() const noexcept override { return "program byl ukončen"; }
};

/// The operator. One thread; every call returns when the operator has reacted.
class Obsluha {
  public:
    virtual ~Obsluha() = default;

    /// Modal message with one button.
    virtual void hlaska(const std::string& text) = 0;
    /// Modal question, No preselected; true on Yes.
    virtual bool otazka_ano_ne(const std::string& text, const std::string& nadpis) = 0;
    /// Notice that does not wait; closes by itself after `sekund` (0: until hidden or clicked).
    virtual void ukaz_hlasku(const std::string& text, int sekund) = 0;
    virtual void skryj_hlasku() = 0;
    /// Folder or file picker; nothing when the operator gave up.
    virtual std::optional<std::string> vyber_slozku(const std::string& vyzva,
                                                    const std::string& vychozi) = 0;
    virtual std::optional<std::string> vyber_soubor(const std::string& nadpis,
                                                    const std::string& slozka,
                                                    const std::string& filtr) = 0;
    /// Opens a file or URL with the desktop's default program.
    virtual void otevri_soubor(const std::string& cesta) = 0;
    /// Lets pending events of the face run; called between two workers of a long run.
    virtual void pust_udalosti() = 0;
    /// Shows a screen modally and returns when it was closed.
    virtual void ukaz_modalne(Obrazovka& obrazovka) = 0;
    virtual void pipni() = 0;
};

}  // namespace base
