// Looks: the palette, the font, and the few styles that windows share.
#pragma once

#include <QColor>

class QApplication;
class QLabel;
class QPalette;

namespace desktop {

/// `vzhled_id` 0 is the program's own pale palette, any other the colours of the system;
/// `velikost_pisma` in points.
void nastav_vzhled(QApplication& aplikace, int vzhled_id, int velikost_pisma);
/// The colours alone, with the edges that go with them.
void nastav_paletu(QApplication& aplikace, QPalette paleta);

void jako_nadpis(QLabel& popisek);
/// Bold.
void jako_dulezity(QLabel& popisek);
void jako_upozorneni(QLabel& popisek);
/// The colour of what the operator has to notice.
QColor barva_upozorneni(const QPalette& paleta);
/// The colour of what the operator is only told.
QColor barva_napovedy(const QPalette& paleta);

/// The colour of a frame around a box, seen on a dark ground too.
QColor barva_hrany(const QPalette& paleta);

/// True when light letters stand on a dark ground.
bool je_tmava(const QPalette& paleta);

/// Colours of the year's picture.
struct BarvyRoku {
    QColor naklad, cista, zadano, uzavreno, vybrany;
};
const BarvyRoku& barvy_roku(const QPalette& paleta);

}  // namespace desktop
