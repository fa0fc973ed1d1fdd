// The window of TForm9: one child of a worker.
#pragma once

#include "desktop/okno.h"
#include "workers/unit9_dite.h"

class QFormLayout;
class QLineEdit;

namespace desktop {

class OknoForm9 final : public Okno {
  public:
    OknoForm9(workers::TForm9& form, const shell::Session& session, QWidget* rodic);

  private:
    QFormLayout* pole(workers::TForm9& form);
    QLineEdit* textove(workers::TForm9& form, const char* jmeno, const char* pristupny_nazev,
                       std::string& hodnota, int znaku, Vazba::Metoda po_opusteni = {});
    QWidget* poradi(workers::TForm9& form);
    QWidget* castka(workers::TForm9& form);
};

}  // namespace desktop
