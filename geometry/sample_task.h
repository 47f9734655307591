// What a sampling call is about: the pixels that can be read, which points between them have a value, and where the
// taps of a block of points lie.
#pragma once

#include <algorithm>
#include <cstring>
#include <type_traits>

#include "base/border.h"
#include "base/image.h"
#include "base/lanes.h"
#include "geometry/sample_weights.h"

namespace qvp::sampling {

// Taps along an axis of a method that remap and the warps know.
constexpr int TapsOf(int interpolation) {
  switch (interpolation) {
    case qvpInterpolationNearest: return 1;
    case qvpInterpolationLinear: return 2;
    case qvpInterpolationLanczos: return 6;
    default: return 4;
  }
}

// ---- What has a value

// What can be read, and which points have a value.
struct Area {
  Extent columns, rows;
  BorderKind kind = BorderKind::kReplicate;  // or kConst: what stands for pixels elsewhere
  bool isBounded = false;                    // points beyond the bounds are left alone ...
  bool isSmooth = false;                     // ... but blended in on one pixel around them
  double left = 0, top = 0, right = 0, bottom = 0;

  void SetBounds(Extent x, Extent y) {
    left = static_cast<double>(x.begin), right = static_cast<double>(x.end - 1);
    top = static_cast<double>(y.begin), bottom = static_cast<double>(y.end - 1);
  }
};

// Numbers from `low` to `high`, both included; empty if `high` is the lower one.
struct Interval {
  double low = 1, high = 0;

  bool Contains(double x) const { return x >= low && x <= high; }
  bool IsEmpty() const { return low > high; }
};

// Points along both axes.
struct PointBox {
  Interval u, v;
};

constexpr int kTapsBefore(int taps) { return (taps - 1) / 2; }

// How far before a pixel its points begin: the nearest pixel is half a pixel away at most, and others begin with it.
constexpr double kPointsBefore(int taps) { return taps == 1 ? 0.5 : 0; }

// Where points farther outside of an extent are moved to: whole coordinates, with all taps beyond the extent.
inline Interval FarthestOf(Extent extent, int taps) {
  const int before = kTapsBefore(taps);
  return {static_cast<double>(extent.begin - taps + before), static_cast<double>(extent.end + before)};
}

// Pixels that are read behind the last tap: kernels load four elements, or a word, at once.
constexpr int kFurther(int taps, int channels) { return taps == 1 || channels == 4 ? 0 : channels == 3 ? 1 : 3; }

// Offsets are summed up in 32 bits, and a coordinate of an interior point plus one half is exact in single precision.
inline constexpr int64_t kLargestOffset = INT32_MAX, kLastInterior = int64_t{1} << 21;

// The points inside the bounds that have all taps, and `further` pixels behind these, in the extent. Of the last such
// pixel only the first half counts, so that no rounding leads out of it.
inline Interval InteriorOf(Extent extent, int taps, int further, bool isBounded, double low, double high) {
  const int before = kTapsBefore(taps);
  int64_t first = int64_t{extent.begin} + before, last = int64_t{extent.end} - taps + before - further;
  if (isBounded) {
    first = std::max(first, static_cast<int64_t>(low) + (taps == 1));
    last = std::min(last, static_cast<int64_t>(high) - 1);
  }
  last = std::min(last, kLastInterior);
  if (first > last) return {};
  return {static_cast<double>(first) - kPointsBefore(taps), static_cast<double>(last) + 0.5 - kPointsBefore(taps) / 2};
}

// Weights, and sums of weighted pixels, are single precision unless pixels are double.
template <class T>
using WorkOf = std::conditional_t<std::is_same_v<T, double>, double, float>;

template <class T>
struct Task {
  Image<const T> src;
  Area area;
  T constant[4] = {};
  CubicPolynomials<WorkOf<T>> cubic;
  bool isShift = false;  // nearest only: points are whole and one apart, so that pixels move in runs
  PointBox interior;     // points that need no test
  ptrdiff_t ahead = 0;   // bytes from a point's taps to those to fetch

  // The points that have all taps, for a method.
  PointBox InnerBox(int taps) const {
    const int further = kFurther(taps, Channels(src.layout));
    return {InteriorOf(area.columns, taps, further, area.isBounded, area.left, area.right),
            InteriorOf(area.rows, taps, 0, area.isBounded, area.top, area.bottom)};
  }

  // Whether offsets of all pixels fit into 32 bits.
  bool HasShortOffsets() const {
    const int64_t reach = std::max(-int64_t{area.rows.begin}, int64_t{area.rows.end}) + 8;
    const int64_t across = std::max(-int64_t{area.columns.begin}, int64_t{area.columns.end}) + 8;
    const int64_t size = src.step < 0 ? -int64_t{src.step} : int64_t{src.step};
    return size <= kLargestOffset && size * reach + across * src.PixelBytes() <= kLargestOffset;
  }

  // Finds the interior for a method. It is empty where offsets are too long.
  void SetInterior(int taps) { interior = HasShortOffsets() ? InnerBox(taps) : PointBox{}; }

  // Whether any point moved into the interior has its nearest pixel there.
  bool HasNearestInside() const {
    const auto hasAll = [](const Interval& inner, Extent extent) {
      return inner.low < extent.begin && inner.high >= extent.end - 1;
    };
    return !isShift && hasAll(interior.u, area.columns) && hasAll(interior.v, area.rows);
  }

  // A row of the destination crosses many rows of the source, too many for a CPU to foresee. The rows that follow cross
  // them in about the same way, at points this far away.
  void FetchAhead(double columns, double rows) {
    constexpr Interval kNear{-1e4, 1e4};
    const bool isNear = !interior.u.IsEmpty() && kNear.Contains(columns) && kNear.Contains(rows);
    const int64_t bytes =
        isNear ? int64_t{src.step} * static_cast<int>(rows) + src.PixelBytes() * static_cast<int>(columns) : 0;
    ahead = static_cast<ptrdiff_t>(bytes);
  }
};

// How many rows of the destination are worked on before what is fetched for them.
inline constexpr int kRowsAhead = 4;

// ---- Blocks of points

// Numbers of this size have no fraction: adding it rounds to the nearest, ties to even, and shows the result in the low
// 32 bits.
inline constexpr double kToWhole = 6755399441055744.0;  // 1.5 * 2^52
inline double NearestWhole(double x) { return (x + kToWhole) - kToWhole; }

// Points come in blocks of up to kBlock.
inline constexpr int kBlock = 256;

// Points up to whole vectors of any build.
constexpr ptrdiff_t Padded(ptrdiff_t n) { return (n + 15) & -16; }

// Room for vectors from any point of a block on.
inline constexpr ptrdiff_t kSpare = 16;

// Linear interpolation of bytes is done in integers.
template <int kTaps, class T>
using FractionOf = std::conditional_t<kTaps == 2 && std::is_same_v<T, uint8_t>, int32_t, WorkOf<T>>;

// Fractions are numbers, of the precision of the weights, or whole units of 2^-15: a position is rounded to units of
// 2^-26, and these down to 2^-15.
inline constexpr int kFractionBits = 15, kUnitBits = 26;
inline constexpr double kUnits = 1 << kUnitBits;

template <class F>
constexpr bool kIsWhole = std::is_integral_v<F>;

// Points that are placed at once, for results that fill a vector of bytes.
inline constexpr ptrdiff_t kWhole = std::max<ptrdiff_t>(hn::MaxLanes(hn::ScalableTag<uint8_t>()), 16);

// Where the points of a block have their first taps, in bytes, and their fractions. The first point is at `first`.
template <class F>
struct Places {
  ptrdiff_t first = 0;
  int32_t offset[kBlock + kWhole];
  F x[kBlock + kWhole], y[kBlock + kWhole];

  // Repeats the last of n points up to a multiple of kWhole.
  void Fill(ptrdiff_t n) {
    for (ptrdiff_t i = n; i % kWhole != 0; ++i) {
      offset[first + i] = offset[first + n - 1];
      x[first + i] = y[first + i] = 0;
    }
  }
};

// Makes the pixels of n points by strides: make(i, to) writes those of kStride points from the i-th on, and elements of
// kOver pixels behind them. What a stride has too much, and channels that stay, are kept off the destination.
template <int kStride, int kOver, int kChannels, class T, class Make>
void MakePixels(const Task<T>& task, ptrdiff_t n, T* dst, const Make& make) {
  const int written = ProcessedChannels(task.src.layout);
  ptrdiff_t i = 0;
  for (; written == kChannels && i + kStride + kOver <= n; i += kStride) make(i, dst + i * kChannels);
  for (; i < n; i += kStride) {
    T out[kStride * kChannels + 4];
    make(i, out);
    const ptrdiff_t rest = std::min<ptrdiff_t>(n - i, kStride);
    T* to = dst + i * kChannels;
    if (written == kChannels) {
      std::memcpy(to, out, rest * kChannels * sizeof(T));
      continue;
    }
    for (ptrdiff_t j = 0; j < rest; ++j) std::memcpy(to + j * kChannels, out + j * kChannels, written * sizeof(T));
  }
}

}  // namespace qvp::sampling
