#include "desktop/vzhled.h"

#include <QApplication>
#include <QFont>
#include <QLabel>
#include <QPalette>
#include <QProxyStyle>
#include <QStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <algorithm>

namespace desktop {

namespace {

constexpr int k_nejmensi_pismo = 7, k_nejvetsi_pismo = 24;

QPalette bleda_paleta() {
    // Edges and shadows come from these two, never from the desktop's own theme.
    QPalette p(QColor("#e7ece5"), QColor("#f3f5f1"));
    p.setColor(QPalette::WindowText, QColor("#24312b"));
    p.setColor(QPalette::Base, QColor("#ffffff"));
    p.setColor(QPalette::AlternateBase, QColor("#f0f4ee"));
    p.setColor(QPalette::Text, QColor("#24312b"));
    p.setColor(QPalette::PlaceholderText, QColor("#66746d"));
    p.setColor(QPalette::ButtonText, QColor("#24312b"));
    p.setColor(QPalette::Highlight, QColor("#3f7d6a"));
    p.setColor(QPalette::HighlightedText, QColor("#ffffff"));
    p.setColor(QPalette::ToolTipBase, QColor("#fdf8e3"));
    p.setColor(QPalette::ToolTipText, QColor("#24312b"));
    p.setColor(QPalette::Link, QColor("#2b6a8c"));
    p.setColor(QPalette::Disabled, QPalette::Base, QColor("#e4e8e1"));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        p.setColor(QPalette::Disabled, role, QColor("#9aa59f"));
    }
    return p;
}

/// %1 is the colour of edges.
constexpr const char* k_styly =
    "QPushButton { padding: 4px 12px; }"
    "QGroupBox { font-weight: bold; border: 1px solid %1; border-radius: 4px;"
    " margin-top: 1.5em; padding-top: 2px; }"
    "QGroupBox::title { subcontrol-origin: margin; left: 2px; padding: 0 1px; }";

/// Edges of boxes and fields are darker than the window, which on a dark ground nobody sees.
class StylHran final : public QProxyStyle {
  public:
    StylHran() : QProxyStyle(QStyleFactory::create("Fusion")) {}

    void drawPrimitive(PrimitiveElement prvek, const QStyleOption* volby, QPainter* p,
                       const QWidget* widget) const override {
        const bool hrana = prvek == PE_IndicatorCheckBox || prvek == PE_IndicatorRadioButton;
        if (!hrana || !je_tmava(volby->palette)) {
            QProxyStyle::drawPrimitive(prvek, volby, p, widget);
            return;
        }
        QStyleOptionButton svetlejsi;
        svetlejsi.QStyleOption::operator=(*volby);
        // The style makes the edge of this colour, darker by the same.
        svetlejsi.palette.setColor(QPalette::Window, barva_hrany(volby->palette).lighter(140));
        QProxyStyle::drawPrimitive(prvek, &svetlejsi, p, widget);
    }
};

}  // namespace

void nastav_vzhled(QApplication& aplikace, int vzhled_id, int velikost_pisma) {
    aplikace.setStyle(new StylHran);
    QFont pismo = aplikace.font();
    pismo.setPointSize(std::clamp(velikost_pisma, k_nejmensi_pismo, k_nejvetsi_pismo));
    aplikace.setFont(pismo);
    nastav_paletu(aplikace, vzhled_id == 0 ? bleda_paleta() : QPalette());
}

void nastav_paletu(QApplication& aplikace, QPalette paleta) {
    aplikace.setPalette(paleta);
    paleta = QApplication::palette();
    aplikace.setStyleSheet(QString(k_styly).arg(barva_hrany(paleta).name()));
}

void jako_nadpis(QLabel& popisek) {
    QFont pismo = popisek.font();
    pismo.setPointSize(pismo.pointSize() + 4);
    pismo.setBold(true);
    popisek.setFont(pismo);
}

void jako_dulezity(QLabel& popisek) {
    QFont pismo = popisek.font();
    pismo.setBold(true);
    popisek.setFont(pismo);
}

QColor barva_upozorneni(const QPalette& paleta) {
    return QColor(je_tmava(paleta) ? "#f0897b" : "#a63d2f");
}

QColor barva_napovedy(const QPalette& paleta) {
    return QColor(je_tmava(paleta) ? "#7fb6d6" : "#2b6a8c");
}

void jako_upozorneni(QLabel& popisek) {
    jako_dulezity(popisek);
    QPalette paleta = popisek.palette();
    paleta.setColor(QPalette::WindowText, barva_upozorneni(paleta));
    popisek.setPalette(paleta);
}

QColor barva_hrany(const QPalette& paleta) {
    constexpr int k_svetlejsi = 240;  // percent of the window's own lightness
    return je_tmava(paleta) ? paleta.color(QPalette::Window).lighter(k_svetlejsi)
                            : paleta.color(QPalette::Mid);
}

bool je_tmava(const QPalette& paleta) {
    return paleta.color(QPalette::WindowText).lightness() >
           paleta.color(QPalette::Window).lightness();
}

const BarvyRoku& barvy_roku(const QPalette& paleta) {
    static const BarvyRoku svetle{QColor("#b9d3c4"), QColor("#3f7d6a"), QColor("#e3c878"),
                                  QColor("#8b9a92"), QColor("#2b6a8c")};
    static const BarvyRoku tmave{QColor("#3c5a4c"), QColor("#6db598"), QColor("#d0b05a"),
                                 QColor("#8b9a92"), QColor("#5fa6cc")};
    return je_tmava(paleta) ? tmave : svetle;
}

}  // namespace desktop
