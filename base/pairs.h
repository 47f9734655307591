// Products of neighbouring lanes added in pairs, and two vectors narrowed into one, which Highway lacks.
#pragma once

#include "base/simd.h"

namespace qvp {

// a[2i] b[2i] + a[2i + 1] b[2i + 1], saturated to 16 bits: exact where |b[2i]| + |b[2i + 1]| <= 128.
HWY_INLINE hn::Vec128<int16_t> MulAddPairs(hn::Vec128<uint8_t> a, hn::Vec128<int8_t> b) {
  return hn::Vec128<int16_t>{_mm_maddubs_epi16(a.raw, b.raw)};
}
// The same for 16-bit lanes: exact but for four times -32768.
HWY_INLINE hn::Vec128<int32_t> MulAddPairs(hn::Vec128<int16_t> a, hn::Vec128<int16_t> b) {
  return hn::Vec128<int32_t>{_mm_madd_epi16(a.raw, b.raw)};
}
// The lanes of a, then those of b, saturated.
HWY_INLINE hn::Vec128<int16_t> NarrowTwo(hn::Vec128<int32_t> a, hn::Vec128<int32_t> b) {
  return hn::Vec128<int16_t>{_mm_packs_epi32(a.raw, b.raw)};
}
HWY_INLINE hn::Vec128<uint8_t> NarrowTwo(hn::Vec128<int16_t> a, hn::Vec128<int16_t> b) {
  return hn::Vec128<uint8_t>{_mm_packus_epi16(a.raw, b.raw)};
}

#if HWY_TARGET <= HWY_AVX2
HWY_INLINE hn::Vec256<int16_t> MulAddPairs(hn::Vec256<uint8_t> a, hn::Vec256<int8_t> b) {
  return hn::Vec256<int16_t>{_mm256_maddubs_epi16(a.raw, b.raw)};
}
HWY_INLINE hn::Vec256<int32_t> MulAddPairs(hn::Vec256<int16_t> a, hn::Vec256<int16_t> b) {
  return hn::Vec256<int32_t>{_mm256_madd_epi16(a.raw, b.raw)};
}
HWY_INLINE hn::Vec256<int16_t> NarrowTwo(hn::Vec256<int32_t> a, hn::Vec256<int32_t> b) {
  return hn::Vec256<int16_t>{_mm256_permute4x64_epi64(_mm256_packs_epi32(a.raw, b.raw), 0xD8)};
}
HWY_INLINE hn::Vec256<uint8_t> NarrowTwo(hn::Vec256<int16_t> a, hn::Vec256<int16_t> b) {
  return hn::Vec256<uint8_t>{_mm256_permute4x64_epi64(_mm256_packus_epi16(a.raw, b.raw), 0xD8)};
}
#endif

#if HWY_TARGET <= HWY_AVX3
HWY_INLINE hn::Vec512<int16_t> MulAddPairs(hn::Vec512<uint8_t> a, hn::Vec512<int8_t> b) {
  return hn::Vec512<int16_t>{_mm512_maddubs_epi16(a.raw, b.raw)};
}
HWY_INLINE hn::Vec512<int32_t> MulAddPairs(hn::Vec512<int16_t> a, hn::Vec512<int16_t> b) {
  return hn::Vec512<int32_t>{_mm512_madd_epi16(a.raw, b.raw)};
}
// Packing works within blocks of 128 bits: their halves are brought into order.
HWY_INLINE __m512i InOrder(__m512i v) { return _mm512_permutexvar_epi64(_mm512_setr_epi64(0, 2, 4, 6, 1, 3, 5, 7), v); }
HWY_INLINE hn::Vec512<int16_t> NarrowTwo(hn::Vec512<int32_t> a, hn::Vec512<int32_t> b) {
  return hn::Vec512<int16_t>{InOrder(_mm512_packs_epi32(a.raw, b.raw))};
}
HWY_INLINE hn::Vec512<uint8_t> NarrowTwo(hn::Vec512<int16_t> a, hn::Vec512<int16_t> b) {
  return hn::Vec512<uint8_t>{InOrder(_mm512_packus_epi16(a.raw, b.raw))};
}
#endif

}  // namespace qvp
