// One channel of an image, for operations that take channel by channel.
#pragma once

#include <cstring>

#include "base/channels.h"
#include "base/image.h"

namespace qvp {

template <class T>
struct Plane {
  Image<const T> image;
  Size size{0, 0};
  int channel = 0;

  int channels() const { return Channels(image.layout); }
  bool HasRow(ptrdiff_t y) const { return y >= 0 && y < size.height; }
  // The sample at column x of a row that is there, which need not be itself; samples are channels() apart.
  const T* At(ptrdiff_t x, ptrdiff_t y) const { return image.Row(y) + x * channels() + channel; }
};

// The first channel of pixels, as many vectors of them as have a pixel behind them: of that one the first channel alone
// may be there to be read. Returns how many that were.
template <int kChannels, class T>
ptrdiff_t CopyVectors(const T* from, ptrdiff_t n, T* to) {
  const hn::ScalableTag<T> d;
  constexpr ptrdiff_t kLanes = hn::MaxLanes(d);
  ptrdiff_t i = 0;
  for (; i + kLanes < n; i += kLanes) hn::StoreU(LoadChannels<kChannels>(d, from + i * kChannels).v[0], d, to + i);
  return i;
}

// Copies n samples of a plane's row, which need not be neighbours: one by one, for few of them, or by vectors.
template <class T>
void CopyFewSamples(const T* from, ptrdiff_t channels, ptrdiff_t n, T* to) {
  for (ptrdiff_t i = 0; i < n; ++i) std::memcpy(to + i, from + i * channels, sizeof(T));
}
template <class T>
void CopySamples(const T* from, ptrdiff_t channels, ptrdiff_t n, T* to) {
  if (channels == 1) return static_cast<void>(std::memcpy(to, from, n * sizeof(T)));
  const ptrdiff_t done = channels == 3 ? CopyVectors<3>(from, n, to) : channels == 4 ? CopyVectors<4>(from, n, to) : 0;
  CopyFewSamples(from + done * channels, channels, n - done, to + done);
}
template <class T>
void PutSamples(const T* from, ptrdiff_t n, ptrdiff_t channels, T* to) {
  for (ptrdiff_t i = 0; i < n; ++i) std::memcpy(to + i * channels, from + i, sizeof(T));
}

}  // namespace qvp
