// The window of TFRpdDet: one work calendar, a month at a time, weeks one under another.
#pragma once

#include <array>

#include "desktop/okno.h"
#include "wages/unit_rpd_det.h"

class QGridLayout;
class QLabel;
class QLineEdit;

namespace desktop {

class OknoRpdDet final : public Okno {
  public:
    OknoRpdDet(wages::TFRpdDet& form, const shell::Session& session, QWidget* rodic);

  private:
    /// What stands in the place of one day.
    struct Misto {
        QWidget* ramecek;
        QLabel* nazev;
        QLineEdit* fond;
    };
    std::array<Misto, 31> dny_{};
    QGridLayout* tydny_ = nullptr;

    QWidget* zahlavi(wages::TFRpdDet& form);
    QWidget* mesic(wages::TFRpdDet& form);
    QWidget* soucty(const wages::TFRpdDet& form);
    QWidget* volby(wages::TFRpdDet& form);
    Misto den(wages::TFRpdDet& form, int cislo);
    void ukaz_dny(const wages::TFRpdDet& form);
};

}  // namespace desktop
