// Extremes of numbers of one type: lanes with a total order, and the least or the greatest of them.
#pragma once

#include <limits>

#include "base/floats.h"
#include "filter/windows.h"

namespace qvp::filter {

// What lanes hold: integers as they are, floats as keys, integers of the same order.
template <class T>
using ExtremeLane = std::conditional_t<std::is_same_v<T, float>, uint32_t, T>;

// The operations. A float's key counts from the first number of the order
//
//     minimum   -inf .. -0, +0 .. +inf, NaN        maximum   NaN, -inf .. -0, +0 .. +inf
//
// where NaN are all those of either sign: the bits of a float, as an integer, with those of negative ones turned
// around, less those of the first number modulo 2^32. NaN stand on the side that is not taken while there is a number,
// and become kLast, the infinity beside them, in the end.
struct Least {
  static constexpr uint32_t kFirst = 0x807FFFFF, kLast = 0xFF000001;
  template <class E>
  static constexpr E kNeutral = std::numeric_limits<E>::max();

  template <class V>
  static HWY_INLINE V Of(V a, V b) {
    return hn::Min(a, b);
  }
};

struct Greatest {
  static constexpr uint32_t kFirst = 0x7F800001, kLast = 0x00FFFFFE;
  template <class E>
  static constexpr E kNeutral = std::numeric_limits<E>::lowest();

  template <class V>
  static HWY_INLINE V Of(V a, V b) {
    return hn::Max(a, b);
  }
};

// Turns the bits of negative floats around but for their sign, and back.
template <class V>
HWY_INLINE V Ordered(V bits) {
  const hn::DFromV<V> d;
  const hn::RebindToSigned<decltype(d)> ints;
  const auto sign = hn::BitCast(d, hn::ShiftRight<31>(hn::BitCast(ints, bits)));
  return hn::Xor(bits, hn::ShiftRight<1>(sign));
}

template <class Op, class V>
HWY_INLINE V KeyOf(V bits) {
  return hn::Sub(Ordered(bits), hn::Set(hn::DFromV<V>(), Op::kFirst));
}

template <class Op, class V>
HWY_INLINE V BitsOfKey(V key) {
  const hn::DFromV<V> d;
  return Ordered(hn::Add(Op::Of(key, hn::Set(d, Op::kLast)), hn::Set(d, Op::kFirst)));
}

// Bits of pixels as lanes, and lanes as those of results.
template <class Op, class T, class V>
HWY_INLINE V LanesOf(V pixels) {
  if constexpr (std::is_same_v<T, float>) return KeyOf<Op>(pixels);
  return pixels;
}
template <class Op, class T, class V>
HWY_INLINE V ResultOf(V lanes) {
  if constexpr (std::is_same_v<T, float>) return BitsOfKey<Op>(lanes);
  return lanes;
}

// Filters by the extremes of rectangles, whose sides and the window's reach are the same.
template <class Op, class T>
void FilterRectangles(const Windows<BitsOf<T>>& windows, ptrdiff_t width, ptrdiff_t height);

constexpr bool IsExtremeMask(QvpiSize mask) { return mask.width >= 1 && mask.height >= 1; }

// Bytes of an element, and of the work buffer.
constexpr int ExtremeBytes(QvpDataType type) { return type == qvp8u ? 1 : type == qvp32f ? 4 : 2; }
ByteCount RectangleBytes(Size mask, int64_t regionWidth, int channels, int elementBytes);

}  // namespace qvp::filter
