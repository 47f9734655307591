// Values at points whose taps need a test, one by one: at the border of the image, at its smooth edge and beyond.
#pragma once

#include "base/scalar.h"
#include "geometry/sample_bytes.h"
#include "geometry/sample_floats.h"
#include "geometry/sample_rim.h"

namespace qvp::sampling {

// ---- What becomes of a point

// The pixel that belongs to a coordinate: the nearest one, the upper of two; or the one at or before it. x + 0.5 would
// round 0.49999999999999994 up.
template <int kTaps>
int64_t PixelOf(double x) {
  const int64_t whole = FloorOf(x);
  return kTaps == 1 && x - static_cast<double>(whole) >= 0.5 ? whole + 1 : whole;
}

// Where a point's value comes from.
enum class Origin : uint8_t { kNone, kTaps, kConstant };

// One point: its first tap, its fractions, and the share of its value in the pixel, below 1 outside smooth bounds.
struct BorderPoint {
  Origin origin = Origin::kNone;
  int64_t column = 0, row = 0;
  double x = 0, y = 0, share = 1;
};

// As kernels have it, who subtract a floor with its sign: -0 is 0 behind -0, not -0 behind 0. The weight of the next
// pixel would have the sign, and a sum of zeros take it.
inline double FractionBehind(double x, int64_t whole) { return x - static_cast<double>(whole) + 0.0; }

// The nearest number of [low, high]; not a number gives the lower one.
inline double Clamped(double x, double low, double high) { return x >= low ? x <= high ? x : high : low; }

inline double Beyond(double x, double low, double high) {
  return x < low ? low - x : x > high ? x - high : x == x ? 0 : 1;
}

inline bool AreAllOutside(int64_t first, int taps, Extent extent) {
  return first + taps <= extent.begin || first >= extent.end;
}

// Points are moved to the bounds or, far outside, to the first place where all taps are beyond the extent.
template <int kTaps>
BorderPoint Locate(const Area& area, double u, double v) {
  BorderPoint point;
  Interval across = FarthestOf(area.columns, kTaps), down = FarthestOf(area.rows, kTaps);
  if (area.isBounded) {
    across = {area.left, area.right}, down = {area.top, area.bottom};
    const double dx = Beyond(u, across.low, across.high), dy = Beyond(v, down.low, down.high);
    if (dx >= 1 || dy >= 1 || (!area.isSmooth && (dx > 0 || dy > 0))) return point;
    point.share = (1 - dx) * (1 - dy);
  }
  const double x = Clamped(u, across.low, across.high), y = Clamped(v, down.low, down.high);
  const int64_t column = PixelOf<kTaps>(x), row = PixelOf<kTaps>(y);
  point.column = column - kTapsBefore(kTaps);
  point.row = row - kTapsBefore(kTaps);
  point.x = FractionBehind(x, column);
  point.y = FractionBehind(y, row);
  const bool isConstant = area.kind == BorderKind::kConst && (AreAllOutside(point.column, kTaps, area.columns) ||
                                                              AreAllOutside(point.row, kTaps, area.rows));
  point.origin = isConstant ? Origin::kConstant : Origin::kTaps;
  return point;
}

// The taps of a point at the border: tap k of row r goes to patch + (r * kTaps + k) * channels.
template <int kTaps, class T>
void FetchPatch(const Task<T>& task, const BorderPoint& point, T* patch) {
  const int channels = Channels(task.src.layout);
  ptrdiff_t columns[kTaps];
  for (int k = 0; k < kTaps; ++k) {
    columns[k] = BorderPosition(task.area.kind, static_cast<ptrdiff_t>(point.column + k), task.area.columns);
  }
  for (int r = 0; r < kTaps; ++r) {
    const ptrdiff_t y = BorderPosition(task.area.kind, static_cast<ptrdiff_t>(point.row + r), task.area.rows);
    const T* row = y == kOutside ? nullptr : task.src.Row(y);
    for (int k = 0; k < kTaps; ++k, patch += channels) {
      const bool isConstant = row == nullptr || columns[k] == kOutside;
      CopyPixel(patch, isConstant ? task.constant : row + columns[k] * channels, channels);
    }
  }
}

// ---- Points whose taps need a test

// A number as an element: integers are rounded to the nearest, ties to even, and saturated; NaN gives the lowest one.
template <class T>
T ToElement(double value) {
  if constexpr (std::is_floating_point_v<T>) {
    return static_cast<T>(value);
  } else {
    const double bounded = Clamped(value, std::numeric_limits<T>::lowest(), std::numeric_limits<T>::max());
    return static_cast<T>(NearestWhole(bounded));
  }
}

// A value with a share below 1 is mixed with what was there before. Only what comes of that is rounded.
template <class T, class W>
void StoreMixed(const W* value, double share, int written, T* dst) {
  for (int c = 0; c < written; ++c) {
    const auto old = static_cast<double>(LoadScalar(dst + c));
    StoreScalar(dst + c, ToElement<T>(share * static_cast<double>(value[c]) + (1 - share) * old));
  }
}

// The weighted sum of the taps from `first` on. Four elements are read at each tap, however many channels there are.
template <int kTaps, class T>
FourChannels<WorkOf<T>> WeightedSum(const Task<T>& task, const BorderPoint& point, const uint8_t* first,
                                    ptrdiff_t step) {
  using W = WorkOf<T>;
  const hn::CappedTag<W, 2> axes;
  const Weigher<kTaps, W> weigh(task.cubic);
  alignas(kBlockBytes) const W fractions[2] = {static_cast<W>(point.x), static_cast<W>(point.y)};
  hn::Vec<decltype(axes)> weights[kTaps];
  alignas(kBlockBytes) W w[kTaps][2];
  weigh(axes, hn::LoadU(axes, fractions), weights);
  for (int k = 0; k < kTaps; ++k) hn::StoreU(weights[k], axes, w[k]);
  return SumOfTaps<kTaps, T>(first, step, Channels(task.src.layout), &w[0][0], &w[0][1], 2);
}

// The value of a point, not mixed, as blocks of points have it.
template <int kTaps, class T>
void ValueOf(const Task<T>& task, const BorderPoint& point, const uint8_t* first, ptrdiff_t step, T* out) {
  if constexpr (kIsWhole<FractionOf<kTaps, T>>) {
    const auto fraction = [](double x) {
      return static_cast<int>(NearestWhole(x * kUnits)) >> (kUnitBits - kFractionBits);
    };
    BlendBytesOf(first, first + step, Channels(task.src.layout), fraction(point.x), fraction(point.y), out);
  } else {
    WeightedSum<kTaps>(task, point, first, step).StoreTo(out);
  }
}

// Writes the value of a point whose taps begin at `first`.
template <int kTaps, class T>
void StorePoint(const Task<T>& task, const BorderPoint& point, const T* first, ptrdiff_t step, T* dst) {
  const int written = ProcessedChannels(task.src.layout);
  const auto* bytes = reinterpret_cast<const uint8_t*>(first);
  if (point.share < 1) {
    WorkOf<T> sum[4];
    WeightedSum<kTaps>(task, point, bytes, step).StoreTo(sum);
    return StoreMixed(sum, point.share, written, dst);
  }
  T value[4];
  ValueOf<kTaps>(task, point, bytes, step, value);
  CopyPixel(dst, value, written);
}

// A point by its taps, in the image where all are in it and in copies otherwise.
template <int kTaps, class T>
void SampleTaps(const Task<T>& task, const BorderPoint& point, bool isInterior, T* dst) {
  const int channels = Channels(task.src.layout);
  if (isInterior) {
    const T* first = task.src.Row(static_cast<ptrdiff_t>(point.row)) + point.column * channels;
    return StorePoint<kTaps>(task, point, first, task.src.step, dst);
  }
  T patch[kTaps * kTaps * 4 + 4];
  FetchPatch<kTaps>(task, point, patch);
  std::memset(patch + kTaps * kTaps * channels, 0, 4 * sizeof(T));  // is read, but not used
  StorePoint<kTaps>(task, point, patch, ptrdiff_t{kTaps} * channels * sizeof(T), dst);
}

template <int kTaps, class T>
void SamplePoint(const Task<T>& task, double u, double v, T* dst) {
  const BorderPoint point = Locate<kTaps>(task.area, u, v);
  if (point.origin == Origin::kNone) return;
  const int written = ProcessedChannels(task.src.layout);
  if (point.origin == Origin::kConstant) {
    CopyPixel(dst, task.constant, written);
  } else if constexpr (kTaps > 1) {
    SampleTaps<kTaps>(task, point, task.interior.u.Contains(u) && task.interior.v.Contains(v), dst);
  } else {
    T value[4];
    FetchPatch<1>(task, point, value);
    if (point.share < 1) return StoreMixed(value, point.share, written, dst);
    CopyPixel(dst, value, written);
  }
}

}  // namespace qvp::sampling
