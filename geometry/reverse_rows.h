// Rows of pixels in reverse order.
#pragma once

#include <array>
#include <cstring>

#include "base/image.h"
#include "base/simd.h"

namespace qvp::mirror {

using Wide = hn::ScalableTag<uint8_t>;
using Block = hn::Full128<uint8_t>;

constexpr int kLargestPixel = 16;

// Which byte of a loaded block goes where, for pixels of so many bytes. Pixels of 3, 6 and 12 bytes leave bytes of a
// block over, in front when loaded.
struct Reversal {
  alignas(kBlockBytes) uint8_t order[kBlockBytes] = {};
  alignas(kBlockBytes) uint8_t lastOrder[kBlockBytes] = {};    // of the row's first bytes, to its last ones
  alignas(kBlockBytes) uint8_t tripleOrder[kBlockBytes] = {};  // of blocks with pixels in their first 12 bytes alone
  alignas(kBlockBytes) uint8_t alpha[kBlockBytes] = {};        // all bits where the last of four channels stands
  int used = 0;                                                // bytes of a block

  constexpr Reversal() = default;
  constexpr explicit Reversal(int pixelBytes) : used(kBlockBytes / pixelBytes * pixelBytes) {
    const int spare = kBlockBytes - used;
    const auto from = [=](int i, int bytes) {
      return static_cast<uint8_t>(bytes - (i / pixelBytes + 1) * pixelBytes + i % pixelBytes);
    };
    for (int i = 0; i < kBlockBytes; ++i) {
      order[i] = i < used ? static_cast<uint8_t>(from(i, used) + spare) : 0x80;
      lastOrder[i] = i < spare ? 0x80 : from(i - spare, used);
      tripleOrder[i] = i < 12 ? from(i, 12) : 0x80;
      alpha[i] = i % pixelBytes >= pixelBytes - pixelBytes / 4 ? 0xFF : 0;
    }
  }
};

constexpr auto kReversals = [] {
  std::array<Reversal, kLargestPixel + 1> of;
  for (int bytes = 1; bytes <= kLargestPixel; ++bytes) of[bytes] = Reversal(bytes);
  return of;
}();

// `rows` rows of `bytes` bytes: the pixels before `end` from the last to the first. They must not overlap.
struct ReversedRows {
  const uint8_t* end;
  ptrdiff_t srcStep;
  uint8_t* dst;
  ptrdiff_t dstStep, bytes, rows;
};

// Rows shorter than a block, one pixel after the other, of which the first `copied` bytes are written.
HWY_NOINLINE inline void ReversePixels(const ReversedRows& r, int pixelBytes, int copied) {
  for (ptrdiff_t y = 0; y < r.rows; ++y) {
    const uint8_t* const end = r.end + y * r.srcStep;
    uint8_t* const dst = r.dst + y * r.dstStep;
    for (ptrdiff_t i = 0; i < r.bytes; i += pixelBytes) std::memcpy(dst + i, end - i - pixelBytes, copied);
  }
}

// Pixels that divide a block: whole vectors. The last vector may overlap the one before it, as both write one value.
template <bool kKeepsAlpha, class D>
void ReverseVectors(D d, const Reversal& reversal, const ReversedRows& r) {
  constexpr ptrdiff_t kVector = hn::MaxLanes(D());
  const auto order = hn::LoadDup128(d, reversal.order), alpha = hn::LoadDup128(d, reversal.alpha);
  for (ptrdiff_t y = 0; y < r.rows; ++y) {
    const uint8_t* const end = r.end + y * r.srcStep;
    uint8_t* const dst = r.dst + y * r.dstStep;
    const auto at = [&](ptrdiff_t i) HWY_ATTR {
      const auto v = hn::TableLookupBytes(hn::ReverseBlocks(d, hn::LoadU(d, end - i - kVector)), order);
      hn::StoreU(kKeepsAlpha ? hn::IfVecThenElse(alpha, hn::LoadU(d, dst + i), v) : v, d, dst + i);
    };
    ptrdiff_t i = 0;
    for (; i + kVector <= r.bytes; i += kVector) at(i);
    if (i != r.bytes) at(r.bytes - kVector);
  }
}

// Groups of 12 bytes, which are whole pixels of 3, 6 and 12 bytes. A vector with as many of them as it has blocks is
// spread to one group a block, reversed, and closed again.
template <class D>
class TripleReversal {
  static constexpr int kWords = hn::MaxLanes(D()) / 4, kGroups = kWords / 4;
  struct Indices {
    HWY_ALIGN int32_t first[kWords] = {}, last[kWords] = {}, close[kWords] = {};
    constexpr Indices() {
      for (int i = 0; i < kWords; ++i) {
        first[i] = (kGroups - 1 - i / 4) * 3 + (i % 4 < 3 ? i % 4 : 0);
        last[i] = first[i] + kGroups;
        close[i] = i < 3 * kGroups ? i / 3 * 4 + i % 3 : 0;
      }
    }
  };
  static constexpr Indices kIndices = {};
  static constexpr hn::Repartition<uint32_t, D> d32{};
  using IndexVector = decltype(hn::SetTableIndices(d32, kIndices.close));

 public:
  static constexpr ptrdiff_t kVector = kWords * 4, kUsed = kGroups * 12;
  static constexpr bool kPays = kGroups > 1;  // of one block 15 bytes can be used at once

  explicit TripleReversal(const Reversal& reversal)
      : first_(hn::SetTableIndices(d32, kIndices.first)),
        last_(hn::SetTableIndices(d32, kIndices.last)),
        close_(hn::SetTableIndices(d32, kIndices.close)),
        order_(hn::LoadDup128(D(), reversal.tripleOrder)) {}

  // A row of at least a vector. The bytes that a vector has to spare are overwritten by the next one; of the last ones,
  // which end with the row, they are not stored.
  HWY_INLINE void operator()(const uint8_t* end, uint8_t* dst, ptrdiff_t n) const {
    const D d;
    ptrdiff_t i = 0;
    for (; i + kVector <= n; i += kUsed) hn::StoreU(Reversed(end - i - kVector, last_), d, dst + i);
    if (i + kUsed < n) StoreUsed(Reversed(end - i - kUsed, first_), dst + i);
    StoreUsed(Reversed(end - n, first_), dst + n - kUsed);
  }

 private:
  // The groups that begin in the first word or end in the last one of what is loaded.
  HWY_INLINE hn::Vec<D> Reversed(const uint8_t* from, IndexVector groups) const {
    const D d;
    const auto spread = hn::BitCast(d, hn::TableLookupLanes(hn::BitCast(d32, hn::LoadU(d, from)), groups));
    return hn::BitCast(d, hn::TableLookupLanes(hn::BitCast(d32, hn::TableLookupBytesOr0(spread, order_)), close_));
  }

  // Three quarters of a vector.
  static HWY_INLINE void StoreUsed(hn::Vec<D> v, uint8_t* dst) {
    const hn::Half<D> half;
    const hn::Half<decltype(half)> quarter;
    hn::StoreU(hn::LowerHalf(half, v), half, dst);
    hn::StoreU(hn::LowerHalf(quarter, hn::UpperHalf(half, v)), quarter, dst + kVector / 2);
  }

  IndexVector first_, last_, close_;
  hn::Vec<D> order_;
};

// Pixels of 3, 6 and 12 bytes by blocks with spare bytes, which the next block's store overwrites. The last block keeps
// what its own spare bytes cover.
HWY_INLINE void ReverseByBlocks(const Reversal& reversal, const uint8_t* end, uint8_t* dst, ptrdiff_t n) {
  const Block d;
  const auto order = hn::Load(d, reversal.order), lastOrder = hn::Load(d, reversal.lastOrder);
  const ptrdiff_t used = reversal.used;
  ptrdiff_t i = 0;
  for (; i + kBlockBytes <= n; i += used) {
    hn::StoreU(hn::TableLookupBytesOr0(hn::LoadU(d, end - i - kBlockBytes), order), d, dst + i);
  }
  if (i == n) return;
  uint8_t* const last = dst + n - kBlockBytes;
  const auto before = hn::IfThenElseZero(hn::FirstN(d, kBlockBytes - used), hn::LoadU(d, last));
  hn::StoreU(hn::Or(before, hn::TableLookupBytesOr0(hn::LoadU(d, end - n), lastOrder)), d, last);
}

template <class D>
void ReverseTriples(D, const Reversal& reversal, const ReversedRows& r) {
  const auto each = [&](const auto& reverse) {
    for (ptrdiff_t y = 0; y < r.rows; ++y) reverse(r.end + y * r.srcStep, r.dst + y * r.dstStep);
  };
  if constexpr (TripleReversal<D>::kPays) {
    const TripleReversal<D> wide(reversal);
    if (r.bytes >= wide.kVector) return each([&](auto end, auto dst) HWY_ATTR { wide(end, dst, r.bytes); });
  }
  each([&](auto end, auto dst) HWY_ATTR { ReverseByBlocks(reversal, end, dst, r.bytes); });
}

}  // namespace qvp::mirror
