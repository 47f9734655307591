// Points of a row of voxels: where an affine transform, or maps, take them from. Each is computed from its own place,
// so that tiles equal the whole.
#pragma once

#include "base/scalar.h"
#include "geometry/sample_places.h"
#include "volume/affine.h"

namespace qvp::volume {

using sampling::Interval;

// Fractions of F in lanes of floats, and first taps.
using FloatLanes = hn::ScalableTag<float>;
using IntLanes = hn::ScalableTag<int32_t>;
template <class F>
using SplitPoint = sampling::Split<F, FloatLanes>;

// A row of the whole destination: each coordinate is a linear function of the column.
struct AffineRow {
  double across[3], down[3], back[3];

  AffineRow(const Affine& affine, ptrdiff_t y, ptrdiff_t z) {
    for (int k = 0; k < 3; ++k) {
      const double* const c = affine.c[k];
      across[k] = c[0];
      down[k] = c[1] * static_cast<double>(y);
      back[k] = c[2] * static_cast<double>(z) + c[3];
    }
  }

  double At(int axis, double column) const { return (across[axis] * column + down[axis]) + back[axis]; }
  template <class D>
  HWY_INLINE hn::Vec<D> At(D d, int axis, hn::Vec<D> column) const {
    return hn::Add(hn::Add(hn::Mul(hn::Set(d, across[axis]), column), hn::Set(d, down[axis])), hn::Set(d, back[axis]));
  }

  // Whether each step before a column is below a number: doubles below 2^n lose 2^(n - 53) at most.
  bool IsBelow(double most, ptrdiff_t columns) const {
    for (int k = 0; k < 3; ++k) {
      const double last = std::fabs(across[k] * static_cast<double>(columns));
      if (!(last < most && std::fabs(down[k]) < most && std::fabs(back[k]) < most)) return false;
    }
    return true;
  }
};

// Points of a row from a column on.
class AffinePoints {
 public:
  AffinePoints(const AffineRow& row, ptrdiff_t column) : row_(row), column_(static_cast<double>(column)) {}

  const AffineRow& row() const { return row_; }
  ptrdiff_t column() const { return static_cast<ptrdiff_t>(column_); }
  AffinePoints From(ptrdiff_t i) const { return {row_, column() + i}; }
  static constexpr ptrdiff_t Lead() { return 0; }

  // The first and the last of n points that can be in an interval, and all between them; fewer are no fault. Rounded
  // steps are monotone, so that points between two inside are inside.
  Extent InsideOf(int axis, const Interval& interval, ptrdiff_t n) const {
    const double first = At(axis, 0), last = At(axis, n - 1);
    if (interval.Contains(first) && interval.Contains(last)) return {0, n};
    constexpr double kRim = 1.0 / (1 << 16);  // more than the rounding of what follows, for lengths of volumes
    const double slope = row_.across[axis], low = (interval.low + kRim - first) / slope,
                 high = (interval.high - kRim - first) / slope;
    const auto most = static_cast<double>(n);
    const double enter = std::max(std::min(low, high), -1.0), leave = std::min(std::max(low, high), most);
    if (!(enter < leave)) return {};
    const Extent inside{FloorOf(enter) + 1, std::min(FloorOf(leave) + 1, n)};
    const bool isRight = inside.begin < inside.end && interval.Contains(At(axis, inside.begin)) &&
                         interval.Contains(At(axis, inside.end - 1));
    return isRight ? inside : Extent{};
  }

  // As many points from the i-th on as there are lanes. They are moved to the interval, what is no number to its begin.
  template <int kTaps, class F>
  HWY_INLINE SplitPoint<F> Split(int axis, ptrdiff_t i, const Interval& most) const {
    const D d;
    const auto low = hn::Set(d, most.low), high = hn::Set(d, most.high);
    const auto moved = [&](V at) HWY_ATTR { return hn::Min(MaxOrSecond(at, low), high); };
    return sampling::SplitDoubles<kTaps, F>(FloatLanes(), moved(Load(axis, i)), moved(Load(axis, i + kLanes)));
  }
  // The same of points that need not be moved, and are exact.
  template <int kTaps, class F>
  HWY_INLINE SplitPoint<F> SplitInner(int axis, ptrdiff_t i, hn::Vec<IntLanes>&) const {
    return sampling::SplitDoubles<kTaps, F>(FloatLanes(), Load(axis, i), Load(axis, i + kLanes));
  }
  HWY_INLINE static bool AreSure(hn::Vec<IntLanes>) { return true; }
  // Lanes of ones for those in an interval.
  HWY_INLINE hn::Vec<IntLanes> AreIn(int axis, ptrdiff_t i, const Interval& interval) const {
    const D d;
    const auto low = hn::Set(d, interval.low), high = hn::Set(d, interval.high);
    const auto ones = [&](V at) HWY_ATTR {
      return hn::BitCast(IntLanes(), hn::VecFromMask(d, hn::And(hn::Ge(at, low), hn::Le(at, high))));
    };
    return hn::ConcatEven(IntLanes(), ones(Load(axis, i + kLanes)), ones(Load(axis, i)));
  }

 private:
  using D = hn::ScalableTag<double>;
  using V = hn::Vec<D>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(D());

  double At(int axis, ptrdiff_t i) const { return row_.At(axis, column_ + static_cast<double>(i)); }
  HWY_INLINE V Load(int axis, ptrdiff_t i) const {
    return row_.At(D(), axis, hn::Iota(D(), column_ + static_cast<double>(i)));
  }

  const AffineRow& row_;
  double column_;
};

// Points that three maps tell. All that count are in bounds from 0 on.
class MappedPoints {
 public:
  // Of rows that may lie at any address; blocks of points are copied where they end.
  explicit MappedPoints(const float* const (&maps)[3]) : maps_{maps[0], maps[1], maps[2]} {}
  static constexpr ptrdiff_t Lead() { return 0; }

  template <int kTaps, class F>
  HWY_INLINE SplitPoint<F> Split(int axis, ptrdiff_t i, const Interval&) const {
    return sampling::SplitSame<kTaps, F>(FloatLanes(), hn::LoadU(FloatLanes(), maps_[axis] + i));
  }
  HWY_INLINE hn::Vec<IntLanes> AreIn(int axis, ptrdiff_t i, const Interval& interval) const {
    const FloatLanes d;
    const auto at = hn::LoadU(d, maps_[axis] + i), high = hn::Set(d, NotAbove(interval.high));
    const auto low = hn::Set(d, -NotAbove(-interval.low));
    return hn::BitCast(IntLanes(), hn::VecFromMask(d, hn::And(hn::Ge(at, low), hn::Le(at, high))));
  }

 private:
  // The largest float that is not above a whole number, a length or 0 or its negative.
  static float NotAbove(double x) {
    const auto near = static_cast<float>(x);
    if (static_cast<double>(near) <= x) return near;
    int32_t bits = 0;
    float below = 0;
    hwy::CopySameSize(&near, &bits);
    bits += near > 0 ? -1 : 1;
    hwy::CopySameSize(&bits, &below);
    return below;
  }

  const float* maps_[3];
};

}  // namespace qvp::volume
