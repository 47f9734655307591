// Resizing in floating point: rows of the source are filtered across into rows of floats, and these are combined down.
// Every output is the sum of its products in the order of the taps, each rounded.
#pragma once

#include <array>

#include "base/map.h"
#include "geometry/resize_weights.h"

namespace qvp::resize {

// Whether two taps of four successive columns at a time can be picked out of eight samples: 16-bit ones by a shuffle of
// bytes, single floats where there are lookups across 32 bytes.
template <class T>
inline constexpr bool kCanPick = sizeof(T) == 2 || (sizeof(T) == 4 && HWY_TARGET <= HWY_AVX2);
inline constexpr ptrdiff_t kPickedFrom = 8;

// Columns of a tile: which of them the vector kernels may compute, and the others one by one.
template <class T>
struct ColumnPlan {
  Taps taps;
  Edge edge;
  int channels;
  bool arePicked;  // of one channel, by pairs of taps that are near
  ptrdiff_t to;    // of the columns [taps.from, to) the kernels may read and write as much as they do

  ColumnPlan(const Taps& t, const Edge& e, int nc, bool areNear = false)
      : taps(t), edge(e), channels(nc), arePicked(kCanPick<T> && areNear && nc == 1), to(t.to) {
    if (t.from == t.to) return;
    const ptrdiff_t end = t.first[t.to - 1] + t.certain;
    if (arePicked) {
      while (to - t.from >= 4 && t.first[to - 4] + kPickedFrom > end) --to;
      return;
    }
    const ptrdiff_t read = nc == 1 ? (t.count + 3) / 4 * 4 : t.count + (nc == 3 ? 1 : 0);
    if (nc == 3) to = std::min(to, t.length - 1);  // four samples are written for three
    while (to > t.from && t.first[to - 1] + read > end) --to;
  }
};

constexpr int kMostChannels = 4;

// Adds up taps one by one: the products of samples(k), as many as there are channels, with weight(k). A tap that may be
// left out contributes 0 where its weight is 0, whatever lies there. `channels` is a number, or a type that stands for
// one.
template <class F, class Count, class Samples, class Weight>
HWY_INLINE void AddTaps(const Taps& taps, Count channels, const Samples& samples, const Weight& weight, F* sums) {
  for (int k = 0; k < taps.count; ++k) {
    const F w = static_cast<F>(weight(k));
    const bool isRead = k < taps.certain || w != 0;
    const auto sample = samples(k, isRead);
    for (int c = 0; c < channels; ++c) {
      const F product = isRead ? static_cast<F>(sample[c]) * w : F{0};
      sums[c] = k == 0 ? product : sums[c] + product;
    }
  }
}

// One pixel of a row, across.
template <class F, class Count, class T, class Weights>
HWY_INLINE void FilterPixel(const ColumnPlan<T>& plan, Count channels, const Weights& weights, const T* row,
                            ptrdiff_t x, F* sums) {
  const auto pixel = [&](int k, bool isRead)
                         HWY_ATTR { return isRead ? row + plan.edge(plan.taps.first[x] + k) * channels : row; };
  AddTaps(
      plan.taps, channels, pixel, [&](int k) HWY_ATTR { return weights.At(k, x); }, sums);
}

template <int kChannels, class T, class Weights>
void FilterEach(const ColumnPlan<T>& plan, const Weights& weights, const T* row, ptrdiff_t begin, ptrdiff_t end,
                float* out) {
  constexpr std::integral_constant<int, kChannels> kCount;
  for (ptrdiff_t x = begin; x < end; ++x) {
    float sums[kChannels];
    FilterPixel(plan, kCount, weights, row, x, sums);
    std::copy_n(sums, kChannels, out + x * kChannels);
  }
}

template <class T, class Weights>
void FilterOneByOne(const ColumnPlan<T>& plan, const Weights& weights, const T* row, ptrdiff_t begin, ptrdiff_t end,
                    float* out) {
  if (begin >= end) return;
  if (plan.channels == 1) return FilterEach<1>(plan, weights, row, begin, end, out);
  if (plan.channels == 3) return FilterEach<3>(plan, weights, row, begin, end, out);
  FilterEach<4>(plan, weights, row, begin, end, out);
}

// The columns on both sides of those that vector kernels computed, [taps.from, done).
template <class T, class Weights>
void FilterEnds(const ColumnPlan<T>& plan, const Weights& weights, ptrdiff_t done, const T* row, float* out) {
  FilterOneByOne(plan, weights, row, done, plan.taps.length, out);
  FilterOneByOne(plan, weights, row, 0, plan.taps.from, out);
}

// Four samples of one place and of another one, in the low and the high block of a vector, and so on.
template <class D, class T>
HWY_INLINE hn::Vec<D> LoadFours(D d, const T* row, const int32_t* places, ptrdiff_t k) {
  const hn::Full128<float> block;
  const auto low = LoadWide(block, row + places[0] + k);
#if HWY_TARGET <= HWY_AVX2
  return hn::Combine(d, LoadWide(block, row + places[4] + k), low);
#else
  (void)d;
  return low;
#endif
}

// One channel: as many columns as lanes, four taps at a time, which are transposed into a vector for each tap. An even
// number of taps that is known has no tap that may be left out.
template <int kCount, class D, class T, class Weights>
HWY_INLINE hn::Vec<D> FilterSingles(D d, const Taps& taps, const Weights& weights, const T* row, ptrdiff_t x) {
  const hn::Repartition<double, D> pairs;
  const int32_t* first = taps.first + x;
  const int count = kCount ? kCount : taps.count, certain = kCount % 2 == 0 && kCount ? kCount : taps.certain;
  auto sum = hn::Zero(d);
  const auto add = [&](int k, auto samples) HWY_ATTR {
    const auto w = weights.Load(d, k, x);
    if (k >= certain) samples = hn::IfThenElseZero(hn::Ne(w, hn::Zero(d)), samples);
    const auto product = hn::Mul(samples, w);
    sum = k == 0 ? product : hn::Add(sum, product);
  };
  for (int k = 0; k < count; k += 4) {
    const auto a = LoadFours(d, row, first, k), b = LoadFours(d, row, first + 1, k);
    const auto c = LoadFours(d, row, first + 2, k), e = LoadFours(d, row, first + 3, k);
    const auto ab = hn::BitCast(pairs, hn::InterleaveLower(d, a, b));
    const auto ce = hn::BitCast(pairs, hn::InterleaveLower(d, c, e));
    add(k, hn::BitCast(d, hn::InterleaveLower(pairs, ab, ce)));
    if (k + 1 < count) add(k + 1, hn::BitCast(d, hn::InterleaveUpper(pairs, ab, ce)));
    if (k + 2 >= count) break;
    const auto upperAb = hn::BitCast(pairs, hn::InterleaveUpper(d, a, b));
    const auto upperCe = hn::BitCast(pairs, hn::InterleaveUpper(d, c, e));
    add(k + 2, hn::BitCast(d, hn::InterleaveLower(pairs, upperAb, upperCe)));
    if (k + 3 < count) add(k + 3, hn::BitCast(d, hn::InterleaveUpper(pairs, upperAb, upperCe)));
  }
  return sum;
}

// Two near taps of as many columns as lanes. The places of the taps, from that of the first column of four, are found
// once for several rows.
template <class D, class T>
class PickedPairs {
 public:
  HWY_INLINE PickedPairs(D, const int32_t* first) : low_(first[0]), high_(first[hn::MaxLanes(D()) - 4]) {
    const auto places = hn::LoadU(Ints(), first);
    const auto apart = hn::Sub(places, hn::Broadcast<0>(places));
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
#if HWY_TARGET <= HWY_AVX2
      const auto low = hn::LoadU(d, row + low_), high = hn::LoadU(d, row + high_);
      const auto pick = [&](auto at) HWY_ATTR {
        const auto lanes = hn::IndicesFromVec(d, at);
        return hn::ConcatUpperLower(d, hn::TableLookupLanes(high, lanes), hn::TableLookupLanes(low, lanes));
      };
      const auto second = pick(hn::Add(places_, hn::Set(Ints(), 1)));
      return hn::Add(hn::Mul(pick(places_), left), hn::Mul(second, right));
#endif
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
    const hn::Full128<uint8_t> block;
    const auto low = hn::LoadU(block, reinterpret_cast<const uint8_t*>(row + low_));
#if HWY_TARGET <= HWY_AVX2
    return hn::Combine(Bytes(), hn::LoadU(block, reinterpret_cast<const uint8_t*>(row + high_)), low);
#else
    return low;
#endif
  }

  ptrdiff_t low_, high_;
  hn::Vec<Ints> places_;
};

// Pixels of four samples, one in each block of 16 bytes of floats: as many rows as a vector has blocks.
template <class D, class T>
HWY_INLINE hn::Vec<D> LoadPixels(D d, const T* const* pixels, ptrdiff_t at) {
  const hn::Full128<float> block;
  if constexpr (hn::MaxLanes(D()) == hn::MaxLanes(hn::Full128<float>())) {
    return LoadWide(block, pixels[0] + at);
  } else {
    const hn::Rebind<T, hn::Full128<float>> half;
    const hn::Rebind<T, D> narrow;
    const auto both = hn::Combine(narrow, hn::LoadU(half, pixels[1] + at), hn::LoadU(half, pixels[0] + at));
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
HWY_INLINE void FilterPixels(D d, const Taps& taps, const Weights& weights, ptrdiff_t x, const Pixel& pixel,
                             hn::Vec<D>* sums) {
  const int certain = taps.certain, count = taps.count;
  const auto add = [&](int i, int k) HWY_ATTR {
    const auto w = hn::Set(d, weights.At(k, x + i));
    hn::Vec<D>* sum = sums + i * kVectors;
    for (int v = 0; v < kVectors; ++v) {
      const auto product = hn::Mul(pixel(i, k, v), w);
      sum[v] = k == 0 ? product : hn::Add(sum[v], product);
    }
  };
  for (int i = 0; i < kColumns; ++i) add(i, 0);
  int k = 1;
  for (; k < certain; ++k) {
    for (int i = 0; i < kColumns; ++i) add(i, k);
  }
  for (; k < count; ++k) {
    for (int i = 0; i < kColumns; ++i) {
      if (weights.At(k, x + i) != 0) {
        add(i, k);
      } else {
        for (int v = 0; v < kVectors; ++v) sums[i * kVectors + v] = hn::Add(sums[i * kVectors + v], hn::Zero(d));
      }
    }
  }
}

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
  const int32_t* first = plan.taps.first;
  const auto filter = [=](ptrdiff_t x) HWY_ATTR {
    const PickedPairs<D, T> pairs(D(), first + x);
    const auto left = weights.Load(D(), 0, x), right = weights.Load(D(), 1, x);
    for (size_t i = 0; i < kRows; ++i) hn::StoreU(pairs.WeightedSum(rows[i], left, right), D(), out[i] + x);
  };
  const ptrdiff_t last = plan.to - ptrdiff_t{hn::MaxLanes(D())};
  for (ptrdiff_t x = plan.taps.from; x < last; x += hn::MaxLanes(D())) filter(x);
  filter(last);
}

// As many rows at once as kVectors vectors have blocks.
template <class D, class T, int kVectors>
class PixelRows {
 public:
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(D()), kPixel = kVectors * kLanes;  // of staged floats
  static constexpr int kBlocks = kLanes * sizeof(float) / kBlockBytes, kRows = kVectors * kBlocks;

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
    const hn::Full128<uint8_t> block;
    const T* const* rows = rows_ + v * kBlocks;
    const auto samples = [&] {
      const auto low = hn::LoadU(block, rows[0] + first * channels_);
      if constexpr (kBlocks == 1)
        return low;
      else
        return hn::Combine(bytes, hn::LoadU(block, rows[1] + first * channels_), low);
    }();
    const auto next = hn::BitCast(bytes, hn::Set(hn::Rebind<int32_t, D>(), static_cast<int32_t>(channels_)));
    auto spread = hn::LoadDup128(bytes, kSpread);
    for (ptrdiff_t i = 0; i < kAtOnce; ++i, spread = hn::Add(spread, next)) {
      const auto pixel = hn::BitCast(hn::Rebind<int32_t, D>(), hn::TableLookupBytes(samples, spread));
      hn::Store(hn::ConvertTo(D(), pixel), D(), staged + i * kPixel);
    }
  }

  const T* rows_[kRows];
  float* out_[kRows];
  ptrdiff_t channels_;
};

// From four taps on pixels are used often enough to be converted beforehand, for a piece of the columns.
inline constexpr ptrdiff_t kLeastStagedTaps = 4, kStagedPixels = 192;
inline bool AreStaged(const Taps& taps) { return taps.count >= kLeastStagedTaps && taps.count <= kStagedPixels; }

// kColumns columns from x on. The pixel at position `base` is the first that is staged.
template <int kColumns, class D, class T, class Weights, int kVectors>
HWY_INLINE void FilterStaged(D d, const Taps& taps, const Weights& weights, ptrdiff_t x, const float* staged,
                             ptrdiff_t base, const PixelRows<D, T, kVectors>& rows) {
  using Rows = PixelRows<D, T, kVectors>;
  constexpr ptrdiff_t kLanes = Rows::kLanes, kPixel = Rows::kPixel;
  const float* first[kColumns];
  for (int i = 0; i < kColumns; ++i) first[i] = staged + (taps.first[x + i] - base) * kPixel;
  const auto pixel = [&](int i, int k, int v) HWY_ATTR { return hn::Load(d, first[i] + k * kPixel + v * kLanes); };
  hn::Vec<D> sums[kColumns * kVectors];
  FilterPixels<kColumns, kVectors>(d, taps, weights, x, pixel, sums);
  rows.template Store<kColumns>(sums, x);
}

template <class D, class T, class Weights, int kVectors>
void FilterStagedAcross(D d, const Taps taps, ptrdiff_t to, const Weights weights,
                        const PixelRows<D, T, kVectors>& from) {
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
    for (; x + kAtOnce <= end; x += kAtOnce) FilterStaged<kAtOnce>(d, taps, weights, x, staged, base, rows);
    for (; x < end; ++x) FilterStaged<1>(d, taps, weights, x, staged, base, rows);
  }
}

template <class D, class T, class Weights>
void FilterPixelsAcross(D d, const ColumnPlan<T>& plan, const Weights weights, const T* const* from,
                        float* const* out) {
  const PixelRows<D, T, 1> rows(from, out, plan.channels);
  const Taps taps = plan.taps;
  if (AreStaged(taps)) return FilterStagedAcross(d, taps, plan.to, weights, rows);
  for (ptrdiff_t x = taps.from; x < plan.to; ++x) {
    hn::Vec<D> sum;
    const auto pixel = [&](int, int k, int) HWY_ATTR { return rows.Load(taps.first[x] + k, 0); };
    FilterPixels<1, 1>(d, taps, weights, x, pixel, &sum);
    rows.template Store<1>(&sum, x);
  }
}

// One channel. The usual numbers of taps have loops of their own.
template <size_t kRows, class T, class Weights>
void FilterSinglesAcross(const ColumnPlan<T>& plan, const Weights& weights, const std::array<const T*, kRows>& rows,
                         const std::array<float*, kRows>& out) {
  const Taps& taps = plan.taps;
  const int count = taps.certain == taps.count || taps.count == 3 ? taps.count : 0;
  const auto filter = count == 2   ? FilterSinglesBy<2, kRows, T, Weights>
                      : count == 3 ? FilterSinglesBy<3, kRows, T, Weights>
                      : count == 4 ? FilterSinglesBy<4, kRows, T, Weights>
                      : count == 6 ? FilterSinglesBy<6, kRows, T, Weights>
                                   : FilterSinglesBy<0, kRows, T, Weights>;
  filter(plan, weights, rows, out);
}

// The columns from taps.from on that there are vectors for.
template <size_t kRows, class T, class Weights>
void FilterVectors(const ColumnPlan<T>& plan, const Weights& weights, const std::array<const T*, kRows>& rows,
                   const std::array<float*, kRows>& out) {
  if constexpr (kCanPick<T>) {
    if (plan.arePicked) return PickAcross<kRows>(plan, weights, rows, out);
  }
  if (plan.channels == 1) return FilterSinglesAcross(plan, weights, rows, out);
  using TwoBlocks = hn::CappedTag<float, 8>;
  if (kRows == 2 && hn::MaxLanes(TwoBlocks()) == 8) {
    return FilterPixelsAcross(TwoBlocks(), plan, weights, rows.data(), out.data());
  }
  for (size_t i = 0; i < kRows; ++i) FilterPixelsAcross(hn::Full128<float>(), plan, weights, &rows[i], &out[i]);
}

// Source rows, across.
template <size_t kRows, class T, class Weights>
void FilterAcross(const ColumnPlan<T>& plan, const Weights& weights, const std::array<const T*, kRows>& rows,
                  const std::array<float*, kRows>& out) {
  constexpr ptrdiff_t kLanes = hn::MaxLanes(hn::CappedTag<float, 8>());
  const Taps& taps = plan.taps;
  const bool hasVectors = plan.channels != 1 || plan.to - taps.from >= kLanes;
  const ptrdiff_t done = hasVectors ? plan.to : taps.from;
  if (hasVectors) FilterVectors(plan, weights, rows, out);
  for (size_t i = 0; i < kRows; ++i) FilterEnds(plan, weights, done, rows[i], out[i]);
}

// Four rows of pixels that are staged: they share the loads of weights.
template <class T, class Weights>
void FilterFourAcross(const ColumnPlan<T>& plan, const Weights& weights, const std::array<const T*, 4>& rows,
                      const std::array<float*, 4>& out) {
  const hn::CappedTag<float, 8> d;
  const PixelRows<hn::CappedTag<float, 8>, T, 2> pixels(rows.data(), out.data(), plan.channels);
  FilterStagedAcross(d, plan.taps, plan.to, weights, pixels);
  for (size_t i = 0; i < 4; ++i) FilterEnds(plan, weights, plan.to, rows[i], out[i]);
}

// filter(rows, places) for the positions from `position` up to `end`, two at a time and the last one perhaps alone.
template <class Row, class Place, class Filter>
void ForTwo(ptrdiff_t position, ptrdiff_t end, const Row& row, const Place& place, const Filter& filter) {
  for (; position + 1 < end; position += 2) {
    filter(std::array{row(position), row(position + 1)}, std::array{place(position), place(position + 1)});
  }
  if (position < end) filter(std::array{row(position)}, std::array{place(position)});
}

// Filtered rows, one place for each tap: the row of position p is at place p modulo the number of taps.
template <class S>
struct RowRing {
  S* at;
  ptrdiff_t step;  // samples
  int places;

  // Positions are numbers of 32 bits, which are quicker to divide.
  S* Row(ptrdiff_t position) const {
    int place = static_cast<int32_t>(position) % places;
    if (place < 0) place += places;
    return at + place * step;
  }

  // The rows of kCount successive positions.
  template <size_t kCount>
  std::array<const S*, kCount> Rows(ptrdiff_t position) const {
    const S* const end = at + places * step;
    std::array<const S*, kCount> rows{Row(position)};
    for (size_t k = 1; k < kCount; ++k) {
      const S* next = rows[k - 1] + step;
      rows[k] = next == end ? at : next;
    }
    return rows;
  }
};

// Walks down a tile and keeps the filtered rows that the next destination rows need too: filter(begin, end) fills the
// rows of these positions, combine(y) makes destination row y from those that its taps need.
template <class Filter, class Combine, class IsRead>
void WalkDown(const Taps& taps, const Filter& filter, const Combine& combine, const IsRead& isRead) {
  ptrdiff_t next = PTRDIFF_MIN;
  for (ptrdiff_t y = 0; y < taps.length; ++y) {
    int count = taps.count;
    while (count > taps.certain && !isRead(count - 1, y)) --count;
    const ptrdiff_t end = taps.first[y] + count;
    filter(std::max<ptrdiff_t>(next, taps.first[y]), end);
    next = std::max(next, end);
    combine(y);
  }
}

// dst[i] = at(i), the vector of the values from place i on, for i in [0, n), rounded and saturated to T. For a row that
// is shorter than a vector at(0) may give more values.
template <class D, class T, class At>
HWY_INLINE void StoreRow(D d, T* dst, ptrdiff_t n, const At& at) {
  const hn::Rebind<T, D> narrow;
  constexpr ptrdiff_t kLanes = hn::MaxLanes(D()), kStride = kLanes * kVectorsAtOnce<T, hn::TFromD<D>>;
  if (n < kLanes) {
    Partial<T> out(dst, n);
    hn::StoreU(Narrow<T>(d, at(0)), narrow, out.lanes);
    return out.CopyTo(dst, n);
  }
  ptrdiff_t i = 0;
  for (; i + kStride <= n; i += kStride) {
    const auto part = [&](ptrdiff_t k) HWY_ATTR { return at(i + k * kLanes); };
    hn::StoreU(NarrowParts<T>(d, part), hn::CappedTag<T, kStride>(), dst + i);
  }
  for (; i < n - kLanes; i += kLanes) hn::StoreU(Narrow<T>(d, at(i)), narrow, dst + i);
  hn::StoreU(Narrow<T>(d, at(n - kLanes)), narrow, dst + n - kLanes);
}

// The same, four vectors at a time: at(i, vectors, v) fills the vectors from place i on.
template <class D, class T, class At>
HWY_INLINE void StoreRowByFours(D d, T* dst, ptrdiff_t n, const At& at) {
  constexpr ptrdiff_t kLanes = hn::MaxLanes(D()), kFour = 4 * kLanes;
  const auto one = [&](ptrdiff_t i) HWY_ATTR {
    hn::Vec<D> v;
    at(i, std::integral_constant<int, 1>(), &v);
    return v;
  };
  if (n < kFour) return StoreRow(d, dst, n, one);
  const auto store = [&](ptrdiff_t i) HWY_ATTR {
    hn::Vec<D> v[4];
    at(i, std::integral_constant<int, 4>(), v);
    StoreRow(d, dst + i, kFour, [&](ptrdiff_t place) HWY_ATTR { return v[place / kLanes]; });
  };
  for (ptrdiff_t i = 0; i < n - kFour; i += kFour) store(i);
  store(n - kFour);
}

// The same for 16-bit lanes and bytes, two vectors at a time.
template <class D, class At>
HWY_INLINE void StoreBytes(D d, uint8_t* dst, ptrdiff_t n, const At& at) {
  const hn::Repartition<uint8_t, D> bytes;
  constexpr ptrdiff_t kLanes = hn::MaxLanes(D());
  if (n < 2 * kLanes) return StoreRow(d, dst, n, at);
  const auto store = [&](ptrdiff_t i)
                         HWY_ATTR { hn::StoreU(PackedInOrder<uint8_t>(at(i), at(i + kLanes)), bytes, dst + i); };
  for (ptrdiff_t i = 0; i < n - 2 * kLanes; i += 2 * kLanes) store(i);
  store(n - 2 * kLanes);
}

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

// The same for any number of taps, of the rows of a ring: the first kTapsAtHand ones are looked up beforehand.
template <class T, class Weights>
void AddRing(const RowRing<float>& ring, const Weights& weights, const Taps& taps, ptrdiff_t y, T* dst, ptrdiff_t n) {
  constexpr int kTapsAtHand = 32;
  const hn::ScalableTag<float> d;
  const float* const begin = ring.at;
  const float* const end = begin + ring.places * ring.step;
  const ptrdiff_t step = ring.step;
  const float* rows[kTapsAtHand];
  float w[kTapsAtHand];
  int count = taps.count;
  while (count > taps.certain && weights.At(count - 1, y) == 0) --count;
  const int atHand = std::min(count, kTapsAtHand);
  for (int k = 0; k < atHand; ++k) {
    rows[k] = ring.Row(taps.first[y] + k);
    w[k] = weights.At(k, y);
  }
  // The sums of `vectors` vectors from place i on, which share what is loaded for a tap.
  const auto add = [&](ptrdiff_t i, auto vectors, hn::Vec<decltype(d)>* sums) HWY_ATTR {
    constexpr ptrdiff_t kLanes = hn::MaxLanes(decltype(d)());
    const auto tap = [&](const float* row, float weight) HWY_ATTR {
      for (int v = 0; v < vectors; ++v) {
        sums[v] = hn::Add(sums[v], hn::Mul(hn::LoadU(d, row + i + v * kLanes), hn::Set(d, weight)));
      }
    };
    for (int v = 0; v < vectors; ++v) sums[v] = hn::Mul(hn::LoadU(d, rows[0] + i + v * kLanes), hn::Set(d, w[0]));
    for (int k = 1; k < atHand; ++k) tap(rows[k], w[k]);
    const float* row = rows[atHand - 1];
    for (int k = atHand; k < count; ++k) {
      row = row + step == end ? begin : row + step;
      tap(row, weights.At(k, y));
    }
    for (int k = count; k < taps.count; ++k) {
      for (int v = 0; v < vectors; ++v) sums[v] = hn::Add(sums[v], hn::Zero(d));
    }
  };
  StoreRowByFours(d, dst, n, add);
}

// The row at destination position y. The usual numbers of taps have loops of their own.
template <class T, class Weights>
void CombineRows(const RowRing<float>& ring, const Weights& weights, const Taps& taps, ptrdiff_t y, T* dst,
                 ptrdiff_t n) {
  const int count = taps.certain < taps.count ? 0 : taps.count;
  const auto add = count == 2   ? AddRows<2, T, Weights>
                   : count == 4 ? AddRows<4, T, Weights>
                   : count == 6 ? AddRows<6, T, Weights>
                                : AddRing<T, Weights>;
  add(ring, weights, taps, y, dst, n);
}

// A tile, by weights across and down. The rows of the ring need places * RowFloats(samples) floats at `rows`.
constexpr ptrdiff_t RowFloats(ptrdiff_t samples) { return (samples + 7) & ~ptrdiff_t{7}; }

template <class T, class Across, class Down>
void FilterTile(const ResizeCall<T>& call, const ResizeRecord& record, const Tile& tile, const Across& across,
                const Down& down, float* rows) {
  const int channels = Channels(call.src.layout);
  const ptrdiff_t samples = tile.width * channels;
  const Taps rowTaps(record, record.rows, tile.y, tile.height);
  const ResizeAxis& axis = record.columns;
  const bool areNear = axis.taps == 2 && axis.certainTaps == 2 && axis.p <= 2 * axis.q;
  const ColumnPlan<T> plan(Taps(record, axis, tile.x, tile.width), ColumnEdge(call.border, record), channels, areNear);
  const Edge rowEdge = RowEdge(call.border, record);
  const RowRing<float> ring{rows, RowFloats(samples), rowTaps.count};
  const auto source = [&](ptrdiff_t p) { return SourceRow(call, tile, rowEdge(p)); };
  const auto place = [&](ptrdiff_t p) { return ring.Row(p); };
  const auto filter = [&](ptrdiff_t position, ptrdiff_t end) {
    if constexpr (HWY_TARGET <= HWY_AVX2) {
      const bool byFours = channels > 1 && AreStaged(plan.taps);
      for (; byFours && position + 4 <= end; position += 4) {
        const ptrdiff_t p = position;
        FilterFourAcross(plan, across, std::array{source(p), source(p + 1), source(p + 2), source(p + 3)},
                         std::array{place(p), place(p + 1), place(p + 2), place(p + 3)});
      }
    }
    ForTwo(position, end, source, place,
           [&](const auto& sources, const auto& out) { FilterAcross(plan, across, sources, out); });
  };
  const auto combine = [&](ptrdiff_t y) { CombineRows(ring, down, rowTaps, y, call.dst.Row(y), samples); };
  WalkDown(rowTaps, filter, combine, [&](int k, ptrdiff_t y) { return down.At(k, y) != 0; });
}

// The same for doubles, which have no room for filtered rows: each output is computed from the source.
template <class Across, class Down>
void FilterTileDirectly(const ResizeCall<double>& call, const ResizeRecord& record, const Tile& tile,
                        const Across& across, const Down& down) {
  const int channels = Channels(call.src.layout);
  const Taps rowTaps(record, record.rows, tile.y, tile.height);
  const ColumnPlan<double> plan(Taps(record, record.columns, tile.x, tile.width), ColumnEdge(call.border, record),
                                channels);
  const Edge rowEdge = RowEdge(call.border, record);
  for (ptrdiff_t y = 0; y < tile.height; ++y) {
    for (ptrdiff_t x = 0; x < tile.width; ++x) {
      double pixel[kMostChannels] = {};
      const auto filtered = [&](int k, bool isRead) {
        const double* row = SourceRow(call, tile, rowEdge(rowTaps.first[y] + k));
        if (isRead) FilterPixel(plan, channels, across, row, x, pixel);
        return pixel;
      };
      AddTaps(
          rowTaps, channels, filtered, [&](int k) { return down.At(k, y); }, call.dst.Row(y) + x * channels);
    }
  }
}

}  // namespace qvp::resize
