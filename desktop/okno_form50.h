// The window of TForm50: blocked values of a month.
#pragma once

#include "desktop/okno.h"
#include "payrun/unit50_blokace.h"

class QWidget;

namespace desktop {

class OknoForm50 final : public Okno {
  public:
    OknoForm50(payrun::TForm50& form, const shell::Session& session, QWidget* rodic);

  private:
    store::Rows vety_;  ///< the screen's rows under captions for people

    QWidget* mrizka(payrun::TForm50& form);
    QWidget* hodnoty(const payrun::TForm50& form);
    void tlacitka(payrun::TForm50& form);
};

}  // namespace desktop
