// Filtering of three or four channels across: a pixel is a block of a vector.
#pragma once

#include "base/blocks.h"
#include "geometry/resize_columns.h"

namespace qvp::resize {

// Pixels of four samples, one in each block of 16 bytes of floats: as many rows as a vector has blocks.
template <class D, class T>
HWY_INLINE hn::Vec<D> LoadPixels(D d, const T* const* pixels, ptrdiff_t at) {
  const hn::Rebind<T, hn::Full128<float>> pixel;
  if constexpr (kBlocksOf<D> == 1) {
    return LoadWide(d, pixels[0] + at);
  } else {  // joined while narrow, and widened at once
    const auto first = hn::LoadU(pixel, pixels[0] + at), second = hn::LoadU(pixel, pixels[1] + at);
    const auto both = hn::Combine(hn::Rebind<T, D>(), second, first);
    if constexpr (sizeof(T) == sizeof(float)) {
      return both;
    } else {
      return hn::ConvertTo(d, hn::PromoteTo(hn::Rebind<int32_t, D>(), both));
    }
  }
}

// Three or four channels: a block holds a pixel; of three channels its last lane is not used. pixel(i, k, v) is that of
// tap k for the column x + i, of the rows that are in vector v.
template <int kColumns, int kVectors, class D, class Weights, class Pixel>
HWY_INLINE void FilterBlock(D d, const Taps& taps, int begin, int end, const Weights& weights, ptrdiff_t x,
                            const Pixel& pixel, hn::Vec<D>* sums) {
  const int certain = std::min(taps.certain, end);
  const auto begins = [&](int i, int k) HWY_ATTR {
    const auto w = hn::Set(d, weights.At(k, x + i));
    for (int v = 0; v < kVectors; ++v) sums[i * kVectors + v] = hn::Mul(pixel(i, k, v), w);
  };
  const auto add = [&](int i, int k) HWY_ATTR {
    const auto w = hn::Set(d, weights.At(k, x + i));
    hn::Vec<D>* sum = sums + i * kVectors;
    for (int v = 0; v < kVectors; ++v) sum[v] = hn::Add(sum[v], hn::Mul(pixel(i, k, v), w));
  };
  int k = begin;
  if (begin == 0 || k < certain) {  // the first tap is always read
    for (int i = 0; i < kColumns; ++i) begins(i, k);
    for (++k; k < certain; ++k) {
      for (int i = 0; i < kColumns; ++i) add(i, k);
    }
  } else {
    for (int i = 0; i < kColumns * kVectors; ++i) sums[i] = hn::Zero(d);
  }
  for (; k < end; ++k) {
    for (int i = 0; i < kColumns; ++i) {
      if (weights.At(k, x + i) != 0) {
        add(i, k);
      } else {
        for (int v = 0; v < kVectors; ++v) sums[i * kVectors + v] = hn::Add(sums[i * kVectors + v], hn::Zero(d));
      }
    }
  }
}

// All taps, of which there are more than a block if kAreMany.
template <bool kAreMany, int kColumns, int kVectors, class D, class Weights, class Pixel>
HWY_INLINE void FilterPixels(D d, const Taps& taps, const Weights& weights, ptrdiff_t x, const Pixel& pixel,
                             hn::Vec<D>* sums) {
  const int count = taps.count;
  if constexpr (!kAreMany) {
    return FilterBlock<kColumns, kVectors>(d, taps, 0, count, weights, x, pixel, sums);
  }
  BlockSum<hn::Vec<D>> totals[kColumns * kVectors];
  for (int k = 0; k < count; k += kBlockTaps) {
    FilterBlock<kColumns, kVectors>(d, taps, k, std::min(k + kBlockTaps, count), weights, x, pixel, sums);
    for (int i = 0; i < kColumns * kVectors; ++i) {
      if (k == 0) totals[i] = BlockSum<hn::Vec<D>>(sums[i]);
      if (k > 0) totals[i].Add(sums[i]);
    }
  }
  for (int i = 0; i < kColumns * kVectors; ++i) sums[i] = totals[i].Rounded();
}

// As many rows at once as kVectors vectors have blocks.
template <class D, class T, int kVectors>
class PixelRows {
 public:
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(D()), kPixel = kVectors * kLanes;  // of staged floats
  static constexpr int kBlocks = kBlocksOf<D>, kRows = kVectors * kBlocks;

  PixelRows(const T* const* rows, float* const* out, int channels) : channels_(channels) {
    std::copy_n(rows, kRows, rows_);
    std::copy_n(out, kRows, out_);
  }

  HWY_INLINE hn::Vec<D> Load(ptrdiff_t pixel, int v) const {
    return LoadPixels(D(), rows_ + v * kBlocks, pixel * channels_);
  }

  // n pixels as Load gives them, one after the other. Several bytes are turned into pixels by shuffles of one load.
  void Stage(ptrdiff_t first, ptrdiff_t n, float* staged) const {
    for (int v = 0; v < kVectors; ++v, staged += kLanes) {
      ptrdiff_t i = 0;
      if constexpr (sizeof(T) == 1) {
        const ptrdiff_t loaded = (kBlockBytes + channels_ - 1) / channels_;  // pixels that a load touches
        for (; i + loaded <= n; i += kAtOnce) StageBytes(v, first + i, staged + i * kPixel);
      }
      for (; i < n; ++i) hn::Store(Load(first + i, v), D(), staged + i * kPixel);
    }
  }

  // Those of the columns from x on.
  template <int kColumns>
  HWY_INLINE void Store(const hn::Vec<D>* pixels, ptrdiff_t x) const {
    const hn::Full128<float> block;
    ptrdiff_t at = x * channels_;
    for (int i = 0; i < kColumns; ++i, at += channels_) {
      for (int v = 0; v < kVectors; ++v) {
        const auto pixel = pixels[i * kVectors + v];
        float* const* out = out_ + v * kBlocks;
        if constexpr (kBlocks == 1) {
          hn::StoreU(pixel, block, out[0] + at);
        } else {
          hn::StoreU(hn::LowerHalf(block, pixel), block, out[0] + at);
          hn::StoreU(hn::UpperHalf(block, pixel), block, out[1] + at);
        }
      }
    }
  }

 private:
  static constexpr ptrdiff_t kAtOnce = 4;

  HWY_INLINE void StageBytes(int v, ptrdiff_t first, float* staged) const {
    HWY_ALIGN static constexpr uint8_t kSpread[16] = {0, 128, 128, 128, 1, 128, 128, 128,
                                                      2, 128, 128, 128, 3, 128, 128, 128};
    const hn::Repartition<uint8_t, D> bytes;
    const T* const* rows = rows_ + v * kBlocks;
    const auto samples = FromBlocks(
        bytes, [&](int i) HWY_ATTR { return hn::LoadU(hn::Full128<uint8_t>(), rows[i] + first * channels_); });
    const auto next = hn::BitCast(bytes, hn::Set(hn::Rebind<int32_t, D>(), static_cast<int32_t>(channels_)));
    auto spread = hn::LoadDup128(bytes, kSpread);
    for (ptrdiff_t i = 0; i < kAtOnce; ++i, spread = hn::Add(spread, next)) {
      const auto pixel = hn::BitCast(hn::Rebind<int32_t, D>(), hn::TableLookupBytesOr0(samples, spread));
      hn::Store(hn::ConvertTo(D(), pixel), D(), staged + i * kPixel);
    }
  }

  const T* rows_[kRows];
  float* out_[kRows];
  ptrdiff_t channels_;
};

// From three taps on pixels are used often enough to be converted beforehand, for a piece of the columns; floats, which
// are only copied, from four on.
inline constexpr ptrdiff_t kStagedPixels = 192;
template <class T>
bool AreStaged(const Taps& taps) {
  return taps.count >= (std::is_same_v<T, float> ? 4 : 3) && taps.count <= kStagedPixels;
}

// kColumns columns from x on. The pixel at position `base` is the first that is staged.
template <bool kAreMany, int kColumns, class D, class T, class Weights, int kVectors>
HWY_INLINE void FilterStaged(D d, const Taps& taps, const Weights& weights, ptrdiff_t x, const float* staged,
                             ptrdiff_t base, const PixelRows<D, T, kVectors>& rows) {
  using Rows = PixelRows<D, T, kVectors>;
  constexpr ptrdiff_t kLanes = Rows::kLanes, kPixel = Rows::kPixel;
  const float* first[kColumns];
  for (int i = 0; i < kColumns; ++i) first[i] = staged + (taps.first[x + i] - base) * kPixel;
  const auto pixel = [&](int i, int k, int v) HWY_ATTR { return hn::Load(d, first[i] + k * kPixel + v * kLanes); };
  hn::Vec<D> sums[kColumns * kVectors];
  FilterPixels<kAreMany, kColumns, kVectors>(d, taps, weights, x, pixel, sums);
  rows.template Store<kColumns>(sums, x);
}

template <bool kAreMany, class D, class T, class Weights, int kVectors>
void FilterStagedBy(D d, const Taps taps, ptrdiff_t to, const Weights weights, const PixelRows<D, T, kVectors>& from) {
  using Rows = PixelRows<D, T, kVectors>;
  const Rows rows = from;  // a copy, which stores cannot change
  constexpr ptrdiff_t kAtOnce = 4;
  HWY_ALIGN float staged[kStagedPixels * Rows::kPixel];
  for (ptrdiff_t x = taps.from, end = x; x < to;) {
    const ptrdiff_t base = taps.first[x];
    const auto isStaged = [&](ptrdiff_t column) { return taps.first[column] + taps.count - base <= kStagedPixels; };
    while (end + kAtOnce <= to && isStaged(end + kAtOnce - 1)) end += kAtOnce;
    while (end < to && isStaged(end)) ++end;
    const ptrdiff_t pixels = taps.first[end - 1] + taps.count - base;
    rows.Stage(base, pixels, staged);
    for (; x + kAtOnce <= end; x += kAtOnce) FilterStaged<kAreMany, kAtOnce>(d, taps, weights, x, staged, base, rows);
    for (; x < end; ++x) FilterStaged<kAreMany, 1>(d, taps, weights, x, staged, base, rows);
  }
}

template <class D, class T, class Weights, int kVectors>
void FilterStagedAcross(D d, const Taps& taps, ptrdiff_t to, const Weights& weights,
                        const PixelRows<D, T, kVectors>& rows) {
  FilterByCount<Weights>(taps.count, false,
                         [&](auto n) { FilterStagedBy<n.value == kMany>(d, taps, to, weights, rows); });
}

// With 2 or 3 taps that are known all are read; kCount is kFew or kMany else.
template <int kCount, class D, class T, class Weights>
void FilterDirectly(D d, const Taps all, ptrdiff_t to, const Weights weights, const PixelRows<D, T, 1>& from) {
  const PixelRows<D, T, 1> rows = from;  // a copy, which stores cannot change
  Taps taps = all;
  if (kCount > 0) taps.count = taps.certain = kCount;
  for (ptrdiff_t x = taps.from; x < to; ++x) {
    hn::Vec<D> sum;
    const auto pixel = [&](int, int k, int) HWY_ATTR { return rows.Load(taps.first[x] + k, 0); };
    FilterPixels<kCount == kMany, 1, 1>(d, taps, weights, x, pixel, &sum);
    rows.template Store<1>(&sum, x);
  }
}

template <class D, class T, class Weights>
void FilterPixelsAcross(D d, const ColumnPlan<T>& plan, const Weights& weights, const T* const* from,
                        float* const* out) {
  const PixelRows<D, T, 1> rows(from, out, plan.channels);
  const Taps& taps = plan.taps;
  if constexpr (Weights::kMostTaps > 2) {
    if (AreStaged<T>(taps)) return FilterStagedAcross(d, taps, plan.to, weights, rows);
  }
  FilterByCount<Weights, 2, 3>(taps.count, taps.certain == taps.count,
                               [&](auto n) { FilterDirectly<n.value>(d, taps, plan.to, weights, rows); });
}

}  // namespace qvp::resize
