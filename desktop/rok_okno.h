// The year at a glance: twelve columns with the state of each month and a bar of what it cost. A
// click on a month chooses it.
#pragma once

#include <QWidget>
#include <array>
#include <functional>

#include "menu/prehled_roku.h"

namespace desktop {

class RokOkno final : public QWidget {
  public:
    explicit RokOkno(QWidget* rodic = nullptr);

    std::function<void(int mesic)> pri_vyberu;

    void ukaz(const std::array<menu::PrehledMesice, 12>& rok);
    /// The month in the month box, drawn with a frame.
    void vyber(int mesic);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* udalost) override;
    void mousePressEvent(QMouseEvent* udalost) override;
    bool event(QEvent* udalost) override;

  private:
    QRect sloupec(int mesic) const;
    int mesic_v(const QPoint& misto) const;
    void kresli_mesic(QPainter& p, const menu::PrehledMesice& mesic) const;
    void kresli_sloupec(QPainter& p, const menu::PrehledMesice& mesic, const QRect& plocha) const;
    void kresli_vysvetlivky(QPainter& p) const;
    int vyska_radku() const;

    std::array<menu::PrehledMesice, 12> rok_{};
    int vybrany_ = 1;
};

/// An amount of a wage year for the eye: "1 234 tis.", or "" for none.
QString tisice(base::Castka castka);

}  // namespace desktop
