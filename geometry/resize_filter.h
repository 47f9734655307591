// Resizing in floating point: rows of the source are filtered across into rows of floats, and these are combined down.
// Every output is the sum of its products in the order of the taps, each rounded.
#pragma once

#include "base/map.h"
#include "geometry/resize_weights.h"

namespace qvp {

// A tap that may be left out contributes 0 where its weight is 0, whatever lies there.
template <class F, class T>
F Product(T sample, F weight, bool isCertain) {
  return isCertain || weight != 0 ? static_cast<F>(sample) * weight : F{0};
}

// Columns of a tile: which of them the vector kernels may compute, and the others one by one.
template <class T>
struct ColumnPlan {
  Taps taps;
  Edge edge;
  int channels;
  ptrdiff_t to;  // of the columns [taps.from, to) the kernels may read and write as much as they do

  ColumnPlan(const Taps& t, const Edge& e, int nc) : taps(t), edge(e), channels(nc), to(t.to) {
    if (t.from == t.to) return;
    const ptrdiff_t end = t.first[t.to - 1] + t.certain;
    const ptrdiff_t read = nc == 1 ? (t.count + 3) / 4 * 4 : t.count + (nc == 3 ? 1 : 0);
    if (nc == 3) to = std::min(to, t.length - 1);  // four samples are written for three
    while (to > t.from && t.first[to - 1] + read > end) --to;
  }
};

template <class F, class T, class Weights>
F ColumnSample(const ColumnPlan<T>& plan, const Weights& weights, const T* row, ptrdiff_t x, int channel) {
  const Taps& taps = plan.taps;
  F sum = 0;
  for (int k = 0; k < taps.count; ++k) {
    const F weight = static_cast<F>(weights.At(k, x));
    const bool isCertain = k < taps.certain;
    const bool isRead = isCertain || weight != 0;
    const F product =
        isRead ? Product<F>(row[plan.edge(taps.first[x] + k) * plan.channels + channel], weight, true) : F{0};
    sum = k == 0 ? product : sum + product;
  }
  return sum;
}

template <class T, class Weights>
void FilterOneByOne(const ColumnPlan<T>& plan, const Weights& weights, const T* row, ptrdiff_t begin, ptrdiff_t end,
                    float* out) {
  for (ptrdiff_t x = begin; x < end; ++x) {
    for (int c = 0; c < plan.channels; ++c) {
      out[x * plan.channels + c] = ColumnSample<float>(plan, weights, row, x, c);
    }
  }
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

// One channel: as many columns as lanes, four taps at a time, which are transposed into a vector for each tap.
template <class D, class T, class Weights>
HWY_INLINE hn::Vec<D> FilterSingles(D d, const Taps& taps, const Weights& weights, const T* row, ptrdiff_t x) {
  const hn::Repartition<double, D> pairs;
  const int32_t* first = taps.first + x;
  const int count = taps.count, certain = taps.certain;
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

// Three or four channels: a vector holds a pixel; of three channels its last lane is not used.
template <class T, class Weights>
HWY_INLINE hn::Vec128<float> FilterPixel(const Taps& taps, const Weights& weights, const T* row, int channels,
                                         ptrdiff_t x) {
  const hn::Full128<float> d;
  const T* pixel = row + ptrdiff_t{taps.first[x]} * channels;
  const int count = taps.count, certain = taps.certain;
  auto sum = hn::Mul(LoadWide(d, pixel), hn::Set(d, weights.At(0, x)));
  for (int k = 1; k < count; ++k) {
    const float w = weights.At(k, x);
    const bool isRead = k < certain || w != 0;
    sum = hn::Add(sum, isRead ? hn::Mul(LoadWide(d, pixel + k * channels), hn::Set(d, w)) : hn::Zero(d));
  }
  return sum;
}

// One source row, across.
template <class T, class Weights>
void FilterAcross(const ColumnPlan<T>& plan, const Weights& weights, const T* row, float* out) {
  const hn::CappedTag<float, 8> d;
  constexpr ptrdiff_t kLanes = hn::MaxLanes(hn::CappedTag<float, 8>());
  const Taps& taps = plan.taps;
  ptrdiff_t x = taps.from;
  if (plan.channels == 1) {
    if (plan.to - x >= kLanes) {
      for (; x + kLanes < plan.to; x += kLanes) hn::StoreU(FilterSingles(d, taps, weights, row, x), d, out + x);
      x = plan.to - kLanes;
      hn::StoreU(FilterSingles(d, taps, weights, row, x), d, out + x);
      x = plan.to;
    }
  } else {
    const hn::Full128<float> pixel;
    for (; x < plan.to; ++x) {
      hn::StoreU(FilterPixel(taps, weights, row, plan.channels, x), pixel, out + x * plan.channels);
    }
  }
  FilterOneByOne(plan, weights, row, x, taps.length, out);
  FilterOneByOne(plan, weights, row, 0, taps.from, out);
}

// Filtered rows, one place for each tap: the row of position p is at place p modulo the number of taps.
template <class S>
struct RowRing {
  S* at;
  ptrdiff_t step;  // samples
  int places;

  S* Row(ptrdiff_t position) const {
    ptrdiff_t place = position % places;
    if (place < 0) place += places;
    return at + place * step;
  }
};

// Walks down a tile and keeps the filtered rows that the next destination rows need too: filter(position, row) fills a
// row, combine(y) makes destination row y from those that its taps need.
template <class S, class Filter, class Combine, class IsRead>
void WalkDown(const Taps& taps, const RowRing<S>& ring, const Filter& filter, const Combine& combine,
              const IsRead& isRead) {
  ptrdiff_t next = PTRDIFF_MIN;
  for (ptrdiff_t y = 0; y < taps.length; ++y) {
    int count = taps.count;
    while (count > taps.certain && !isRead(count - 1, y)) --count;
    const ptrdiff_t end = taps.first[y] + count;
    for (ptrdiff_t p = std::max<ptrdiff_t>(next, taps.first[y]); p < end; ++p) filter(p, ring.Row(p));
    next = std::max(next, end);
    combine(y);
  }
}

// dst[i] = at(i), the vector of the values from place i on, for i in [0, n), rounded and saturated to T. For a row that
// is shorter than a vector at(0) may give more values.
template <class D, class T, class At>
HWY_INLINE void StoreRow(D d, T* dst, ptrdiff_t n, const At& at) {
  const hn::Rebind<T, D> narrow;
  constexpr ptrdiff_t kLanes = hn::MaxLanes(D());
  if (n < kLanes) {
    Partial<T> out(dst, n);
    hn::StoreU(Narrow<T>(d, at(0)), narrow, out.lanes);
    return out.CopyTo(dst, n);
  }
  for (ptrdiff_t i = 0; i < n - kLanes; i += kLanes) hn::StoreU(Narrow<T>(d, at(i)), narrow, dst + i);
  hn::StoreU(Narrow<T>(d, at(n - kLanes)), narrow, dst + n - kLanes);
}

// The row at destination position y as the weighted sum of the rows of a ring.
template <class T, class Weights>
void CombineRows(const RowRing<float>& ring, const Weights& weights, const Taps& taps, ptrdiff_t y, T* dst,
                 ptrdiff_t n) {
  const hn::ScalableTag<float> d;
  const ptrdiff_t first = taps.first[y];
  const auto tap = [&](int k, ptrdiff_t i) HWY_ATTR {
    const float w = weights.At(k, y);
    if (k >= taps.certain && w == 0) return hn::Zero(d);
    return hn::Mul(hn::LoadU(d, ring.Row(first + k) + i), hn::Set(d, w));
  };
  StoreRow(d, dst, n, [&](ptrdiff_t i) HWY_ATTR {
    auto sum = tap(0, i);
    for (int k = 1; k < taps.count; ++k) sum = hn::Add(sum, tap(k, i));
    return sum;
  });
}

// A tile, by weights across and down. The rows of the ring need places * RowFloats(samples) floats at `rows`.
constexpr ptrdiff_t RowFloats(ptrdiff_t samples) { return (samples + 7) & ~ptrdiff_t{7}; }

template <class T, class Across, class Down>
void FilterTile(const ResizeCall<T>& call, const ResizeRecord& record, const Tile& tile, const Across& across,
                const Down& down, float* rows) {
  const int channels = Channels(call.src.layout);
  const ptrdiff_t samples = tile.width * channels;
  const Taps rowTaps(record, record.rows, tile.y, tile.height);
  const ColumnPlan<T> plan(Taps(record, record.columns, tile.x, tile.width), ColumnEdge(call.border, record), channels);
  const Edge rowEdge = RowEdge(call.border, record);
  const RowRing<float> ring{rows, RowFloats(samples), rowTaps.count};
  const auto filter = [&](ptrdiff_t position, float* out) {
    FilterAcross(plan, across, SourceRow(call, tile, rowEdge(position)), out);
  };
  const auto combine = [&](ptrdiff_t y) { CombineRows(ring, down, rowTaps, y, call.dst.Row(y), samples); };
  WalkDown(rowTaps, ring, filter, combine, [&](int k, ptrdiff_t y) { return down.At(k, y) != 0; });
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
    double* out = call.dst.Row(y);
    for (ptrdiff_t i = 0; i < tile.width * channels; ++i) {
      double sum = 0;
      for (int k = 0; k < rowTaps.count; ++k) {
        const double w = static_cast<double>(down.At(k, y));
        const double* row = SourceRow(call, tile, rowEdge(rowTaps.first[y] + k));
        const double product =
            k < rowTaps.certain || w != 0
                ? ColumnSample<double>(plan, across, row, i / channels, static_cast<int>(i % channels)) * w
                : 0.0;
        sum = k == 0 ? product : sum + product;
      }
      out[i] = sum;
    }
  }
}

}  // namespace qvp
