// Ctrl-C during a long run: remembered, so that the run can be stopped between two workers.
#pragma once

namespace cli {

/// While it lives, Ctrl-C does not end the program; one such object at a time.
class ZachytPreruseni {
  public:
    ZachytPreruseni();
    ~ZachytPreruseni();
    ZachytPreruseni(const ZachytPreruseni&) = delete;
    ZachytPreruseni& operator=(const ZachytPreruseni&) = delete;
    bool prislo() const;

  private:
    void (*puvodni_)(int);
};

}  // namespace cli
