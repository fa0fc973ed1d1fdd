// TForm15: machines of the company, their accounts and hourly rates.
#pragma once

#include "workers/ciselnik.h"

namespace workers {

class TForm15 final : public Ciselnik {
  public:
    explicit TForm15(shell::Session& session);
};

}  // namespace workers
