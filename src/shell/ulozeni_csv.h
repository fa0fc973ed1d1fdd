// Storing an export where the operator wants it; shared by screens that show lists.
#pragma once

#include <string>

#include "shell/session.h"

namespace shell {

/// What is said on the way.
struct TextyUlozeni {
    std::string vyzva;   ///< caption of the folder picker
    std::string nadpis;  ///< caption of the question whether to write over a file
    std::string hotovo;  ///< "Výplatní listina je v souboru": the path follows
};

/// Asks for a folder (the company's is offered), asks before writing over a file, writes it and
/// tells where it is. False when the operator gave up.
bool uloz_csv(Session& session, const std::string& soubor, const std::string& obsah,
              const TextyUlozeni& texty);

}  // namespace shell
