// The common ground of the modal windows: binding to a screen, the row of buttons, the keys (Enter
// moves to the next field, F2 stores, Escape leaves). No window is larger than the screen; content
// that does not fit scrolls above the buttons.
#pragma once

#include <QDialog>
#include <QKeySequence>
#include <string_view>

#include "base/obsluha.h"
#include "desktop/vazba.h"
#include "shell/session.h"

class QBoxLayout;
class QHBoxLayout;
class QPushButton;
class QVBoxLayout;

namespace desktop {

/// A window repaints whenever its screen calls `zmeneno`, and closes when the screen asks for it.
/// Closing by Escape or by the frame is the screen's own leaving, which may refuse.
class Okno : public QDialog {
  public:
    Okno(base::Obrazovka& obrazovka, QWidget* rodic);
    ~Okno() override;

    /// Shows the state of the screen.
    void obnov();
    void reject() override;

  protected:
    /// `zavreno` is the screen's wish to be closed, `odejdi` its method of leaving.
    void odchod(const bool& zavreno, Vazba::Metoda odejdi);
    /// A button of the bottom row; `jmeno` is the control's name.
    QPushButton& tlacitko(const QString& popisek, const char* jmeno, Vazba::Metoda metoda,
                          const QKeySequence& zkratka = {});
    QVBoxLayout& obsah() { return *obsah_; }
    Vazba& vazba() { return vazba_; }

    void keyPressEvent(QKeyEvent* klavesa) override;
    void showEvent(QShowEvent* udalost) override;

  private:
    QBoxLayout& rozlozeni() const;
    QSize misto_tlacitek() const;
    void zalom_tlacitka();

    base::Obrazovka& obrazovka_;
    Vazba vazba_;
    QVBoxLayout* obsah_;
    QHBoxLayout* tlacitka_;
    const bool* zavreno_ = nullptr;
    Vazba::Metoda odejdi_;
};

}  // namespace desktop
