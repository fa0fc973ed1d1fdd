// How a monthly action enters its month.
#pragma once

#include "shell/session.h"

namespace menu {

/// Makes a month the one being worked on while the guards of an action look at it. Unless they let
/// the action in, the session gets its former month back.
class VstupDoMesice {
  public:
    VstupDoMesice(shell::Session& session, int mesic)
        : session_(session), puvodni_(session.zpracovavany_mesic) {
        session_.zpracovavany_mesic = mesic;
    }
    ~VstupDoMesice() {
        if (!vpusten_) session_.zpracovavany_mesic = puvodni_;
    }
    VstupDoMesice(const VstupDoMesice&) = delete;
    VstupDoMesice& operator=(const VstupDoMesice&) = delete;

    void vpust() { vpusten_ = true; }

  private:
    shell::Session& session_;
    int puvodni_;
    bool vpusten_ = false;
};

}  // namespace menu
