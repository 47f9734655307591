// Images as the kernels see them: pointer-wide sizes, byte steps, and a layout that is a value, not a type.
#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "qvptypes.h"

namespace qvp {

// One text serves the plain and the _L forms: both arrive as pointer-wide numbers.
struct Size {
  ptrdiff_t width, height;
  Size(ptrdiff_t w, ptrdiff_t h) : width(w), height(h) {}
  Size(QvpiSize size) : width(size.width), height(size.height) {}
  Size(QvpiSizeL size) : width(size.width), height(size.height) {}
};

// How the channels of a pixel lie in memory. The low bits count the channels.
enum class Layout {
  kC1 = 1,
  kC2 = 2,
  kC3 = 3,
  kC4 = 4,
  kAC4 = 4 | 0x10,   // the fourth channel of a destination keeps its value
  kC3CR = 3 | 0x20,  // one channel of three: the image pointer is at that channel of the first pixel
  kC4CR = 4 | 0x20,  // one channel of four
};

constexpr int Channels(Layout layout) { return static_cast<int>(layout) & 0xF; }
constexpr bool KeepsAlpha(Layout layout) { return layout == Layout::kAC4; }
constexpr bool IsChannelOfInterest(Layout layout) { return (static_cast<int>(layout) & 0x20) != 0; }

// Channels that an operation processes, from the first on.
constexpr int ProcessedChannels(Layout layout) {
  return IsChannelOfInterest(layout) ? 1 : Channels(layout) - (KeepsAlpha(layout) ? 1 : 0);
}

// An image argument; handed on by reference, as it is larger than two registers. T is the element type, or a byte where
// only bits are moved; `elementBytes` then still tells the size of the caller's elements.
template <class T>
struct Image {
  T* data;
  ptrdiff_t step;  // bytes from row to row, of either sign
  Layout layout;
  int elementBytes = sizeof(T);

  int PixelBytes() const { return Channels(layout) * elementBytes; }

  // Bytes from the first to the last one of a row that belongs to the image.
  ptrdiff_t RowBytes(ptrdiff_t width) const {
    return width * PixelBytes() - (IsChannelOfInterest(layout) ? PixelBytes() - elementBytes : 0);
  }

  T* Row(ptrdiff_t y) const {
    using Byte = std::conditional_t<std::is_const_v<T>, const uint8_t, uint8_t>;
    return reinterpret_cast<T*>(reinterpret_cast<Byte*>(data) + y * step);
  }

  // Whether each row begins where the one before it ends.
  bool IsPacked(ptrdiff_t width) const { return step == static_cast<int64_t>(width) * PixelBytes(); }
};

template <class T>
Image<T> View(T* data, ptrdiff_t step, Layout layout) {
  return {data, step, layout};
}

// Views for operations that only move bits: types of one width share one kernel.
using Bytes = Image<uint8_t>;
using ConstBytes = Image<const uint8_t>;

template <class T>
auto AsBytes(T* data, ptrdiff_t step, Layout layout) {
  using Byte = std::conditional_t<std::is_const_v<T>, const uint8_t, uint8_t>;
  return Image<Byte>{reinterpret_cast<Byte*>(data), step, layout, sizeof(T)};
}
template <class T>
auto AsBytes(const Image<T>& image) {
  return AsBytes(image.data, image.step, image.layout);
}

}  // namespace qvp
