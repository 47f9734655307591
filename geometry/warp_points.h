// The source points of a row of destination pixels. Each is computed from its own place, so that tiles equal the whole.
#pragma once

#include "geometry/warp_fixed.h"
#include "geometry/warp_record.h"

namespace qvp::warp {

struct AffinePoints {
  using Coordinate = double;
  static constexpr bool kAreAllWritten = true, kIsLong = false;
  Line u, v;
  Columns columns;
  const FixedSteps* steps = nullptr;

  // A row whose column 0 is destination column `x`.
  AffinePoints(const Record& record, ptrdiff_t x, ptrdiff_t y, const FixedSteps* fixedSteps = nullptr)
      : u(record.c[0], record.twist[0], y),
        v(record.c[1], record.twist[1], y),
        columns{static_cast<double>(x)},
        steps(fixedSteps) {}

  template <int kPixelBytes>
  bool PlaceNearest(ptrdiff_t n, int32_t step, int32_t* offset) const {
    return IsPlaced(n) && steps->Place<kPixelBytes>(FirstU(), FirstV(), n, step, offset);
  }
  // Whether n points can be placed in fixed point.
  bool IsPlaced(ptrdiff_t n) const {
    const double end = columns.first + static_cast<double>(n);
    return steps != nullptr && u.IsSmall(end) && v.IsSmall(end);
  }
  double FirstU() const { return u.At(columns.first); }
  double FirstV() const { return v.At(columns.first); }

  ptrdiff_t MostAtOnce() const { return kBlock; }

  // The points from column `x` on.
  AffinePoints From(ptrdiff_t x) const {
    AffinePoints points(*this);
    points.columns.first += static_cast<double>(x);
    return points;
  }

  template <class D>
  HWY_INLINE void Load(D d, ptrdiff_t i, hn::Vec<D>& x, hn::Vec<D>& y) const {
    const auto column = columns.Load(d, i);
    x = u.At(d, column);
    y = v.At(d, column);
  }
};

// Points of a row anywhere, moved to a box where they are outside of it. What is no number is at its begin.
struct MovedAffinePoints {
  using Coordinate = double;
  AffinePoints points;
  PixelBox box;

  MovedAffinePoints From(ptrdiff_t x) const { return {points.From(x), box}; }
  ptrdiff_t MostAtOnce() const { return kBlock; }
  static constexpr bool kIsLong = false;

  template <int kPixelBytes>
  HWY_INLINE bool PlaceNearest(ptrdiff_t n, int32_t step, int32_t* offset) const {
    return points.IsPlaced(n) &&
           points.steps->PlaceIn<kPixelBytes>(box, points.FirstU(), points.FirstV(), n, step, offset);
  }

  template <class D>
  HWY_INLINE void Load(D d, ptrdiff_t i, hn::Vec<D>& x, hn::Vec<D>& y) const {
    points.Load(d, i, x, y);
    x = Moved(d, 0, x);
    y = Moved(d, 1, y);
  }

 private:
  template <class D, class V = hn::Vec<D>>
  HWY_INLINE V Moved(D d, int axis, V x) const {
    return hn::Min(MaxOrSecond(x, hn::Set(d, box.low[axis])), hn::Set(d, box.high[axis]));
  }
};

template <class D>
HWY_INLINE hn::Mask<D> IsIn(D d, const Interval& interval, hn::Vec<D> x) {
  return hn::And(hn::Ge(x, hn::Set(d, interval.low)), hn::Le(x, hn::Set(d, interval.high)));
}
template <class D>
HWY_INLINE hn::Mask<D> IsIn(D d, const PointBox& box, hn::Vec<D> x, hn::Vec<D> y) {
  return hn::And(IsIn(d, box.u, x), IsIn(d, box.v, y));
}

// Near and at the horizon there is no coordinate, but NaN.
struct PerspectivePoints {
  using Coordinate = double;
  static constexpr bool kAreAllWritten = true, kIsLong = false;
  AffinePoints affine;
  Line w;

  PerspectivePoints(const Record& record, ptrdiff_t x, ptrdiff_t y) : affine(record, x, y), w(record.c[2], 0, y) {}

  template <int kPixelBytes>
  bool PlaceNearest(ptrdiff_t, int32_t, int32_t*) const {
    return false;
  }

  ptrdiff_t MostAtOnce() const { return kBlock; }

  PerspectivePoints From(ptrdiff_t x) const {
    PerspectivePoints points(*this);
    points.affine = affine.From(x);
    return points;
  }

  // One point, roughly.
  std::array<double, 2> At(ptrdiff_t x) const {
    const double column = affine.columns.first + static_cast<double>(x), depth = w.At(column);
    return {affine.u.At(column) / depth, affine.v.At(column) / depth};
  }

  // The columns of n that are in a box, roughly. In front of the horizon, u / w >= low is u - low w >= 0, which is
  // linear.
  Span Inside(const PointBox& box, ptrdiff_t n) const {
    const double begin = affine.columns.first, last = begin + static_cast<double>(n - 1);
    const double side = w.At(begin) < 0 ? -1 : 1;
    Interval inside{0, static_cast<double>(n - 1)};
    const auto clip = [&](const Line& line, double bound, double sign) {
      const auto over = [&](double x) { return sign * (line.At(x) - bound * w.At(x)); };
      const double from = over(begin), to = over(last), zero = from / (from - to) * static_cast<double>(n - 1);
      if (from < 0) inside.low = to < 0 ? static_cast<double>(n) : std::max(inside.low, zero);
      if (to < 0) inside.high = std::min(inside.high, zero);
    };
    clip(affine.u, box.u.low, side), clip(affine.u, box.u.high, -side);
    clip(affine.v, box.v.low, side), clip(affine.v, box.v.high, -side);
    if (!(inside.low + 2 < inside.high)) return {n, n};
    return {static_cast<ptrdiff_t>(inside.low) + 1, static_cast<ptrdiff_t>(inside.high)};
  }

  // Whether all of n points certainly are in a box. With the horizon elsewhere, coordinates between those of the first
  // and the last point are between these, but for rounding.
  bool AreAllIn(const PointBox& box, ptrdiff_t n) const {
    const double first = affine.columns.first, last = first + static_cast<double>(n - 1);
    const double near = w.At(first), far = w.At(last), depth = std::min(std::fabs(near), std::fabs(far));
    if (!(depth > 0) || (near > 0) != (far > 0)) return false;
    const double farthest = std::max(box.u.high, box.v.high) + 1;
    const double error = affine.u.RoundingUpTo(last) + affine.v.RoundingUpTo(last) + farthest * w.RoundingUpTo(last);
    const double rim = 2 * error / depth;
    if (!(rim < 0.5)) return false;
    const auto isIn = [&](const std::array<double, 2>& at) {
      return Interval{box.u.low + rim, box.u.high - rim}.Contains(at[0]) &&
             Interval{box.v.low + rim, box.v.high - rim}.Contains(at[1]);
    };
    return isIn(At(0)) && isIn(At(n - 1));
  }

  template <class D>
  HWY_INLINE hn::Vec<D> Depth(D d, ptrdiff_t i) const {
    return w.At(d, affine.columns.Load(d, i));
  }

  template <class D>
  HWY_INLINE hn::Vec<D> Divisor(D d, ptrdiff_t i) const {
    const auto depth = Depth(d, i);
    return hn::IfThenElse(hn::Ge(hn::Abs(depth), hn::Set(d, 1e-300)), depth, hn::NaN(d));
  }

  template <class D>
  HWY_INLINE void Load(D d, ptrdiff_t i, hn::Vec<D>& x, hn::Vec<D>& y) const {
    affine.Load(d, i, x, y);
    const auto divisor = Divisor(d, i);
    x = hn::Div(x, divisor);
    y = hn::Div(y, divisor);
  }

  // By a common quotient.
  template <bool kIsTested, class D>
  HWY_INLINE hn::Mask<D> LoadQuick(D d, ptrdiff_t i, const PointBox& box, hn::Vec<D>& x, hn::Vec<D>& y) const {
    affine.Load(d, i, x, y);
    const auto factor = hn::Div(hn::Set(d, 1.0), kIsTested ? Divisor(d, i) : Depth(d, i));
    x = hn::Mul(x, factor);
    y = hn::Mul(y, factor);
    return IsIn(d, box, x, y);
  }
};

// The same for interpolation in single precision. Points of a box have coordinates by a quicker way that takes fewer
// divisions, at the price of a rounding more; what is outside of it, or at its rim, is told by exact ones. Unless
// points are tested, all are in the box.
template <class Points, bool kIsTested>
struct QuickPoints {
  using Coordinate = double;
  static constexpr bool kAreAllWritten = Points::kAreAllWritten, kIsLong = Points::kIsLong;
  Points points;
  const PointBox* box;

  ptrdiff_t MostAtOnce() const { return kBlock; }
  QuickPoints From(ptrdiff_t x) const { return {points.From(x), box}; }

  template <class D>
  HWY_INLINE void Load(D d, ptrdiff_t i, hn::Vec<D>& x, hn::Vec<D>& y) const {
    const auto isIn = points.template LoadQuick<kIsTested>(d, i, *box, x, y);
    if constexpr (kIsTested) {
      if (hn::AllTrue(d, isIn)) return;
      hn::Vec<D> exactX, exactY;
      points.Load(d, i, exactX, exactY);
      x = hn::IfThenElse(isIn, x, exactX);
      y = hn::IfThenElse(isIn, y, exactY);
    }
  }
};

// Coordinates of n points, and copies of the last one up to Padded(n) + kSpare.
template <class Points>
void StoreCoordinates(const Points& points, ptrdiff_t n, double* u, double* v) {
  const hn::ScalableTag<double> d;
  for (ptrdiff_t i = 0; i < n; i += hn::Lanes(d)) {
    hn::Vec<decltype(d)> x, y;
    points.Load(d, i, x, y);
    hn::StoreU(x, d, u + i);
    hn::StoreU(y, d, v + i);
  }
  const ptrdiff_t end = Padded(n) + kSpare;
  std::fill(u + n, u + end, u[n - 1]);
  std::fill(v + n, v + end, v[n - 1]);
}

}  // namespace qvp::warp
