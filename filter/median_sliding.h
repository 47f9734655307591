// Counts of the values under a mask that slides along a row (Huang, Yang and Tang, A fast two-dimensional median
// filtering algorithm, 1979), and cursors that follow places in their order.
#pragma once

#include <cstdint>
#include <utility>

#include "base/simd.h"

namespace qvp::filter {

// How often each value occurs, and each bin of 2^binBits values. Counts fit 16 bits: masks have up to 65025 values.
struct SlidingCounts {
  uint16_t *fine, *coarse;
  int binBits;

  uint32_t BinLength() const { return uint32_t{1} << binBits; }
  HWY_INLINE void Add(uint32_t value) const {
    ++fine[value];
    ++coarse[value >> binBits];
  }
  HWY_INLINE void Remove(uint32_t value) const {
    --fine[value];
    --coarse[value >> binBits];
  }
};

// The value at a place in the order of those under the mask. It is near where it was one pixel before.
class SlidingCursor {
 public:
  explicit SlidingCursor(int32_t place) : place_(place) {}

  HWY_INLINE void Add(uint32_t value) { below_ += value < value_; }
  HWY_INLINE void Remove(uint32_t value) { below_ -= value < value_; }

  // There are more values under the mask than the place tells.
  HWY_INLINE uint32_t Settle(const SlidingCounts& counts) {
    while (below_ > place_) StepDown(counts);
    while (below_ + counts.fine[value_] <= place_) StepUp(counts);
    return value_;
  }

 private:
  // By a value, or by a bin if the place is not in it.
  HWY_INLINE void StepDown(const SlidingCounts& counts) {
    const bool isFirst = (value_ & (counts.BinLength() - 1)) == 0;
    const int32_t ofBin = isFirst ? counts.coarse[(value_ >> counts.binBits) - 1] : 0;
    if (isFirst && below_ - ofBin > place_) {
      value_ -= counts.BinLength();
      below_ -= ofBin;
    } else {
      below_ -= counts.fine[--value_];
    }
  }
  HWY_INLINE void StepUp(const SlidingCounts& counts) {
    const bool isFirst = (value_ & (counts.BinLength() - 1)) == 0;
    const int32_t ofBin = isFirst ? counts.coarse[value_ >> counts.binBits] : 0;
    if (isFirst && below_ + ofBin <= place_) {
      value_ += counts.BinLength();
      below_ += ofBin;
    } else {
      below_ += counts.fine[value_++];
    }
  }

  int32_t place_, below_ = 0;
  uint32_t value_ = 0;
};

// The lines of a mask, of values that are `step` apart.
template <class Line>
struct SlidingMask {
  Line line;  // line(j) is the address of line j
  ptrdiff_t width, height, step;
};
template <class Line>
SlidingMask(Line, ptrdiff_t, ptrdiff_t, ptrdiff_t) -> SlidingMask<Line>;

// Calls store(x, value at the low place, value at the high one) for n results. Counts are 0 before and afterwards.
template <bool kIsPlain, class Line, class Store>
HWY_INLINE void SlideAlong(const SlidingMask<Line>& mask, const SlidingCounts& shared, ptrdiff_t n, int low, int high,
                           const Store& store) {
  const SlidingCounts counts = shared;
  SlidingCursor lower(low), upper(high);
  const auto add = [&](ptrdiff_t x) HWY_ATTR {
    for (ptrdiff_t j = 0; j < mask.height; ++j) {
      const uint32_t value = mask.line(j)[x * mask.step];
      counts.Add(value);
      lower.Add(value);
      if constexpr (!kIsPlain) upper.Add(value);
    }
  };
  const auto remove = [&](ptrdiff_t x) HWY_ATTR {
    for (ptrdiff_t j = 0; j < mask.height; ++j) {
      const uint32_t value = mask.line(j)[x * mask.step];
      counts.Remove(value);
      lower.Remove(value);
      if constexpr (!kIsPlain) upper.Remove(value);
    }
  };
  for (ptrdiff_t x = 0; x < mask.width - 1; ++x) add(x);
  for (ptrdiff_t x = 0; x < n; ++x) {
    add(x + mask.width - 1);
    const uint32_t first = lower.Settle(counts);
    store(x, first, kIsPlain ? first : upper.Settle(counts));
    remove(x);
  }
  for (ptrdiff_t x = n; x < n + mask.width - 1; ++x) remove(x);
}

}  // namespace qvp::filter
