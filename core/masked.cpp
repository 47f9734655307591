// Copy and set under a mask of one byte per pixel.
#include <array>
#include <cstring>

#include "base/check.h"
#include "base/export.h"
#include "base/rows.h"
#include "base/simd.h"
#include "core/fill.h"

namespace {
using namespace qvp;

// A block is one vector of mask bytes with its pixels, which are as many vectors as a pixel has bytes.
using D = hn::CappedTag<uint8_t, 2 * kBlockBytes>;
constexpr int kPixels = static_cast<int>(hn::MaxLanes(D()));

// Mask bytes from which the pixels of vector `v` of a block take theirs: 16 from this one on. A vector never spans more
// than 16 pixels, unless pixels are bytes.
constexpr int FirstMask(int pixelBytes, int v) { return HWY_MIN(v * kPixels / pixelBytes, kPixels - kBlockBytes); }

// For each byte of a block, which of those mask bytes decides; the alpha of an AC4 pixel is never selected.
constexpr uint8_t kNever = 0x80;
template <int kPixelBytes, bool kKeepAlpha>
constexpr auto kDeciders = [] {
  std::array<uint8_t, kPixelBytes * kPixels> index{};
  for (int i = 0; i < kPixelBytes * kPixels; ++i) {
    const bool alpha = kKeepAlpha && 4 * (i % kPixelBytes) >= 3 * kPixelBytes;
    index[i] = alpha ? kNever : static_cast<uint8_t>(i / kPixelBytes - FirstMask(kPixelBytes, i / kPixels));
  }
  return index;
}();

// dst = mask ? src : dst, for one block.
template <int kPixelBytes, bool kKeepAlpha>
HWY_INLINE void Block(const uint8_t* src, const uint8_t* mask, uint8_t* dst) {
  const D d;
  for (int v = 0; v < kPixelBytes; ++v, src += kPixels, dst += kPixels) {
    auto deciding = hn::Undefined(d);
    if constexpr (kPixelBytes == 1) {
      deciding = hn::LoadU(d, mask);
    } else {
      const auto index = hn::LoadU(d, kDeciders<kPixelBytes, kKeepAlpha>.data() + v * kPixels);
      deciding = hn::TableLookupBytesOr0(hn::LoadDup128(d, mask + FirstMask(kPixelBytes, v)), index);
    }
    const auto keep = hn::Eq(deciding, hn::Zero(d));
    hn::StoreU(hn::IfThenElse(keep, hn::LoadU(d, dst), hn::LoadU(d, src)), d, dst);
  }
}

// `advance` is 0 when the source is one block that serves all pixels.
template <int kPixelBytes, bool kKeepAlpha>
void MaskedRow(ptrdiff_t n, const uint8_t* src, ptrdiff_t advance, const uint8_t* mask, uint8_t* dst) {
  constexpr ptrdiff_t kBytes = kPixelBytes * kPixels;
  for (; n >= kPixels; n -= kPixels, src += advance, mask += kPixels, dst += kBytes) {
    Block<kPixelBytes, kKeepAlpha>(src, mask, dst);
  }
  if (n == 0) return;
  uint8_t srcRest[kBytes] = {}, dstRest[kBytes] = {}, maskRest[kPixels] = {};
  std::memcpy(srcRest, src, n * kPixelBytes);
  std::memcpy(dstRest, dst, n * kPixelBytes);
  std::memcpy(maskRest, mask, n);
  Block<kPixelBytes, kKeepAlpha>(srcRest, maskRest, dstRest);
  std::memcpy(dst, dstRest, n * kPixelBytes);
}

using RowKernel = void (*)(ptrdiff_t, const uint8_t*, ptrdiff_t, const uint8_t*, uint8_t*);

RowKernel KernelFor(const Bytes& dst) {
  const bool keepAlpha = KeepsAlpha(dst.layout);
  switch (dst.PixelBytes()) {
    case 1: return MaskedRow<1, false>;
    case 2: return MaskedRow<2, false>;
    case 3: return MaskedRow<3, false>;
    case 4: return keepAlpha ? MaskedRow<4, true> : MaskedRow<4, false>;
    case 6: return MaskedRow<6, false>;
    case 8: return keepAlpha ? MaskedRow<8, true> : MaskedRow<8, false>;
    case 12: return MaskedRow<12, false>;
    default: return keepAlpha ? MaskedRow<16, true> : MaskedRow<16, false>;
  }
}

QvpStatus CopyMasked(const ConstBytes& src, const Bytes& dst, Size roi, const ConstBytes& mask) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {src, dst, mask})) return failed;
  const RowKernel row = KernelFor(dst);
  Rows(src, dst, mask).ForEach(roi, [&](ptrdiff_t n, const uint8_t* from, uint8_t* to, const uint8_t* where) {
    row(n, from, kPixels * src.PixelBytes(), where, to);
  });
  return qvpStatusNoError;
}

QvpStatus SetMasked(const void* value, const Bytes& dst, Size roi, const ConstBytes& mask) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {dst, mask}, {value})) return failed;
  const FillPixel pixel(value, dst);
  uint8_t block[kPixels * kLargestPixel];
  for (int i = 0; i < kPixels * pixel.size; i += kPixels) {
    hn::StoreU(pixel.Repeat(D(), pixel.bytes, i % pixel.size), D(), block + i);
  }
  const RowKernel row = KernelFor(dst);
  Rows(dst, mask).ForEach(roi, [&](ptrdiff_t n, uint8_t* to, const uint8_t* where) { row(n, block, 0, where, to); });
  return qvpStatusNoError;
}

}  // namespace

#define MASKED(type)                                              \
  QVP_MASKED_MOVE(qvpiCopy_##type##_C1MR, type, C1, CopyMasked)   \
  QVP_MASKED_MOVE(qvpiCopy_##type##_C3MR, type, C3, CopyMasked)   \
  QVP_MASKED_MOVE(qvpiCopy_##type##_C4MR, type, C4, CopyMasked)   \
  QVP_MASKED_MOVE(qvpiCopy_##type##_AC4MR, type, AC4, CopyMasked) \
  QVP_MASKED_FILL(qvpiSet_##type##_C1MR, type, C1, SetMasked)     \
  QVP_MASKED_FILL(qvpiSet_##type##_C3MR, type, C3, SetMasked)     \
  QVP_MASKED_FILL(qvpiSet_##type##_C4MR, type, C4, SetMasked)     \
  QVP_MASKED_FILL(qvpiSet_##type##_AC4MR, type, AC4, SetMasked)

QVP_EACH_MOVED_TYPE(MASKED)
