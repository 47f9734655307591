// Elements of memory as lanes of a wider type, and back with rounding and saturation.
#pragma once

#include <algorithm>
#include <cstring>
#include <limits>
#include <type_traits>

#include "base/simd.h"

namespace qvp {

// Rounds to the nearest integer, ties to even. Lanes beyond the range, and NaN, give the lowest integer.
HWY_INLINE hn::Vec128<int32_t> RoundToInt(hn::Vec128<float> v) { return hn::Vec128<int32_t>{_mm_cvtps_epi32(v.raw)}; }
#if HWY_TARGET <= HWY_AVX2
HWY_INLINE hn::Vec256<int32_t> RoundToInt(hn::Vec256<float> v) {
  return hn::Vec256<int32_t>{_mm256_cvtps_epi32(v.raw)};
}
#endif
#if HWY_TARGET <= HWY_AVX3
HWY_INLINE hn::Vec512<int32_t> RoundToInt(hn::Vec512<float> v) {
  return hn::Vec512<int32_t>{_mm512_cvtps_epi32(v.raw)};
}
#endif
template <size_t N>
HWY_INLINE hn::Vec128<int32_t, N> RoundToInt(hn::Vec128<float, N> v) {
  return hn::Vec128<int32_t, N>{_mm_cvtps_epi32(v.raw)};
}

// Loads as many elements as D has lanes, converted to the lanes' type, which holds every value of S but for 32-bit
// integers as float: those are rounded to the nearest.
template <class D, class S>
HWY_INLINE hn::Vec<D> LoadWide(D d, const S* from) {
  using T = hn::TFromD<D>;
  const hn::Rebind<S, D> narrow;
  if constexpr (std::is_same_v<S, T>) {
    return hn::LoadU(d, from);
  } else if constexpr (std::is_same_v<T, float>) {
    return hn::ConvertTo(d, LoadWide(hn::Rebind<int32_t, D>(), from));
  } else if constexpr (std::is_same_v<T, double> && sizeof(S) < sizeof(int32_t)) {
    return hn::PromoteTo(d, LoadWide(hn::Rebind<int32_t, D>(), from));
  } else {
    return hn::PromoteTo(d, hn::LoadU(narrow, from));
  }
}

// Converts lanes to elements of T: rounded to the nearest, ties to even; saturated; NaN gives the lowest value of T.
template <class T, class D, class V = hn::Vec<D>>
HWY_INLINE hn::Vec<hn::Rebind<T, D>> Narrow(D d, V v) {
  using L = hn::TFromD<D>;
  const hn::Rebind<T, D> to;
  const hn::Rebind<int32_t, D> ints;
  if constexpr (std::is_same_v<T, L>) {
    return v;
  } else if constexpr (std::is_same_v<L, float> && std::is_integral_v<T>) {
    // The lower bound stands second: it is what a comparison with NaN gives.
    const V bounded = hn::Max(v, hn::Set(d, static_cast<float>(std::numeric_limits<T>::lowest())));
    if constexpr (sizeof(T) < sizeof(int32_t)) {
      const V top = hn::Set(d, static_cast<float>(std::numeric_limits<T>::max()));
      return hn::DemoteTo(to, RoundToInt(hn::Min(bounded, top)));
    } else {
      const auto isAbove = hn::RebindMask(ints, hn::Ge(v, hn::Set(d, 2147483648.0f)));
      return hn::IfThenElse(isAbove, hn::Set(ints, INT32_MAX), RoundToInt(bounded));
    }
  } else if constexpr (std::is_same_v<L, double> && std::is_integral_v<T>) {
    const V bounded = hn::Max(v, hn::Set(d, static_cast<double>(std::numeric_limits<T>::lowest())));
    const V top = hn::Set(d, static_cast<double>(std::numeric_limits<T>::max()));
    const auto whole = hn::DemoteTo(ints, hn::Round(hn::Min(bounded, top)));
    if constexpr (sizeof(T) < sizeof(int32_t)) {
      return hn::DemoteTo(to, whole);
    } else {
      return whole;
    }
  } else if constexpr (std::is_same_v<L, int32_t> && std::is_same_v<T, uint8_t>) {
    // In two steps: Highway's single one takes 32768 to 65535 modulo 32768.
    return hn::DemoteTo(to, hn::DemoteTo(hn::Rebind<int16_t, D>(), v));
  } else {
    return hn::DemoteTo(to, v);
  }
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
