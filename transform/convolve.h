// Convolutions of two images: what both methods are given. The image of fewer pixels is the kernel; which one is the
// first only matters for the order of float sums.
#pragma once

#include <cstring>

#include "base/image.h"
#include "base/record.h"

namespace qvp::convolution {

// One channel of an image.
template <class T>
struct Plane {
  Image<const T> image;
  Size size;
  int channel = 0;

  int channels() const { return Channels(image.layout); }
  bool HasRow(ptrdiff_t y) const { return y >= 0 && y < size.height; }
  // The sample at column x of a row that is there, which need not be itself; samples are channels() apart.
  const T* At(ptrdiff_t x, ptrdiff_t y) const { return image.Row(y) + x * channels() + channel; }
};

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

// Copies n samples of a plane's row, which need not be neighbours.
template <class T>
void CopySamples(const T* from, ptrdiff_t channels, ptrdiff_t n, T* to) {
  for (ptrdiff_t i = 0; i < n; ++i) std::memcpy(to + i, from + i * channels, sizeof(T));
}
template <class T>
void PutSamples(const T* from, ptrdiff_t n, ptrdiff_t channels, T* to) {
  for (ptrdiff_t i = 0; i < n; ++i) std::memcpy(to + i * channels, from + i, sizeof(T));
}

}  // namespace qvp::convolution
