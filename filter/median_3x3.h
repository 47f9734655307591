// The median of 3x3, by two rows of results. It is the middle one of the greatest of the columns' least values, the
// middle one of their middle ones, and the least of their greatest (Smith, Implementing median filters in XC4000E
// FPGAs, 1996). Columns are sorted again for each of three results: that takes less than to keep them.
#pragma once

#include "filter/median_networks.h"

namespace qvp::filter {

template <class T>
class SmallestKernel {
 public:
  using E = MedianLane<T>;
  using Element = E;
  using Result = E;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(hn::ScalableTag<E>());
  static constexpr int kVectors = 1, kLines = 4;

  explicit SmallestKernel(ptrdiff_t channels) : next_(channels) {}

  // Lines of floats have their keys.
  static void Across(const void*, const void* source, void* line, ptrdiff_t samples) {
    const auto* const from = static_cast<const E*>(source);
    MakeRow<4, kLanes>(samples, static_cast<E*>(line), [=](auto count, ptrdiff_t i, E* to) HWY_ATTR {
      Unrolled<count>([&](auto v) QVP_INLINED {
        hn::StoreU(OrderedLanes<T>(hn::LoadU(D(), from + i + v * kLanes)), D(), to + v * kLanes);
      });
    });
  }

  template <int kCount>
  HWY_INLINE void Run(const E* const* lines, ptrdiff_t at, E* upper, E* lower) const {
    const Columns left(lines, at), middle(lines, at + next_), right(lines, at + 2 * next_);
    hn::StoreU(MedianOf(left.lower, middle.lower, right.lower), D(), lower);
    hn::StoreU(MedianOf(left.upper, middle.upper, right.upper), D(), upper);
  }

 private:
  using D = hn::ScalableTag<E>;
  using V = hn::Vec<D>;

  struct Column {
    V least, middle, greatest;
  };
  // Those of both rows, which have two pixels in common.
  struct Columns {
    Column upper, lower;

    HWY_INLINE Columns(const E* const* lines, ptrdiff_t at) {
      const V a = hn::LoadU(D(), lines[1] + at), b = hn::LoadU(D(), lines[2] + at);
      const V less = hn::Min(a, b), greater = hn::Max(a, b);
      upper = With(hn::LoadU(D(), lines[0] + at), less, greater);
      lower = With(hn::LoadU(D(), lines[3] + at), less, greater);
    }
    static HWY_INLINE Column With(V v, V less, V greater) {
      const V rest = hn::Max(v, less);
      return {hn::Min(v, less), hn::Min(rest, greater), hn::Max(rest, greater)};
    }
  };

  static HWY_INLINE V Middle(V a, V b, V c) { return hn::Max(hn::Min(a, b), hn::Min(hn::Max(a, b), c)); }
  static HWY_INLINE V MedianOf(const Column& a, const Column& b, const Column& c) {
    const V low = hn::Max(hn::Max(a.least, b.least), c.least);
    const V high = hn::Min(hn::Min(a.greatest, b.greatest), c.greatest);
    return OrderedLanes<T>(Middle(low, high, Middle(a.middle, b.middle, c.middle)));
  }

  ptrdiff_t next_;
};

}  // namespace qvp::filter
