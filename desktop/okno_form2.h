// The window of TForm2: the first structure of a company's pay sheet.
#pragma once

#include "desktop/okno.h"
#include "paysheet/unit2_struktura.h"

namespace desktop {

class OknoForm2 final : public Okno {
  public:
    OknoForm2(paysheet::TForm2& form, const shell::Session& session, QWidget* rodic);

  private:
    QWidget* pole_modulu(paysheet::TForm2& form);
};

}  // namespace desktop
