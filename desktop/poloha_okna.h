// Where windows stood when they were last closed.
#pragma once

#include "base/deniky.h"
#include "shell/session.h"

class QWidget;

namespace desktop {

base::PolohaOkna poloha_okna(const QWidget& okno);
/// Puts the window there, moved onto the screen when it would lie outside.
void umisti_okno(QWidget& okno, const base::PolohaOkna& poloha);

/// `pamatuj_okno` of a window; its object name is the name of the form. Does nothing when the
/// operator has remembering switched off.
class PametOken {
  public:
    explicit PametOken(const shell::Session& session);
    void obnov(QWidget& okno) const;
    void uloz(const QWidget& okno) const;

  private:
    bool zapnuta_;
};

}  // namespace desktop
