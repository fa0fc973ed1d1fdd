// The one switch of negative pay.
#pragma once

#include "store/connection.h"

namespace payrun {

/// True when the caption of the first pay-sheet column of module 14 holds "---".
bool jsou_povoleny_zaporne(store::Connection& data);

}  // namespace payrun
