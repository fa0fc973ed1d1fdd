// The window of TForm21: the pay run with its progress, errors and results.
#pragma once

#include "desktop/okno.h"
#include "payrun/unit21_vypocet_vyplat.h"

namespace desktop {

class OknoForm21 final : public Okno {
  public:
    OknoForm21(payrun::TForm21& form, const shell::Session& session, QWidget* rodic);

  private:
    void hlavicka(payrun::TForm21& form);
    void prubeh(payrun::TForm21& form);
    void chyby(payrun::TForm21& form);
    void vysledky(payrun::TForm21& form);
    void tlacitka(payrun::TForm21& form);
};

}  // namespace desktop
