// The fields of one fixed item, as both its windows show them.
#pragma once

#include "desktop/vazba.h"
#include "workers/fixni_polozka.h"

class QWidget;

namespace desktop {

/// Worker, column and crowns with their texts, and the bank connection with its explanation.
QWidget* pole_fixni_polozky(Vazba& vazba, workers::PolozkaFixnich& form);

}  // namespace desktop
