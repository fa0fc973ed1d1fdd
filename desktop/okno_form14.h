// The window of TForm14: legislative values of the year and the roles of pay-sheet columns, on four
// pages. What stands where is the table of okno_form14_rozlozeni.h.
#pragma once

#include "desktop/okno.h"
#include "desktop/okno_form14_rozlozeni.h"
#include "paysheet/unit14_nastaveni.h"
#include "paysheet/unit14_pole.h"

namespace desktop {

class OknoForm14 final : public Okno {
  public:
    OknoForm14(paysheet::TForm14& form, const shell::Session& session, QWidget* rodic);

  private:
    QWidget* stranka(paysheet::Stranka ktera);
    QWidget* blok(const BlokNastaveni& popis);
    /// The control of that name, bound to the screen. `popisek` is the caption of its row, which
    /// the table gives for its fields when the layout does not.
    QWidget* ovladac(const std::string& jmeno, std::string& popisek);
    QWidget* pole(const paysheet::PoleNastaveni& popis);
    QWidget* cislo_sloupce(const std::string& jmeno, const std::string& radek);
    QWidget* zvlastni(const std::string& jmeno, const std::string& popisek);

    paysheet::TForm14& form_;
};

}  // namespace desktop
