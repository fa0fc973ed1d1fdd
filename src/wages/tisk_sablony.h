// Printing by a template of `Sablony`.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "shell/session.h"
#include "store/query.h"

namespace wages {

/// Fills the template with the rows and shows the preview. `parametry` are joined by "firma" and
/// "datum" of the print. A missing template is a message to the operator.
void tiskni_sablonu(shell::Session& session, std::string_view soubor, const store::Rows& vety,
                    std::map<std::string, std::string> parametry = {});

}  // namespace wages
