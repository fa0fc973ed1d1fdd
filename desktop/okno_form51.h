// The window of TForm51: one row of blocked values.
#pragma once

#include "desktop/okno.h"
#include "payrun/unit51_blokovana_hodnota.h"

class QLineEdit;

namespace desktop {

class OknoForm51 final : public Okno {
  public:
    OknoForm51(payrun::TForm51& form, const shell::Session& session, QWidget* rodic);

  private:
    QLineEdit* pole(payrun::TForm51& form, const std::string& jmeno,
                    const std::string& pristupny_nazev, std::string& hodnota);
};

}  // namespace desktop
