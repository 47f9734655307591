// Averages over areas in whole parts of pixels, whose sums are exact in single floats: a strip of columns at a time.
#pragma once

#include "base/map.h"
#include "geometry/resize_area_strips.h"
#include "geometry/resize_rows.h"

namespace qvp::resize {

inline constexpr ptrdiff_t kMostStripColumns = 512;

// The taps of one axis, from the tables of its period, with weights in whole parts of pixels, `parts` in all.
struct Period {
  const int32_t* index;
  const float* weights;
  ptrdiff_t p, q, parts;
  int taps;

  Period(const ResizeRecord& record, const ResizeAxis& a)
      : index(record.Index(a)),
        weights(record.Weights<float>(a)),
        p(a.p),
        q(a.q),
        parts(static_cast<ptrdiff_t>(FrameArea::UnitsOf(record, a) * a.p)),
        taps(a.taps) {}

  // A destination position: its place in its period, and the source position that the period begins at.
  struct Place {
    ptrdiff_t phase, base;
  };
  Place PlaceOf(ptrdiff_t d) const { return {d % q, d / q * p}; }
  Place Next(Place place) const {
    return place.phase + 1 < q ? Place{place.phase + 1, place.base} : Place{0, place.base + p};
  }

  ptrdiff_t First(Place place) const { return place.base + index[place.phase]; }
  float Weight(int k, Place place) const { return weights[k * q + place.phase]; }
  // The last taps have weight 0 at some positions, and are then not read.
  int Count(Place place) const {
    int count = taps;
    while (count > 1 && Weight(count - 1, place) == 0) --count;
    return count;
  }
  // Behind the last pixel of destination position d.
  ptrdiff_t End(ptrdiff_t d) const { return First(PlaceOf(d)) + Count(PlaceOf(d)); }
};

// A strip of columns: its taps with places counted from the first source pixel that it reads.
struct Strip {
  ptrdiff_t begin, columns, source, pixels;  // in the destination, and in the source
  int32_t first[kMostStripColumns];
  float weights[kStripFloats];

  Strip(const Period& period, ptrdiff_t from, ptrdiff_t n) : begin(from), columns(n), pixels(0) {
    Period::Place place = period.PlaceOf(from);
    source = period.First(place);
    for (ptrdiff_t x = 0; x < n; ++x, place = period.Next(place)) {
      first[x] = static_cast<int32_t>(period.First(place) - source);
      for (int k = 0; k < period.taps; ++k) weights[k * n + x] = period.Weight(k, place);
      if (x == n - 1) pixels = first[x] + period.Count(place);
    }
  }
};

// Sums that vectors, and taps of weight 0, may read behind those of a strip: they are 0.
inline constexpr ptrdiff_t kSpareSums = 16;
inline void ClearBehind(float* sums, ptrdiff_t n) { std::fill_n(sums + n, kSpareSums, 0.0f); }

// Columns for which a strip has memory: 0 where not even one fits.
inline ptrdiff_t ColumnsPerStrip(const Period& period, int channels) {
  const ptrdiff_t byWeights = kStripFloats / period.taps;
  const ptrdiff_t bySums = (kStripFloats - kSpareSums) / channels - 2 - period.p / period.q;
  const auto scaled = bySums <= 0 ? 0 : static_cast<ptrdiff_t>(static_cast<int64_t>(bySums) * period.q / period.p);
  return std::min({byWeights, scaled, kMostStripColumns});
}

// sums[i] = the rows from `rows` on by their weights, at place i along them. Up to three rows are added up at once.
template <class D, class T, class Weight>
void SumDown(D d, const Image<const T>& rows, int count, const Weight& weight, ptrdiff_t n, hn::TFromD<D>* sums) {
  const auto w0 = hn::Set(d, weight(0));
  int k = 1;
  if (count == 1) {
    MapRow<false>(
        d, sums, n, [=](auto a) HWY_ATTR { return hn::Mul(a, w0); }, rows.Row(0));
  } else if (const auto w1 = hn::Set(d, weight(1)); count == 2) {
    MapRow<false>(
        d, sums, n, [=](auto a, auto b) HWY_ATTR { return hn::Add(hn::Mul(a, w0), hn::Mul(b, w1)); }, rows.Row(0),
        rows.Row(1));
    k = 2;
  } else {
    const auto w2 = hn::Set(d, weight(2));
    MapRow<false>(
        d, sums, n,
        [=](auto a, auto b, auto c)
            HWY_ATTR { return hn::Add(hn::Add(hn::Mul(a, w0), hn::Mul(b, w1)), hn::Mul(c, w2)); },
        rows.Row(0), rows.Row(1), rows.Row(2));
    k = 3;
  }
  for (; k < count; ++k) {
    const auto w = hn::Set(d, weight(k));
    MapRow<false>(
        d, sums, n, [=](auto sum, auto v) HWY_ATTR { return hn::Add(sum, hn::Mul(v, w)); },
        static_cast<const hn::TFromD<D>*>(sums), rows.Row(k));
  }
}

// Exact sums divided by the area, to be rounded to the nearest integers. Ties are only met where the area is even.
// Where it is a power of two, or the sums are further from a tie than a product with the inverse may be off, that is
// the same.
struct AreaQuotient {
  float area;
  bool isByInverse;
  float inverse;

  AreaQuotient(int parts, int bits)
      : area(static_cast<float>(parts)),
        isByInverse((parts & (parts - 1)) == 0 || (parts % 2 != 0 && parts < 1 << (22 - bits))),
        inverse(static_cast<float>(1.0 / parts)) {}

  template <class V>
  HWY_INLINE V Of(V sum) const {
    const hn::DFromV<V> d;
    return isByInverse ? hn::Mul(sum, hn::Set(d, inverse)) : hn::Div(sum, hn::Set(d, area));
  }
};

// Sums of two channels across, one after the other; the averages of both need as much memory again behind them.
class PairSums {
 public:
  void Clear(ptrdiff_t pixels) {
    for (float* plane : planes_) ClearBehind(plane, pixels);
  }

  void Filter(const ColumnPlan<float>& plan, const TapPlanes<float>& weights, const float* sums, ptrdiff_t pixels,
              float* averages) {
    const ptrdiff_t n = plan.taps.length;
    float* const halves[] = {averages + 2 * n, averages + 3 * n};
    SplitPairs(sums, pixels, planes_[0], planes_[1]);
    for (int i = 0; i < 2; ++i) {
      FilterAcross(plan, weights, std::array<const float*, 1>{planes_[i]}, std::array{halves[i]});
    }
    JoinPairs(halves[0], halves[1], n, averages);
  }

 private:
  float planes_[2][kStripFloats / 2 + kSpareSums];
};

// The zeros behind the sums are all that taps of weight 0 may meet.
inline Taps TapsOf(const ResizeRecord& record, const Strip& strip, const Period& across) {
  Taps taps(record, record.columns, 0, strip.columns);
  taps.first = strip.first;
  taps.from = 0;
  taps.to = strip.columns;
  taps.count = taps.certain = across.taps;
  return taps;
}

template <class T>
void ResizeStrip(const ResizeCall<T>& call, const ResizeRecord& record, const Tile& tile, const Strip& strip,
                 const Period& across, const Period& down) {
  const int channels = Channels(call.src.layout);
  const hn::ScalableTag<float> d;
  float sums[kStripFloats];
  ClearBehind(sums, strip.pixels * channels);
  auto* averages = reinterpret_cast<float*>(AtBoundary(call.buffer));
  const Taps taps = TapsOf(record, strip, across);
  ColumnPlan<float> plan(taps, Edge{BorderKind::kReplicate, {0, strip.pixels}}, channels == 2 ? 1 : channels);
  PairSums pairs;
  if (channels == 2) pairs.Clear(strip.pixels);
  if (channels <= 2) plan.to = strip.columns;  // there are sums to read behind the last column's
  const TapPlanes<float> weights{strip.weights, strip.columns};
  const AreaQuotient quotient(static_cast<int>(across.parts * down.parts), 8 * sizeof(T));
  Period::Place place = down.PlaceOf(tile.y);
  for (ptrdiff_t y = 0; y < tile.height; ++y, place = down.Next(place)) {
    const T* row = SourceRow(call, tile, down.First(place)) + strip.source * channels;
    const auto weight = [&](int k) { return down.Weight(k, place); };
    const Image<const T> rows{row, call.src.step, call.src.layout};
    SumDown(d, rows, down.Count(place), weight, strip.pixels * channels, sums);
    if (channels == 2) {
      pairs.Filter(plan, weights, sums, strip.pixels, averages);
    } else {
      FilterAcross(plan, weights, std::array<const float*, 1>{sums}, std::array{averages});
    }
    MapRow<false>(
        d, call.dst.Row(y) + (strip.begin - tile.x) * channels, strip.columns * channels,
        [=](auto sum) HWY_ATTR { return quotient.Of(sum); }, static_cast<const float*>(averages));
  }
}

// False where not even one column fits a strip.
template <class T>
bool ResizeStrips(const ResizeCall<T>& call, const ResizeRecord& record, const Tile& tile) {
  const Period across(record, record.columns), down(record, record.rows);
  const ptrdiff_t most = ColumnsPerStrip(across, Channels(call.src.layout));
  if (most < 1) return false;
  for (ptrdiff_t x = 0; x < tile.width; x += most) {
    const Strip strip(across, tile.x + x, std::min(most, tile.width - x));
    ResizeStrip(call, record, tile, strip, across, down);
  }
  return true;
}

}  // namespace qvp::resize
