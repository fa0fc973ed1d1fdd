// The window of TForm19: whose row it is, and the inputs that its page has.
#pragma once

#include "desktop/mnemonika.h"
#include "desktop/okno.h"
#include "wages/unit19_oprava.h"

class QGridLayout;
class QLineEdit;

namespace desktop {

class OknoForm19 final : public Okno {
  public:
    OknoForm19(wages::TForm19& form, const shell::Session& session, QWidget* rodic);

  private:
    wages::TForm19& form_;
    Mnemoniky mnemoniky_{"duz"};  ///< letters of the buttons are taken

    QWidget* stranka();
    QWidget* stranka_ostatni();
    QWidget* stranka_castka();
    QWidget* chyby();
    void tlacitka();
    /// A labelled input in the next row of the grid.
    QLineEdit* pole(QGridLayout& mrizka, const std::string& jmeno, const std::string& nazev,
                    std::string& hodnota, int znaku, Vazba::Filtr filtr, Vazba::Metoda po_opusteni);
};

}  // namespace desktop
