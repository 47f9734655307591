// Pixels of integers with an alpha as lanes of reals: a lane for each pixel, a vector for each of its four values.
// Bytes become floats, 16 bits doubles; quotients of what those hold round as quotients of integers do.
#pragma once

#include "arith/layers.h"

namespace qvp::layers {

template <class T>
using Real = std::conditional_t<sizeof(T) == 1, float, double>;
template <class T>
using RealTag = hn::ScalableTag<Real<T>>;
template <class T>
using Reals = hn::Vec<RealTag<T>>;

// Whole numbers in the range of T, as kernels give them: 32-bit integers for bytes, doubles for 16 bits.
template <class T>
using Wholes = hn::Vec<hn::ScalableTag<std::conditional_t<sizeof(T) == 1, int32_t, double>>>;

template <class V>
struct Pixels {
  V color[3], alpha;
};

// ---- Interleaved pixels: a word has the four values of one.

template <class T>
using WordTag = hn::Repartition<std::conditional_t<sizeof(T) == 1, uint32_t, uint64_t>, hn::ScalableTag<T>>;
template <class T>
using Words = hn::Vec<WordTag<T>>;

// Doubles from 2^52 on are whole, with their value in the lowest bits.
inline constexpr double kWhole = 4503599627370496.0;

template <int kChannel, class T>
HWY_INLINE Reals<T> ChannelOf(Words<T> pixels) {
  const WordTag<T> d;
  const RealTag<T> reals;
  auto v = pixels;
  if constexpr (kChannel > 0) v = hn::ShiftRight<kChannel * kBits<T>>(v);
  if constexpr (kChannel < 3) v = hn::And(v, hn::Set(d, kMost<T>));
  if constexpr (sizeof(T) == 1)
    return hn::ConvertTo(reals, hn::BitCast(hn::ScalableTag<int32_t>(), v));
  else
    return hn::Sub(hn::BitCast(reals, hn::Or(v, hn::BitCast(d, hn::Set(reals, kWhole)))), hn::Set(reals, kWhole));
}

template <class T>
HWY_INLINE Pixels<Reals<T>> FromWords(Vector<T> v) {
  const auto words = hn::BitCast(WordTag<T>(), v);
  return {{ChannelOf<0, T>(words), ChannelOf<1, T>(words), ChannelOf<2, T>(words)}, ChannelOf<3, T>(words)};
}

template <class T>
HWY_INLINE Words<T> AsWord(Wholes<T> v) {
  const WordTag<T> d;
  if constexpr (sizeof(T) == 1)
    return hn::BitCast(d, v);
  else
    return hn::And(hn::BitCast(d, hn::Add(v, hn::Set(RealTag<T>(), kWhole))), hn::Set(d, kMost<T>));
}

template <class T>
HWY_INLINE Vector<T> ToWords(const Pixels<Wholes<T>>& v) {
  constexpr int kN = kBits<T>;
  const auto lower = hn::Or(AsWord<T>(v.color[0]), hn::ShiftLeft<kN>(AsWord<T>(v.color[1])));
  const auto upper = hn::Or(AsWord<T>(v.color[2]), hn::ShiftLeft<kN>(AsWord<T>(v.alpha)));
  return hn::BitCast(hn::ScalableTag<T>(), hn::Or(lower, hn::ShiftLeft<2 * kN>(upper)));
}

// dst = kernel(Pixels...)
template <class Kernel, class T, class... S>
void MapPixels(const Kernel& kernel, Size roi, const Image<T>& dst, const Image<S>&... src) {
  const auto op = [kernel](auto... v) HWY_ATTR { return ToWords<T>(kernel(FromWords<T>(v)...)); };
  MapImages(hn::ScalableTag<T>(), op, roi, WithAlpha(dst), WithAlpha(src)...);
}

// ---- Planes

template <class T>
using PlaneTag = hn::Rebind<T, RealTag<T>>;

template <class T>
HWY_INLINE Reals<T> ToReals(hn::Vec<PlaneTag<T>> v) {
  const hn::Rebind<int32_t, RealTag<T>> ints;
  if constexpr (sizeof(T) == 1)
    return hn::ConvertTo(RealTag<T>(), hn::PromoteTo(ints, v));
  else
    return hn::PromoteTo(RealTag<T>(), hn::PromoteTo(ints, v));
}

template <class Kernel, class T, class... S>
void MapPixels(const Kernel& kernel, Size roi, const Planes<T>& dst, const Planes<S>&... src) {
  using Four = FourVectors<hn::Vec<PlaneTag<T>>>;
  const auto op = [kernel](const auto&... four) HWY_ATTR {
    const auto made = kernel(Pixels<Reals<T>>{{ToReals<T>(four.of[0]), ToReals<T>(four.of[1]), ToReals<T>(four.of[2])},
                                              ToReals<T>(four.of[3])}...);
    const hn::DFromV<Wholes<T>> d;
    return Four{{Narrow<T>(d, made.color[0]), Narrow<T>(d, made.color[1]), Narrow<T>(d, made.color[2]),
                 Narrow<T>(d, made.alpha)}};
  };
  MapPlanes(PlaneTag<T>(), op, roi, dst, src...);
}

}  // namespace qvp::layers
