// Sums of values times the taps of one axis: across a row, whose values lie beside each other, and down the lines of a
// window.
//
// A symmetric kernel's values may be folded: the middle one, then the sums of the pairs at each distance from it; the
// taps are those from the middle on then. Several vectors are summed at a time, which share the taps.
#pragma once

#include "base/pairs.h"
#include "filter/unrolled.h"
#include "filter/windows.h"

namespace qvp::filter {

template <class Tap>
struct AxisOf {
  const Tap* taps;
  ptrdiff_t count;  // of terms
};

// Taps of 16 bits by twos, as the multiplication of pairs takes them; an odd one has a 0 beside it.
struct PairedTaps {
  const int32_t* pairs;
  ptrdiff_t count;
};

// Term k of `count` of vector v, from value(0, v), value(1, v)... of all taps.
template <bool kIsFolded, class Value, class Place>
HWY_INLINE auto TermAt(const Value& value, ptrdiff_t k, ptrdiff_t count, Place v) {
  if constexpr (kIsFolded) {
    const ptrdiff_t middle = count - 1;
    return k == 0 ? value(middle, v) : hn::Add(value(middle + k, v), value(middle - k, v));
  } else {
    return value(k, v);
  }
}

// In lanes as they are, each product and each sum rounded; the first product stands alone.
template <bool kIsFolded, int kCount, class D, class Tap, class Value>
HWY_INLINE std::array<hn::Vec<D>, kCount> SumsOfProducts(D d, const AxisOf<Tap>& axis, const Value& value) {
  std::array<hn::Vec<D>, kCount> sums;
  const auto first = hn::Set(d, static_cast<hn::TFromD<D>>(axis.taps[0]));
  Unrolled<kCount>([&](auto v) QVP_INLINED { sums[v] = hn::Mul(TermAt<kIsFolded>(value, 0, axis.count, v), first); });
  for (ptrdiff_t k = 1; k < axis.count; ++k) {
    const auto tap = hn::Set(d, static_cast<hn::TFromD<D>>(axis.taps[k]));
    Unrolled<kCount>([&](auto v) QVP_INLINED {
      sums[v] = hn::Add(sums[v], hn::Mul(TermAt<kIsFolded>(value, k, axis.count, v), tap));
    });
  }
  return sums;
}

// Sums of 16-bit lanes as 32-bit ones, modulo 2^32: those of the lower half of each block, and of the upper half.
// Packing brings them back in order.
template <class D>
struct BlockSums {
  hn::Vec<hn::Repartition<int32_t, D>> lower, upper;
};

template <bool kIsFolded, int kCount, class D, class Value>
HWY_INLINE std::array<BlockSums<D>, kCount> SumsOfPairs(D d, const PairedTaps& taps, int32_t start,
                                                        const Value& value) {
  const hn::Repartition<int32_t, D> ints;
  std::array<BlockSums<D>, kCount> sums;
  Unrolled<kCount>([&](auto v) QVP_INLINED { sums[v].lower = sums[v].upper = hn::Set(ints, start); });
  const auto add = [&](ptrdiff_t k, bool isPair) QVP_INLINED {
    const auto w = hn::BitCast(d, hn::Set(ints, taps.pairs[k / 2]));
    Unrolled<kCount>([&](auto v) QVP_INLINED {
      const auto a = TermAt<kIsFolded>(value, k, taps.count, v);
      const auto b = isPair ? TermAt<kIsFolded>(value, k + 1, taps.count, v) : hn::Zero(d);
      sums[v].lower = hn::Add(sums[v].lower, MulAddPairs(hn::InterleaveLower(d, a, b), w));
      sums[v].upper = hn::Add(sums[v].upper, MulAddPairs(hn::InterleaveUpper(d, a, b), w));
    });
  };
  const bool isOdd = taps.count % 2 != 0;
  ptrdiff_t k = 0;
  for (; k + 1 < taps.count; k += 2) add(k, true);
  if (isOdd) add(k, false);
  return sums;
}

// step(count, i) for the vectors of a row, kVectors at a time and then one by one; count is a constant. The last one
// may overlap the one before it. A row that is shorter than a vector has a step at 0 alone.
template <int kVectors, ptrdiff_t kLanes, class Step>
HWY_INLINE void ForEachVectors(ptrdiff_t n, const Step& step) {
  const ptrdiff_t last = std::max<ptrdiff_t>(n - kLanes, 0);
  ptrdiff_t i = 0;
  for (; i + kVectors * kLanes <= n; i += kVectors * kLanes) step(std::integral_constant<int, kVectors>(), i);
  for (; i < n; i += kLanes) step(std::integral_constant<int, 1>(), std::min(i, last));
}

// The same for a row of results: step(count, i, where they go), which writes whole vectors.
template <int kVectors, ptrdiff_t kLanes, class R, class Step>
HWY_INLINE void MakeRow(ptrdiff_t n, R* to, const Step& step) {
  R staged[kLanes];
  const bool isShort = n < kLanes;
  R* const out = isShort ? staged : to;
  ForEachVectors<kVectors, kLanes>(n, [&](auto count, ptrdiff_t i) QVP_INLINED { step(count, i, out + i); });
  if (isShort) std::memcpy(to, staged, n * sizeof(R));
}

// For groups at places that are multiples of their length: the last one may have too many results.
template <ptrdiff_t kLanes, class R, class Make>
HWY_INLINE void MakeGroups(ptrdiff_t n, R* to, const Make& make) {
  R staged[kLanes];
  for (ptrdiff_t i = 0; i < n; i += kLanes) {
    const bool isWhole = i + kLanes <= n;
    make(i, isWhole ? to + i : staged);
    if (!isWhole) std::memcpy(to + i, staged, (n - i) * sizeof(R));
  }
}

}  // namespace qvp::filter
