// What becomes of the code of a local binary pattern: operations on vectors of codes, whose bits are the neighbours in
// their order around the circle.
#pragma once

#include "base/simd.h"

namespace qvp::lbp {

// As many neighbours as a code has bits.
template <class V>
inline constexpr int kNeighbours = 8 * sizeof(hn::TFromV<V>);

// Each bit at the next place, the last one at the first.
template <class V>
HWY_INLINE V Rotated(V code) {
  const hn::DFromV<V> d;
  const hn::RebindToSigned<decltype(d)> s;
  return hn::Sub(hn::Add(code, code), hn::BitCast(d, hn::BroadcastSignBit(hn::BitCast(s, code))));
}

template <class V>
HWY_INLINE V WithoutLowestBit(V v) {
  return hn::And(v, hn::Sub(v, hn::Set(hn::DFromV<V>(), 1)));
}

// At most two changes around the circle.
template <class V>
HWY_INLINE auto IsUniform(V code) {
  const V changes = hn::Xor(code, Rotated(code));
  return hn::Eq(WithoutLowestBit(WithoutLowestBit(changes)), hn::Zero(hn::DFromV<V>()));
}

// The least of all rotations.
struct LeastRotation {
  template <class V>
  HWY_INLINE V operator()(V code) const {
    V least = code;
    for (int k = 1; k < kNeighbours<V>; ++k) {
      code = Rotated(code);
      least = hn::Min(least, code);
    }
    return least;
  }
};

// With P neighbours: 1 + (ones - 1) P + r, where the run of ones begins at bit r. Of all ones none begins it, which
// leaves r = 0; of no ones the label would be below 0, which saturates. The bits below the first one of a run are r.
struct UniformLabel {
  template <class V>
  HWY_INLINE V operator()(V code) const {
    constexpr int kP = kNeighbours<V>;
    const hn::DFromV<V> d;
    const V first = hn::AndNot(Rotated(code), code), below = hn::SaturatedSub(first, hn::Set(d, 1));
    const V ones = hn::ShiftLeft < kP == 8 ? 3 : 4 > (hn::PopulationCount(code));
    const V label = hn::SaturatedSub(hn::Add(ones, hn::PopulationCount(below)), hn::Set(d, kP - 1));
    return hn::IfThenElse(IsUniform(code), label, hn::Set(d, kP * (kP - 1) + 2));
  }
};

struct UniformOnes {
  template <class V>
  HWY_INLINE V operator()(V code) const {
    const auto others = hn::Set(hn::DFromV<V>(), kNeighbours<V> + 1);
    return hn::IfThenElse(IsUniform(code), hn::PopulationCount(code), others);
  }
};

}  // namespace qvp::lbp
