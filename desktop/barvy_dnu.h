// Colours of days in calendars and attendance, mixed from the palette in use, so that they are
// readable on light and dark desktops.
#pragma once

#include <QColor>

class QPalette;

namespace desktop {

/// Background of a Saturday or a Sunday.
QColor barva_vikendu(const QPalette& paleta);
/// Background of a public holiday.
QColor barva_svatku(const QPalette& paleta);
/// Text of a day without work: red.
QColor barva_bez_prace(const QPalette& paleta);

}  // namespace desktop
