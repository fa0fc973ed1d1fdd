// How a verb ends early: with an exit status and a text for the operator.
#pragma once

#include <stdexcept>
#include <string>

namespace cli {

/// Exit status of the program.
enum Stav : int {
    hotovo = 0,
    odmitnuto = 1,       ///< by the system's own rules
    spatne_pouziti = 2,  ///< wrong arguments
    bez_odpovedi = 3,    ///< a question that nobody answered
    chyba_dat = 4        ///< broken data, a missing file or a failing store
};

/// Ends the verb. The text goes to the error output; empty when the message was shown before.
class Konec : public std::runtime_error {
  public:
    Konec(Stav stav_, const std::string& text) : std::runtime_error(text), stav(stav_) {}
    const Stav stav;
};

inline Konec odmitni(const std::string& text = "") {
    return {odmitnuto, text};
}
inline Konec spatny_argument(const std::string& text) {
    return {spatne_pouziti, text};
}

}  // namespace cli
