// Values of a volume at points: which taps they are made of, and what of it lies in memory. Each formula is written
// once, over points in lanes: where taps need a test, copies of them are what it works on.
#pragma once

#include "volume/sample_anchors.h"
#include "volume/sample_patches.h"
#include "volume/sample_planes.h"

namespace qvp::volume {

using sampling::TapsOf;

template <int kTaps, class T>
class BlockSampler {
 public:
  explicit BlockSampler(const Source<T>& source)
      : source_(source),
        patches_(source),
        blend_(source.cubic),
        areNear_(source.volume.isArray && planes_.Set(source.volume, source.planes)) {}

  // Values at n points of a block to as many voxels.
  template <class Points>
  void Sample(const Points& points, ptrdiff_t n, T* dst) {
    lead_ = points.Lead();
    const ptrdiff_t end = lead_ + n;
    if (!LocateAnywhere(points, end)) return SampleByRuns(end, dst);
    if (!SampleInside(lead_, end, dst)) SampleApart(lead_, end, dst);
  }

  // The same for points of which none needs a test. False if they must be exact, and may not be.
  template <class Points>
  bool SampleInner(const Points& points, ptrdiff_t n, T* dst) {
    lead_ = points.Lead();
    const ptrdiff_t end = lead_ + n;
    if (!LocateInside(points, end)) return false;
    if (!SampleInside(lead_, end, dst)) SampleApart(lead_, end, dst);
    return true;
  }

  // Columns of a row whose points need no test: not always all.
  Extent InnerOf(const AffinePoints& points, ptrdiff_t n) const {
    Extent inner{0, n};
    for (int k = 0; k < 3; ++k) {
      const Extent of = points.InsideOf(k, InteriorOf(k), n);
      inner = {std::max(inner.begin, of.begin), std::min(inner.end, of.end)};
    }
    return inner.begin < inner.end ? inner : Extent{};
  }

 private:
  using F = FractionOf<kTaps, T>;
  using Taps = BlockTaps<kTaps>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(IntLanes());
  static constexpr int kBefore = sampling::kTapsBefore(kTaps);
  // Kernels load words: what they read of a row from the first tap on.
  static constexpr int kRead = kTaps == 1 ? 1 : std::max(kTaps, 4 / static_cast<int>(sizeof(T)));
  static constexpr int ReadAlong(int axis) { return axis == 0 ? kRead : kTaps; }

  // Where a point's value comes from: from nowhere, or the constant alone; from taps that all lie in memory; from taps
  // that need a test.
  enum Origin : int32_t { kNone, kConstant, kInside, kApart };

  // The points whose taps all lie in memory and which are written, but for a narrow rim.
  Interval InteriorOf(int axis) const {
    constexpr double kRim = 1.0 / (1 << 20), kFirst = kBefore - sampling::kPointsBefore(kTaps);
    const Extent extent = source_.axes[axis];
    const Interval inside{static_cast<double>(extent.begin) + kFirst + kRim,
                          static_cast<double>(extent.end - ReadAlong(axis) + 1) + kFirst - kRim};
    if (!source_.isBounded) return inside;
    const Interval& bounds = source_.bounds[axis];
    return {std::max(inside.low, bounds.low), std::min(inside.high, bounds.high)};
  }

  // ---- First taps, fractions and origins

  HWY_INLINE hn::Vec<IntLanes> Store(const SplitPoint<F>& split, int axis, ptrdiff_t i) {
    const IntLanes d;
    const auto tap = hn::Sub(split.pixel, hn::Set(d, kBefore));
    hn::StoreU(tap, d, tap_[axis] + i);
    if constexpr (kTaps > 1) hn::StoreU(split.fraction, hn::Rebind<F, FloatLanes>(), blend_.fraction[axis] + i);
    return tap;
  }

  template <class Points>
  HWY_NOINLINE bool LocateInside(const Points& points, ptrdiff_t end) {
    auto closest = hn::Set(IntLanes(), INT32_MAX);
    for (ptrdiff_t i = 0; i < end; i += kLanes) {
      for (int k = 0; k < 3; ++k) Store(points.template SplitInner<kTaps, F>(k, i, closest), k, i);
    }
    return Points::AreSure(closest);
  }

  // Whether all are inside. Points are moved to where all taps are beyond what can be read, at most; what is no number
  // is before it.
  template <class Points>
  HWY_NOINLINE bool LocateAnywhere(const Points& points, ptrdiff_t end) {
    const IntLanes d;
    auto others = hn::Zero(d);
    for (ptrdiff_t i = 0; i < end; i += kLanes) {
      auto isApart = hn::Zero(d), isBeyond = hn::Zero(d), isWritten = hn::Set(d, -1);
      for (int k = 0; k < 3; ++k) {
        const Extent extent = source_.axes[k];
        const Interval most = sampling::FarthestOf(extent, kTaps);
        const auto tap = Store(points.template Split<kTaps, F>(k, i, most), k, i);
        isApart = hn::Or(isApart, IsOutside(tap, extent.begin, extent.end - ReadAlong(k)));
        isBeyond = hn::Or(isBeyond, IsOutside(tap, extent.begin - kTaps + 1, extent.end - 1));
        if (source_.isBounded) isWritten = hn::And(isWritten, points.AreIn(k, i, source_.bounds[k]));
      }
      const auto origin = hn::And(isWritten, OriginOf(isApart, isBeyond));
      hn::StoreU(origin, d, origin_ + i);
      others = hn::Or(others, hn::IfThenElseZero(hn::FirstN(d, end - i), hn::Xor(origin, hn::Set(d, kInside))));
    }
    return hn::AllTrue(d, hn::Eq(others, hn::Zero(d)));
  }
  template <class V>
  HWY_INLINE static V IsOutside(V tap, ptrdiff_t first, ptrdiff_t last) {
    const IntLanes d;
    const auto at = [&](ptrdiff_t i) HWY_ATTR { return hn::Set(d, static_cast<int32_t>(i)); };
    return hn::VecFromMask(d, hn::Or(hn::Lt(tap, at(first)), hn::Gt(tap, at(last))));
  }
  // Where all taps are beyond along an axis, the constant is no sum: weights need not sum up to 1 exactly.
  template <class V>
  HWY_INLINE V OriginOf(V isApart, V isBeyond) const {
    const IntLanes d;
    const auto origin = hn::Sub(hn::Set(d, kInside), isApart);
    return source_.kind == BorderKind::kConst ? hn::Add(origin, hn::Add(isBeyond, isBeyond)) : origin;
  }

  HWY_NOINLINE void SampleByRuns(ptrdiff_t n, T* dst) {
    for (ptrdiff_t first = lead_, end; first < n; first = end) {
      const int32_t origin = origin_[first];
      end = first + 1;
      while (end < n && origin_[end] == origin) ++end;
      if (origin == kConstant) {
        for (ptrdiff_t i = first; i < end; ++i) StoreScalar(Voxel(dst, i), source_.constant);
      } else if (origin == kApart || (origin == kInside && !SampleInside(first, end, dst))) {
        SampleApart(first, end, dst);
      }
    }
  }

  // ---- Points whose taps lie in memory. False if these are too far from each other for offsets of 32 bits.

  bool SampleInside(ptrdiff_t first, ptrdiff_t end, T* dst) {
    const Volume<const T>& volume = source_.volume;
    const int64_t step = volume.front.step, planeStep = volume.planeStep, depth = source_.axes[2].end;
    const int64_t within = source_.axes[1].end * step + source_.axes[0].end * int64_t{sizeof(T)};
    if (volume.isArray) return SamplePlanes(first, end, dst);
    // Voxels in front of the first, which may be in memory, are few.
    if ((depth + 8) * planeStep + within + 8 * (step + 8) > INT32_MAX) return false;
    FindOffsets(first, end - first, static_cast<int32_t>(step), static_cast<int32_t>(planeStep));
    Taps taps{static_cast<ptrdiff_t>(step), {}, {}};
    const auto* const base = reinterpret_cast<const uint8_t*>(volume.front.data);
    for (int k = 0; k < kTaps; ++k)
      taps.base[k] = base + k * static_cast<ptrdiff_t>(planeStep), taps.offset[k] = offset_[0];
    blend_(taps, first, end - first, Voxel(dst, first));
    return true;
  }

  void FindOffsets(ptrdiff_t first, ptrdiff_t n, int32_t step, int32_t planeStep) {
    const IntLanes d;
    const auto rows = hn::Set(d, step), planes = hn::Set(d, planeStep), voxels = hn::Set(d, int32_t{sizeof(T)});
    for (ptrdiff_t i = 0; i < n; i += kLanes) {
      const auto tap = [&](int axis) HWY_ATTR { return hn::LoadU(d, tap_[axis] + first + i); };
      const auto offset = hn::Add(hn::Add(hn::Mul(tap(2), planes), hn::Mul(tap(1), rows)), hn::Mul(tap(0), voxels));
      hn::StoreU(offset, d, offset_[0] + i);
    }
  }

  // Of planes that lie anywhere, each tap's has an offset of its own. Where a call may read more planes than are near
  // each other, those of a block still may be.
  bool SamplePlanes(ptrdiff_t first, ptrdiff_t end, T* dst) {
    const int64_t step = source_.volume.front.step;
    const int64_t within = (source_.axes[1].end + 8) * step + source_.axes[0].end * int64_t{sizeof(T)};
    if (within > PlanePlaces::kFarthest) return false;
    if (!areNear_) {
      int32_t least = tap_[2][first], most = least;
      for (ptrdiff_t i = first; i < end; ++i) least = std::min(least, tap_[2][i]), most = std::max(most, tap_[2][i]);
      if (!planes_.Set(source_.volume, {least, ptrdiff_t{most} + kTaps})) return false;
    }
    FindOffsets(first, end - first, static_cast<int32_t>(step), 0);
    planes_.template AddTo<kTaps>(tap_[2] + first, end - first, offset_);
    Taps taps{static_cast<ptrdiff_t>(step), {}, {}};
    for (int k = 0; k < kTaps; ++k) taps.base[k] = planes_.base(), taps.offset[k] = offset_[k];
    blend_(taps, first, end - first, Voxel(dst, first));
    return true;
  }

  // ---- Points whose taps need a test

  void SampleApart(ptrdiff_t first, ptrdiff_t end, T* dst) {
    for (ptrdiff_t i = first; i < end; ++i) {
      const auto fraction = [&](int k) { return blend_.fraction[k][i]; };
      patches_.Add({tap_[0][i], tap_[1][i], tap_[2][i]}, {fraction(0), fraction(1), fraction(2)}, Voxel(dst, i));
    }
  }

  // The voxel of point i of the block.
  T* Voxel(T* dst, ptrdiff_t i) const { return dst + (i - lead_); }

  const Source<T>& source_;
  Patches<kTaps, T> patches_;
  ptrdiff_t lead_ = 0;  // points of a block that are in front of its first one
  Blender<kTaps, T> blend_;
  PlanePlaces planes_;
  bool areNear_;  // all that may be read
  alignas(64) int32_t tap_[3][kBlockRoom], offset_[kTaps][kBlockRoom], origin_[kBlockRoom];
};

// A row of points: step(x, n) for n of them from x on.
template <class Step>
void ForEachBlock(ptrdiff_t first, ptrdiff_t end, const Step& step) {
  for (ptrdiff_t x = first; x < end; x += kBlockPoints) step(x, std::min(kBlockPoints, end - x));
}

}  // namespace qvp::volume
