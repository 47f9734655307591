// Vectors of small integers as two vectors of lanes twice as wide, and back with saturation. Elements are taken apart
// and put together within blocks of 16 bytes, so that no lane crosses a block; the order in between does not matter.
#pragma once

#include <limits>
#include <type_traits>

#include "base/lanes.h"
#include "base/pack.h"

namespace qvp {

template <class V>
struct Halves {
  V lower, upper;
};
template <class V>
Halves(V, V) -> Halves<V>;

// Lanes that hold every sum, difference and scaled value of two elements of T.
template <class T>
using WideLane = std::conditional_t<sizeof(T) == 1, int16_t, int32_t>;

template <class T>
HWY_INLINE auto Widen(hn::Vec<hn::ScalableTag<T>> v) {
  const hn::ScalableTag<T> d;
  const hn::ScalableTag<WideLane<T>> wide;
  if constexpr (std::is_signed_v<T>) {  // each element to the upper half of its lane, then down with its sign
    return Halves{hn::ShiftRight<8 * sizeof(T)>(hn::BitCast(wide, hn::InterleaveLower(d, v, v))),
                  hn::ShiftRight<8 * sizeof(T)>(hn::BitCast(wide, hn::InterleaveUpper(d, v, v)))};
  } else {
    const auto zero = hn::Zero(d);
    return Halves{hn::BitCast(wide, hn::InterleaveLower(d, v, zero)),
                  hn::BitCast(wide, hn::InterleaveUpper(d, v, zero))};
  }
}

// Products of 8-bit elements, in 16-bit lanes.
HWY_INLINE auto Products(hn::Vec<hn::ScalableTag<uint8_t>> a, hn::Vec<hn::ScalableTag<uint8_t>> b) {
  const hn::ScalableTag<uint8_t> d;
  const hn::ScalableTag<uint16_t> wide;
  const auto zero = hn::Zero(d);
  return Halves{
      hn::Mul(hn::BitCast(wide, hn::InterleaveLower(d, a, zero)), hn::BitCast(wide, hn::InterleaveLower(d, b, zero))),
      hn::Mul(hn::BitCast(wide, hn::InterleaveUpper(d, a, zero)), hn::BitCast(wide, hn::InterleaveUpper(d, b, zero)))};
}

// Products of 16-bit elements, in 32-bit lanes of the same signedness.
template <class V, class T = hn::TFromV<V>>
HWY_INLINE auto Products(V a, V b) {
  const hn::ScalableTag<T> d;
  const hn::RepartitionToWide<decltype(d)> wide;
  const auto low = hn::Mul(a, b), high = hn::MulHigh(a, b);
  return Halves{hn::BitCast(wide, hn::InterleaveLower(d, low, high)),
                hn::BitCast(wide, hn::InterleaveUpper(d, low, high))};
}

// Elements of T from lanes twice as wide, saturated.
template <class T, class V>
HWY_INLINE auto Pack(Halves<V> v) {
  using L = hn::TFromV<V>;
  if constexpr (std::is_signed_v<L>) {
    return Packed(T(), v.lower, v.upper);
  } else {
    const hn::ScalableTag<L> d;
    const hn::RebindToSigned<decltype(d)> asSigned;
    const V top = hn::Set(d, static_cast<L>(std::numeric_limits<T>::max()));
    return Packed(T(), hn::BitCast(asSigned, hn::Min(v.lower, top)), hn::BitCast(asSigned, hn::Min(v.upper, top)));
  }
}

// op(bytes...) where op takes float lanes and gives 32-bit integers, which are saturated to bytes.
template <class Op, class... V>
HWY_INLINE auto ViaFloats(const Op& op, V... v) {
  const hn::ScalableTag<uint16_t> words;
  const auto quarter = [&](auto... lanes) HWY_ATTR {
    return op(hn::ConvertTo(hn::ScalableTag<float>(), hn::BitCast(hn::ScalableTag<int32_t>(), lanes))...);
  };
  const auto half = [&](auto... lanes) HWY_ATTR {
    return Pack<int16_t>(Halves{quarter(Widen<uint16_t>(lanes).lower...), quarter(Widen<uint16_t>(lanes).upper...)});
  };
  return Pack<uint8_t>(Halves{half(hn::BitCast(words, Widen<uint8_t>(v).lower)...),
                              half(hn::BitCast(words, Widen<uint8_t>(v).upper)...)});
}

// An operation on float lanes as one on vectors of bytes, rounded to the nearest and saturated; NaN gives 0.
template <class Op>
auto InFloatLanes(const Op& op) {
  const auto rounded = [op](auto... v) HWY_ATTR {
    const hn::ScalableTag<float> d;
    const auto result = MaxOrSecond(op(v...), hn::Zero(d));
    return RoundToIntInRange(hn::Min(result, hn::Set(d, 255.0f)));
  };
  return [rounded](auto... v) HWY_ATTR { return ViaFloats(rounded, v...); };
}

}  // namespace qvp
