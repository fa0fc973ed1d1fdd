#include "desktop/posuvny_obsah.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QScreen>
#include <QScrollBar>
#include <algorithm>
#include <utility>

namespace desktop {

namespace {

constexpr int k_titulek = 40;  ///< the window's frame, unknown before it is shown

/// The scroll area wants for its content the height that it likes at its width, and scrolls when
/// there is less; a window lets its content shrink to the least one first.
class Posouvane final : public QWidget {
  public:
    explicit Posouvane(QLayout& obsah) { setLayout(&obsah); }
    int heightForWidth(int sirka) const override {
        return layout()->totalMinimumHeightForWidth(sirka);
    }
};

/// Moves the bar by as little as brings the range from `od` in sight; of one that is too long its
/// beginning.
void posun(QScrollBar& lista, int od, int delka) {
    const int videt = lista.pageStep();
    const int nejvyse = od, nejmene = od + std::min(delka, videt) - videt;
    lista.setValue(std::clamp(lista.value(), nejmene, nejvyse));
}

}  // namespace

QSize nejvetsi_okno(const QWidget& okno) {
    return okno.screen()->availableGeometry().size() - QSize(0, k_titulek);
}

PosuvnyObsah::PosuvnyObsah(QLayout& obsah, std::function<QSize()> okoli)
    : okoli_(std::move(okoli)) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(new Posouvane(obsah));
    viewport()->setAutoFillBackground(false);
    widget()->setAutoFillBackground(false);
    widget()->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, const QWidget* prvek) { ukaz_zamereny(prvek); });
}

QSize PosuvnyObsah::na_obrazovku(QSize velikost) const {
    const QSize misto = nejvetsi_okno(*window()) - okoli_();
    // A bar takes its room from the other direction.
    const QSize chce = velikost;
    if (chce.height() > misto.height())
        velikost += QSize(verticalScrollBar()->sizeHint().width(), 0);
    if (chce.width() > misto.width())
        velikost += QSize(0, horizontalScrollBar()->sizeHint().height());
    return velikost.boundedTo(misto);
}

QSize PosuvnyObsah::sizeHint() const {
    return na_obrazovku(widget()->sizeHint());
}

QSize PosuvnyObsah::minimumSizeHint() const {
    QSize nejmensi = widget()->minimumSizeHint();
    if (hasHeightForWidth()) nejmensi.setHeight(widget()->heightForWidth(nejmensi.width()));
    return na_obrazovku(nejmensi);
}

bool PosuvnyObsah::hasHeightForWidth() const {
    return widget()->layout()->hasHeightForWidth();
}

int PosuvnyObsah::heightForWidth(int sirka) const {
    return na_obrazovku({sirka, widget()->layout()->totalHeightForWidth(sirka)}).height();
}

// The window asks again how much room the content wants.
bool PosuvnyObsah::event(QEvent* udalost) {
    if (udalost->type() == QEvent::LayoutRequest) {
        updateGeometry();
        if (parentWidget()->layout()) parentWidget()->layout()->activate();
    }
    return QScrollArea::event(udalost);
}

bool PosuvnyObsah::eventFilter(QObject* prvek, QEvent* udalost) {
    const bool zpracovano = QScrollArea::eventFilter(prvek, udalost);
    // A page or a panel has come or gone.
    if (prvek == widget() && udalost->type() == QEvent::Resize) {
        ukaz_zamereny(QApplication::focusWidget());
    }
    return zpracovano;
}

void PosuvnyObsah::ukaz_zamereny(const QWidget* prvek) {
    if (!prvek || !widget()->isAncestorOf(prvek)) return;
    const QPoint misto = prvek->mapTo(widget(), QPoint(0, 0));
    posun(*horizontalScrollBar(), misto.x(), prvek->width());
    posun(*verticalScrollBar(), misto.y(), prvek->height());
}

// Keys that no field wanted move the content only where there is something to move.
void PosuvnyObsah::keyPressEvent(QKeyEvent* klavesa) {
    if (horizontalScrollBar()->maximum() > 0 || verticalScrollBar()->maximum() > 0) {
        QScrollArea::keyPressEvent(klavesa);
    } else {
        klavesa->ignore();
    }
}

}  // namespace desktop
