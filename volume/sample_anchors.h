// Points of an affine transform in fixed point, from anchors as images have them: every 8th column of the whole
// destination is computed in double precision.
#pragma once

#include "geometry/warp_anchors.h"
#include "volume/sample_blend.h"
#include "volume/sample_points.h"

namespace qvp::volume {

// What the columns behind an anchor are away from it, in units of 2^-26.
class AnchorSteps {
 public:
  explicit AnchorSteps(const Affine& affine) {
    for (int k = 0; k < 3; ++k) {
      isShort_ = isShort_ && std::fabs(affine.c[k][0]) <= warp::AnchorSteps::kSteepest;
      if (isShort_) warp::AnchorSteps::Fill(affine.c[k][0], of[k]);
    }
  }

  // Whether a row of the whole destination can be placed by anchors, no matter which part of it is computed. Nearest
  // voxels must not be lost; others are as of images.
  template <int kTaps>
  bool IsUsableFor(const AffineRow& row, ptrdiff_t width) const {
    return isShort_ && row.IsBelow(kTaps == 1 ? 1 << 21 : warp::Line::kSmall, width);
  }

  int32_t of[3][warp::AnchorSteps::kColumns];

 private:
  bool isShort_ = true;
};

// A block of points, counted from the anchor at or before its first one. Each is wrong by 2^-26 voxel at most.
class AnchoredPoints {
 public:
  AnchoredPoints(const AffinePoints& points, const AnchorSteps& steps, ptrdiff_t n)
      : exact_(points), steps_(steps), lead_(points.column() % kColumns) {
    for (int k = 0; k < 3; ++k) {
      for (ptrdiff_t i = 0; i * kColumns < lead_ + n; i += hn::MaxLanes(Doubles())) SetAnchors(k, i);
    }
  }

  ptrdiff_t Lead() const { return lead_; }

  // Points beyond the interval are as at its ends, which are whole: their taps are one voxel.
  template <int kTaps, class F>
  HWY_INLINE SplitPoint<F> Split(int axis, ptrdiff_t i, const Interval& most) const {
    static_assert(kTaps > 1);
    const IntLanes d;
    const auto units = UnitsAt(axis, i), whole = WholeAt(axis, i, units);
    const auto end = [&](double at) HWY_ATTR { return hn::Set(d, static_cast<int32_t>(at)); };
    const auto isBeyond = hn::Or(hn::Lt(whole, end(most.low)), hn::Gt(whole, end(most.high - 1)));
    const hn::Rebind<F, FloatLanes> fractions;
    return {whole, hn::IfThenZeroElse(hn::RebindMask(fractions, isBeyond), warp::FractionIn<F>(units))};
  }
  // Nearest voxels: the least distance of points from the middle between two is told, so that all can be computed
  // another way where it is less than their error.
  template <int kTaps, class F>
  HWY_INLINE SplitPoint<F> SplitInner(int axis, ptrdiff_t i, hn::Vec<IntLanes>& closest) const {
    if constexpr (kTaps > 1) {
      const auto units = UnitsAt(axis, i);
      return {WholeAt(axis, i, units), warp::FractionIn<F>(units)};
    } else {
      const IntLanes d;
      const auto units = hn::Add(UnitsAt(axis, i), hn::Set(d, kOne / 2 + kTolerance));
      closest = hn::Min(closest, hn::And(units, hn::Set(d, kOne - 1)));
      return {WholeAt(axis, i, units), hn::Zero(FloatLanes())};
    }
  }
  HWY_INLINE static bool AreSure(hn::Vec<IntLanes> closest) {
    return hn::AllTrue(IntLanes(), hn::Gt(closest, hn::Set(IntLanes(), 2 * kTolerance)));
  }
  HWY_INLINE hn::Vec<IntLanes> AreIn(int axis, ptrdiff_t i, const Interval& interval) const {
    return exact_.AreIn(axis, i - lead_, interval);
  }

 private:
  using Doubles = hn::ScalableTag<double>;
  static constexpr int kColumns = warp::kAnchorColumns;
  static constexpr int32_t kOne = 1 << sampling::kUnitBits, kTolerance = 2;
  static constexpr ptrdiff_t kCount = kBlockRoom / kColumns;

  void SetAnchors(int axis, ptrdiff_t i) {
    const Doubles d;
    const hn::Rebind<uint64_t, Doubles> bits;
    const hn::Rebind<int64_t, Doubles> words;
    const auto first = hn::Set(d, static_cast<double>(exact_.column() - lead_ + i * kColumns));
    const auto columns = hn::Add(hn::Mul(hn::Iota(d, 0), hn::Set(d, kColumns)), first);
    const auto units =
        sampling::NearestWholes(hn::Mul(exact_.row().At(d, axis, columns), hn::Set(d, sampling::kUnits)));
    hn::StoreU(hn::BitCast(words, hn::ShiftRight<sampling::kUnitBits>(units)), words, whole_[axis] + i);
    hn::StoreU(hn::BitCast(words, hn::And(units, hn::Set(bits, kOne - 1))), words, fraction_[axis] + i);
  }
  HWY_INLINE hn::Vec<IntLanes> UnitsAt(int axis, ptrdiff_t i) const {
    const IntLanes d;
    return hn::Add(warp::Anchors::At(d, fraction_[axis], i), hn::LoadU(d, steps_.of[axis] + i % kColumns));
  }
  HWY_INLINE hn::Vec<IntLanes> WholeAt(int axis, ptrdiff_t i, hn::Vec<IntLanes> units) const {
    return hn::Add(warp::Anchors::At(IntLanes(), whole_[axis], i), hn::ShiftRight<sampling::kUnitBits>(units));
  }

  const AffinePoints& exact_;
  const AnchorSteps& steps_;
  ptrdiff_t lead_;
  int64_t whole_[3][kCount], fraction_[3][kCount];  // low halves of words count
};

}  // namespace qvp::volume
