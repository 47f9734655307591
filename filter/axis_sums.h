// Sums of values times the taps of one axis: across a row, whose values lie beside each other, and down the lines of a
// window.
//
// A symmetric kernel's values may be folded: the middle one, then the sums of the pairs at each distance from it; the
// taps are those from the middle on then.
#pragma once

#include "base/pairs.h"
#include "filter/unrolled.h"
#include "filter/windows.h"

namespace qvp::filter {

// Term k of `count`, from value(0), value(1)... of all taps.
template <bool kIsFolded, class Value>
HWY_INLINE auto TermAt(const Value& value, ptrdiff_t k, ptrdiff_t count) {
  if constexpr (kIsFolded) {
    const ptrdiff_t middle = count - 1;
    return k == 0 ? value(middle) : hn::Add(value(middle + k), value(middle - k));
  } else {
    return value(k);
  }
}

// Taps of 16 bits by twos, as the multiplication of pairs takes them; an odd one has a 0 beside it.
struct PairedTaps {
  const int32_t* pairs;
  ptrdiff_t count;
};

// Sums of 16-bit lanes as 32-bit ones, modulo 2^32: those of the lower half of each block, and of the upper half.
// Packing brings them back in order.
template <class D>
struct BlockSums {
  using Sum = hn::Repartition<int32_t, D>;
  hn::Vec<Sum> lower, upper;
};

template <bool kIsFolded, class D, class Value>
HWY_INLINE BlockSums<D> SumOfPairs(D d, const PairedTaps& taps, int32_t start, const Value& value) {
  const hn::Repartition<int32_t, D> sums;
  BlockSums<D> sum{hn::Set(sums, start), hn::Set(sums, start)};
  const auto add = [&](auto first, auto second, int32_t pair) QVP_INLINED {
    const auto w = hn::BitCast(d, hn::Set(sums, pair));
    sum.lower = hn::Add(sum.lower, MulAddPairs(hn::InterleaveLower(d, first, second), w));
    sum.upper = hn::Add(sum.upper, MulAddPairs(hn::InterleaveUpper(d, first, second), w));
  };
  ptrdiff_t k = 0;
  for (; k + 1 < taps.count; k += 2) {
    add(TermAt<kIsFolded>(value, k, taps.count), TermAt<kIsFolded>(value, k + 1, taps.count), taps.pairs[k / 2]);
  }
  if (k < taps.count) add(TermAt<kIsFolded>(value, k, taps.count), hn::Zero(d), taps.pairs[k / 2]);
  return sum;
}

// In lanes as they are, each product and each sum rounded; the first product stands alone.
template <bool kIsFolded, class D, class Tap, class Value>
HWY_INLINE hn::Vec<D> SumOfProducts(D d, const Tap* taps, ptrdiff_t count, const Value& value) {
  const auto term = [&](ptrdiff_t k) QVP_INLINED {
    return hn::Mul(TermAt<kIsFolded>(value, k, count), hn::Set(d, static_cast<hn::TFromD<D>>(taps[k])));
  };
  auto sum = term(0);
  for (ptrdiff_t k = 1; k < count; ++k) sum = hn::Add(sum, term(k));
  return sum;
}

// make(i, to) for each vector of a row of n results, of which the last may overlap the one before it; make writes a
// whole one.
template <ptrdiff_t kLanes, class R, class Make>
HWY_INLINE void MakeRow(ptrdiff_t n, R* to, const Make& make) {
  if (n < kLanes) {
    R staged[kLanes];
    make(0, staged);
    std::memcpy(to, staged, n * sizeof(R));
    return;
  }
  ForEachVector<kLanes>(n, [&](ptrdiff_t i) HWY_ATTR { make(i, to + i); });
}

// The same for groups at places that are multiples of their length: the last one may have too many results.
template <ptrdiff_t kLanes, class R, class Make>
HWY_INLINE void MakeGroups(ptrdiff_t n, R* to, const Make& make) {
  ptrdiff_t i = 0;
  for (; i + kLanes <= n; i += kLanes) make(i, to + i);
  if (i == n) return;
  R staged[kLanes];
  make(i, staged);
  std::memcpy(to + i, staged, (n - i) * sizeof(R));
}

}  // namespace qvp::filter
