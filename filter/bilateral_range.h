// What pixels of a disc weigh by their difference from the middle, in lanes of pixels.
#pragma once

#include "base/channels.h"
#include "base/floats.h"
#include "base/gather.h"
#include "base/unrolled.h"
#include "filter/bilateral.h"
#include "signal/exp_log.h"

namespace qvp::filter {

using BilateralLanes = hn::ScalableTag<float>;
using BilateralVector = hn::Vec<BilateralLanes>;
template <int kColours>
using Difference = Pixels<kColours, BilateralVector>;

// The sum of magnitudes.
template <int kColours>
HWY_INLINE BilateralVector Magnitude(const Difference<kColours>& d) {
  BilateralVector sum = hn::Abs(d.v[0]);
  for (int c = 1; c < kColours; ++c) sum = hn::Add(sum, hn::Abs(d.v[c]));
  return sum;
}

// exp(-d^2 * falloff), where d^2 is that of the sum of magnitudes, or the sum of squares.
template <int kColours>
struct RangeBySum {
  float falloff;

  HWY_INLINE BilateralVector operator()(const Difference<kColours>& d) const {
    const BilateralVector sum = kColours == 1 ? d.v[0] : Magnitude(d);
    return ExpOfDecay(hn::Mul(hn::Mul(sum, sum), hn::Set(BilateralLanes(), -falloff)));
  }
};
template <int kColours>
struct RangeBySquares {
  float falloff;

  HWY_INLINE BilateralVector operator()(const Difference<kColours>& d) const {
    BilateralVector sum = hn::Mul(d.v[0], d.v[0]);
    for (int c = 1; c < kColours; ++c) sum = hn::Add(sum, hn::Mul(d.v[c], d.v[c]));
    return ExpOfDecay(hn::Mul(sum, hn::Set(BilateralLanes(), -falloff)));
  }
};

// The same by a table, for sums that are whole.
template <int kColours>
struct RangeByTable {
  const float* table;

  HWY_INLINE BilateralVector operator()(const Difference<kColours>& d) const {
    return LookUpWords(BilateralLanes(), table, RoundToIntInRange(Magnitude(d)));
  }
};

}  // namespace qvp::filter
