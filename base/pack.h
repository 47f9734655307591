// Narrowing of several vectors into one.
#pragma once

#include <array>
#include <cstdint>

#include "base/simd.h"

namespace qvp {

// Two vectors as one of elements half as wide, saturated, block by block: each block of the result has a block of the
// lower vector and one of the upper. The first argument only tells the type.
#if HWY_ARCH_X86
#define QVP_PACKS(Vec, prefix)                                                                    \
  HWY_INLINE hn::Vec<uint8_t> Packed(uint8_t, hn::Vec<int16_t> lower, hn::Vec<int16_t> upper) {   \
    return hn::Vec<uint8_t>{prefix##_packus_epi16(lower.raw, upper.raw)};                         \
  }                                                                                               \
  HWY_INLINE hn::Vec<int8_t> Packed(int8_t, hn::Vec<int16_t> lower, hn::Vec<int16_t> upper) {     \
    return hn::Vec<int8_t>{prefix##_packs_epi16(lower.raw, upper.raw)};                           \
  }                                                                                               \
  HWY_INLINE hn::Vec<uint16_t> Packed(uint16_t, hn::Vec<int32_t> lower, hn::Vec<int32_t> upper) { \
    return hn::Vec<uint16_t>{prefix##_packus_epi32(lower.raw, upper.raw)};                        \
  }                                                                                               \
  HWY_INLINE hn::Vec<int16_t> Packed(int16_t, hn::Vec<int32_t> lower, hn::Vec<int32_t> upper) {   \
    return hn::Vec<int16_t>{prefix##_packs_epi32(lower.raw, upper.raw)};                          \
  }
QVP_PACKS(Vec128, _mm)
#if HWY_TARGET <= HWY_AVX2
QVP_PACKS(Vec256, _mm256)
#endif
#if HWY_TARGET <= HWY_AVX3
QVP_PACKS(Vec512, _mm512)
#endif
#undef QVP_PACKS
#else
template <class T, class V>
HWY_INLINE auto Packed(T, V lower, V upper) {
  static_assert(hn::MaxLanes(hn::DFromV<V>()) * sizeof(hn::TFromV<V>) == kBlockBytes);
  const hn::Full128<T> d;
  const hn::Half<decltype(d)> half;
  return hn::Combine(d, hn::DemoteTo(half, upper), hn::DemoteTo(half, lower));
}
#endif

// Undoes the order that packing block by block leaves: every block holds a piece of each of the kSources vectors, and
// the pieces of one vector belong together.
template <int kSources, class V>
HWY_INLINE V InOrder(V packed) {
  constexpr int kBlocks = static_cast<int>(hn::MaxLanes(hn::DFromV<V>()) * sizeof(hn::TFromV<V>)) / kBlockBytes;
  if constexpr (kBlocks <= 1) return packed;
#if HWY_TARGET == HWY_AVX2
  if constexpr (kSources == 2 && kBlocks == 2) return V{_mm256_permute4x64_epi64(packed.raw, 0xD8)};
#endif
  constexpr int kPiece = 4 / kSources;  // 32-bit lanes
  static constexpr auto kOrder = [] {
    std::array<int32_t, 4 * kBlocks> order{};
    for (int i = 0; i < 4 * kBlocks; ++i) {
      const int piece = i / kPiece;
      order[i] = (piece % kBlocks) * 4 + piece / kBlocks * kPiece + i % kPiece;
    }
    return order;
  }();
  const hn::Repartition<int32_t, hn::DFromV<V>> d;
  const auto ordered = hn::TableLookupLanes(hn::BitCast(d, packed), hn::SetTableIndices(d, kOrder.data()));
  return hn::BitCast(hn::DFromV<V>(), ordered);
}

// The lanes of the lower vector, then those of the upper, saturated to T.
template <class T, class V>
HWY_INLINE auto PackedInOrder(V lower, V upper) {
  return InOrder<2>(Packed(T(), lower, upper));
}

}  // namespace qvp
