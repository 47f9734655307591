// The tables of records: which source pixels every destination position takes, with which weights.
#include "geometry/resize_tables.h"

#include <algorithm>
#include <cstring>
#include <numeric>

#include "geometry/resize_coverage.h"
#include "geometry/resize_tap_weights.h"

namespace qvp::resize {
namespace {

// Hands out the places of the tables, one behind the other.
class Tables {
 public:
  Tables(ResizeRecord& record, int64_t at) : base_(reinterpret_cast<uint8_t*>(&record)), next_(at) {}

  template <class T>
  T* Take(int64_t count, uint32_t* low, uint32_t* high) {
    *low = static_cast<uint32_t>(next_);
    *high = static_cast<uint32_t>(static_cast<uint64_t>(next_) >> 32);
    T* table = reinterpret_cast<T*>(base_ + next_);
    next_ += (count * static_cast<int64_t>(sizeof(T)) + kTableAlignment - 1) & -kTableAlignment;
    return table;
  }
  int32_t* TakeIndex(ResizeAxis& axis, int64_t count) { return Take<int32_t>(count, &axis.indexAt, &axis.indexAtHigh); }
  template <class W>
  W* TakeWeights(ResizeAxis& axis, int64_t count) {
    return Take<W>(count, &axis.weightsAt, &axis.weightsAtHigh);
  }
  template <class W>
  W* TakeNext(int64_t count) {
    uint32_t low, high;
    return Take<W>(count, &low, &high);
  }
  // Those of header and tables.
  int64_t bytes() const { return next_; }

 private:
  uint8_t* base_;
  int64_t next_;
};

void FillNearest(ResizeAxis& axis, Tables& tables) {
  int32_t* index = tables.TakeIndex(axis, axis.destination);
  for (ptrdiff_t d = 0; d < axis.destination; ++d) index[d] = static_cast<int32_t>(axis.Nearest(d));
}

// Counts positions whose taps [first, first + taps) are not all inside.
void CountBorders(ResizeAxis& axis, ptrdiff_t first, ptrdiff_t taps) {
  axis.leading += first < 0;
  axis.trailing += first + taps > axis.source;
}

void FillLinearIndex(const ResizeRecord& record, ResizeAxis& axis, Tables& tables) {
  int32_t* index = tables.TakeIndex(axis, axis.destination);
  axis.taps = axis.certainTaps = 2;
  for (ptrdiff_t d = 0; d < axis.destination; ++d) {
    const ptrdiff_t first = FloorOf(record.Coordinate(axis, d));
    index[d] = static_cast<int32_t>(first);
    CountBorders(axis, first, 2);
  }
}

// The weight of the second pixel in units of 1/16384, less than 16384.
int16_t FixedFraction(double x) {
  return static_cast<int16_t>((x - static_cast<double>(FloorOf(x))) * kFixedOne + 0.0000001);
}

// Rows have the weight of the lower one; columns pairs for the left and the right one.
void FillFixedWeights(const ResizeRecord& record, ResizeAxis& axis, Tables& tables) {
  const bool isPairs = &axis == &record.columns;
  const ptrdiff_t n = axis.destination;
  auto* w = tables.TakeWeights<int16_t>(axis, isPairs ? 2 * n : n);
  for (ptrdiff_t d = 0; d < n; ++d) {
    const int16_t second = FixedFraction(record.Coordinate(axis, d));
    if (isPairs) *w++ = static_cast<int16_t>(kFixedOne - second);
    *w++ = second;
  }
}

template <class W>
void FillFractions(const ResizeRecord& record, ResizeAxis& axis, Tables& tables) {
  const int32_t* first = record.Index(axis);
  auto* w = tables.TakeWeights<W>(axis, axis.destination);
  for (ptrdiff_t d = 0; d < axis.destination; ++d) w[d] = static_cast<W>(record.Distance(axis, d, first[d]));
}

void FillLinearWeights(const ResizeRecord& record, ResizeAxis& axis, WeightKind kind, Tables& tables) {
  if (kind == WeightKind::kFixed) FillFixedWeights(record, axis, tables);
  if (kind == WeightKind::kFloat) FillFractions<float>(record, axis, tables);
  if (kind == WeightKind::kDouble) FillFractions<double>(record, axis, tables);
}

void FillLinear(ResizeRecord& record, WeightKind kind, Tables& tables) {
  FillLinearIndex(record, record.rows, tables);
  FillLinearIndex(record, record.columns, tables);
  for (ResizeAxis* axis : {&record.rows, &record.columns}) FillLinearWeights(record, *axis, kind, tables);
}

// Most and fewest taps of any position, and the positions that need a border.
void FillTapIndex(const ResizeRecord& record, ResizeAxis& axis, const Method& method, Tables& tables) {
  int32_t* index = tables.TakeIndex(axis, axis.destination);
  axis.taps = 0;
  axis.certainTaps = INT32_MAX;
  for (ptrdiff_t d = 0; d < axis.destination; ++d) {
    const Support support(record, axis, method, d);
    index[d] = static_cast<int32_t>(support.first);
    axis.taps = std::max(axis.taps, static_cast<int32_t>(support.count));
    axis.certainTaps = std::min(axis.certainTaps, static_cast<int32_t>(support.count));
    CountBorders(axis, support.first, support.count);
  }
}

// A plane of weights for each tap; antialiasing records have a second table, in double.
bool FillFloatTaps(const ResizeRecord& record, ResizeAxis& axis, const Method& method, Tables& tables) {
  const ptrdiff_t plane = PlaneOf(axis.destination);
  auto* weights = tables.TakeWeights<float>(axis, plane * axis.taps);
  double* precise = method.isAntialiasing ? tables.TakeNext<double>(plane * axis.taps) : nullptr;
  for (ptrdiff_t d = 0; d < axis.destination; ++d) {
    const TapWeights taps(record, axis, method, d);
    for (int k = 0; k < axis.taps; ++k) {
      const double weight = taps.At(k);
      weights[k * plane + d] = static_cast<float>(weight);
      if (precise) precise[k * plane + d] = weight;
    }
  }
  return true;
}

constexpr int kMostFixedTaps = 6;

// Weights in units of 1/16384, which sum to one exactly: the largest takes the residue. False where 16-bit weights or
// 32-bit sums could overflow: a weight of 2 or more, or absolute values that sum to more than 2.8.
bool FixTaps(const TapWeights& taps, int count, int (&fixed)[kMostFixedTaps]) {
  double absolute = 0;
  int sum = 0, largest = 0;
  for (int k = 0; k < count; ++k) {
    const double w = taps.At(k), magnitude = w < 0 ? -w : w;
    absolute += magnitude;
    if (!(magnitude < 2)) return false;
    fixed[k] = static_cast<int>(w * kFixedOne + (w < 0 ? -0.5 : 0.5));
    sum += fixed[k];
    if (std::abs(fixed[k]) > std::abs(fixed[largest])) largest = k;
  }
  fixed[largest] += kFixedOne - sum;
  return absolute <= 2.8 && fixed[largest] <= INT16_MAX && fixed[largest] >= INT16_MIN;
}

// A plane for each pair of taps.
bool FillFixedTaps(const ResizeRecord& record, ResizeAxis& axis, const Method& method, Tables& tables) {
  const ptrdiff_t plane = PlaneOf(axis.destination);
  auto* weights = tables.TakeWeights<int16_t>(axis, plane * axis.taps);
  for (ptrdiff_t d = 0; d < axis.destination; ++d) {
    int fixed[kMostFixedTaps];
    if (!FixTaps(TapWeights(record, axis, method, d), axis.taps, fixed)) return false;
    for (int k = 0; k < axis.taps; ++k) weights[k / 2 * 2 * plane + 2 * d + k % 2] = static_cast<int16_t>(fixed[k]);
  }
  return true;
}

bool FillTaps(ResizeRecord& record, const Method& method, Tables& tables) {
  FillTapIndex(record, record.rows, method, tables);
  FillTapIndex(record, record.columns, method, tables);
  const auto fill = method.weights == WeightKind::kFixed ? FillFixedTaps : FillFloatTaps;
  return fill(record, record.rows, method, tables) && fill(record, record.columns, method, tables);
}

// One period: destination position j covers [j p, (j + 1) p) in units of 1 / q source pixels. On a grid that begins
// earlier areas may have the most pixels that there is room for.
void FillSuper(const ResizeRecord& record, ResizeAxis& axis, Tables& tables) {
  const int64_t p = axis.p, q = axis.q, most = record.IsOfChroma() ? 2 : std::min<int64_t>(p % q, 2);
  axis.taps = axis.certainTaps = static_cast<int32_t>(p / q + most);
  int32_t* index = tables.TakeIndex(axis, q);
  auto* weights = tables.TakeWeights<float>(axis, q * (p / q + 2));
  for (int64_t j = 0; j < q; ++j) {
    const FrameArea area(record, axis, j);
    index[j] = static_cast<int32_t>(area.first);
    for (int64_t k = 0; k < axis.taps; ++k) {
      weights[k * q + j] = static_cast<float>(area.Overlap(axis, k));
    }
  }
}

bool FillTables(ResizeRecord& record, const Method& method, Tables& tables) {
  if (method.HasPlainTaps()) return FillTaps(record, method, tables);
  switch (method.interpolation) {
    case qvpInterpolationNearest:
      FillNearest(record.rows, tables);
      FillNearest(record.columns, tables);
      break;
    case qvpInterpolationLinear: FillLinear(record, method.weights, tables); break;
    default:
      FillSuper(record, record.rows, tables);
      FillSuper(record, record.columns, tables);
      break;
  }
  return true;
}

void SetLengths(ResizeAxis& axis, const AxisLengths& lengths) {
  axis.source = static_cast<int32_t>(lengths.source);
  axis.destination = static_cast<int32_t>(lengths.destination);
  const ptrdiff_t g = std::gcd(lengths.from, lengths.to);
  axis.p = static_cast<int32_t>(lengths.from / g);
  axis.q = static_cast<int32_t>(lengths.to / g);
}

bool IsClipped(const ResizeAxis& axis) { return int64_t{axis.destination} * axis.p > int64_t{axis.source} * axis.q; }

int32_t TapPairs(const Method& method, const ResizeAxis& axis) {
  if (method.interpolation == qvpInterpolationNearest || method.interpolation == qvpInterpolationSuper) return 0;
  if (!method.isAntialiasing) return method.Kernel().Reach();
  return static_cast<int32_t>(ReservedTaps(method.interpolation, true, axis.source, axis.destination) / 2);
}

// Pixels around the source rectangle of a tile that its taps may reach.
uint32_t BorderOf(const Method& method, const ResizeAxis& axis) {
  if (method.interpolation == qvpInterpolationNearest || method.interpolation == qvpInterpolationSuper) return 0;
  const double reach = method.Kernel().Reach() * ScaleOf(axis, method);
  return static_cast<uint32_t>(-FloorOf(-reach));
}

void FillHeader(ResizeRecord& record, const AxisLengths& columns, const AxisLengths& rows, const Method& method) {
  std::memset(&record, 0, sizeof(record));
  SetLengths(record.rows, rows);
  SetLengths(record.columns, columns);
  record.isCosited[0] = columns.isCosited;
  record.isCosited[1] = rows.isCosited;
  record.isClipped = IsClipped(record.columns) || IsClipped(record.rows);
  record.weights = method.weights;
  record.interpolation = method.interpolation;
  record.tapPairsAcross = TapPairs(method, record.columns);
  record.tapPairsDown = TapPairs(method, record.rows);
  record.isAntialiasing = method.isAntialiasing;
  record.border.left = record.border.right = BorderOf(method, record.columns);
  record.border.top = record.border.bottom = BorderOf(method, record.rows);
  record.mode = method.weights == WeightKind::kFixed ? qvpAlgHintFast : qvpAlgHintAccurate;
  record.sourceWidth = record.columns.source;
  record.sourceHeight = record.rows.source;
  record.width = record.columns.destination;
  record.height = record.rows.destination;
  record.isFastCapable = method.isFor8u;
  record.b = method.b;
  record.c = method.c;
  record.lobes = method.lobes;
  std::memcpy(record.shift, method.shift, sizeof(record.shift));
}

}  // namespace

int64_t FillRecord(ResizeRecord& record, const AxisLengths& columns, const AxisLengths& rows, Method method,
                   int64_t at) {
  FillHeader(record, columns, rows, method);
  Tables tables(record, at);
  if (FillTables(record, method, tables)) return tables.bytes();
  method.weights = WeightKind::kFloat;
  FillHeader(record, columns, rows, method);
  Tables floats(record, at);
  FillTables(record, method, floats);
  return floats.bytes();
}

void FillFurtherAxis(ResizeRecord& record, ResizeAxis& axis, const AxisLengths& lengths, const Method& method,
                     int64_t at) {
  axis = {};
  SetLengths(axis, lengths);
  Tables tables(record, at);
  if (method.HasPlainTaps()) {
    FillTapIndex(record, axis, method, tables);
    FillFloatTaps(record, axis, method, tables);
  } else if (method.interpolation == qvpInterpolationLinear) {
    FillLinearIndex(record, axis, tables);
    FillLinearWeights(record, axis, method.weights, tables);
  } else if (method.interpolation == qvpInterpolationNearest) {
    FillNearest(axis, tables);
  }
}

int64_t FillAreas(ResizeRecord& record, ResizeAxis& axis, int64_t at) {
  Tables tables(record, at);
  const ptrdiff_t n = axis.destination, plane = PlaneOf(n);
  axis.taps = static_cast<int32_t>(axis.p / axis.q + std::min(axis.p % axis.q, 2));
  axis.certainTaps = axis.taps;
  int32_t* index = tables.TakeIndex(axis, plane);
  auto* weights = tables.TakeWeights<float>(axis, plane * axis.taps);
  for (ptrdiff_t d = 0; d < n; ++d) {
    const Coverage coverage = PeriodicCoverage(axis, d);
    index[d] = static_cast<int32_t>(coverage.first);
    axis.certainTaps = std::min(axis.certainTaps, static_cast<int32_t>(coverage.Pixels()));
    for (int k = 0; k < axis.taps; ++k) weights[k * plane + d] = static_cast<float>(coverage.Part(k));
  }
  return tables.bytes();
}

}  // namespace qvp::resize
