// The window of TFNahrady: the year's compensations, read only.
#pragma once

#include "desktop/okno.h"
#include "wages/unit_nahrady_prehled.h"

namespace desktop {

class OknoNahrady final : public Okno {
  public:
    OknoNahrady(wages::TFNahrady& form, const shell::Session& session, QWidget* rodic);
};

}  // namespace desktop
