// Resize by averages over the area that a destination pixel covers in the source.
#include <hwy/cache_control.h>

#include "base/export.h"
#include "base/map.h"
#include "geometry/resize_area_near.h"
#include "geometry/resize_area_strips.h"
#include "geometry/resize_areas.h"
#include "geometry/resize_filter.h"
#include "geometry/resize_passes.h"

namespace qvp::resize {
namespace {

constexpr ptrdiff_t kMostStripColumns = 512;

// The taps of one axis, from the tables of its period, with weights in units of 1 / q pixels.
struct Period {
  const int32_t* index;
  const float* weights;
  ptrdiff_t p, q;
  int taps;

  Period(const ResizeRecord& record, const ResizeAxis& a)
      : index(record.Index(a)), weights(record.Weights<float>(a)), p(a.p), q(a.q), taps(a.taps) {}

  ptrdiff_t First(ptrdiff_t d) const { return d / q * p + index[d % q]; }
  float At(int k, ptrdiff_t d) const { return weights[k * q + d % q]; }
  // The last taps have weight 0 at some positions, and are then not read.
  int Count(ptrdiff_t d) const {
    int count = taps;
    while (count > 1 && At(count - 1, d) == 0) --count;
    return count;
  }
};

// A strip of columns: its taps with places counted from the first source pixel that it reads.
struct Strip {
  ptrdiff_t begin, columns, source, pixels;  // in the destination, and in the source
  int32_t first[kMostStripColumns];
  float weights[kStripFloats];

  Strip(const Period& period, ptrdiff_t from, ptrdiff_t n) : begin(from), columns(n), source(period.First(from)) {
    for (ptrdiff_t x = 0; x < n; ++x) {
      first[x] = static_cast<int32_t>(period.First(from + x) - source);
      for (int k = 0; k < period.taps; ++k) weights[k * n + x] = period.At(k, from + x);
    }
    pixels = first[n - 1] + period.Count(from + n - 1);
  }
};

// Columns for which a strip has memory: 0 where not even one fits.
ptrdiff_t ColumnsPerStrip(const Period& period, int channels) {
  const ptrdiff_t byWeights = kStripFloats / period.taps;
  const ptrdiff_t bySums = (kStripFloats - 16) / channels - 2 - period.p / period.q;
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

// Stores exact sums divided by the area, rounded to the nearest integers. Ties are only met where the area is even.
// Where it is a power of two, or the sums are further from a tie than a product with the inverse may be off, that is
// the same.
template <class T>
void StoreQuotients(const float* sums, int area, T* dst, ptrdiff_t n) {
  const hn::ScalableTag<float> d;
  const bool isPowerOfTwo = (area & (area - 1)) == 0, isOdd = area % 2 != 0;
  if (isPowerOfTwo || (isOdd && area < 1 << (22 - 8 * sizeof(T)))) {
    const auto inverse = hn::Set(d, static_cast<float>(1.0 / area));
    return MapRow<false>(
        d, dst, n, [=](auto v) HWY_ATTR { return hn::Mul(v, inverse); }, sums);
  }
  const auto divisor = hn::Set(d, static_cast<float>(area));
  MapRow<false>(
      d, dst, n, [=](auto v) HWY_ATTR { return hn::Div(v, divisor); }, sums);
}

// Sums of two channels across, one after the other; the averages of both need as much memory again behind them.
class PairSums {
 public:
  // What taps of weight 0 may read behind the sums is 0.
  void Clear() { std::memset(planes_, 0, sizeof(planes_)); }

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
  float planes_[2][kStripFloats / 2 + 16];
};

template <class T>
void ResizeStrip(const ResizeCall<T>& call, const ResizeRecord& record, const Tile& tile, const Strip& strip,
                 const Period& across, const Period& down) {
  const int channels = Channels(call.src.layout);
  const hn::ScalableTag<float> d;
  float sums[kStripFloats] = {};
  auto* averages = reinterpret_cast<float*>(AtBoundary(call.buffer));
  Taps taps(record, record.columns, 0, strip.columns);
  taps.first = strip.first;
  taps.from = 0;
  taps.to = strip.columns;
  taps.count = across.taps;
  taps.certain = across.taps;  // the zeros behind the sums need no other care
  const ColumnPlan<float> plan(taps, Edge{BorderKind::kReplicate, {0, strip.pixels}}, channels == 2 ? 1 : channels);
  PairSums pairs;
  if (channels == 2) pairs.Clear();
  const TapPlanes<float> weights{strip.weights, strip.columns};
  const auto area = static_cast<int>(across.p * down.p);
  for (ptrdiff_t y = 0; y < tile.height; ++y) {
    const T* row = SourceRow(call, tile, down.First(tile.y + y)) + strip.source * channels;
    const auto weight = [&](int k) { return down.At(k, tile.y + y); };
    const Image<const T> rows{row, call.src.step, call.src.layout};
    SumDown(d, rows, down.Count(tile.y + y), weight, strip.pixels * channels, sums);
    if (channels == 2) {
      pairs.Filter(plan, weights, sums, strip.pixels, averages);
    } else {
      FilterAcross(plan, weights, std::array<const float*, 1>{sums}, std::array{averages});
    }
    StoreQuotients(averages, area, call.dst.Row(y) + (strip.begin - tile.x) * channels, strip.columns * channels);
  }
}

// Half the size of one-channel bytes: sums of 2x2 pixels in 16-bit lanes, divided by 4, ties to even. Their averages in
// floating point are exact, too, so that this is the same result.
uint8_t Quarter(int sum) { return static_cast<uint8_t>((sum + 1 + (sum >> 2 & 1)) >> 2); }

HWY_INLINE auto Quarters(const uint8_t* upper, const uint8_t* lower) {
  const hn::ScalableTag<uint8_t> d;
  const hn::ScalableTag<int16_t> d16;
  const auto ones = hn::Set(hn::ScalableTag<int8_t>(), 1);
  const auto sum = hn::Add(MulAddPairs(hn::LoadU(d, upper), ones), MulAddPairs(hn::LoadU(d, lower), ones));
  const auto one = hn::Set(d16, 1);
  return hn::ShiftRight<2>(hn::Add(hn::Add(sum, one), hn::And(hn::ShiftRight<2>(sum), one)));
}

// `ahead` is where the next two rows lie, which are fetched meanwhile: new rows are too short for the CPU to notice
// their pattern in time.
void HalveRow(const uint8_t* upper, const uint8_t* lower, ptrdiff_t ahead, uint8_t* dst, ptrdiff_t n) {
  const hn::ScalableTag<uint8_t> d;
  constexpr ptrdiff_t kLanes = hn::MaxLanes(hn::ScalableTag<uint8_t>());
  ptrdiff_t i = 0;
  for (; i + kLanes <= n; i += kLanes) {
    hwy::Prefetch(upper + 2 * i + ahead);
    hwy::Prefetch(lower + 2 * i + ahead);
    const auto left = Quarters(upper + 2 * i, lower + 2 * i);
    const auto right = Quarters(upper + 2 * i + kLanes, lower + 2 * i + kLanes);
    hn::StoreU(PackedInOrder<uint8_t>(left, right), d, dst + i);
  }
  for (; i < n; ++i) dst[i] = Quarter(upper[2 * i] + upper[2 * i + 1] + lower[2 * i] + lower[2 * i + 1]);
}

bool IsHalf(const ResizeRecord& record) {
  return record.columns.p == 2 && record.columns.q == 1 && record.rows.p == 2 && record.rows.q == 1 &&
         !record.IsShifted();
}

void Halve(const ResizeCall<uint8_t>& call, const Tile& tile) {
  for (ptrdiff_t y = 0; y < tile.height; ++y) {
    HalveRow(call.src.Row(2 * y), call.src.Row(2 * y + 1), 2 * call.src.step, call.dst.Row(y), tile.width);
  }
}

// Bytes of work memory that every caller has for a tile.
int64_t RoomFor(const Tile& tile, int channels) {
  const int64_t columns = PlaneOf(int64_t{4} * tile.width), samples = PlaneOf(int64_t{4} * tile.width * channels);
  return PlaneOf(int64_t{4} * tile.height) + columns + 2 * samples;
}

// In integers, a row of sums at a time. False where there is no room for one, or the tile is narrower than a vector.
bool ResizeWhole(const ResizeCall<uint8_t>& call, const ResizeRecord& record, const Tile& tile) {
  const int channels = Channels(call.src.layout);
  if (tile.width < AreaColumns::Fewest(channels)) return false;
  const AreaColumns columns(record, tile, channels);
  auto* sums = reinterpret_cast<uint16_t*>(AtBoundary(call.buffer));
  if (columns.RowSamples() * int64_t{sizeof(*sums)} > RoomFor(tile, channels)) return false;
  const Period down(record, record.rows);
  for (ptrdiff_t y = 0; y < tile.height; ++y) {
    const ptrdiff_t row = tile.y + y;
    const auto parts = [&](int k) { return static_cast<uint16_t>(Overlap(record.rows, row % down.q, k)); };
    const Image<const uint8_t> rows{call.src.Row(down.First(row) - tile.source.y), call.src.step, call.src.layout};
    SumDown(hn::ScalableTag<uint16_t>(), rows, down.Count(row), parts, columns.Pixels() * channels, sums);
    columns.Average(sums, call.dst.Row(y));
  }
  return true;
}

// Whether the sum of an area, in whole parts of pixels, fits the 24 bits of a float: then it is exact, and so is the
// nearest integer to its quotient by the area.
template <class T>
bool AreSumsExact(const ResizeRecord& record) {
  return !record.IsShifted() && int64_t{record.columns.p} * record.rows.p <= (1 << 24) >> (8 * sizeof(T));
}

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

}  // namespace

template <class T>
void AreaTile(const ResizeCall<T>& call, const ResizeRecord& record, const Tile& tile) {
  if constexpr (sizeof(T) == 1) {
    if (IsHalf(record) && call.src.layout == Layout::kC1) return Halve(call, tile);
    if (AreAreasWhole(record) && ResizeWhole(call, record, tile)) return;
  }
  if constexpr (std::is_integral_v<T>) {
    if (AreSumsExact<T>(record) && ResizeStrips(call, record, tile)) return;
  }
  if (IsNear(record)) return AverageStrips<NearColumns>(call, record, tile);
  if (AverageParts(call, record, tile)) return;
  AverageAreas(call, record, tile);
}

template void AreaTile(const ResizeCall<uint8_t>&, const ResizeRecord&, const Tile&);
template void AreaTile(const ResizeCall<uint16_t>&, const ResizeRecord&, const Tile&);

namespace {

template <class T>
QvpStatus Super(const ResizeCall<T>& call) {
  return RunResize(call, {qvpInterpolationSuper, false, true, true}, AreaTile<T>);
}

}  // namespace
}  // namespace qvp::resize

using namespace qvp;
using namespace qvp::resize;

QVP_C1_C3_C4(QVP_RESIZE, qvpiResizeSuper, 8u, Super)
QVP_C1_C3_C4(QVP_RESIZE, qvpiResizeSuper, 16u, Super)
QVP_C1_C3_C4(QVP_RESIZE, qvpiResizeSuper, 16s, Super)
QVP_C1_C3_C4(QVP_RESIZE, qvpiResizeSuper, 32f, Super)
