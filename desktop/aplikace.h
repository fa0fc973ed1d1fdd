// The event loop of the program: an error that a handler lets out is shown and the session goes on.
#pragma once

#include <QApplication>
#include <functional>
#include <string>

#include "base/deniky.h"

namespace desktop {

class Aplikace final : public QApplication {
  public:
    Aplikace(int& pocet, char** argumenty);

    /// How an error is shown; set once the operator is at hand.
    std::function<void(const std::string& text)> ohlas_chybu;
    /// Where an error is noted down; may be empty. Not called where another program keeps the data
    /// busy, which is no error of this one.
    std::function<void(const base::ZaznamChyby& chyba)> zapis_chybu;

    bool notify(QObject* prijemce, QEvent* udalost) override;
    /// Runs a step under the same protection: one of the start, outside the event loop, or the
    /// handling of an event by `prijemce`.
    void proved(const std::function<void()>& krok, const QObject* prijemce = nullptr);
    /// The core asked for the end: all windows are closed and the loop is left.
    void ukonci();
    bool ukoncena() const { return ukoncena_; }

  private:
    void ohlas(const std::exception& chyba, const QObject* prijemce) const;

    bool ukoncena_ = false;
};

}  // namespace desktop
