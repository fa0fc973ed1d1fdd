// The content of a window that may be larger than the screen: while it fits, nothing shows that it
// could be moved; when large letters make it too large, it scrolls and follows the focus.
#pragma once

#include <QScrollArea>
#include <functional>

namespace desktop {

class PosuvnyObsah final : public QScrollArea {
  public:
    /// `okoli` is the room that the window needs beside the content (buttons, menu, margins).
    PosuvnyObsah(QLayout& obsah, std::function<QSize()> okoli);

    /// As large as the content, but no larger than what the screen leaves.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int sirka) const override;

  protected:
    bool event(QEvent* udalost) override;
    bool eventFilter(QObject* prvek, QEvent* udalost) override;
    void keyPressEvent(QKeyEvent* klavesa) override;

  private:
    QSize na_obrazovku(QSize velikost) const;
    void ukaz_zamereny(const QWidget* prvek);

    std::function<QSize()> okoli_;
};

/// The largest size of the window without its frame at which it does not reach out of the screen.
QSize nejvetsi_okno(const QWidget& okno);

}  // namespace desktop
