// The page of a compensation: certificate, dates, funds and amounts. Entry and correction show it
// alike.
#pragma once

#include <QWidget>
#include <functional>

#include "desktop/vazba.h"
#include "wages/unit17_nahrady.h"

class QGridLayout;
class QLineEdit;

namespace desktop {

class PanelNahrad final : public QWidget {
  public:
    using Opusteni = std::function<void(wages::PoleNahrad)>;
    /// The page outlives the panel; `po_opusteni` is called when a field was left.
    PanelNahrad(Vazba& vazba, wages::StrankaNahrad& stranka, Opusteni po_opusteni);

  protected:
    bool eventFilter(QObject* kdo, QEvent* udalost) override;

  private:
    Vazba& vazba_;
    wages::StrankaNahrad& stranka_;
    Opusteni po_opusteni_;

    QGridLayout* doklad_a_dny();
    QWidget* fondy();
    QWidget* vysvetleni();
    void radek_fondu(QGridLayout& mrizka, int radek, char pismeno);
    QLineEdit* pole(const std::string& jmeno, const char* nazev, std::string& hodnota, int znaku,
                    Vazba::Filtr filtr, Vazba::Metoda po_opusteni);
    QLineEdit* datum(const char* jmeno, const char* nazev, std::string& hodnota,
                     wages::PoleNahrad ktere);
    QLineEdit* castka(const std::string& jmeno, const char* nazev, std::string& hodnota,
                      wages::PoleNahrad ktere);
    /// Coming into the field starts a correction anew.
    void hlidej_vstup(QLineEdit& pole);
};

}  // namespace desktop
