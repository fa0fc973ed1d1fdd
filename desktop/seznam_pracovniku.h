// The columns of the list of workers.
#pragma once

#include "desktop/model_seznamu.h"
#include "workers/unit6_registr.h"

namespace desktop {

/// The screen's list as a model; former workers in another colour. The view owns it.
ModelSeznamu* model_pracovniku(const workers::TForm6& form, QTableView& tabulka);

}  // namespace desktop
