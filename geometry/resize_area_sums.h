// Averages over areas of any size, shifted or not: sums down into a row of sums, a piece of it at a time, and sums of
// these across in double. Sums of integers are exact, so that their averages are the nearest integers.
#pragma once

#include "base/lanes.h"
#include "base/scalar.h"
#include "geometry/resize_area_down.h"
#include "geometry/resize_call.h"

namespace qvp::resize {

// Whole pixels of one channel from which on an area is added up in several sums at once.
inline constexpr ptrdiff_t kLongRun = 8;

// Columns whose areas are averaged at a time.
inline constexpr ptrdiff_t kAreasAtOnce = 256;

// The sums down of a row of areas, of one piece of source pixels after the other.
template <class S, class T>
class SumPieces {
 public:
  // `rows` begin with the first one that is covered, at source column 0.
  SumPieces(const Image<const T>& rows, const ResizeAxis& axis, const Coverage& down, ptrdiff_t end)
      : rows_(rows), axis_(axis), down_(down), end_(end), channels_(Channels(rows.layout)) {}

  // The sums of the pixels from `first` on up to until(), which are at least `count`.
  const S* From(ptrdiff_t first, ptrdiff_t count = 1) {
    if (first + count > until_) Fill(first);
    return sums_ + (first - begin_) * channels_;
  }
  ptrdiff_t until() const { return until_; }

 private:
  static constexpr ptrdiff_t kSamples = 1024;

  void Fill(ptrdiff_t first) {
    begin_ = first;
    until_ = std::min(end_, first + kSamples / channels_);
    const Image<const T> rows{rows_.data + first * channels_, rows_.step, rows_.layout};
    const ptrdiff_t n = (until_ - first) * channels_;
    if constexpr (std::is_same_v<S, float>) {
      MeanDown(rows, axis_, down_, n, sums_);
    } else {
      SumCovered(hn::ScalableTag<S>(), rows, down_, n, sums_);
    }
  }

  Image<const T> rows_;
  const ResizeAxis& axis_;
  Coverage down_;
  ptrdiff_t end_, channels_, begin_ = 0, until_ = 0;
  S sums_[kSamples];
};

// The sum of one area, of which whole pixels go to kSums sums in turn.
template <int kChannels, int kSums, class S>
class AreaTotal {
 public:
  HWY_INLINE AreaTotal(const S* sums, double part) {
    for (int c = 0; c < kChannels; ++c) ends_[c] = sums[c] * part;
  }
  // A multiple of kSums pixels, unless they are the last ones.
  HWY_INLINE void AddWhole(const S* sums, ptrdiff_t pixels) {
    for (; pixels >= kSums; pixels -= kSums, sums += kSums * kChannels) {
      for (int i = 0; i < kSums * kChannels; ++i) whole_[i] += sums[i];
    }
    for (int i = 0; i < (kSums - 1) * kChannels; ++i) {
      if (i < pixels) whole_[i] += sums[i];
    }
  }
  HWY_INLINE void AddLast(const S* sums, double part) {
    for (int c = 0; c < kChannels; ++c) ends_[c] += sums[c] * part;
  }
  HWY_INLINE void Average(double each, double area, double* out) const {
    for (int c = 0; c < kChannels; ++c) {
      double whole = whole_[c];
      if constexpr (kSums == 4) whole = (whole_[0] + whole_[1]) + (whole_[2] + whole_[3]);
      out[c] = (ends_[c] + whole * each) / area;
    }
  }

 private:
  double ends_[kChannels], whole_[kSums * kChannels] = {};
};

template <int kChannels, int kSums, class S, class T>
HWY_INLINE void AverageAcross(SumPieces<S, T>& pieces, const Coverage& across, double down, double* out) {
  AreaTotal<kChannels, kSums, S> total(pieces.From(across.first), across.begin);
  const ptrdiff_t last = across.first + 1 + across.whole;
  for (ptrdiff_t at = across.first + 1; at < last;) {
    const S* sums = pieces.From(at, std::min<ptrdiff_t>(last - at, kSums));
    ptrdiff_t n = std::min(last, pieces.until()) - at;
    if (at + n < last) n -= n % kSums;
    total.AddWhole(sums, n);
    at += n;
  }
  if (across.end > 0) total.AddLast(pieces.From(last), across.end);
  total.Average(across.each, across.Total() * down, out);
}

// Averages of n destination pixels, whose rows cover `down` and whose columns cover `across`, to dst.
template <class S, int kChannels, class T>
void AverageRow(const ResizeCall<T>& call, const ResizeAxis& rows, const Tile& tile, const Coverage& down,
                const Coverage* across, ptrdiff_t n, T* dst) {
  double averages[kAreasAtOnce * kChannels];
  const Coverage& last = across[n - 1];
  SumPieces<S, T> pieces({SourceRow(call, tile, down.first), call.src.step, call.src.layout}, rows, down,
                         last.first + last.Pixels());
  const double total = std::is_same_v<S, float> ? DivisorOf(rows) : down.Total();
  for (ptrdiff_t x = 0; x < n; ++x) {
    double* out = averages + x * kChannels;
    if (kChannels == 1 && across[x].whole >= kLongRun) {
      AverageAcross<kChannels, 4>(pieces, across[x], total, out);
    } else {
      AverageAcross<kChannels, 1>(pieces, across[x], total, out);
    }
  }
  MapRow<false>(
      hn::ScalableTag<double>(), dst, n * kChannels, [](auto v) { return v; }, static_cast<const double*>(averages));
}

template <class S, class T>
auto AverageRowFor(Layout layout) {
  if (layout == Layout::kC1) return AverageRow<S, 1, T>;
  if (layout == Layout::kC2) return AverageRow<S, 2, T>;
  return layout == Layout::kC3 ? AverageRow<S, 3, T> : AverageRow<S, 4, T>;
}

// Averages again, in double, what is infinite or NaN: a difference, its multiple or a sum may have left the range of
// float.
inline void AverageAgain(const ResizeCall<float>& call, const ResizeRecord& record, const Tile& tile, ptrdiff_t x,
                         ptrdiff_t y, ptrdiff_t n) {
  const int channels = Channels(call.dst.layout);
  float* const row = call.dst.Row(y) + x * channels;
  for (ptrdiff_t i = 0; i < n * channels; ++i) {
    const float average = LoadScalar(row + i);
    if (average - average == 0) continue;
    float pixel[4];
    const Coverage across = PeriodicCoverage(record.columns, tile.x + x + i / channels);
    AverageRowFor<double, float>(call.src.layout)(call, record.rows, tile, PeriodicCoverage(record.rows, tile.y + y),
                                                  &across, 1, pixel);
    StoreScalar(row + i, pixel[i % channels]);
  }
}

// The pixels of a tile, for sums down of type S.
template <class S, class T>
void AverageAreasBy(const ResizeCall<T>& call, const ResizeRecord& record, const Tile& tile) {
  const Layout layout = call.src.layout;
  const auto average = AverageRowFor<S, T>(layout);
  Coverage across[kAreasAtOnce];
  for (ptrdiff_t x = 0; x < tile.width; x += kAreasAtOnce) {
    const ptrdiff_t n = std::min(tile.width - x, kAreasAtOnce);
    for (ptrdiff_t i = 0; i < n; ++i) across[i] = CoverageOf(record, record.columns, tile.x + x + i);
    for (ptrdiff_t y = 0; y < tile.height; ++y) {
      const Coverage down = CoverageOf(record, record.rows, tile.y + y);
      average(call, record.rows, tile, down, across, n, call.dst.Row(y) + x * Channels(layout));
      if constexpr (std::is_same_v<S, float>) AverageAgain(call, record, tile, x, y, n);
    }
  }
}

// Whether sums down of integers, in whole parts, fit 32 bits.
template <class T>
bool AreSumsShort(const ResizeRecord& record) {
  return !record.IsShifted() && int64_t{record.rows.p} << (8 * sizeof(T)) <= int64_t{1} << 31;
}

template <class T>
void AverageAreas(const ResizeCall<T>& call, const ResizeRecord& record, const Tile& tile) {
  if constexpr (std::is_integral_v<T>) {
    if (AreSumsShort<T>(record)) return AverageAreasBy<int32_t>(call, record, tile);
  } else {
    if (AreMeansFloat(record)) return AverageAreasBy<float>(call, record, tile);
  }
  AverageAreasBy<double>(call, record, tile);
}

// What SumCovered has for one sample, whose first row is at `first`.
template <class T>
double SumOfSample(const T* first, ptrdiff_t step, const Coverage& down) {
  const Image<const T> rows{first, step, Layout::kC1};
  const auto at = [&](ptrdiff_t y) { return static_cast<double>(LoadScalar(rows.Row(y))); };
  double sum = at(0) * down.begin;
  if (down.end > 0) sum += at(1 + down.whole) * down.end;
  for (ptrdiff_t y = 1, n; y <= down.whole; y += n) {
    const ptrdiff_t left = down.whole - y + 1;
    n = left >= 8 ? 8 : left >= 3 ? 3 : 1;
    double some = 0;
    for (ptrdiff_t i = 0; i < n; ++i) some += at(y + i);
    sum += some * down.each;
  }
  return sum;
}

// AverageRow for n successive areas of a column of integers, which are narrow: without rows of sums.
template <int kChannels, class T>
void AverageNarrow(const ResizeCall<T>& call, const ResizeRecord& record, const Tile& tile, const Coverage& across,
                   Extent areas, double* averages) {
  for (ptrdiff_t y = areas.begin; y < areas.end; ++y, averages += kChannels) {
    const Coverage down = CoverageOf(record, record.rows, tile.y + y);
    const T* first = SourceRow(call, tile, down.first) + across.first * kChannels;
    double sums[(kLongRun + 1) * kChannels];
    for (ptrdiff_t i = 0; i < across.Pixels() * kChannels; ++i) sums[i] = SumOfSample(first + i, call.src.step, down);
    AreaTotal<kChannels, 1, double> total(sums, across.begin);
    total.AddWhole(sums + kChannels, across.whole);
    if (across.end > 0) total.AddLast(sums + (1 + across.whole) * kChannels, across.end);
    total.Average(across.each, across.Total() * down.Total(), averages);
  }
}

// One column of areas of integers, on a shifted grid.
template <int kChannels, class T>
void AverageColumn(const ResizeCall<T>& call, const ResizeRecord& record, const Tile& tile) {
  const Coverage across = CoverageOf(record, record.columns, tile.x);
  if (across.whole >= kLongRun) return AverageAreasBy<double>(call, record, tile);
  double averages[kAreasAtOnce * kChannels];
  T column[kAreasAtOnce * kChannels];
  for (ptrdiff_t y = 0; y < tile.height; y += kAreasAtOnce) {
    const ptrdiff_t n = std::min(tile.height - y, kAreasAtOnce);
    AverageNarrow<kChannels>(call, record, tile, across, {y, y + n}, averages);
    MapRow<false>(
        hn::ScalableTag<double>(), column, n * kChannels, [](auto v) { return v; },
        static_cast<const double*>(averages));
    for (ptrdiff_t i = 0; i < n; ++i) std::memcpy(call.dst.Row(y + i), column + i * kChannels, kChannels * sizeof(T));
  }
}

// That for the layout of a frame's plane.
template <class T>
auto AverageColumnFor(Layout layout) {
  if (layout == Layout::kC1) return AverageColumn<1, T>;
  return layout == Layout::kC2 ? AverageColumn<2, T> : AverageColumn<4, T>;
}

}  // namespace qvp::resize
