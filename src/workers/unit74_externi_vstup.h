// TForm74: rates of external input, which gross-wage entry looks up by the number of the work.
#pragma once

#include "workers/ciselnik.h"

namespace workers {

class TForm74 final : public Ciselnik {
  public:
    explicit TForm74(shell::Session& session);
};

/// Makes the table `Vstup_ex` when it is missing.
void zaloz_soubor_pro_externi_vstup(shell::Session& session);

}  // namespace workers
