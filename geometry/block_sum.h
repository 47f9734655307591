// Sums of many products in single floats. Rounding errors of a plain sum grow with the number of taps, so that the
// weights of a thousand pixels would not sum to 1. Up to kBlockTaps products are added as they are; of more, the sums
// of successive blocks are added with their rounding errors kept apart (Knuth, The art of computer programming, 4.2.2).
#pragma once

#include <type_traits>

#include "base/simd.h"

namespace qvp::resize {

inline constexpr int kBlockTaps = 32;

// Of numbers or vectors.
template <class V>
class BlockSum {
 public:
  BlockSum() = default;
  HWY_INLINE explicit BlockSum(V first) : sum_(first), error_(Minus(first, first)) {}

  HWY_INLINE void Add(V block) {
    const V sum = Plus(sum_, block), added = Minus(sum, sum_);
    error_ = Plus(error_, Plus(Minus(sum_, Minus(sum, added)), Minus(block, added)));
    sum_ = sum;
  }

  // An infinite sum has no error: it would be NaN.
  HWY_INLINE V Rounded() const {
    if constexpr (std::is_floating_point_v<V>) {
      return error_ == error_ ? sum_ + error_ : sum_;
    } else {
      return hn::IfThenElse(hn::Eq(error_, error_), hn::Add(sum_, error_), sum_);
    }
  }

 private:
  static HWY_INLINE V Plus(V a, V b) {
    if constexpr (std::is_floating_point_v<V>) {
      return a + b;
    } else {
      return hn::Add(a, b);
    }
  }
  static HWY_INLINE V Minus(V a, V b) {
    if constexpr (std::is_floating_point_v<V>) {
      return a - b;
    } else {
      return hn::Sub(a, b);
    }
  }

  V sum_, error_;
};

}  // namespace qvp::resize
