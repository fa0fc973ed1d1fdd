// Looks: the palette, the font, and the few styles that windows share.
#pragma once

#include <QColor>

class QApplication;
class QLabel;

namespace desktop {

/// `vzhled_id` 0 is the program's own pale palette, any other the colours of the system;
/// `velikost_pisma` in points.
void nastav_vzhled(QApplication& aplikace, int vzhled_id, int velikost_pisma);

void jako_nadpis(QLabel& popisek);
/// Bold.
void jako_dulezity(QLabel& popisek);
void jako_upozorneni(QLabel& popisek);

/// Colours of the year's picture, readable on both palettes.
struct BarvyRoku {
    QColor naklad, cista, zadano, uzavreno, vybrany;
};
const BarvyRoku& barvy_roku();

}  // namespace desktop
