// The window of TForm66: browsing of pay-sheet rows.
#pragma once

#include "desktop/okno.h"
#include "payrun/unit66_prohlizeni.h"

namespace desktop {

class OknoForm66 final : public Okno {
  public:
    OknoForm66(payrun::TForm66& form, const shell::Session& session, QWidget* rodic);
};

}  // namespace desktop
