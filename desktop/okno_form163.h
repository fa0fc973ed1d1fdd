// The window of TForm163: the attendance sheet of a worker and month, days in two columns.
#pragma once

#include "desktop/okno.h"
#include "wages/unit163_zadani_dochazky.h"

class QGridLayout;
class QLineEdit;

namespace desktop {

class OknoForm163 final : public Okno {
  public:
    OknoForm163(wages::TForm163& form, const shell::Session& session, QWidget* rodic);

  private:
    QWidget* dny(wages::TForm163& form);
    void pridej_den(wages::TForm163& form, QGridLayout& mrizka, int cislo);
    QWidget* kody(const wages::TForm163& form);
    QWidget* soucty(wages::TForm163& form);
};

}  // namespace desktop
