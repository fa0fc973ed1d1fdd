// The window of TForm12: one fixed item of the company's list, with the archive of connections.
#pragma once

#include "desktop/okno.h"
#include "workers/unit12_fixni_polozka.h"

namespace desktop {

class OknoForm12 final : public Okno {
  public:
    OknoForm12(workers::TForm12& form, const shell::Session& session, QWidget* rodic);

  private:
    QWidget* archiv(workers::TForm12& form);
};

}  // namespace desktop
