// The window of TForm43: performances to choose from.
#pragma once

#include "desktop/okno.h"
#include "wages/unit43_vykony.h"

namespace desktop {

class OknoForm43 final : public Okno {
  public:
    OknoForm43(wages::TForm43& form, const shell::Session& session, QWidget* rodic);
};

}  // namespace desktop
