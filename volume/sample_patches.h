// Points whose taps need a test: these are copied, and values made of the copies.
#pragma once

#include "base/scalar.h"
#include "volume/border.h"
#include "volume/sample_blend.h"
#include "volume/sample_points.h"

namespace qvp::volume {

// What the points of a call are taken from.
template <class T>
struct Source {
  Volume<const T> volume;
  Extent axes[3];  // columns, rows and planes that can be read
  BorderKind kind = BorderKind::kReplicate;
  T constant = {};
  CubicPolynomials<float> cubic;
  bool isBounded = false;  // points beyond the bounds are left alone
  Interval bounds[3] = {};
  Extent planes{};  // that the call may read

  void SetBounds(const Extent (&to)[3]) {
    isBounded = true;
    for (int i = 0; i < 3; ++i) bounds[i] = {static_cast<double>(to[i].begin), static_cast<double>(to[i].end - 1)};
  }
};

// They wait, with the voxels that they are for, until there are enough for the lanes.
template <int kTaps, class T>
class Patches {
 public:
  using F = FractionOf<kTaps, T>;

  explicit Patches(const Source<T>& source) : source_(source), blend_(source.cubic) {}
  ~Patches() { Flush(); }

  void Add(const ptrdiff_t (&tap)[3], const F (&fraction)[3], T* voxel) {
    T* const patch = taps_ + n_ * kPatch;
    source_.kind == BorderKind::kConst ? FetchMixed(tap, patch) : FetchNearest(tap, patch);
    if constexpr (kTaps == 1) return StoreScalar(voxel, *patch);
    for (int k = 0; k < 3; ++k) blend_.fraction[k][n_] = fraction[k];
    offset_[n_] = static_cast<int32_t>(n_ * kPatch * ptrdiff_t{sizeof(T)});
    voxels_[n_] = voxel;
    if (++n_ == kPoints) Flush();
  }

 private:
  static constexpr int kPatch = kTaps * kTaps * kTaps;
  static constexpr ptrdiff_t kPoints = 32;

  void Flush() {
    if (n_ == 0) return;
    std::memset(taps_ + n_ * kPatch, 0, 4 * sizeof(T));  // is read, but not used
    BlockTaps<kTaps> taps{kTaps * sizeof(T), {}, {}};
    for (int k = 0; k < kTaps; ++k) {
      taps.base[k] = reinterpret_cast<const uint8_t*>(taps_ + k * kTaps * kTaps), taps.offset[k] = offset_;
    }
    T values[kPoints];
    blend_(taps, 0, n_, values);
    for (ptrdiff_t i = 0; i < n_; ++i) StoreScalar(voxels_[i], values[i]);
    n_ = 0;
  }

  // The nearest voxels that can be read.
  void FetchNearest(const ptrdiff_t (&tap)[3], T* patch) const {
    const auto place = [&](int axis, int k) {
      return std::clamp<ptrdiff_t>(tap[axis] + k, source_.axes[axis].begin, source_.axes[axis].end - 1);
    };
    ptrdiff_t columns[kTaps];
    for (int k = 0; k < kTaps; ++k) columns[k] = place(0, k);
    for (int k = 0; k < kTaps; ++k) {
      const Image<const T> plane = source_.volume.Plane(place(2, k));
      for (int j = 0; j < kTaps; ++j) {
        const T* const row = plane.Row(place(1, j));
        for (const ptrdiff_t x : columns) *patch++ = LoadScalar(row + x);
      }
    }
  }

  // The constant where a tap is outside.
  void FetchMixed(const ptrdiff_t (&tap)[3], T* patch) const {
    const auto isIn = [&](int axis, int k) { return source_.axes[axis].Contains(tap[axis] + k); };
    for (int k = 0; k < kTaps; ++k) {
      const Image<const T> plane = source_.volume.Plane(isIn(2, k) ? tap[2] + k : source_.axes[2].begin);
      for (int j = 0; j < kTaps; ++j) {
        const bool isRow = isIn(2, k) && isIn(1, j);
        const T* const row = isRow ? plane.Row(tap[1] + j) : nullptr;
        for (int x = 0; x < kTaps; ++x) {
          *patch++ = isRow && isIn(0, x) ? LoadScalar(row + tap[0] + x) : source_.constant;
        }
      }
    }
  }

  const Source<T>& source_;
  ptrdiff_t n_ = 0;
  Blender<kTaps, T> blend_;
  T taps_[kPoints * kPatch + 4];
  alignas(64) int32_t offset_[kBlockRoom];
  T* voxels_[kPoints];
};

}  // namespace qvp::volume
