// The source points of a row of destination pixels. Each is computed from its own place, so that tiles equal the whole.
#pragma once

#include <array>

#include "geometry/sample_task.h"
#include "geometry/warp_record.h"

namespace qvp {

// Columns [first, end).
struct Span {
  ptrdiff_t first, end;
};

// One linear function of the column x: (a x + b) + c. Each of its rounded steps is monotone in x, and so is the result.
struct Line {
  double a, b, c;

  Line(const double (&coefficients)[3], ptrdiff_t y)
      : a(coefficients[0]), b(coefficients[1] * static_cast<double>(y)), c(coefficients[2]) {}

  double At(double x) const { return a * x + b + c; }

  // The same in other units, a power of two.
  Line Times(double units) const {
    Line line(*this);
    line.a *= units, line.b *= units, line.c *= units;
    return line;
  }

  // Whether no step before column x loses more than 2^-27 by rounding.
  bool IsSmall(double x) const {
    constexpr double kSmall = 1 << 24;
    return Size(a * x) < kSmall && Size(b) < kSmall && Size(c) < kSmall;
  }
  static double Size(double x) { return x < 0 ? -x : x; }

  // No column up to x is farther from the exact value.
  double RoundingUpTo(double x) const { return (Size(a * x) + Size(b) + Size(c)) * 0x1p-51; }

  template <class D, class V = hn::Vec<D>>
  HWY_INLINE V At(D d, V x) const {
    return hn::Add(hn::Add(hn::Mul(hn::Set(d, a), x), hn::Set(d, b)), hn::Set(d, c));
  }
};

// Columns from `first` on.
struct Columns {
  double first;

  template <class D>
  HWY_INLINE hn::Vec<D> Load(D d, ptrdiff_t i) const {
    static constexpr auto kNumbers = [] {
      std::array<double, kBlock> numbers{};
      for (int k = 0; k < kBlock; ++k) numbers[k] = k;
      return numbers;
    }();
    return hn::Add(hn::LoadU(d, kNumbers.data() + i), hn::Set(d, first));
  }
};

// Nearest pixels of an affine transform in fixed point: the distances of a block's points from its first one, in units
// of 2^-18. They are rounded by half a unit, as is the first point itself; together with the rounding of doubles a
// position is wrong by less than two units. Where one comes closer than that to the middle between two pixels, the
// block is left to exact arithmetic.
class FixedSteps {
 public:
  static constexpr int kBits = 18;
  static constexpr int32_t kOne = 1 << kBits, kDoubt = 2;

  // For blocks of up to n points.
  FixedSteps(const WarpRecord& record, ptrdiff_t n) : au_(record.c[0][0]), av_(record.c[1][0]) {
    if (!IsShort(au_) || !IsShort(av_)) return;
    isUsable_ = true;
    for (int i = 0; i < std::min<ptrdiff_t>(Padded(n), kBlock); ++i) {
      u_[i] = Rounded(au_ * i);
      v_[i] = Rounded(av_ * i);
    }
  }

  bool IsUsable() const { return isUsable_; }

  // Offsets of n interior points from (u, v) on, or false.
  template <int kPixelBytes>
  bool Place(double u, double v, ptrdiff_t n, int32_t step, int32_t* offset) const {
    const hn::ScalableTag<int32_t> d;
    const int32_t column = WholeBelowOf(u), row = WholeBelowOf(v);
    const auto origin = hn::Set(d, row * step + column * kPixelBytes), stride = hn::Set(d, step);
    const auto firstU = hn::Set(d, Start(u - column)), firstV = hn::Set(d, Start(v - row));
    const auto fraction = hn::Set(d, kOne - 1), bytes = hn::Set(d, kPixelBytes);
    auto closest = fraction;
    for (ptrdiff_t i = 0; i < n; i += hn::Lanes(d)) {
      const auto x = hn::Add(firstU, hn::LoadU(d, u_ + i)), y = hn::Add(firstV, hn::LoadU(d, v_ + i));
      closest = hn::Min(closest, hn::Min(hn::And(x, fraction), hn::And(y, fraction)));
      const auto px = hn::ShiftRight<kBits>(x), across = kPixelBytes == 1 ? px : hn::Mul(px, bytes);
      hn::StoreU(hn::Add(hn::Add(hn::Mul(hn::ShiftRight<kBits>(y), stride), across), origin), d, offset + i);
    }
    return hn::AllTrue(d, hn::Gt(closest, hn::Set(d, 2 * kDoubt - 1)));
  }

 private:
  // Whether the longest block stays within 31 bits.
  static bool IsShort(double a) { return a >= -16 && a <= 16; }
  static int32_t Rounded(double x) { return static_cast<int32_t>((x * kOne + kToWhole) - kToWhole); }
  static int32_t WholeBelowOf(double x) { return static_cast<int32_t>(x + 1) - 1; }  // of interior points, from -1 on
  // Half a pixel on, so that the pixel is the whole number below, and by the doubt, so that it is on one side of it.
  static int32_t Start(double fraction) { return Rounded(fraction) + kOne / 2 + kDoubt; }

  double au_, av_;
  bool isUsable_ = false;
  int32_t u_[kBlock], v_[kBlock];
};

struct AffinePoints {
  using Coordinate = double;
  Line u, v;
  Columns columns;
  const FixedSteps* steps = nullptr;

  // A row whose column 0 is destination column `x`.
  AffinePoints(const WarpRecord& record, ptrdiff_t x, ptrdiff_t y, const FixedSteps* fixedSteps = nullptr)
      : u(record.c[0], y), v(record.c[1], y), columns{static_cast<double>(x)}, steps(fixedSteps) {}

  template <int kPixelBytes>
  bool PlaceNearest(ptrdiff_t n, int32_t step, int32_t* offset) const {
    const double end = columns.first + static_cast<double>(n);
    if (steps == nullptr || !u.IsSmall(end) || !v.IsSmall(end)) return false;
    return steps->Place<kPixelBytes>(u.At(columns.first), v.At(columns.first), n, step, offset);
  }

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

// Near and at the horizon there is no coordinate, but NaN.
struct PerspectivePoints {
  using Coordinate = double;
  AffinePoints affine;
  Line w;

  PerspectivePoints(const WarpRecord& record, ptrdiff_t x, ptrdiff_t y) : affine(record, x, y), w(record.c[2], y) {}

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
    const double near = w.At(first), far = w.At(last), depth = std::min(Line::Size(near), Line::Size(far));
    if (!(depth > 0) || (near > 0) != (far > 0)) return false;
    const double farthest = std::max(box.u.high, box.v.high) + 1;
    const double doubt = affine.u.RoundingUpTo(last) + affine.v.RoundingUpTo(last) + farthest * w.RoundingUpTo(last);
    const double rim = 2 * doubt / depth;
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
};

// The same for interpolation in single precision. Points of a box have their coordinates by a common quotient, which
// doubles their rounding; what is outside of it, or at its rim, is told by exact ones. Unless points are tested, all
// are in the box.
template <bool kIsTested>
struct QuotientPoints {
  using Coordinate = double;
  PerspectivePoints points;
  const PointBox* box;

  ptrdiff_t MostAtOnce() const { return kBlock; }
  QuotientPoints From(ptrdiff_t x) const { return {points.From(x), box}; }

  template <class D>
  HWY_INLINE void Load(D d, ptrdiff_t i, hn::Vec<D>& x, hn::Vec<D>& y) const {
    points.affine.Load(d, i, x, y);
    const auto factor = hn::Div(hn::Set(d, 1.0), kIsTested ? points.Divisor(d, i) : points.Depth(d, i));
    x = hn::Mul(x, factor);
    y = hn::Mul(y, factor);
    if constexpr (kIsTested) {
      const auto isIn = hn::And(IsIn(d, box->u, x), IsIn(d, box->v, y));
      if (hn::AllTrue(d, isIn)) return;
      hn::Vec<D> exactX, exactY;
      points.Load(d, i, exactX, exactY);
      x = hn::IfThenElse(isIn, x, exactX);
      y = hn::IfThenElse(isIn, y, exactY);
    }
  }

 private:
  template <class D>
  HWY_INLINE static hn::Mask<D> IsIn(D d, const Interval& interval, hn::Vec<D> x) {
    return hn::And(hn::Ge(x, hn::Set(d, interval.low)), hn::Le(x, hn::Set(d, interval.high)));
  }
};

// Coordinates of n points, and copies of the last one up to Padded(n).
template <class Points>
void Locate(const Points& points, ptrdiff_t n, double* u, double* v) {
  const hn::ScalableTag<double> d;
  for (ptrdiff_t i = 0; i < n; i += hn::Lanes(d)) {
    hn::Vec<decltype(d)> x, y;
    points.Load(d, i, x, y);
    hn::StoreU(x, d, u + i);
    hn::StoreU(y, d, v + i);
  }
  std::fill(u + n, u + Padded(n), u[n - 1]);
  std::fill(v + n, v + Padded(n), v[n - 1]);
}

// ---- Spans of a row

// The first of columns [0, n) with a property that all columns behind it have too, or n. A close guess saves the
// search.
template <class Property>
ptrdiff_t FirstWith(ptrdiff_t n, double guess, const Property& has) {
  const auto near = static_cast<ptrdiff_t>(guess >= 0 ? std::min(guess, static_cast<double>(n - 1)) : 0);
  Span open{0, n};
  const auto probe = [&](ptrdiff_t x) {
    if (x < open.first || x >= open.end) return;
    if (has(x)) open.end = x;
    if (open.end != x) open.first = x + 1;
  };
  for (const ptrdiff_t x : {near + 1, near}) probe(x);
  while (open.first < open.end) probe(open.first + (open.end - open.first) / 2);
  return open.first;
}

// The columns of n, counted from column `x`, whose coordinates lie in the interval. The line is finite there.
inline Span SpanOf(const Line& line, const Interval& interval, double x, ptrdiff_t n) {
  const bool isRising = line.a >= 0;
  const double enter = isRising ? interval.low : interval.high, leave = isRising ? interval.high : interval.low;
  const auto guess = [&](double value) { return (value - line.b - line.c) / line.a - x; };
  const auto at = [&](ptrdiff_t i) { return line.At(x + static_cast<double>(i)); };
  const ptrdiff_t first =
      FirstWith(n, guess(enter), [&](ptrdiff_t i) { return isRising ? at(i) >= enter : at(i) <= enter; });
  const ptrdiff_t end =
      FirstWith(n, guess(leave), [&](ptrdiff_t i) { return isRising ? at(i) > leave : at(i) < leave; });
  return {first, std::max(first, end)};
}

inline Span SpanOf(const AffinePoints& points, const PointBox& box, ptrdiff_t n) {
  const Span a = SpanOf(points.u, box.u, points.columns.first, n), b = SpanOf(points.v, box.v, points.columns.first, n);
  const ptrdiff_t first = std::max(a.first, b.first);
  return {first, std::max(first, std::min(a.end, b.end))};
}

// The columns that need not be tested, among those that may take something from the image.
struct Spans {
  Span touching, inside;
};

// The points of which some tap lies in the extent, or that are within the bounds.
inline Interval TouchingOf(const SampleArea& area, int taps, Extent extent, double low, double high) {
  if (area.isBounded) return {low - area.isSmooth, high + area.isSmooth};
  const double before = kTapsBefore(taps) - kPointsBefore(taps);
  return {static_cast<double>(extent.begin) - taps + 1 + before, static_cast<double>(extent.end) + before};
}

template <int kTaps, class T>
Spans SpansOf(const SampleTask<T>& task, const PointBox& inner, const AffinePoints& points, ptrdiff_t n) {
  const SampleArea& area = task.area;
  const double begin = points.columns.first, last = begin + static_cast<double>(n - 1);
  const double ends = (points.u.At(begin) + points.v.At(begin)) + (points.u.At(last) + points.v.At(last));
  Spans spans{{0, n}, {n, n}};
  if (!(ends - ends == 0)) return spans;
  if (area.isBounded || area.kind == BorderKind::kConst) {
    spans.touching = SpanOf(points,
                            {TouchingOf(area, kTaps, area.columns, area.left, area.right),
                             TouchingOf(area, kTaps, area.rows, area.top, area.bottom)},
                            n);
  }
  const Span inside = SpanOf(points, inner, n);
  spans.inside = inside.first < inside.end ? inside : Span{spans.touching.end, spans.touching.end};
  return spans;
}

}  // namespace qvp
