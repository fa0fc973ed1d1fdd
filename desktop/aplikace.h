// The event loop of the program: an error that a handler lets out is shown and the session goes on.
#pragma once

#include <QApplication>
#include <functional>
#include <string>

namespace desktop {

class Aplikace final : public QApplication {
  public:
    Aplikace(int& pocet, char** argumenty);

    /// How an error is shown; set once the operator is at hand.
    std::function<void(const std::string& text)> ohlas_chybu;

    bool notify(QObject* prijemce, QEvent* udalost) override;
    /// Runs a step of the start outside the event loop under the same protection.
    void proved(const std::function<void()>& krok);
    /// The core asked for the end: all windows are closed and the loop is left.
    void ukonci();
    bool ukoncena() const { return ukoncena_; }

  private:
    bool ukoncena_ = false;
};

}  // namespace desktop
