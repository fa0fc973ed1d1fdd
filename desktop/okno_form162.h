// The window of TForm162: attendance of a month, a column for each day.
#pragma once

#include "desktop/okno.h"
#include "wages/unit162_dochazka.h"

namespace desktop {

class MrizkaSeznamu;

class OknoForm162 final : public Okno {
  public:
    OknoForm162(wages::TForm162& form, const shell::Session& session, QWidget* rodic);

  private:
    MrizkaSeznamu* mrizka_ = nullptr;

    QWidget* filtry(wages::TForm162& form);
    QLineEdit* filtr(const char* jmeno, const char* nazev, std::string& hodnota,
                     Vazba::Filtr klavesy, wages::TForm162& form);
    void pridej_mrizku(wages::TForm162& form);
    void vymer_sloupce(const wages::TForm162& form);
    void tlacitka(wages::TForm162& form);
};

}  // namespace desktop
