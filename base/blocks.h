// Blocks of 16 bytes: vectors made block by block, and shuffles within blocks, which Highway lacks.
#pragma once

#include "base/simd.h"

namespace qvp {

template <class D>
inline constexpr int kBlocksOf = static_cast<int>(hn::MaxLanes(D()) * sizeof(hn::TFromD<D>)) / kBlockBytes;

// The vector whose block i is block(i).
template <class D, class Block>
HWY_INLINE hn::Vec<D> FromBlocks(D d, const Block& block) {
  static_assert(kBlocksOf<D> == 1 || kBlocksOf<D> == 2);
  if constexpr (kBlocksOf<D> == 1) {
    (void)d;
    return block(0);
  } else {
    const auto lower = block(0);
    return hn::Combine(d, block(1), lower);
  }
}

// Rearranges the blocks of three vectors, counted from the first one's on: block 3 i + k becomes block i of vector k.
template <class V>
HWY_INLINE void DealBlocks(V (&v)[3]) {
  const hn::DFromV<V> d;
  constexpr int kBlocks = kBlocksOf<decltype(d)>;
  static_assert(kBlocks == 1 || kBlocks == 2 || kBlocks == 4);
  if constexpr (kBlocks == 2) {
    const V first = hn::ConcatUpperLower(d, v[1], v[0]), second = hn::ConcatLowerUpper(d, v[2], v[0]);
    v[2] = hn::ConcatUpperLower(d, v[2], v[1]), v[1] = second, v[0] = first;
  }
#if HWY_TARGET <= HWY_AVX3
  if constexpr (kBlocks == 4) {  // words 8 and on are those of the second operand
    const auto two = [](V a, __m512i words, V b) { return V{_mm512_permutex2var_epi64(a.raw, words, b.raw)}; };
    const auto pairs = [](int a, int b, int c, int e) {
      return _mm512_setr_epi64(2 * a, 2 * a + 1, 2 * b, 2 * b + 1, 2 * c, 2 * c + 1, 2 * e, 2 * e + 1);
    };
    const V first = two(two(v[0], pairs(0, 3, 6, 0), v[1]), pairs(0, 1, 2, 5), v[2]);
    const V second = two(two(v[0], pairs(1, 4, 7, 0), v[1]), pairs(0, 1, 2, 6), v[2]);
    v[2] = two(two(v[0], pairs(2, 5, 0, 0), v[1]), pairs(0, 1, 4, 7), v[2]), v[1] = second, v[0] = first;
  }
#endif
}

// Indices for TableLookupBytesOr0 from places: those of the block, 0 to 15, stay, and all others yield zero. Between 16
// and 127, CPUs differ: some take an index modulo 16.
template <class V>
HWY_INLINE V IndicesOr0(V places) {
  const hn::DFromV<V> d;
  return hn::And(hn::SaturatedAdd(places, hn::Set(d, uint8_t{0x70})), hn::Set(d, uint8_t{0x8F}));
}

// What a shuffle by TableLookupBytesOr0 makes of an index from 16 to 127: the byte at the index modulo 16, or zero, as
// of all indices from 128 on.
#if HWY_ARCH_X86
inline constexpr bool kShuffleIsModulo16 = true;
#else
inline constexpr bool kShuffleIsModulo16 = false;
#endif

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
