// The window of TForm123: months and worker of the printed list of compensations.
#pragma once

#include "desktop/okno.h"
#include "wages/unit123_tisk_nahrad.h"

namespace desktop {

class OknoForm123 final : public Okno {
  public:
    OknoForm123(wages::TForm123& form, const shell::Session& session, QWidget* rodic);
};

}  // namespace desktop
