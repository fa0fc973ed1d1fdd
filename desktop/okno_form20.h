// The window of TForm20: sums of the month's gross wages.
#pragma once

#include "desktop/okno.h"
#include "wages/unit20_sumarizace.h"

namespace desktop {

class OknoForm20 final : public Okno {
  public:
    OknoForm20(wages::TForm20& form, const shell::Session& session, QWidget* rodic);

  private:
    wages::TForm20& form_;

    QWidget* podle_ceho();
    QWidget* tabulka();
    void tlacitka();
};

}  // namespace desktop
