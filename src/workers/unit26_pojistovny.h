// TForm26: health insurers (numbers up to 50) and pension funds (from 51) of the company.
#pragma once

#include "workers/ciselnik.h"

namespace workers {

class TForm26 final : public Ciselnik {
  public:
    explicit TForm26(shell::Session& session);

    /// An empty list is offered the health insurers of the country.
    void FormShow() override;
};

/// Adds the health insurers of the Czech Republic with their official codes, numbered from 1.
void dopln_zdravotni_pojistovny(shell::Session& session);

}  // namespace workers
