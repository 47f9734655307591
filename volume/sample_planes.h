// Where the taps of points lie in planes that may be anywhere in memory.
#pragma once

#include "geometry/sample_floats.h"
#include "volume/sample_points.h"

namespace qvp::volume {

// The places of planes next to each other, in bytes from the first of them.
class PlanePlaces {
 public:
  // In memory planes anywhere may be farther from each other than offsets of 32 bits reach.
  static constexpr int64_t kFarthest = INT32_MAX / 2;
  static constexpr ptrdiff_t kMost = 512;

  // False if they are too many, or too far from the first.
  template <class T>
  bool Set(const Volume<const T>& volume, Extent planes) {
    if (planes.end - planes.begin > kMost || planes.begin >= planes.end) return false;
    first_ = planes.begin;
    base_ = reinterpret_cast<const uint8_t*>(volume.Plane(first_).data);
    bool isFar = false;
    for (ptrdiff_t z = first_; z < planes.end; ++z) {
      const int64_t place = int64_t{AddressOf(volume.Plane(z).data)} - int64_t{AddressOf(base_)};
      isFar |= place > kFarthest || place < -kFarthest;
      place_[z - first_] = static_cast<int32_t>(place);
    }
    return !isFar;
  }

  const uint8_t* base() const { return base_; }

  // Adds the planes of n points' taps, of which the first are told, to their offsets within a plane, which are those
  // of the first taps: offset[k] becomes that of tap k.
  template <int kTaps>
  void AddTo(const int32_t* plane, ptrdiff_t n, int32_t (&offset)[kTaps][kBlockRoom]) const {
    for (ptrdiff_t i = 0; i < n; ++i) {
      const int32_t inPlane = offset[0][i];
      const int32_t* const place = place_ + (plane[i] - first_);
      for (int k = 0; k < kTaps; ++k) offset[k][i] = inPlane + place[k];
    }
  }

 private:
  static intptr_t AddressOf(const void* at) { return reinterpret_cast<intptr_t>(at); }

  ptrdiff_t first_ = 0;
  const uint8_t* base_ = nullptr;
  int32_t place_[kMost];
};

}  // namespace qvp::volume
