// Points of a row of voxels: where an affine transform, or maps, take them from. Each is computed from its own place, so
// that tiles equal the whole.
#pragma once

#include <bit>

#include "geometry/sample_places.h"
#include "volume/affine.h"

namespace qvp::volume {

using sampling::Interval;

// Fractions of F in lanes of floats, and first taps.
using FloatLanes = hn::ScalableTag<float>;
using IntLanes = hn::ScalableTag<int32_t>;
template <class F>
using SplitPoint = sampling::Split<F, FloatLanes>;

class AffinePoints {
 public:
  AffinePoints(const Affine& affine, ptrdiff_t x, ptrdiff_t y, ptrdiff_t z) : column_(static_cast<double>(x)) {
    for (int k = 0; k < 3; ++k) {
      const double* const c = affine.c[k];
      across_[k] = c[0];
      down_[k] = c[1] * static_cast<double>(y);
      back_[k] = c[2] * static_cast<double>(z) + c[3];
    }
  }

  // The points from the i-th on.
  AffinePoints From(ptrdiff_t i) const {
    AffinePoints points(*this);
    points.column_ += static_cast<double>(i);
    return points;
  }
  double At(int axis, ptrdiff_t i) const {
    return (across_[axis] * (column_ + static_cast<double>(i)) + down_[axis]) + back_[axis];
  }

  // The first and the last of n points that can be in an interval, and all between them; fewer are no fault. Rounded
  // steps are monotone, so that points between two inside are inside.
  Extent InsideOf(int axis, const Interval& interval, ptrdiff_t n) const {
    const double first = At(axis, 0), last = At(axis, n - 1);
    if (interval.Contains(first) && interval.Contains(last)) return {0, n};
    constexpr double kRim = 1.0 / (1 << 16);  // more than the rounding of what follows, for lengths of volumes
    const double slope = across_[axis], low = (interval.low + kRim - first) / slope,
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
  // Those that lie in no need of this.
  template <int kTaps, class F>
  HWY_INLINE SplitPoint<F> Split(int axis, ptrdiff_t i) const {
    return sampling::SplitDoubles<kTaps, F>(FloatLanes(), Load(axis, i), Load(axis, i + kLanes));
  }
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

  HWY_INLINE V Load(int axis, ptrdiff_t i) const {
    const D d;
    const auto across = hn::Mul(hn::Set(d, across_[axis]), hn::Iota(d, column_ + static_cast<double>(i)));
    return hn::Add(hn::Add(across, hn::Set(d, down_[axis])), hn::Set(d, back_[axis]));
  }

  double across_[3], down_[3], back_[3], column_;
};

// Points that three maps tell. All that count are in bounds from 0 on.
class MappedPoints {
 public:
  // Of rows that may lie at any address; blocks of points are copied where they end.
  explicit MappedPoints(const float* const (&maps)[3]) : maps_{maps[0], maps[1], maps[2]} {}

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
    const auto bits = std::bit_cast<int32_t>(near);
    return std::bit_cast<float>(near > 0 ? bits - 1 : bits + 1);
  }

  const float* maps_[3];
};

}  // namespace qvp::volume
