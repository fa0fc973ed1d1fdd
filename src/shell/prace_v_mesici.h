// A month other than the one at hand, for a while.
#pragma once

#include "shell/session.h"

namespace shell {

/// Makes a month the one being worked on for its life: what is read and computed follows it.
class PraceVMesici {
  public:
    PraceVMesici(Session& session, int mesic)
        : session_(session), puvodni_(session.zpracovavany_mesic) {
        session_.zpracovavany_mesic = mesic;
    }
    ~PraceVMesici() { session_.zpracovavany_mesic = puvodni_; }
    PraceVMesici(const PraceVMesici&) = delete;
    PraceVMesici& operator=(const PraceVMesici&) = delete;

  private:
    Session& session_;
    int puvodni_;
};

}  // namespace shell
