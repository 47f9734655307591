// Images of one bit a pixel, eight to a byte, the leftmost in the highest bit.
#include <array>

#include "base/check.h"
#include "base/export.h"
#include "base/lanes.h"

namespace {
using namespace qvp;

// Eight pixels, or as many as a vector has.
template <class T>
using Eight = hn::CappedTag<T, 8>;

// The bits of n <= 8 pixels from bit `at` of a row on, the first in the highest. No byte is read that has none of them.
HWY_INLINE uint32_t BitsAt(const uint8_t* row, ptrdiff_t at, ptrdiff_t n) {
  const uint32_t two = uint32_t{row[at / 8]} << 8 | row[(at + n - 1) / 8];
  return two >> (8 - at % 8) & 0xFF;
}

// Lane i tells the bit 7 - i.
template <class T>
HWY_INLINE hn::Vec<Eight<T>> Selected(uint32_t bits, hn::Vec<Eight<T>> low, hn::Vec<Eight<T>> high) {
  using U = hwy::MakeUnsigned<T>;
  const hn::RebindToUnsigned<Eight<T>> d;
  static constexpr U kBits[] = {0x80, 0x40, 0x20, 0x10, 8, 4, 2, 1};
  const auto bit = hn::LoadU(d, kBits);
  const auto isSet = hn::Eq(hn::And(hn::Set(d, static_cast<U>(bits)), bit), bit);
  return hn::IfThenElse(hn::RebindMask(Eight<T>(), isSet), high, low);
}

template <class T>
void RowToGrey(const uint8_t* src, ptrdiff_t offset, T* dst, ptrdiff_t n, T low, T high) {
  const Eight<T> d;
  constexpr ptrdiff_t kLanes = hn::MaxLanes(Eight<T>());
  const auto lows = hn::Set(d, low), highs = hn::Set(d, high);
  ptrdiff_t i = 0;
  for (; i + kLanes <= n; i += kLanes) {
    hn::StoreU(Selected<T>(BitsAt(src, offset + i, kLanes), lows, highs), d, dst + i);
  }
  if (i == n) return;
  T last[kLanes];
  hn::StoreU(Selected<T>(BitsAt(src, offset + i, n - i), lows, highs), d, last);
  std::memcpy(dst + i, last, (n - i) * sizeof(T));
}

// The same eight bits from the last to the first.
constexpr auto kReversed = [] {
  std::array<uint8_t, 256> reversed{};
  for (int v = 0; v < 256; ++v) {
    for (int bit = 0; bit < 8; ++bit) reversed[v] |= static_cast<uint8_t>((v >> bit & 1) << (7 - bit));
  }
  return reversed;
}();

// The bits of eight pixels: 1 above the threshold. What is not a number is not.
template <class T>
HWY_INLINE uint8_t BitsAbove(const T* from, hn::Vec<Eight<T>> threshold) {
  const Eight<T> d;
  constexpr int kLanes = static_cast<int>(hn::MaxLanes(Eight<T>()));
  uint32_t bits = 0;
  for (int i = 0; i < 8; i += kLanes) {
    uint8_t some[8];
    hn::StoreMaskBits(d, hn::Gt(hn::LoadU(d, from + i), threshold), some);
    bits |= (some[0] & ((1u << kLanes) - 1)) << i;
  }
  return kReversed[bits];
}

// Fewer than eight pixels, into a byte whose other bits stay.
template <class T>
void PutSome(const T* from, ptrdiff_t n, hn::Vec<Eight<T>> threshold, ptrdiff_t offset, uint8_t* byte) {
  T eight[8] = {};
  std::memcpy(eight, from, n * sizeof(T));
  const uint32_t mask = (0xFF00u >> n & 0xFF) >> offset;
  *byte = static_cast<uint8_t>((*byte & ~mask) | (BitsAbove(eight, threshold) >> offset & mask));
}

template <class T>
void RowToBits(const T* src, uint8_t* dst, ptrdiff_t offset, ptrdiff_t n, T threshold) {
  const auto bound = hn::Set(Eight<T>(), threshold);
  ptrdiff_t i = 0;
  if (offset > 0) {
    i = std::min(8 - offset, n);
    PutSome(src, i, bound, offset, dst++);
  }
  for (; i + 8 <= n; i += 8) *dst++ = BitsAbove(src + i, bound);
  if (i < n) PutSome(src + i, n - i, bound, 0, dst);
}

bool IsBitOffset(int offset) { return offset >= 0 && offset <= 7; }

template <class T>
QvpStatus ToGrey(const Image<const uint8_t>& src, int offset, const Image<T>& dst, Size roi, T low, T high) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {src, dst})) return failed;
  if (!IsBitOffset(offset)) return qvpStatusOutOfRange;
  for (ptrdiff_t y = 0; y < roi.height; ++y) RowToGrey(src.Row(y), offset, dst.Row(y), roi.width, low, high);
  return qvpStatusNoError;
}

template <class T>
QvpStatus ToBits(const Image<const T>& src, const Image<uint8_t>& dst, int offset, Size roi, T threshold) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {src, dst})) return failed;
  if (!IsBitOffset(offset)) return qvpStatusOutOfRange;
  for (ptrdiff_t y = 0; y < roi.height; ++y) RowToBits(src.Row(y), dst.Row(y), offset, roi.width, threshold);
  return qvpStatusNoError;
}

}  // namespace

#define BINARY(type)                                                                                                \
  QvpStatus qvpiBinToGray_1u##type##_C1R(const Qvp8u* pSrc, int srcStep, int srcBitOffset, Qvp##type* pDst,         \
                                         int dstStep, QvpiSize roiSize, Qvp##type loVal, Qvp##type hiVal) {         \
    return ToGrey(View(pSrc, srcStep, Layout::kC1), srcBitOffset, View(pDst, dstStep, Layout::kC1), roiSize, loVal, \
                  hiVal);                                                                                           \
  }                                                                                                                 \
  QvpStatus qvpiGrayToBin_##type##1u_C1R(const Qvp##type* pSrc, int srcStep, Qvp8u* pDst, int dstStep,              \
                                         int dstBitOffset, QvpiSize roiSize, Qvp##type threshold) {                 \
    return ToBits(View(pSrc, srcStep, Layout::kC1), View(pDst, dstStep, Layout::kC1), dstBitOffset, roiSize,        \
                  threshold);                                                                                       \
  }

BINARY(8u)
BINARY(16u)
BINARY(16s)
BINARY(32f)
