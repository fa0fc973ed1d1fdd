// Rows of a table in memory, found by the worker's number.
#pragma once

#include <algorithm>
#include <span>
#include <vector>

namespace payrun {

/// `Radek` has a member `cislo`. Rows of one worker keep the order in which they were added.
template <typename Radek>
class PodlePracovnika {
  public:
    void pridej(Radek radek) { radky_.push_back(std::move(radek)); }
    /// Has to be called once after the last `pridej`.
    void serad() {
        std::stable_sort(radky_.begin(), radky_.end(),
                         [](const Radek& a, const Radek& b) { return a.cislo < b.cislo; });
    }
    std::span<const Radek> radky(int cislo) const {
        const auto od = std::lower_bound(radky_.begin(), radky_.end(), cislo,
                                         [](const Radek& r, int c) { return r.cislo < c; });
        auto do_ = od;
        while (do_ != radky_.end() && do_->cislo == cislo)
            ++do_;
        return {od, do_};
    }

  private:
    std::vector<Radek> radky_;
};

}  // namespace payrun
