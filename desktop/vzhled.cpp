#include "desktop/vzhled.h"

#include <QApplication>
#include <QFont>
#include <QLabel>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>
#include <algorithm>

namespace desktop {

namespace {

constexpr int k_nejmensi_pismo = 7, k_nejvetsi_pismo = 24;

QPalette bleda_paleta() {
    QPalette p;
    p.setColor(QPalette::Window, QColor("#f3f5f1"));
    p.setColor(QPalette::WindowText, QColor("#24312b"));
    p.setColor(QPalette::Base, QColor("#ffffff"));
    p.setColor(QPalette::AlternateBase, QColor("#f0f4ee"));
    p.setColor(QPalette::Text, QColor("#24312b"));
    p.setColor(QPalette::PlaceholderText, QColor("#7c8a83"));
    p.setColor(QPalette::Button, QColor("#e7ece5"));
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

constexpr const char* k_styly =
    "QPushButton { padding: 4px 12px; }"
    "QGroupBox { font-weight: bold; border: 1px solid palette(midlight); border-radius: 4px;"
    " margin-top: 1.5em; padding-top: 2px; }"
    "QGroupBox::title { subcontrol-origin: margin; left: 2px; padding: 0 1px; }";

}  // namespace

void nastav_vzhled(QApplication& aplikace, int vzhled_id, int velikost_pisma) {
    aplikace.setStyle(QStyleFactory::create("Fusion"));
    aplikace.setPalette(vzhled_id == 0 ? bleda_paleta() : aplikace.style()->standardPalette());
    QFont pismo = aplikace.font();
    pismo.setPointSize(std::clamp(velikost_pisma, k_nejmensi_pismo, k_nejvetsi_pismo));
    aplikace.setFont(pismo);
    aplikace.setStyleSheet(k_styly);
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

void jako_upozorneni(QLabel& popisek) {
    jako_dulezity(popisek);
    QPalette paleta = popisek.palette();
    paleta.setColor(QPalette::WindowText, QColor("#a63d2f"));
    popisek.setPalette(paleta);
}

const BarvyRoku& barvy_roku() {
    static const BarvyRoku barvy{QColor("#b9d3c4"), QColor("#3f7d6a"), QColor("#e3c878"),
                                 QColor("#8b9a92"), QColor("#2b6a8c")};
    return barvy;
}

}  // namespace desktop
