// The six kinds of blocked values under one another, as the list and the record form show them.
#pragma once

#include <functional>
#include <string>

#include "payrun/unit51_blokovana_hodnota.h"

class QWidget;

namespace desktop {

/// Makes the control of one value: `jmeno` "socialni_zaklad_abs", `popis` for assistive tools.
using PrvekBlokace = std::function<QWidget*(const std::string& jmeno, const std::string& popis,
                                            std::size_t druh, bool rozdil)>;

QWidget* rozlozeni_blokace(const PrvekBlokace& prvek);

}  // namespace desktop
