// Elements of memory as lanes of a wider type, and back with rounding and saturation.
#pragma once

#include <algorithm>
#include <cstring>
#include <limits>
#include <type_traits>

#include "base/floats.h"

namespace qvp {

// Loads as many elements as D has lanes, converted to the lanes' type, which holds every value of S but for 32-bit
// integers as float: those are rounded to the nearest.
template <class D, class S>
HWY_INLINE hn::Vec<D> LoadWide(D d, const S* from) {
  using T = hn::TFromD<D>;
  const hn::Rebind<S, D> narrow;
  if constexpr (std::is_same_v<S, T>) {
    return hn::LoadU(d, from);
  } else if constexpr (std::is_same_v<S, uint32_t> && std::is_floating_point_v<T>) {
    // Both halves are exact, so that their sum is rounded once.
    const auto v = hn::LoadU(narrow, from);
    const hn::Rebind<int32_t, D> ints;
    const auto part = [&](auto half) HWY_ATTR {
      if constexpr (sizeof(T) == sizeof(float))
        return hn::ConvertTo(d, hn::BitCast(ints, half));
      else
        return hn::PromoteTo(d, hn::BitCast(ints, half));
    };
    const auto upper = part(hn::ShiftRight<16>(v)), lower = part(hn::And(v, hn::Set(narrow, 0xFFFF)));
    return hn::Add(hn::Mul(upper, hn::Set(d, T{65536})), lower);
  } else if constexpr (std::is_same_v<T, float>) {
    return hn::ConvertTo(d, LoadWide(hn::Rebind<int32_t, D>(), from));
  } else if constexpr (std::is_same_v<T, double> && sizeof(S) < sizeof(int32_t)) {
    return hn::PromoteTo(d, LoadWide(hn::Rebind<int32_t, D>(), from));
  } else {
    return hn::PromoteTo(d, hn::LoadU(narrow, from));
  }
}

// Float lanes to unsigned integers of 32 bits: rounded to the nearest, ties to even; saturated; NaN gives 0. The upper
// half of the range, where floats are whole, is converted 2^31 lower.
template <class D, class V = hn::Vec<D>>
HWY_INLINE auto NarrowToUnsigned32(D d, V v) {
  const hn::Rebind<uint32_t, D> to;
  const V half = hn::Set(d, 2147483648.0f), positive = MaxOrSecond(v, hn::Zero(d));
  const auto isUpper = hn::Ge(positive, half), isAbove = hn::Ge(positive, hn::Set(d, 4294967296.0f));
  const V reduced = hn::Sub(positive, hn::IfThenElseZero(isUpper, half));
  const auto whole = hn::BitCast(to, RoundToIntInRange(reduced));
  const auto upper = hn::IfThenElseZero(hn::RebindMask(to, isUpper), hn::Set(to, 0x80000000));
  return hn::IfThenElse(hn::RebindMask(to, isAbove), hn::Set(to, 0xFFFFFFFF), hn::Add(whole, upper));
}

// The same to integers of up to 32 bits; NaN gives the lowest value of T.
template <class T, class D, class V = hn::Vec<D>>
HWY_INLINE auto NarrowReal(D d, V v) {
  using F = hn::TFromD<D>;
  using Limits = std::numeric_limits<T>;
  const hn::Rebind<T, D> to;
  const hn::Rebind<int32_t, D> ints;
  if constexpr (std::is_same_v<F, float> && sizeof(T) < sizeof(int32_t)) return hn::DemoteTo(to, RoundForPacking<T>(v));
  const V bounded = MaxOrSecond(v, hn::Set(d, static_cast<F>(Limits::lowest())));
  if constexpr (std::is_same_v<F, double>) {
    const auto whole = hn::DemoteTo(ints, hn::Round(hn::Min(bounded, hn::Set(d, static_cast<F>(Limits::max())))));
    if constexpr (sizeof(T) < sizeof(int32_t)) return hn::DemoteTo(to, whole);
    if constexpr (sizeof(T) == sizeof(int32_t)) return whole;
  } else if constexpr (sizeof(T) == sizeof(int32_t)) {
    const auto isAbove = hn::RebindMask(ints, hn::Ge(v, hn::Set(d, 2147483648.0f)));
    return hn::IfThenElse(isAbove, hn::Set(ints, INT32_MAX), RoundToIntInRange(bounded));
  }
}

// Converts lanes to elements of T: rounded to the nearest, ties to even; saturated; NaN gives the lowest value of T.
template <class T, class D, class V = hn::Vec<D>>
HWY_INLINE hn::Vec<hn::Rebind<T, D>> Narrow(D d, V v) {
  using L = hn::TFromD<D>;
  const hn::Rebind<T, D> to;
  if constexpr (std::is_same_v<T, L>) {
    return v;
  } else if constexpr (std::is_same_v<L, float> && std::is_same_v<T, uint32_t>) {
    return NarrowToUnsigned32(d, v);
  } else if constexpr (std::is_floating_point_v<L> && std::is_integral_v<T>) {
    return NarrowReal<T>(d, v);
  } else if constexpr (std::is_integral_v<L> && sizeof(L) == sizeof(T)) {  // the other signedness
    const auto bound = hn::Set(d, std::is_signed_v<L> ? L{0} : static_cast<L>(std::numeric_limits<T>::max()));
    return hn::BitCast(to, std::is_signed_v<L> ? hn::Max(v, bound) : hn::Min(v, bound));
  } else if constexpr (std::is_unsigned_v<L>) {
    const hn::RebindToSigned<D> bounded;
    const auto top = hn::Set(d, static_cast<L>(std::numeric_limits<T>::max()));
    return Narrow<T>(bounded, hn::BitCast(bounded, hn::Min(v, top)));
  } else if constexpr (std::is_same_v<L, int32_t> && std::is_same_v<T, uint8_t>) {
    // In two steps: Highway's single one takes 32768 to 65535 modulo 32768.
    return hn::DemoteTo(to, hn::DemoteTo(hn::Rebind<int16_t, D>(), v));
  } else {
    return hn::DemoteTo(to, v);
  }
}

// Two vectors of doubles as one of 32-bit integers: rounded to the nearest, ties to even, of lanes within 2^31. Beside
// 1.5 * 2^52 a double has its whole part as its lowest bits.
template <class V>
HWY_INLINE auto RoundedPair(V lower, V upper) {
  const hn::DFromV<V> d;
  const hn::Repartition<int32_t, decltype(d)> ints;
  const V unit = hn::Set(d, 0x1.8p52);
  return hn::ConcatEven(ints, hn::BitCast(ints, hn::Add(upper, unit)), hn::BitCast(ints, hn::Add(lower, unit)));
}
// As one of floats.
template <class V>
HWY_INLINE auto FloatPair(V lower, V upper) {
  const hn::Repartition<float, hn::DFromV<V>> floats;
  const hn::Half<decltype(floats)> half;
  return hn::Combine(floats, hn::DemoteTo(half, upper), hn::DemoteTo(half, lower));
}

// A piece of a row that is shorter than a vector, staged in memory that may be read as a whole one. What is missing is
// zero.
template <class T>
struct Partial {
  HWY_ALIGN T lanes[HWY_MAX_BYTES] = {};  // room for as many lanes as the narrowest type has

  Partial() = default;
  Partial(const T* from, size_t n) { std::memcpy(lanes, from, n * sizeof(T)); }
  void CopyTo(T* to, size_t n) const { std::memcpy(to, lanes, n * sizeof(T)); }
};

}  // namespace qvp
