// Products of neighbouring lanes added in pairs, which Highway lacks.
#pragma once

#include "base/simd.h"

namespace qvp {

// 8 bits:  a[2i] b[2i] + a[2i + 1] b[2i + 1], saturated to 16 bits: exact where |b[2i]| + |b[2i + 1]| <= 128.
// 16 bits: the same as 32 bits, exact but for four times -32768.
#if HWY_ARCH_X86
#define QVP_MUL_ADD_PAIRS(Vec, prefix)                                              \
  HWY_INLINE hn::Vec<int16_t> MulAddPairs(hn::Vec<uint8_t> a, hn::Vec<int8_t> b) {  \
    return hn::Vec<int16_t>{prefix##_maddubs_epi16(a.raw, b.raw)};                  \
  }                                                                                 \
  HWY_INLINE hn::Vec<int32_t> MulAddPairs(hn::Vec<int16_t> a, hn::Vec<int16_t> b) { \
    return hn::Vec<int32_t>{prefix##_madd_epi16(a.raw, b.raw)};                     \
  }
QVP_MUL_ADD_PAIRS(Vec128, _mm)
#if HWY_TARGET <= HWY_AVX2
QVP_MUL_ADD_PAIRS(Vec256, _mm256)
#endif
#if HWY_TARGET <= HWY_AVX3
QVP_MUL_ADD_PAIRS(Vec512, _mm512)
#endif
#undef QVP_MUL_ADD_PAIRS
#else
HWY_INLINE hn::Vec128<int16_t> MulAddPairs(hn::Vec128<uint8_t> a, hn::Vec128<int8_t> b) {
  const hn::Full128<int16_t> d;
  const auto pairs = hn::BitCast(d, a), factors = hn::BitCast(d, b);
  const auto even = hn::Mul(hn::And(pairs, hn::Set(d, 255)), hn::ShiftRight<8>(hn::ShiftLeft<8>(factors)));
  const auto odd = hn::BitCast(d, hn::ShiftRight<8>(hn::BitCast(hn::Full128<uint16_t>(), a)));
  return hn::SaturatedAdd(even, hn::Mul(odd, hn::ShiftRight<8>(factors)));
}
HWY_INLINE hn::Vec128<int32_t> MulAddPairs(hn::Vec128<int16_t> a, hn::Vec128<int16_t> b) {
#if HWY_TARGET == HWY_NEON  // three instructions instead of seven
  const int32x4_t lower = vmull_s16(vget_low_s16(a.raw), vget_low_s16(b.raw)), upper = vmull_high_s16(a.raw, b.raw);
  return hn::Vec128<int32_t>{vpaddq_s32(lower, upper)};
#else
  const hn::Full128<int32_t> d;
  const auto pairs = hn::BitCast(d, a), factors = hn::BitCast(d, b);
  const auto even = [](auto v) HWY_ATTR { return hn::ShiftRight<16>(hn::ShiftLeft<16>(v)); };
  return hn::Add(hn::Mul(even(pairs), even(factors)), hn::Mul(hn::ShiftRight<16>(pairs), hn::ShiftRight<16>(factors)));
#endif
}
#endif

}  // namespace qvp
