#include "cli/preruseni.h"

#include <csignal>

namespace cli {

namespace {

// A signal handler can reach nothing but static storage.
volatile std::sig_atomic_t preruseni_prislo = 0;

void zapamatuj_preruseni(int) {
    preruseni_prislo = 1;
}

}  // namespace

ZachytPreruseni::ZachytPreruseni() {
    preruseni_prislo = 0;
    puvodni_ = std::signal(SIGINT, zapamatuj_preruseni);
}

ZachytPreruseni::~ZachytPreruseni() {
    std::signal(SIGINT, puvodni_);
}

bool ZachytPreruseni::prislo() const {
    return preruseni_prislo != 0;
}

}  // namespace cli
