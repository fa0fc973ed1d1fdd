// The window of TFHromadneZadani: the rows of a file with what is wrong with each, before writing.
#pragma once

#include "desktop/okno.h"
#include "wages/hromadne_obrazovka.h"

class QTableView;

namespace desktop {

class OknoHromadne final : public Okno {
  public:
    OknoHromadne(wages::TFHromadneZadani& form, const shell::Session& session, QWidget* rodic);

  private:
    QTableView* radky(wages::TFHromadneZadani& form);
};

}  // namespace desktop
