// Values of a volume at points: which taps they are made of, and what of it lies in memory. Each formula is written
// once, over points in lanes: where taps need a test, copies of them are what it works on.
#pragma once

#include "base/scalar.h"
#include "geometry/sample_border.h"
#include "geometry/sample_places.h"
#include "volume/border.h"
#include "volume/sample_blend.h"

namespace qvp::volume {

using sampling::TapsOf;

// What the points of a call are taken from.
template <class T>
struct Source {
  Volume<const T> volume;
  Extent axes[3];  // columns, rows and planes that can be read
  BorderKind kind = BorderKind::kReplicate;
  T constant = {};
  CubicPolynomials<float> cubic;
  bool isBounded = false;  // points beyond the bounds are left alone
  double low[3] = {}, high[3] = {};

  void SetBounds(const Extent (&to)[3]) {
    isBounded = true;
    for (int i = 0; i < 3; ++i) low[i] = static_cast<double>(to[i].begin), high[i] = static_cast<double>(to[i].end - 1);
  }
};

// Points whose taps are copied at a time.
inline constexpr ptrdiff_t kPatchPoints = 16;

struct PointArrays {
  alignas(64) double at[3][kBlockRoom];
};

template <int kTaps, class T>
class BlockSampler {
 public:
  explicit BlockSampler(const Source<T>& source) : source_(source), blend_(source.cubic) {}

  // Values at n points to as many voxels.
  void operator()(PointArrays& points, ptrdiff_t n, T* dst) {
    if (source_.isBounded) FindWritten(points, n);
    if (Locate(points, n)) {
      if (!SampleInside(0, n)) SampleApart(0, n);
    } else {
      SampleByRuns(n);
    }
    if (!source_.isBounded) return static_cast<void>(std::memcpy(dst, values_, n * sizeof(T)));
    for (ptrdiff_t i = 0; i < n; ++i) {
      if (isWritten_[i]) StoreScalar(dst + i, values_[i]);
    }
  }

 private:
  using F = FractionOf<kTaps, T>;
  using D = hn::ScalableTag<float>;
  using Ints = hn::ScalableTag<int32_t>;
  using Taps = BlockTaps<kTaps>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(D());
  static constexpr int kBefore = sampling::kTapsBefore(kTaps);
  static constexpr int kPatch = kTaps * kTaps * kTaps;
  // Kernels load words: what they read of a row from the first tap on.
  static constexpr int kRead = kTaps == 1 ? 1 : std::max(kTaps, 4 / static_cast<int>(sizeof(T)));

  void FindWritten(const PointArrays& points, ptrdiff_t n) {
    for (ptrdiff_t i = 0; i < n; ++i) {
      bool isWithin = true;
      for (int k = 0; k < 3; ++k) {
        isWithin = isWithin && points.at[k][i] >= source_.low[k] && points.at[k][i] <= source_.high[k];
      }
      isWritten_[i] = isWithin;
    }
  }

  // Where a point's value comes from: from nowhere, or the constant alone; from taps that all lie in memory; from taps
  // that need a test.
  enum class Origin : uint8_t { kNone, kConstant, kInside, kApart };

  Origin OriginOf(ptrdiff_t i) const {
    if (source_.isBounded && !isWritten_[i]) return Origin::kNone;
    if (Has(0, tap_[0][i], kRead) && Has(1, tap_[1][i], kTaps) && Has(2, tap_[2][i], kTaps)) return Origin::kInside;
    return IsConstant(i) ? Origin::kConstant : Origin::kApart;
  }
  HWY_NOINLINE void SampleByRuns(ptrdiff_t n) {
    for (ptrdiff_t i = 0; i < n; ++i) origin_[i] = OriginOf(i);
    for (ptrdiff_t first = 0, end; first < n; first = end) {
      const Origin origin = origin_[first];
      end = first + 1;
      while (end < n && origin_[end] == origin) ++end;
      if (origin == Origin::kNone) continue;
      if (origin == Origin::kConstant) {
        std::fill(values_ + first, values_ + end, source_.constant);
      } else if (origin == Origin::kApart || !SampleInside(first, end)) {
        SampleApart(first, end);
      }
    }
  }

  // First taps and fractions, and whether all taps lie in memory. Points are moved to where all taps are beyond what
  // can be read, at most; what is no number is before it.
  bool Locate(PointArrays& points, ptrdiff_t n) {
    const ptrdiff_t lanes = hn::Lanes(hn::ScalableTag<double>());
    bool isInside = true;
    for (int k = 0; k < 3; ++k) {
      std::fill(points.at[k] + n, points.at[k] + n + 2 * lanes, points.at[k][n - 1]);
      isInside &= LocateAlong(k, points.at[k], n);
    }
    return isInside;
  }
  HWY_INLINE bool LocateAlong(int axis, const double* at, ptrdiff_t n) {
    const hn::ScalableTag<double> d;
    const Extent extent = source_.axes[axis];
    const auto low = hn::Set(d, static_cast<double>(extent.begin - kTaps - 1));
    const auto high = hn::Set(d, static_cast<double>(extent.end + kTaps));
    const auto load = [&](ptrdiff_t i) HWY_ATTR { return hn::Min(MaxOrSecond(hn::LoadU(d, at + i), low), high); };
    auto least = hn::Set(Ints(), INT32_MAX), most = hn::Set(Ints(), INT32_MIN);
    for (ptrdiff_t i = 0; i < n; i += kLanes) {
      const auto split = sampling::SplitDoubles<kTaps, F>(D(), load(i), load(i + kLanes / 2));
      const auto tap = hn::Sub(split.pixel, hn::Set(Ints(), kBefore));
      least = hn::Min(least, tap);
      most = hn::Max(most, tap);
      hn::StoreU(tap, Ints(), tap_[axis] + i);
      if constexpr (kTaps > 1) hn::StoreU(split.fraction, hn::Rebind<F, D>(), blend_.fraction[axis] + i);
    }
    return hn::GetLane(hn::MinOfLanes(Ints(), least)) >= extent.begin &&
           hn::GetLane(hn::MaxOfLanes(Ints(), most)) + (axis == 0 ? kRead : kTaps) <= extent.end;
  }
  bool Has(int axis, ptrdiff_t first, int taps) const {
    return first >= source_.axes[axis].begin && first + taps <= source_.axes[axis].end;
  }

  // ---- Points whose taps lie in memory. False if these are too far from each other for offsets of 32 bits.

  bool SampleInside(ptrdiff_t first, ptrdiff_t end) {
    const Volume<const T>& volume = source_.volume;
    const int64_t step = volume.front.step, planeStep = volume.planeStep, depth = source_.axes[2].end;
    const int64_t within = source_.axes[1].end * step + source_.axes[0].end * int64_t{sizeof(T)};
    if (volume.isArray) return SamplePlanes(first, end);
    // Voxels in front of the first, which may be in memory, are few.
    if ((depth + 8) * planeStep + within + 8 * (step + 8) > INT32_MAX) return false;
    FindOffsets(first, end - first, static_cast<int32_t>(step), static_cast<int32_t>(planeStep));
    Taps taps{static_cast<ptrdiff_t>(step), {}, {}};
    const auto* const base = reinterpret_cast<const uint8_t*>(volume.front.data);
    for (int k = 0; k < kTaps; ++k)
      taps.base[k] = base + k * static_cast<ptrdiff_t>(planeStep), taps.offset[k] = offset_[0];
    blend_(taps, first, end - first, values_ + first);
    return true;
  }

  void FindOffsets(ptrdiff_t first, ptrdiff_t n, int32_t step, int32_t planeStep) {
    const Ints d;
    const auto rows = hn::Set(d, step), planes = hn::Set(d, planeStep), voxels = hn::Set(d, int32_t{sizeof(T)});
    for (ptrdiff_t i = 0; i < n; i += kLanes) {
      const auto tap = [&](int axis) HWY_ATTR { return hn::LoadU(d, tap_[axis] + first + i); };
      const auto offset = hn::Add(hn::Add(hn::Mul(tap(2), planes), hn::Mul(tap(1), rows)), hn::Mul(tap(0), voxels));
      hn::StoreU(offset, d, offset_[0] + i);
    }
  }

  // Of planes that lie anywhere, each tap's has an offset of its own.
  bool SamplePlanes(ptrdiff_t first, ptrdiff_t end) {
    const auto addressOf = [&](ptrdiff_t z) { return reinterpret_cast<intptr_t>(source_.volume.Plane(z).data); };
    const auto* const base = reinterpret_cast<const uint8_t*>(source_.volume.Plane(tap_[2][first]).data);
    const int64_t step = source_.volume.front.step;
    int64_t farthest = 0;
    for (ptrdiff_t i = first; i < end; ++i) {
      const int64_t within = tap_[1][i] * step + tap_[0][i] * int64_t{sizeof(T)};
      for (int k = 0; k < kTaps; ++k) {
        const int64_t offset = addressOf(tap_[2][i] + k) - addressOf(tap_[2][first]) + within;
        offset_[k][i - first] = static_cast<int32_t>(offset);
        farthest = std::max(farthest, offset < 0 ? -offset : offset);
      }
    }
    if (farthest > INT32_MAX - kTaps * (step + int64_t{sizeof(T)})) return false;
    Taps taps{static_cast<ptrdiff_t>(step), {}, {}};
    for (int k = 0; k < kTaps; ++k) taps.base[k] = base, taps.offset[k] = offset_[k];
    blend_(taps, first, end - first, values_ + first);
    return true;
  }

  // ---- Points whose taps need a test: copies of them, a few points at a time.

  void SampleApart(ptrdiff_t first, ptrdiff_t end) {
    T patches[kPatchPoints * kPatch + 4];
    for (ptrdiff_t from = first; from < end; from += kPatchPoints) {
      const ptrdiff_t n = std::min(kPatchPoints, end - from);
      for (ptrdiff_t i = 0; i < n; ++i) {
        FetchPatch(from + i, patches + i * kPatch);
        offset_[0][i] = static_cast<int32_t>(i * kPatch * ptrdiff_t{sizeof(T)});
      }
      std::memset(patches + n * kPatch, 0, 4 * sizeof(T));  // is read, but not used
      Taps taps{kTaps * sizeof(T), {}, {}};
      for (int k = 0; k < kTaps; ++k) {
        taps.base[k] = reinterpret_cast<const uint8_t*>(patches + k * kTaps * kTaps), taps.offset[k] = offset_[0];
      }
      blend_(taps, from, n, values_ + from);
    }
  }

  // Whether all taps are outside along an axis: their weights need not sum up to 1 exactly.
  bool IsConstant(ptrdiff_t i) const {
    if (source_.kind != BorderKind::kConst) return false;
    for (int k = 0; k < 3; ++k) {
      if (tap_[k][i] + kTaps <= source_.axes[k].begin || tap_[k][i] >= source_.axes[k].end) return true;
    }
    return false;
  }

  void FetchPatch(ptrdiff_t i, T* patch) const {
    ptrdiff_t places[3][kTaps];
    for (int axis = 0; axis < 3; ++axis) {
      for (int k = 0; k < kTaps; ++k) {
        places[axis][k] = BorderPosition(source_.kind, tap_[axis][i] + k, source_.axes[axis]);
      }
    }
    for (const ptrdiff_t z : places[2]) {
      const Image<const T> plane = source_.volume.Plane(z == kOutside ? source_.axes[2].begin : z);
      for (const ptrdiff_t y : places[1]) {
        const bool isRow = z != kOutside && y != kOutside;
        const T* const row = isRow ? plane.Row(y) : nullptr;
        for (const ptrdiff_t x : places[0]) {
          *patch++ = isRow && x != kOutside ? LoadScalar(row + x) : source_.constant;
        }
      }
    }
  }

  const Source<T>& source_;
  Blender<kTaps, T> blend_;
  alignas(64) int32_t tap_[3][kBlockRoom], offset_[kTaps][kBlockRoom];
  alignas(64) T values_[kBlockRoom];
  Origin origin_[kBlockRoom];
  bool isWritten_[kBlockRoom];
};

// Rows of points: make(points, x, n) gives n of them from x on.
template <int kTaps, class T, class Make>
void SampleRow(BlockSampler<kTaps, T>& sampler, PointArrays& points, ptrdiff_t width, T* dst, const Make& make) {
  for (ptrdiff_t x = 0; x < width; x += kBlockPoints) {
    const ptrdiff_t n = std::min(kBlockPoints, width - x);
    make(points, x, n);
    sampler(points, n, dst + x);
  }
}

}  // namespace qvp::volume
