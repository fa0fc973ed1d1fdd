// The clock and the random generator that the core is given, so that tests and `--datum` can set
// them.
#pragma once

#include "base/datum.h"

namespace base {

/// Tells today and now. Injected: the core never asks the system itself.
class Hodiny {
  public:
    virtual ~Hodiny() = default;
    virtual DatumCas nyni() const = 0;
    Datum dnes() const { return nyni().datum; }
};

/// The computer's clock in local time.
class SystemoveHodiny final : public Hodiny {
  public:
    DatumCas nyni() const override;
};

/// A clock that stands still.
class PevneHodiny final : public Hodiny {
  public:
    explicit PevneHodiny(DatumCas cas) : cas_(cas) {}
    DatumCas nyni() const override { return cas_; }

  private:
    DatumCas cas_;
};

/// Random numbers for the names of work tables and archives.
class Nahoda {
  public:
    virtual ~Nahoda() = default;
    /// A number in 0 .. hranice - 1; `hranice` is at least 1.
    virtual int pod(int hranice) = 0;
};

class SystemovaNahoda final : public Nahoda {
  public:
    int pod(int hranice) override;
};

}  // namespace base
