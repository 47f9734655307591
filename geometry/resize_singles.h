// Filtering of one channel across, as many columns at once as a vector has lanes.
#pragma once

#include "base/blocks.h"
#include "geometry/resize_columns.h"

namespace qvp::resize {

// Four samples of one place and of another one, in the low and the high block of a vector, and so on.
template <class D, class T>
HWY_INLINE hn::Vec<D> LoadFours(D d, const T* row, const int32_t* places, ptrdiff_t k) {
  const auto four = [&](int i) HWY_ATTR { return LoadWide(hn::Full128<float>(), row + places[4 * i] + k); };
  return FromBlocks(d, four);
}

// take(k, samples) for the taps [k, k + 4) of as many columns as lanes, up to `count`: four samples of each are
// transposed into a vector for each tap.
template <class D, class T, class Take>
HWY_INLINE void TakeFours(D d, const T* row, const int32_t* places, int k, int count, const Take& take) {
  const hn::Repartition<double, D> pairs;
  const auto a = LoadFours(d, row, places, k), b = LoadFours(d, row, places + 1, k);
  const auto c = LoadFours(d, row, places + 2, k), e = LoadFours(d, row, places + 3, k);
  const auto ab = hn::BitCast(pairs, hn::InterleaveLower(d, a, b));
  const auto ce = hn::BitCast(pairs, hn::InterleaveLower(d, c, e));
  take(k, hn::BitCast(d, hn::InterleaveLower(pairs, ab, ce)));
  if (k + 1 < count) take(k + 1, hn::BitCast(d, hn::InterleaveUpper(pairs, ab, ce)));
  if (k + 2 >= count) return;
  const auto upperAb = hn::BitCast(pairs, hn::InterleaveUpper(d, a, b));
  const auto upperCe = hn::BitCast(pairs, hn::InterleaveUpper(d, c, e));
  take(k + 2, hn::BitCast(d, hn::InterleaveLower(pairs, upperAb, upperCe)));
  if (k + 3 < count) take(k + 3, hn::BitCast(d, hn::InterleaveUpper(pairs, upperAb, upperCe)));
}

// The total of the blocks before tap k, of which the last one is `block`.
template <class V>
HWY_INLINE BlockSum<V> NextTotal(BlockSum<V> total, V block, int k) {
  if (k == kBlockTaps) return BlockSum<V>(block);
  total.Add(block);
  return total;
}
template <class V>
HWY_INLINE V WithLast(BlockSum<V> total, V block) {
  total.Add(block);
  return total.Rounded();
}

// One channel: as many columns as lanes. An even number of taps that is known has no tap that may be left out.
template <int kCount, class D, class T, class Weights>
HWY_INLINE hn::Vec<D> FilterSingles(D d, const Taps& taps, const Weights& weights, const T* row, ptrdiff_t x) {
  const int32_t* first = taps.first + x;
  const int count = kCount > 0 ? kCount : taps.count;
  const int certain = kCount % 2 == 0 && kCount > 0 ? kCount : taps.certain;
  auto sum = hn::Zero(d);
  BlockSum<hn::Vec<D>> total;
  const auto add = [&](int k, auto samples) HWY_ATTR QVP_INLINED {
    const auto w = weights.Load(d, k, x);
    if (k >= certain) samples = hn::IfThenElseZero(hn::Ne(w, hn::Zero(d)), samples);
    const auto product = hn::Mul(samples, w);
    sum = (kCount == kMany ? k % kBlockTaps : k) != 0 ? hn::Add(sum, product)
          : k < certain                               ? product
                                                      : hn::Add(hn::Zero(d), product);
  };
  for (int k = 0; k < count; k += 4) {
    if (kCount == kMany && k > 0 && k % kBlockTaps == 0) total = NextTotal(total, sum, k);
    TakeFours(d, row, first, k, count, add);
  }
  return kCount == kMany ? WithLast(total, sum) : sum;
}

// Two near taps of as many columns as lanes. The places of the taps among the eight samples from that of the first
// column of four on, or the last eight of the row, are found once for several rows.
template <class D, class T>
class PickedPairs {
 public:
  HWY_INLINE PickedPairs(D, const int32_t* first, int32_t last)
      : low_(std::min(first[0], last)), high_(std::min(first[hn::MaxLanes(D()) - 4], last)) {
    const auto places = hn::LoadU(Ints(), first);
    const auto apart = hn::Sub(places, hn::Min(hn::Broadcast<0>(places), hn::Set(Ints(), last)));
    if constexpr (sizeof(T) == 4) {
      places_ = apart;
    } else {  // the bytes of a lane are those of two successive samples
      HWY_ALIGN static constexpr uint8_t kSpread[16] = {0, 0, 0, 0, 4, 4, 4, 4, 8, 8, 8, 8, 12, 12, 12, 12};
      const auto spread =
          hn::TableLookupBytes(hn::BitCast(Bytes(), hn::Add(apart, apart)), hn::LoadDup128(Bytes(), kSpread));
      places_ = hn::BitCast(Ints(), hn::Add(spread, hn::BitCast(Bytes(), hn::Set(Ints(), 0x03020100))));
    }
  }

  // The first times `left`, and the second times `right`, added.
  HWY_INLINE hn::Vec<D> WeightedSum(const T* row, hn::Vec<D> left, hn::Vec<D> right) const {
    const D d;
    if constexpr (sizeof(T) == 4) {
      const auto low = hn::LoadU(d, row + low_), high = hn::LoadU(d, row + high_);
      const auto pick = [&](auto at) HWY_ATTR {
        const auto lanes = hn::IndicesFromVec(d, at);
        return hn::ConcatUpperLower(d, hn::TableLookupLanes(high, lanes), hn::TableLookupLanes(low, lanes));
      };
      const auto second = pick(hn::Add(places_, hn::Set(Ints(), 1)));
      return hn::Add(hn::Mul(pick(places_), left), hn::Mul(second, right));
    } else {
      const auto pairs = hn::BitCast(Lanes(), hn::TableLookupBytes(Blocks(row), hn::BitCast(Bytes(), places_)));
      const auto first = hn::ShiftRight<16>(hn::ShiftLeft<16>(pairs)), second = hn::ShiftRight<16>(pairs);
      const auto product = [&](auto v, auto w)
                               HWY_ATTR { return hn::Mul(hn::ConvertTo(d, hn::BitCast(Ints(), v)), w); };
      return hn::Add(product(first, left), product(second, right));
    }
  }

 private:
  using Ints = hn::Rebind<int32_t, D>;
  using Bytes = hn::Repartition<uint8_t, D>;
  using Lanes = hn::Rebind<std::conditional_t<std::is_signed_v<T>, int32_t, uint32_t>, D>;

  HWY_INLINE hn::Vec<Bytes> Blocks(const T* row) const {
    return FromBlocks(Bytes(), [&](int i) HWY_ATTR {
      return hn::LoadU(hn::Full128<uint8_t>(), reinterpret_cast<const uint8_t*>(row + (i == 0 ? low_ : high_)));
    });
  }

  ptrdiff_t low_, high_;
  hn::Vec<Ints> places_;
};

template <int kCount, size_t kRows, class T, class Weights>
void FilterSinglesBy(const ColumnPlan<T>& plan, const Weights weights, const std::array<const T*, kRows> rows,
                     const std::array<float*, kRows> out) {
  using D = hn::CappedTag<float, 8>;
  const Taps taps = plan.taps;
  const auto filter = [=](ptrdiff_t x) HWY_ATTR {
    hn::Vec<D> sums[kRows];
    for (size_t i = 0; i < kRows; ++i) sums[i] = FilterSingles<kCount>(D(), taps, weights, rows[i], x);
    for (size_t i = 0; i < kRows; ++i) hn::StoreU(sums[i], D(), out[i] + x);
  };
  const ptrdiff_t last = plan.to - ptrdiff_t{hn::MaxLanes(D())};
  for (ptrdiff_t x = taps.from; x < last; x += hn::MaxLanes(D())) filter(x);
  filter(last);
}

template <size_t kRows, class T, class Weights>
void PickAcross(const ColumnPlan<T>& plan, const Weights weights, const std::array<const T*, kRows> rows,
                const std::array<float*, kRows> out) {
  using D = hn::CappedTag<float, 8>;
  constexpr ptrdiff_t kLanes = hn::MaxLanes(D());
  const int32_t* first = plan.taps.first;
  const auto lastPicked = static_cast<int32_t>(plan.lastPicked);
  const auto filter = [=](ptrdiff_t x, int32_t picked) HWY_ATTR QVP_INLINED {
    const PickedPairs<D, T> pairs(D(), first + x, picked);
    const auto left = weights.Load(D(), 0, x), right = weights.Load(D(), 1, x);
    for (size_t i = 0; i < kRows; ++i) hn::StoreU(pairs.WeightedSum(rows[i], left, right), D(), out[i] + x);
  };
  const ptrdiff_t last = plan.to - kLanes;
  ptrdiff_t x = plan.taps.from;
  for (; x < last && first[x + kLanes - 4] <= lastPicked; x += kLanes) filter(x, INT32_MAX);
  for (bool isLast = false; !isLast; x += kLanes) {
    isLast = x >= last;
    filter(std::min(x, last), lastPicked);
  }
}

// One channel. The usual numbers of taps have loops of their own.
template <size_t kRows, class T, class Weights>
void FilterSinglesAcross(const ColumnPlan<T>& plan, const Weights& weights, const std::array<const T*, kRows>& rows,
                         const std::array<float*, kRows>& out) {
  const Taps& taps = plan.taps;
  const bool areKnown = taps.certain == taps.count || taps.count == 3;
  FilterByCount<Weights, 2, 3, 4, 6>(taps.count, areKnown,
                                     [&](auto n) { FilterSinglesBy<n.value>(plan, weights, rows, out); });
}

}  // namespace qvp::resize
