// Images of one bit a pixel, eight to a byte, the leftmost in the highest bit.
#include "base/check.h"
#include "base/export.h"
#include "base/lanes.h"
#include "base/scalar.h"

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

// The bits of each byte of a word from the last to the first.
HWY_INLINE uint64_t WithReversedBytes(uint64_t bits) {
  bits = (bits >> 4 & 0x0F0F0F0F0F0F0F0F) | (bits & 0x0F0F0F0F0F0F0F0F) << 4;
  bits = (bits >> 2 & 0x3333333333333333) | (bits & 0x3333333333333333) << 2;
  return (bits >> 1 & 0x5555555555555555) | (bits & 0x5555555555555555) << 1;
}

// Pixels whose bits are made at a time.
constexpr ptrdiff_t kWord = 64;

// The bits of a word of pixels, the first in the lowest: 1 above the threshold. What is not a number is not.
template <class T>
HWY_INLINE uint64_t BitsAbove(const T* from, hn::Vec<hn::ScalableTag<T>> threshold) {
  const hn::ScalableTag<T> d;
  constexpr ptrdiff_t kLanes = hn::MaxLanes(hn::ScalableTag<T>());
  uint64_t bits = 0;
  for (ptrdiff_t i = 0; i < kWord; i += kLanes) {
    uint64_t some = 0;
    hn::StoreMaskBits(d, hn::Gt(hn::LoadU(d, from + i), threshold), reinterpret_cast<uint8_t*>(&some));
    bits |= some << i;
  }
  return bits;
}

// The lowest n bits to the pixels from number `begin` on; others of their bytes stay.
void PutSome(uint64_t bits, ptrdiff_t begin, ptrdiff_t n, uint8_t* to) {
  const uint64_t mask = WithReversedBytes(~uint64_t{0} >> (kWord - n) << begin);
  bits = WithReversedBytes(bits << begin) & mask;
  for (ptrdiff_t i = 0; i < begin + n; i += 8, ++to) {
    *to = static_cast<uint8_t>((*to & ~(mask >> i)) | bits >> i);
  }
}

// Words of the destination; where the row begins or ends within one, those of the pixels at its ends.
template <class T>
void RowToBits(const T* src, uint8_t* dst, ptrdiff_t offset, ptrdiff_t n, T threshold) {
  const auto bound = hn::Set(hn::ScalableTag<T>(), threshold);
  T staged[kWord] = {};
  if (n < kWord) src = static_cast<const T*>(std::memcpy(staged, src, n * sizeof(T)));
  ptrdiff_t i = 0;
  if (offset > 0) {
    i = std::min(kWord - offset, n);
    PutSome(BitsAbove(src, bound), offset, i, dst);
    dst += sizeof(uint64_t);
  }
  for (; i + kWord <= n; i += kWord, dst += sizeof(uint64_t)) {
    StoreScalar(reinterpret_cast<uint64_t*>(dst), WithReversedBytes(BitsAbove(src + i, bound)));
  }
  const ptrdiff_t last = std::max(n, kWord) - kWord;
  if (i < n) PutSome(BitsAbove(src + last, bound) >> (i - last), 0, n - i, dst);
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
