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

/// A label that shows a member of the screen as it stands, never as rich text.
QLabel* udaj(Vazba& vazba, const std::string& jmeno, const std::string& hodnota);

}  // namespace desktop
