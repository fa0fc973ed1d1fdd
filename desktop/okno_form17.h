// The window of TForm17: entry of gross items. Workers and columns on the left, the page of the
// chosen column on the right.
//
//   okno_form17.cpp          grids, the ordinary form, the common keys
//   okno_form17_nahrady.cpp  pages of quarantine and old benefits; that of compensations is
//                            panel_nahrad.h
#pragma once

#include "desktop/okno.h"
#include "wages/unit17_zadani.h"

class QGridLayout;
class QLineEdit;
class QStackedWidget;

namespace desktop {

class OknoForm17 final : public Okno {
  public:
    OknoForm17(wages::TForm17& form, const shell::Session& session, QWidget* rodic);

  protected:
    bool eventFilter(QObject* kdo, QEvent* udalost) override;

  private:
    wages::TForm17& form_;

    QWidget* pracovnici();
    QWidget* filtr();
    QWidget* sloupce();
    QWidget* stranky();
    QWidget* stranka_ostatni();
    QWidget* panel_mnozstvi();
    QWidget* panel_hodnot();
    QWidget* stranka_karantena();
    QWidget* stranka_nahrady();
    QWidget* stranka_nemoci();
    QWidget* vysledky_nemoci();
    QWidget* odkazy();
    QWidget* dole();
    void tlacitka();
    void klavesy();

    /// A labelled input of the ordinary form, shown only when the column asks for it.
    QLineEdit* pole_bezneho(QGridLayout& mrizka, int radek, const char* jmeno, const char* nazev,
                            std::string& hodnota, int znaku, Vazba::Filtr filtr,
                            Vazba::Metoda po_opusteni,
                            bool (*zadava_se)(const wages::SloupecHrube&));
    /// Calls the method whenever the control gets the focus.
    void pri_vstupu(QWidget& prvek, Vazba::Metoda metoda);

    std::vector<std::pair<QObject*, Vazba::Metoda>> vstupy_;
};

}  // namespace desktop
