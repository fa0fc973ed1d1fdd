// The window of TForm75: crowns of fixed items corrected in a grid.
#pragma once

#include "desktop/okno.h"
#include "workers/unit75_oprava_korun.h"

class QTableView;

namespace desktop {

class OknoForm75 final : public Okno {
  public:
    OknoForm75(workers::TForm75& form, const shell::Session& session, QWidget* rodic);

  private:
    QTableView* mrizka(workers::TForm75& form);
};

}  // namespace desktop
