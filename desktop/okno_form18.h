// The window of TForm18: the filter above, the rows found, their sums.
#pragma once

#include "desktop/okno.h"
#include "wages/unit18_prohlizeni.h"

class QLineEdit;
class QTableView;

namespace desktop {

class OknoForm18 final : public Okno {
  public:
    OknoForm18(wages::TForm18& form, const shell::Session& session, QWidget* rodic);

  private:
    wages::TForm18& form_;
    QTableView* tabulka_;

    QWidget* filtry();
    QLineEdit* filtr(const char* jmeno, const char* nazev, std::string& hodnota, int znaku,
                     const char* napoveda);
    void vypln_tabulku();
    void tlacitka();
};

}  // namespace desktop
