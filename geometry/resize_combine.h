// Weighted sums of filtered rows, down.
#pragma once

#include "geometry/block_sum.h"
#include "geometry/resize_rows.h"
#include "geometry/resize_store.h"

namespace qvp::resize {

// dst = the weighted sum of kRows rows, as many as there are taps.
template <int kRows, class T, class Weights>
void AddRows(const RowRing<float>& ring, const Weights& weights, const Taps& taps, ptrdiff_t y, T* dst, ptrdiff_t n) {
  const hn::ScalableTag<float> d;
  const std::array<const float*, kRows> row = ring.template Rows<kRows>(taps.first[y]);
  float w[kRows];
  for (int k = 0; k < kRows; ++k) w[k] = weights.At(k, y);
  StoreRow(d, dst, n, [&](ptrdiff_t i) HWY_ATTR {
    auto sum = hn::Mul(hn::LoadU(d, row[0] + i), hn::Set(d, w[0]));
    for (int k = 1; k < kRows; ++k) sum = hn::Add(sum, hn::Mul(hn::LoadU(d, row[k] + i), hn::Set(d, w[k])));
    return sum;
  });
}

// The same for any number of taps up to kBlockTaps, some of which may be left out.
template <class T, class Weights>
void AddRing(const RowRing<float>& ring, const Weights& weights, const Taps& taps, ptrdiff_t y, T* dst, ptrdiff_t n) {
  const hn::ScalableTag<float> d;
  const float* rows[kBlockTaps];
  float w[kBlockTaps];
  const int count = CountRead(taps, weights, y);
  for (int k = 0; k < count; ++k) {
    rows[k] = ring.Row(taps.first[y] + k);
    w[k] = weights.At(k, y);
  }
  // The sums of `vectors` vectors from place i on, which share what is loaded for a tap.
  const auto add = [&](ptrdiff_t i, auto vectors, hn::Vec<decltype(d)>* sums) HWY_ATTR {
    constexpr ptrdiff_t kLanes = hn::MaxLanes(decltype(d)());
    for (int v = 0; v < vectors; ++v) sums[v] = hn::Mul(hn::LoadU(d, rows[0] + i + v * kLanes), hn::Set(d, w[0]));
    for (int k = 1; k < count; ++k) {
      const auto weight = hn::Set(d, w[k]);
      for (int v = 0; v < vectors; ++v) {
        sums[v] = hn::Add(sums[v], hn::Mul(hn::LoadU(d, rows[k] + i + v * kLanes), weight));
      }
    }
    for (int k = count; k < taps.count; ++k) {
      for (int v = 0; v < vectors; ++v) sums[v] = hn::Add(sums[v], hn::Zero(d));
    }
  };
  StoreRowByFours(d, dst, n, add);
}

// The same for more taps, by blocks of them.
template <class T, class Weights>
void AddBlocks(const RowRing<float>& ring, const Weights& weights, const Taps& taps, ptrdiff_t y, T* dst, ptrdiff_t n) {
  const hn::ScalableTag<float> d;
  using V = hn::Vec<decltype(d)>;
  const float* const begin = ring.at;
  const float* const end = begin + ring.places * ring.step;
  const float* const first = ring.Row(taps.first[y]);
  const ptrdiff_t step = ring.step;
  const int count = CountRead(taps, weights, y);
  const auto add = [&](ptrdiff_t i, auto vectors, V* sums) HWY_ATTR {
    constexpr ptrdiff_t kLanes = hn::MaxLanes(decltype(d)());
    BlockSum<V> totals[decltype(vectors)::value];
    const float* row = first;
    for (int k = 0; k < count;) {
      for (const int begins = k, ends = std::min(k + kBlockTaps, count); k < ends; ++k) {
        const auto weight = hn::Set(d, weights.At(k, y));
        for (int v = 0; v < vectors; ++v) {
          const auto product = hn::Mul(hn::LoadU(d, row + i + v * kLanes), weight);
          sums[v] = k == begins ? product : hn::Add(sums[v], product);
        }
        row = row + step == end ? begin : row + step;
      }
      for (int v = 0; v < vectors; ++v) {
        if (k <= kBlockTaps) totals[v] = BlockSum<V>(sums[v]);
        if (k > kBlockTaps) totals[v].Add(sums[v]);
      }
    }
    for (int v = 0; v < vectors; ++v) sums[v] = totals[v].Rounded();
  };
  StoreRowByFours(d, dst, n, add);
}

}  // namespace qvp::resize
