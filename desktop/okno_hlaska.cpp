#include "desktop/okno_hlaska.h"

#include <QGuiApplication>
#include <QScreen>
#include <chrono>

namespace desktop {

TFHlaska::TFHlaska()
    : QLabel(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint) {
    setObjectName("TFHlaska");
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
    setMargin(24);
    setFrameShape(QFrame::Box);
    QPalette barvy = palette();
    barvy.setColor(QPalette::Window, barvy.color(QPalette::ToolTipBase));
    barvy.setColor(QPalette::WindowText, barvy.color(QPalette::ToolTipText));
    setPalette(barvy);
    casovac_.setSingleShot(true);
    connect(&casovac_, &QTimer::timeout, this, &QWidget::hide);
}

void TFHlaska::ukaz(const QString& text, int sekund) {
    setText(text);
    adjustSize();
    const QRect plocha = QGuiApplication::primaryScreen()->availableGeometry();
    move(plocha.center() - rect().center());
    show();
    raise();
    casovac_.stop();
    if (sekund > 0) casovac_.start(std::chrono::seconds(sekund));
}

void TFHlaska::mousePressEvent(QMouseEvent*) {
    hide();
}

}  // namespace desktop
