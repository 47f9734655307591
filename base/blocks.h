// Shuffles within blocks of 16 bytes, which Highway lacks.
#pragma once

#include "base/simd.h"

namespace qvp {

// The even, or the odd, floats of two vectors: within each block those of `a` before those of `b`.
template <size_t N>
HWY_INLINE hn::Vec128<float, N> EvenLanesOfBlocks(hn::Vec128<float, N> a, hn::Vec128<float, N> b) {
  return hn::ConcatEven(hn::DFromV<decltype(a)>(), b, a);
}
template <size_t N>
HWY_INLINE hn::Vec128<float, N> OddLanesOfBlocks(hn::Vec128<float, N> a, hn::Vec128<float, N> b) {
  return hn::ConcatOdd(hn::DFromV<decltype(a)>(), b, a);
}
#if HWY_TARGET <= HWY_AVX2
HWY_INLINE hn::Vec256<float> EvenLanesOfBlocks(hn::Vec256<float> a, hn::Vec256<float> b) {
  return hn::Vec256<float>{_mm256_shuffle_ps(a.raw, b.raw, 0x88)};
}
HWY_INLINE hn::Vec256<float> OddLanesOfBlocks(hn::Vec256<float> a, hn::Vec256<float> b) {
  return hn::Vec256<float>{_mm256_shuffle_ps(a.raw, b.raw, 0xDD)};
}
#endif

}  // namespace qvp
