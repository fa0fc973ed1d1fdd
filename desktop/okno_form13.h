// The window of TForm13: one fixed item of the worker chosen on the register.
#pragma once

#include "desktop/okno.h"
#include "workers/unit13_fixni_pracovnika.h"

namespace desktop {

class OknoForm13 final : public Okno {
  public:
    OknoForm13(workers::TForm13& form, const shell::Session& session, QWidget* rodic);
};

}  // namespace desktop
