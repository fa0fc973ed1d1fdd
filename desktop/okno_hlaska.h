// TFHlaska: the notice that does not wait. It stays on top and goes away by a timer or a click.
#pragma once

#include <QLabel>
#include <QTimer>

namespace desktop {

class TFHlaska final : public QLabel {
  public:
    TFHlaska();
    /// `sekund` 0: until hidden or clicked.
    void ukaz(const QString& text, int sekund);

  protected:
    void mousePressEvent(QMouseEvent* udalost) override;

  private:
    QTimer casovac_;
};

}  // namespace desktop
