// Tiles of pixels that are transposed within registers.
#pragma once

#include <cstring>

#include "base/simd.h"

namespace qvp::transpose {

// Pixels of kBytes bytes in registers: kUnit bytes each, a power of two, so that three channels are spread over four.
template <int kBytes>
struct Unit {
  static constexpr int kUnit = kBytes % 3 == 0 ? kBytes / 3 * 4 : kBytes;
  static constexpr bool kIsSpread = kUnit != kBytes;
  static constexpr int kPixels = kBlockBytes / kUnit;  // in a block
  static constexpr int kUsed = kPixels * kBytes;       // bytes of a block in memory
  using Lane = hwy::UnsignedFromSize<kUnit == 16 ? 8 : kUnit>;
};

// One block from each of as many places as a vector has blocks, `stride` bytes apart.
template <class D>
HWY_INLINE hn::Vec<D> LoadBlocks(D d, const uint8_t* from, ptrdiff_t stride) {
  if constexpr (hn::MaxLanes(D()) == kBlockBytes) {
    return hn::LoadU(d, from);
  } else {
    const hn::Half<D> half;
    const ptrdiff_t halfBlocks = hn::MaxLanes(half) / kBlockBytes;
    return hn::Combine(d, LoadBlocks(half, from + halfBlocks * stride, stride), LoadBlocks(half, from, stride));
  }
}

// In each block, lane j of vector i becomes lane i of vector j. Every round interleaves the two halves of the vectors,
// which only stay in registers when the loops are unrolled: AArch64's compilers have to be asked.
template <class D, int kSide>
HWY_INLINE void TransposeLanes(D d, hn::Vec<D> (&v)[kSide]) {
#pragma GCC unroll 4
  for (int round = 1; round < kSide; round *= 2) {
    hn::Vec<D> next[kSide];
#pragma GCC unroll 8
    for (int i = 0; i < kSide / 2; ++i) {
      next[2 * i] = hn::InterleaveLower(d, v[i], v[i + kSide / 2]);
      next[2 * i + 1] = hn::InterleaveUpper(d, v[i], v[i + kSide / 2]);
    }
#pragma GCC unroll 16
    for (int i = 0; i < kSide; ++i) v[i] = next[i];
  }
}

// A tile of kColumns columns and kRows rows of the source. With kAlpha the fourth channel of the destination stays.
template <int kBytes, bool kAlpha, class D>
struct Tile {
  using U = Unit<kBytes>;
  static constexpr ptrdiff_t kBlocks = hn::MaxLanes(D()) / kBlockBytes, kColumns = U::kPixels,
                             kRows = kColumns * kBlocks;

  // For spread pixels, which bytes of a loaded block make the units, and for each unit's bytes their place in memory.
  alignas(kBlockBytes) uint8_t spread[kBlockBytes], gather[kBlockBytes], alpha[kBlockBytes];
  ptrdiff_t lead;

  // Spread blocks are loaded with 4 bytes too many: before the pixels where `lead` is 4, else behind them.
  explicit Tile(int bytesBefore) : lead(bytesBefore) {
    std::memset(spread, 0x80, kBlockBytes);
    std::memset(gather, 0x80, kBlockBytes);
    for (int i = 0; i < U::kUsed; ++i) {
      const int place = i / kBytes * U::kUnit + i % kBytes;
      spread[place] = static_cast<uint8_t>(i + bytesBefore);
      gather[i] = static_cast<uint8_t>(place);
    }
    for (int i = 0; i < kBlockBytes; ++i) alpha[i] = i % kBytes >= kBytes / 4 * 3 ? 0xFF : 0;
  }

  HWY_INLINE void operator()(const uint8_t* src, ptrdiff_t srcStep, uint8_t* dst, ptrdiff_t dstStep) const {
    const D d;
    const hn::Repartition<typename U::Lane, D> lanes;
    hn::Vec<decltype(lanes)> v[kColumns];
    for (ptrdiff_t i = 0; i < kColumns; ++i) {
      auto bytes = LoadBlocks(d, src + i * srcStep - lead, kColumns * srcStep);
      if constexpr (U::kIsSpread) bytes = hn::TableLookupBytesOr0(bytes, hn::LoadDup128(d, spread));
      v[i] = hn::BitCast(lanes, bytes);
    }
    if constexpr (kColumns > 1) TransposeLanes(lanes, v);
    for (ptrdiff_t i = 0; i < kColumns; ++i) Put(d, hn::BitCast(d, v[i]), dst + i * dstStep);
  }

 private:
  HWY_INLINE void Put(D d, hn::Vec<D> v, uint8_t* to) const {
    if constexpr (U::kIsSpread) {
      HWY_ALIGN uint8_t blocks[hn::MaxLanes(D())];
      hn::Store(hn::TableLookupBytesOr0(v, hn::LoadDup128(d, gather)), d, blocks);
      for (ptrdiff_t b = 0; b < kBlocks; ++b) std::memcpy(to + b * U::kUsed, blocks + b * kBlockBytes, U::kUsed);
    } else {
      hn::StoreU(kAlpha ? hn::IfVecThenElse(hn::LoadDup128(d, alpha), hn::LoadU(d, to), v) : v, d, to);
    }
  }
};

}  // namespace qvp::transpose
