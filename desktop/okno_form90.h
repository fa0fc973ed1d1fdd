// The window of TForm90: crowns a day of the four bands.
#pragma once

#include "desktop/okno.h"
#include "wages/unit90_davky.h"

namespace desktop {

class OknoForm90 final : public Okno {
  public:
    OknoForm90(wages::TForm90& form, const shell::Session& session, QWidget* rodic);
};

}  // namespace desktop
