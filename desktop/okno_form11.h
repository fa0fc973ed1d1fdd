// The window of TForm11: the fixed items of the whole company.
#pragma once

#include "desktop/okno.h"
#include "workers/unit11_fixni_polozky.h"

class QLayout;
class QLineEdit;
class QTableView;

namespace desktop {

class OknoForm11 final : public Okno {
  public:
    OknoForm11(workers::TForm11& form, const shell::Session& session, QWidget* rodic);

  private:
    store::Rows soucty_;  ///< the screen's sums under captions for people

    QLayout* trideni_a_omezeni(workers::TForm11& form);
    QTableView* mrizka(workers::TForm11& form);
    QWidget* sumarizace(const workers::TForm11& form);
    QWidget* kam_penize(const workers::TForm11& form);
    QWidget* hromadne(workers::TForm11& form);
    void tlacitka(workers::TForm11& form);
    enum class Cislo { pracovnik, sloupec };
    QLineEdit* cislo(workers::TForm11& form, Cislo druh, const char* jmeno,
                     const char* pristupny_nazev, std::string& hodnota);
};

}  // namespace desktop
