// The windows of all code lists: the list (TForm26, TForm15, TForm74) and the record form (Tfmz003,
// TForm16, TForm132). What they show is said by the list's description.
#pragma once

#include "desktop/okno.h"
#include "workers/ciselnik.h"
#include "workers/ciselnik_veta.h"

class QTableView;

namespace desktop {

class OknoCiselniku final : public Okno {
  public:
    OknoCiselniku(workers::Ciselnik& form, const shell::Session& session, QWidget* rodic);

  private:
    QWidget* hledani(workers::Ciselnik& form);
    QTableView* mrizka(workers::Ciselnik& form);
    void tlacitka(workers::Ciselnik& form);
};

class OknoVetyCiselniku final : public Okno {
  public:
    OknoVetyCiselniku(workers::VetaCiselniku& form, const shell::Session& session, QWidget* rodic);
};

}  // namespace desktop
