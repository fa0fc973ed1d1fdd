// The window of TForm3: the columns of the pay sheet with the parameters of the chosen one.
#pragma once

#include "desktop/okno.h"
#include "paysheet/unit3_seznam_sloupcu.h"

class QWidget;

namespace desktop {

class OknoForm3 final : public Okno {
  public:
    OknoForm3(paysheet::TForm3& form, const shell::Session& session, QWidget* rodic);

  private:
    store::Rows vety_;  ///< the screen's columns as the grid shows them

    QWidget* mrizka(paysheet::TForm3& form);
    QWidget* panel_hodnot(paysheet::TForm3& form);
    QWidget* panel_znacek(const paysheet::TForm3& form);
    QWidget* prehled_modulu(const paysheet::TForm3& form);
    void tlacitka(paysheet::TForm3& form);
};

}  // namespace desktop
