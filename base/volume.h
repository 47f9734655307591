// Volumes as the kernels see them: planes one behind the other, each an image of one channel.
#pragma once

#include "base/border.h"
#include "base/image.h"
#include "base/scalar.h"

namespace qvp {

// No length may be above it where records and buffers are told, so that sums of them stay in 32 bits.
inline constexpr int kMostVolumeLength = 33554431;

struct VolumeSize {
  ptrdiff_t width, height, depth;

  VolumeSize(QvprVolume size) : width(size.width), height(size.height), depth(size.depth) {}
  bool HasVoxels() const { return width >= 1 && height >= 1 && depth >= 1; }
  bool IsBelowMost() const { return std::max({width, height, depth}) <= kMostVolumeLength; }
  Size plane() const { return {width, height}; }
};

// A volume argument. T is the element type, or one of the same size where only bits are moved. Planes lie one step
// behind the other, or where an array of pointers tells, whose entries in front of the first are planes as well.
template <class T>
struct Volume {
  Image<T> front;  // the first plane; of an array, the array's address
  ptrdiff_t planeStep;
  bool isArray = false;

  Image<T> Plane(ptrdiff_t z) const {
    if (isArray) return {LoadScalar(Pointers() + z), front.step, front.layout, front.elementBytes};
    Image<T> planes = front;
    planes.step = planeStep;
    return {planes.Row(z), front.step, front.layout, front.elementBytes};
  }
  bool HasPlanes(Extent z) const {
    for (ptrdiff_t i = z.begin; isArray && i < z.end; ++i) {
      if (LoadScalar(Pointers() + i) == nullptr) return false;
    }
    return true;
  }

 private:
  T* const* Pointers() const { return reinterpret_cast<T* const*>(front.data); }
};

// The two forms of an argument, for elements of E that stand for those of T.
template <class E, class T>
auto ViewVolume(T* data, int step, int planeStep) {
  using Element = std::conditional_t<std::is_const_v<T>, const E, E>;
  return Volume<Element>{{reinterpret_cast<Element*>(data), step, Layout::kC1, sizeof(T)}, planeStep};
}
template <class E, class T>
auto ViewVolume(T* const* planes, int step) {
  using Element = std::conditional_t<std::is_const_v<T>, const E, E>;
  const void* const array = planes;
  return Volume<Element>{{static_cast<Element*>(const_cast<void*>(array)), step, Layout::kC1, sizeof(T)}, 1, true};
}

}  // namespace qvp
