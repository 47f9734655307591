// The columns of a tile, and their filtering one by one.
#pragma once

#include <array>

#include "base/map.h"
#include "base/scalar.h"
#include "geometry/block_sum.h"
#include "geometry/resize_weights.h"

namespace qvp::resize {

// Whether two taps of four successive columns at a time can be picked out of eight samples: 16-bit ones by a shuffle of
// bytes, single floats where there are lookups across 32 bytes.
template <class T>
inline constexpr bool kCanPick = sizeof(T) == 2 || (sizeof(T) == 4 && hn::MaxLanes(hn::CappedTag<float, 8>()) == 8);
inline constexpr ptrdiff_t kPickedFrom = 8;

// Columns of a tile: which of them the vector kernels may compute, and the others one by one.
template <class T>
struct ColumnPlan {
  Taps taps;
  Edge edge;
  int channels;
  bool arePicked;            // of one channel, by pairs of taps that are near
  ptrdiff_t to;              // of the columns [taps.from, to) the kernels may read and write as much as they do
  ptrdiff_t lastPicked = 0;  // the last eight samples of these begin here

  ColumnPlan(const Taps& t, const Edge& e, int nc, bool areNear = false)
      : taps(t), edge(e), channels(nc), arePicked(kCanPick<T> && areNear && nc == 1 && t.certain == 2), to(t.to) {
    if (t.from == t.to) return;
    const ptrdiff_t end = t.first[t.to - 1] + t.certain;
    if (arePicked) {
      lastPicked = end - kPickedFrom;
      if (lastPicked < t.first[t.from]) to = t.from;
      return;
    }
    const ptrdiff_t read = nc <= 2 ? (t.count + 3) / 4 * 4 : t.count + (nc == 3 ? 1 : 0);
    if (nc == 3) to = std::min(to, t.length - 1);  // four samples are written for three
    while (to > t.from && t.first[to - 1] + read > end) --to;
  }
};

// In place of a number of taps: any up to a block, and any above that.
inline constexpr int kFew = 0, kMany = -1;

// filter(n) for a number n that is known when it is compiled: that of the taps if it is one of kOwn, for which there
// are loops of their own, and if all taps are read, else kFew or kMany.
template <class Weights, int... kOwn, class Filter>
HWY_INLINE void FilterByCount(int count, bool areAllRead, const Filter& filter) {
  [[maybe_unused]] const auto isOwn = [&](auto own) {
    if constexpr (own.value <= Weights::kMostTaps) {
      if (areAllRead && count == own.value) return filter(own), true;
    }
    return false;
  };
  if ((isOwn(std::integral_constant<int, kOwn>()) || ...)) return;
  if constexpr (Weights::kMostTaps > kBlockTaps) {
    if (count > kBlockTaps) return filter(std::integral_constant<int, kMany>());
  }
  filter(std::integral_constant<int, kFew>());
}

constexpr int kMostChannels = 4;

// Adds up the taps [begin, end) one by one: the products of samples(k), as many as there are channels, with weight(k).
// A tap that may be left out contributes 0 where its weight is 0, whatever lies there. `channels` is a number, or a
// type that stands for one.
template <class F, class Count, class Samples, class Weight>
HWY_INLINE void AddTapsOf(const Taps& taps, int begin, int end, Count channels, const Samples& samples,
                          const Weight& weight, F* sums) {
  const int certain = std::min(taps.certain, end);
  int k = begin;
  // To -0 anything can be added without a change.
  for (int c = 0; c < channels; ++c) sums[c] = k < certain ? -F{0} : F{0};
  for (; k < certain; ++k) {
    const F w = static_cast<F>(weight(k));
    const auto pixel = samples(k, true);
    for (int c = 0; c < channels; ++c) sums[c] += static_cast<F>(LoadScalar(pixel + c)) * w;
  }
  for (; k < end; ++k) {
    const F w = static_cast<F>(weight(k));
    const auto pixel = samples(k, w != 0);
    for (int c = 0; c < channels; ++c) sums[c] += w != 0 ? static_cast<F>(LoadScalar(pixel + c)) * w : F{0};
  }
}

// All taps: by blocks if there are more than one.
template <bool kAreMany, class F, class Count, class Samples, class Weight>
HWY_INLINE void AddTaps(const Taps& taps, Count channels, const Samples& samples, const Weight& weight, F* sums) {
  if constexpr (!kAreMany) return AddTapsOf(taps, 0, taps.count, channels, samples, weight, sums);
  BlockSum<F> totals[kMostChannels];
  for (int k = 0; k < taps.count; k += kBlockTaps) {
    AddTapsOf(taps, k, std::min(k + kBlockTaps, taps.count), channels, samples, weight, sums);
    for (int c = 0; c < channels; ++c) {
      if (k == 0) totals[c] = BlockSum<F>(sums[c]);
      if (k > 0) totals[c].Add(sums[c]);
    }
  }
  for (int c = 0; c < channels; ++c) sums[c] = totals[c].Rounded();
}

// One pixel of a row, across.
template <bool kAreMany, class F, class Count, class T, class Weights>
HWY_INLINE void FilterPixel(const ColumnPlan<T>& plan, Count channels, const Weights& weights, const T* row,
                            ptrdiff_t x, F* sums) {
  const auto pixel = [&](int k, bool isRead) HWY_ATTR QVP_INLINED {
    return isRead ? row + plan.edge(plan.taps.first[x] + k) * channels : row;
  };
  AddTaps<kAreMany>(
      plan.taps, channels, pixel, [&](int k) HWY_ATTR { return weights.At(k, x); }, sums);
}

template <int kChannels, bool kAreMany, class T, class Weights>
void FilterEach(const ColumnPlan<T>& plan, const Weights& weights, const T* row, ptrdiff_t begin, ptrdiff_t end,
                float* out) {
  constexpr std::integral_constant<int, kChannels> kCount;
  for (ptrdiff_t x = begin; x < end; ++x) {
    float sums[kChannels];
    FilterPixel<kAreMany>(plan, kCount, weights, row, x, sums);
    std::copy_n(sums, kChannels, out + x * kChannels);
  }
}

template <class T, class Weights>
void FilterOneByOne(const ColumnPlan<T>& plan, const Weights& weights, const T* row, ptrdiff_t begin, ptrdiff_t end,
                    float* out) {
  if (begin >= end) return;
  FilterByCount<Weights>(plan.taps.count, false, [&](auto n) {
    constexpr bool kAreMany = n.value == kMany;
    const auto filter = plan.channels == 1   ? FilterEach<1, kAreMany, T, Weights>
                        : plan.channels == 2 ? FilterEach<2, kAreMany, T, Weights>
                        : plan.channels == 3 ? FilterEach<3, kAreMany, T, Weights>
                                             : FilterEach<4, kAreMany, T, Weights>;
    filter(plan, weights, row, begin, end, out);
  });
}

// The columns on both sides of those that vector kernels computed, [taps.from, done).
template <class T, class Weights>
void FilterEnds(const ColumnPlan<T>& plan, const Weights& weights, ptrdiff_t done, const T* row, float* out) {
  FilterOneByOne(plan, weights, row, done, plan.taps.length, out);
  FilterOneByOne(plan, weights, row, 0, plan.taps.from, out);
}

}  // namespace qvp::resize
