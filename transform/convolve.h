// Convolutions of two images: what both methods are given. The image of fewer pixels is the kernel; which one is the
// first only matters for the order of float sums.
#pragma once

#include "base/plane.h"
#include "base/record.h"

namespace qvp::convolution {

template <class T>
struct Convolution {
  Plane<T> image, kernel;
  bool isKernelFirst;  // the kernel is the first image
  Image<T> dst;
  Size roi;
  ptrdiff_t x, y;  // of the destination's first pixel in the full convolution
  int divisor;
  uint8_t* buffer;  // from a boundary on
};

// Bytes of the work buffer of a method, from a boundary on; at most those for the same kernel and a larger image.
template <class T>
ByteCount DirectBytes(Size image, Size kernel);
template <class T>
ByteCount FourierBytes(Size image, Size kernel);

template <class T>
void ConvolveDirectly(const Convolution<T>& call);
template <class T>
void ConvolveByFourier(const Convolution<T>& call);

}  // namespace qvp::convolution
