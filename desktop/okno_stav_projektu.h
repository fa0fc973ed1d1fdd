// The window of TFStavProjektu: on which day each month of the year was closed.
#pragma once

#include "annual/stav_projektu.h"
#include "desktop/okno.h"
#include "store/query.h"

namespace desktop {

class OknoStavProjektu final : public Okno {
  public:
    OknoStavProjektu(annual::TFStavProjektu& form, const shell::Session& session, QWidget* rodic);

  private:
    store::Rows vety_;  ///< the screen's lines cut into their two columns
};

}  // namespace desktop
