// Vectors of one or two blocks of 16 bytes, made block by block.
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

}  // namespace qvp
