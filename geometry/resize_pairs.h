// Filtering of two channels across: a pair of 16-bit samples moves as one unit of 32 bits.
#pragma once

#include "geometry/resize_singles.h"

namespace qvp::resize {

// Whether there are vectors for two channels of T.
template <class T>
inline constexpr bool kHasPairs = std::is_same_v<T, uint16_t>;

// The sums of as many columns as lanes, of which sums[0] has the first and sums[1] the second half of each block. Their
// samples are added in the order of the taps, as those of one channel are.
template <int kCount, class D, class Weights>
HWY_INLINE void SumPairs(D d, const Taps& taps, const Weights& weights, const uint16_t* row, ptrdiff_t x,
                         hn::Vec<D>* sums) {
  const hn::Repartition<uint16_t, D> words;
  const hn::Rebind<int32_t, D> ints;
  const int count = kCount > 0 ? kCount : taps.count;
  const auto add = [&](int k, hn::Vec<D> units) HWY_ATTR QVP_INLINED {
    const auto pairs = hn::BitCast(words, units), zero = hn::Zero(words);
    const auto w = weights.Load(d, k, x);
    const auto product = [&](auto samples, auto weight)
                             HWY_ATTR { return hn::Mul(hn::ConvertTo(d, hn::BitCast(ints, samples)), weight); };
    const auto first = product(hn::InterleaveLower(words, pairs, zero), hn::InterleaveLower(d, w, w));
    const auto second = product(hn::InterleaveUpper(words, pairs, zero), hn::InterleaveUpper(d, w, w));
    sums[0] = k == 0 ? first : hn::Add(sums[0], first);
    sums[1] = k == 0 ? second : hn::Add(sums[1], second);
  };
  const auto* units = reinterpret_cast<const float*>(row);  // only moved until they are taken
  for (int k = 0; k < count; k += 4) TakeFours(d, units, taps.first + x, k, count, add);
}

// Both halves in the order of the columns.
template <class D>
HWY_INLINE void StorePairs(D d, const hn::Vec<D>* sums, float* out) {
  if constexpr (kBlocksOf<D> == 1) {
    hn::StoreU(sums[0], d, out);
    hn::StoreU(sums[1], d, out + hn::MaxLanes(d));
  } else {
    hn::StoreU(hn::ConcatLowerLower(d, sums[1], sums[0]), d, out);
    hn::StoreU(hn::ConcatUpperUpper(d, sums[1], sums[0]), d, out + hn::MaxLanes(d));
  }
}

template <int kCount, size_t kRows, class Weights>
void FilterPairsBy(const ColumnPlan<uint16_t>& plan, const Weights weights,
                   const std::array<const uint16_t*, kRows> rows, const std::array<float*, kRows> out) {
  using D = hn::CappedTag<float, 8>;
  const Taps taps = plan.taps;
  const auto filter = [=](ptrdiff_t x) HWY_ATTR {
    hn::Vec<D> sums[kRows][2];
    for (size_t i = 0; i < kRows; ++i) SumPairs<kCount>(D(), taps, weights, rows[i], x, sums[i]);
    for (size_t i = 0; i < kRows; ++i) StorePairs(D(), sums[i], out[i] + 2 * x);
  };
  const ptrdiff_t last = plan.to - ptrdiff_t{hn::MaxLanes(D())};
  for (ptrdiff_t x = taps.from; x < last; x += hn::MaxLanes(D())) filter(x);
  filter(last);
}

// Linear interpolation has two taps, Lanczos four or six, all of which are read.
template <size_t kRows, class Weights>
void FilterPairsAcross(const ColumnPlan<uint16_t>& plan, const Weights& weights,
                       const std::array<const uint16_t*, kRows>& rows, const std::array<float*, kRows>& out) {
  FilterByCount<Weights, 2, 4, 6>(plan.taps.count, true, [&](auto n) {
    if constexpr (n.value > 0) FilterPairsBy<n.value>(plan, weights, rows, out);
  });
}

}  // namespace qvp::resize
