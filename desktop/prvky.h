// Small controls that several windows build alike.
#pragma once

#include <QString>
#include <string>

#include "desktop/vazba.h"

class QLabel;
class QLineEdit;

namespace desktop {

/// A field for a number of at most `znaku` characters, aligned to the right.
QLineEdit* ciselne_pole(const std::string& jmeno, const std::string& pristupny_nazev, int znaku);

/// Keys of a decimal number with at most `celych` digits, two decimals and a leading minus.
Vazba::Filtr klavesy_desetinne(int celych);
/// Keys of a whole number without a sign.
Vazba::Filtr klavesy_cele(int cislic);

/// A label that shows a member of the screen as it stands, never as rich text.
QLabel* udaj(Vazba& vazba, const std::string& jmeno, const std::string& hodnota);

}  // namespace desktop
