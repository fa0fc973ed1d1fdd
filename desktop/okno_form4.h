// The window of TForm4: one column of the pay sheet.
#pragma once

#include "desktop/okno.h"
#include "paysheet/unit4_sloupec.h"

class QComboBox;
class QGridLayout;
class QWidget;

namespace desktop {

class OknoForm4 final : public Okno {
  public:
    OknoForm4(paysheet::TForm4& form, const shell::Session& session, QWidget* rodic);

  private:
    QWidget* hlavicka(paysheet::TForm4& form);
    QWidget* detail(paysheet::TForm4& form);
    QWidget* vyplata(paysheet::TForm4& form);
    QWidget* podrobnosti(paysheet::TForm4& form);
    QWidget* hodnoty(paysheet::TForm4& form);
    void radek_hodnoty(paysheet::TForm4& form, std::size_t poradi, QGridLayout& mrizka);
    void uloz(paysheet::TForm4& form);
};

}  // namespace desktop
