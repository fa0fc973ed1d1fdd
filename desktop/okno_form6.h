// The window of TForm6: the register of workers, the list on the left, the pages on the right.
#pragma once

#include "desktop/okno.h"
#include "workers/unit6_registr.h"

class QTableView;
class QTabWidget;
class QWidget;

namespace desktop {

class OknoForm6 final : public Okno {
  public:
    OknoForm6(workers::TForm6& form, const shell::Session& session, QWidget* rodic);

  private:
    workers::TForm6& form_;

    QWidget* filtr();
    QWidget* volitelne();
    QWidget* seznam();
    QTabWidget* stranky();
    QWidget* stranka_fixni();
    QWidget* stranka_deti();
    QWidget* stranka_epodani();
    QWidget* stranka_info();
    QTableView* mrizka(const char* jmeno, const char* nazev, workers::MrizkaStranky& vety);
    QTableView* prehled(const char* jmeno, const char* nazev, const store::Rows& udaje);
    void tlacitka();
    void klavesy(QTabWidget& stranky);
};

}  // namespace desktop
