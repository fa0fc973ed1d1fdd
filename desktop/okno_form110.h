// The window of TForm110: crowns of a gross item corrected by hand.
#pragma once

#include "desktop/okno.h"
#include "wages/unit110_castka.h"

namespace desktop {

class OknoForm110 final : public Okno {
  public:
    OknoForm110(wages::TForm110& form, const shell::Session& session, QWidget* rodic);
};

}  // namespace desktop
