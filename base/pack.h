// Narrowing of several vectors into one.
#pragma once

#include <array>

#include "base/simd.h"

namespace qvp {

// Two vectors to one of half the element width, with signed saturation, block by block.
HWY_INLINE hn::Vec128<int8_t> PackBlocks(hn::Vec128<int16_t> a, hn::Vec128<int16_t> b) {
  return hn::Vec128<int8_t>{_mm_packs_epi16(a.raw, b.raw)};
}
#if HWY_TARGET <= HWY_AVX2
HWY_INLINE hn::Vec256<int8_t> PackBlocks(hn::Vec256<int16_t> a, hn::Vec256<int16_t> b) {
  return hn::Vec256<int8_t>{_mm256_packs_epi16(a.raw, b.raw)};
}
#endif
#if HWY_TARGET <= HWY_AVX3
HWY_INLINE hn::Vec512<int8_t> PackBlocks(hn::Vec512<int16_t> a, hn::Vec512<int16_t> b) {
  return hn::Vec512<int8_t>{_mm512_packs_epi16(a.raw, b.raw)};
}
#endif
template <class V>
HWY_INLINE auto PackBlocks(V a, V b) requires std::is_same_v<hn::TFromV<V>, int32_t> {
  return hn::ReorderDemote2To(hn::RepartitionToNarrow<hn::DFromV<V>>(), a, b);
}

// Undoes the order that packing block by block leaves: every block holds a piece of each of the kSources vectors, and
// the pieces of one vector belong together.
template <int kSources, class V>
HWY_INLINE V InOrder(V packed) {
  constexpr int kBlocks = static_cast<int>(hn::MaxLanes(hn::DFromV<V>()) * sizeof(hn::TFromV<V>)) / kBlockBytes;
  if constexpr (kBlocks == 1) return packed;
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

}  // namespace qvp
