// The year at a glance: twelve columns with a bar of what the month cost, its state, workers and
// sums. A click or an arrow key chooses a month, a double click or Enter opens it.
#pragma once

#include <QWidget>
#include <array>
#include <functional>

#include "menu/prehled_roku.h"

namespace desktop {

class RokOkno final : public QWidget {
  public:
    explicit RokOkno(QWidget* rodic = nullptr);

    std::function<void(int mesic)> pri_vyberu, pri_otevreni;

    void ukaz(const std::array<menu::PrehledMesice, 12>& rok);
    /// The month in the month box, drawn with a frame.
    void vyber(int mesic);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* udalost) override;
    void mousePressEvent(QMouseEvent* udalost) override;
    void mouseDoubleClickEvent(QMouseEvent* udalost) override;
    void keyPressEvent(QKeyEvent* klavesa) override;
    bool event(QEvent* udalost) override;

  private:
    QRect sloupec(int mesic) const;
    int mesic_v(const QPoint& misto) const;
    QRect radek(const QRect& sloupec, int poradi) const;
    bool v_tisicich() const;
    QString slovy() const;
    void kresli_mesic(QPainter& p, const menu::PrehledMesice& mesic, bool tisice) const;
    void kresli_sloupec(QPainter& p, const menu::PrehledMesice& mesic, const QRect& plocha) const;
    void kresli_vysvetlivky(QPainter& p, bool tisice) const;
    void kresli_nadpisy(QPainter& p) const;
    int vyska_radku() const;
    int sirka_nadpisu() const;

    std::array<menu::PrehledMesice, 12> rok_{};
    int vybrany_ = 1;
};

/// An amount for the eye, in whole crowns or thousands: "1 234 567", "1 235", or "" for none.
QString v_jednotkach(base::Castka castka, bool v_tisicich);

}  // namespace desktop
