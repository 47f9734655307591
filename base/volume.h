// Volumes as the kernels see them: planes one behind the other, each an image of one channel.
#pragma once

#include "base/image.h"

namespace qvp {

struct VolumeSize {
  ptrdiff_t width, height, depth;

  VolumeSize(QvprVolume size) : width(size.width), height(size.height), depth(size.depth) {}
  bool HasVoxels() const { return width >= 1 && height >= 1 && depth >= 1; }
  Size plane() const { return {width, height}; }
};

// T is the element type, or a byte where only bits are moved.
template <class T>
struct Volume {
  Image<T> front;  // the first plane
  ptrdiff_t planeStep;

  Image<T> Plane(ptrdiff_t z) const {
    Image<T> plane = front;
    plane.step = planeStep;
    plane.data = plane.Row(z);
    plane.step = front.step;
    return plane;
  }
};

template <class T>
auto AsBytes(T* data, int step, int planeStep) {
  const auto front = AsBytes(data, step, Layout::kC1);
  return Volume<std::remove_pointer_t<decltype(front.data)>>{front, planeStep};
}

}  // namespace qvp
