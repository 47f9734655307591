// What instruction sets do differently with floats, under names of one meaning each.
#pragma once

#include <cstdint>
#include <limits>

#include "base/simd.h"

namespace qvp {

// a < b ? a : b, lane by lane: the second where either is NaN, and of two zeros. Integers have no such cases.
template <class V>
HWY_INLINE V MinOrSecond(V a, V b) {
#if HWY_ARCH_X86
  return hn::Min(a, b);  // the instruction's rule
#else
  return hn::IfThenElse(hn::Lt(a, b), a, b);
#endif
}
// b < a ? a : b
template <class V>
HWY_INLINE V MaxOrSecond(V a, V b) {
#if HWY_ARCH_X86
  return hn::Max(a, b);
#else
  return hn::IfThenElse(hn::Lt(b, a), a, b);
#endif
}

// Rounds to the nearest integer, ties to even. Lanes beyond the range, and NaN, give the lowest integer.
#if HWY_ARCH_X86
template <size_t N>
HWY_INLINE hn::Vec128<int32_t, N> RoundToInt(hn::Vec128<float, N> v) {
  return hn::Vec128<int32_t, N>{_mm_cvtps_epi32(v.raw)};
}
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
#else
template <class V>
HWY_INLINE auto RoundToInt(V v) {
  const hn::DFromV<V> d;
  const hn::RebindToSigned<decltype(d)> ints;
  const auto isInside = hn::And(hn::Ge(v, hn::Set(d, -2147483648.0f)), hn::Lt(v, hn::Set(d, 2147483648.0f)));
  return hn::IfThenElse(hn::RebindMask(ints, isInside), hn::NearestInt(v), hn::Set(ints, INT32_MIN));
}
#endif

// The same of lanes that are in the range, or whose result is not used: that saves the comparisons with it where the
// CPU has another rule for the rest.
template <class V>
HWY_INLINE auto RoundToIntInRange(V v) {
#if HWY_ARCH_X86
  return RoundToInt(v);
#else
  return hn::NearestInt(v);
#endif
}

// Rounds to the nearest integer, ties to even, for packing to T of 8 or 16 bits: what saturates to the nearest of T.
// NaN gives the lowest.
template <class T, class V>
HWY_INLINE auto RoundForPacking(V v) {
  using Limits = std::numeric_limits<T>;
  const hn::DFromV<V> d;
  const V most = hn::Set(d, static_cast<float>(Limits::max()));
#if HWY_ARCH_X86
  return RoundToInt(MinOrSecond(most, v));  // what lies too low, and NaN, becomes the lowest integer
#else
  return RoundToIntInRange(hn::Min(MaxOrSecond(v, hn::Set(d, static_cast<float>(Limits::lowest()))), most));
#endif
}

// Toward zero, of lanes whose integer part is in the range, or whose result is not used.
template <class V>
HWY_INLINE auto TruncateInRange(V v) {
#if HWY_ARCH_X86
  const hn::RebindToSigned<hn::DFromV<V>> ints;
  if constexpr (sizeof(v) == 16) {
    return hn::VFromD<decltype(ints)>{_mm_cvttps_epi32(v.raw)};
  }
#if HWY_TARGET <= HWY_AVX2
  else if constexpr (sizeof(v) == 32) {
    return hn::VFromD<decltype(ints)>{_mm256_cvttps_epi32(v.raw)};
  }
#endif
#if HWY_TARGET <= HWY_AVX3
  else {
    return hn::VFromD<decltype(ints)>{_mm512_cvttps_epi32(v.raw)};
  }
#endif
#else
  return hn::ConvertTo(hn::RebindToSigned<hn::DFromV<V>>(), v);
#endif
}

}  // namespace qvp
