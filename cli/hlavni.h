// The command-line tool `zorvctl` as one function: verbs over the same screens, guards and messages
// as the desktop program. Nothing is computed here.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace cli {

/// Which of the streams is a terminal: only there are questions asked and progress shown.
struct Terminaly {
    bool vstup = false, vystup = false, chyby = false;
};

/// Runs one verb. `argumenty` begin with the path of the program, whose folder holds `Velmar.ini`.
/// Returns the exit status: 0 done, 1 refused by the system's own rules, 2 wrong usage, 3 a
/// question that nobody answered, 4 broken data or a failing store.
int hlavni(const std::vector<std::string>& argumenty, std::istream& in, std::ostream& out,
           std::ostream& err, Terminaly terminaly = {});

}  // namespace cli
