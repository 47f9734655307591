// A table of 256 bytes, looked up in vectors: as 16 blocks of 16 entries, by one shuffle each.
#pragma once

#include <cstring>

#include "base/blocks.h"

namespace qvp {

class ByteTable {
 public:
  using D = hn::ScalableTag<uint8_t>;
  using V = hn::Vec<D>;

  // The table need not be aligned, and is not needed any more.
  explicit ByteTable(const uint8_t* table) {
    std::memcpy(blocks_, table, sizeof(blocks_));
    if constexpr (!kShuffleIsModulo16) return;
    const hn::Full128<uint8_t> d;
    for (int k = 1; k < kBlocks; ++k) {
      if (k == kBlocks / 2) continue;
      const auto difference =
          hn::Xor(hn::LoadU(d, table + k * kBlockBytes), hn::LoadU(d, table + (k - 1) * kBlockBytes));
      hn::Store(difference, d, blocks_ + k * kBlockBytes);
    }
  }

  // Both halves of the table are walked at once, by the index and by the index less 128: the shuffles of the half that
  // an index is not in give zeros.
  HWY_INLINE V operator()(V index) const {
    const D d;
    const V half = hn::Set(d, 0x80);
    V lower = index, upper = hn::Xor(index, half), sum = hn::Zero(d);
    for (int k = 0; k < kBlocks / 2; ++k) {
      if (k > 0) lower = Next(lower), upper = Next(upper);
      sum = hn::Xor(sum, hn::Xor(Block(k, lower), Block(k + kBlocks / 2, upper)));
    }
    return sum;
  }

 private:
  static constexpr int kBlocks = 16;

  HWY_INLINE V Block(int k, V index) const {
    return hn::TableLookupBytesOr0(hn::LoadDup128(D(), blocks_ + k * kBlockBytes), index);
  }

  // The index less 16. Where shuffles take indices modulo 16, each block up to that of the index gives a byte, so that
  // blocks are stored as differences, whose sum is the last of them; and what is below zero stays there. Elsewhere the
  // index is in one block alone.
  static HWY_INLINE V Next(V index) {
    if constexpr (kShuffleIsModulo16) {
      const hn::RebindToSigned<D> d;
      return hn::BitCast(D(), hn::SaturatedSub(hn::BitCast(d, index), hn::Set(d, kBlockBytes)));
    } else {
      return hn::Sub(index, hn::Set(D(), kBlockBytes));
    }
  }

  HWY_ALIGN uint8_t blocks_[kBlocks * kBlockBytes];
};

}  // namespace qvp
