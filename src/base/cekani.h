// The guard against re-entry: while a dialog of a screen waits, its other actions refuse.
#pragma once

namespace base {

/// Marks for its life that the screen waits for the operator.
class Cekani {
  public:
    explicit Cekani(bool& ceka) : ceka_(ceka) { ceka_ = true; }
    ~Cekani() { ceka_ = false; }
    Cekani(const Cekani&) = delete;
    Cekani& operator=(const Cekani&) = delete;

  private:
    bool& ceka_;
};

}  // namespace base
