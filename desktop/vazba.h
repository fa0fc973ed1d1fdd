// Binding of controls to the public state of a screen. A window says once what belongs to what; the
// controls write into the screen's members when the operator changes them, and `obnov` shows the
// members again after the screen has changed them.
#pragma once

#include <QKeySequence>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "store/query.h"

class QAbstractButton;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QListWidget;
class QSpinBox;
class QTabWidget;
class QTableView;
class QWidget;

namespace desktop {

/// The bound members outlive the binding; the controls belong to the window that holds it.
class Vazba {
  public:
    using Metoda = std::function<void()>;
    using Podminka = std::function<bool()>;
    /// May the character be typed behind the text? As the key filters of `base/klavesy.h`.
    using Filtr = std::function<bool(char znak, std::string_view text)>;

    /// A text field. What the filter refuses, typed or pasted, is dropped with a beep.
    /// `po_opusteni` is called when the focus leaves the field.
    void pole(QLineEdit& pole, std::string& hodnota, Filtr filtr = {}, Metoda po_opusteni = {});
    void zaskrtavatko(QCheckBox& zaskrtavatko, bool& hodnota, Metoda po_zmene = {});
    void cislo(QSpinBox& pole, int& hodnota, Metoda po_zmene = {});
    /// A list to choose from; -1 nothing chosen. The items are the window's.
    void vyber(QComboBox& vyber, int& index, Metoda po_zmene = {});
    /// A list that also takes what it does not offer.
    void vyber_nebo_text(QComboBox& seznam, std::string& hodnota);
    /// Pages; the one shown is the screen's to say and the operator's to change.
    void stranka(QTabWidget& stranky, std::function<int()> ktera, std::function<void(int)> zmena);
    void text(QLabel& popisek, std::function<std::string()> text);
    void seznam(QListWidget& seznam, const std::vector<std::string>& radky);
    /// Pairs of a label and a value, one under another.
    void dvojice(QFormLayout& rozlozeni,
                 const std::vector<std::pair<std::string, std::string>>& radky);
    /// Rows of a query, numbers to the right, the caption of each column from the query.
    void tabulka(QTableView& tabulka, const store::Rows& vety);
    /// The cursor of a bound table, from 0, -1 none. `presun` tells the screen where the operator
    /// moved it; call after `tabulka`, whose rows it goes by.
    void radek(QTableView& tabulka, const int& radek, std::function<void(int novy)> presun);
    void tlacitko(QAbstractButton& tlacitko, Metoda metoda, const QKeySequence& zkratka = {});

    void viditelne(QWidget& prvek, Podminka kdy);
    void povolene(QWidget& prvek, Podminka kdy);
    /// Goes to the control that the screen names, once; the screen's wish is cleared by that.
    void fokus(QWidget& okno, std::string& jmeno);
    /// Anything else that is to be shown anew at each change.
    void pri_obnove(Metoda obnova);

    void obnov() const;

  private:
    std::vector<Metoda> obnovy_;
};

}  // namespace desktop
