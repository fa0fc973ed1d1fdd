// The window of TForm133: workers, the rows of the pay sheet, and how an amount came to be.
#pragma once

#include "desktop/okno.h"
#include "payrun/unit133_prohlizeni_mezd.h"

class QFormLayout;
class QLabel;
class QTableView;
class QTimer;
class QWidget;

namespace desktop {

class StromVypoctuPohled;

class OknoForm133 final : public Okno {
  public:
    OknoForm133(payrun::TForm133& form, const shell::Session& session, QWidget* rodic);

  protected:
    bool eventFilter(QObject* prvek, QEvent* udalost) override;

  private:
    payrun::TForm133& form_;
    QTimer* vysvetleni_brzy_;
    StromVypoctuPohled* strom_ = nullptr;

    QWidget* hlavicka();
    QWidget* leva_strana();
    QWidget* filtr();
    QTableView* seznam_pracovniku();
    QWidget* soucty();
    QWidget* prava_strana();
    QWidget* radky_pracovnika();
    QWidget* vysvetleni();
    QWidget* legenda();
    void klavesy_casti();
    void tlacitka();
    void kopiruj() const;
};

}  // namespace desktop
