// The window of TFRpd: the list of work calendars.
#pragma once

#include "desktop/okno.h"
#include "wages/unit_rpd.h"

namespace desktop {

class OknoRpd final : public Okno {
  public:
    OknoRpd(wages::TFRpd& form, const shell::Session& session, QWidget* rodic);

  private:
    void tlacitka(wages::TFRpd& form);
    void dalsi_akce(wages::TFRpd& form);
};

}  // namespace desktop
