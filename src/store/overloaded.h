// A visitor of a variant made of one lambda an alternative.
#pragma once

namespace store {

template <class... F>
struct Overloaded : F... {
    using F::operator()...;
};
template <class... F>
Overloaded(F...) -> Overloaded<F...>;

}  // namespace store
