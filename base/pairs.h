// Products of neighbouring lanes added in pairs, which Highway lacks.
#pragma once

#include "base/simd.h"

namespace qvp {

// 8 bits:  a[2i] b[2i] + a[2i + 1] b[2i + 1], saturated to 16 bits: exact where |b[2i]| + |b[2i + 1]| <= 128.
// 16 bits: the same as 32 bits, exact but for four times -32768.
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

}  // namespace qvp
