// TForm13: one fixed item of the worker chosen on the register.
#pragma once

#include "workers/fixni_polozka.h"

namespace workers {

class TForm13 final : public PolozkaFixnich {
  public:
    /// `pocitadlo` is the row of `Fixni`, 0 for a new item of the worker.
    TForm13(shell::Session& session, std::int64_t pocitadlo, int cislo_pracovnika);
    std::string_view jmeno() const override { return "TForm13"; }
};

}  // namespace workers
