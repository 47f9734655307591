// Two rows whose samples stand in pairs, as products that are added in pairs want them.
#pragma once

#include <cstring>

#include "base/image.h"
#include "base/lanes.h"

namespace qvp {

// The rows of two pixels, as pairs of bytes or of 16-bit words, one pair to a sample. Words without
// sign are taken 32768 less as signed lanes.
template <class T, class Lane>
struct PairedRows {
  using Element = std::conditional_t<sizeof(Lane) == 1, uint16_t, uint32_t>;
  static constexpr int kRows = 2;
  static constexpr bool kIsInPlace = false;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(hn::ScalableTag<Lane>());

  static Element Of(const T* const (&rows)[2], ptrdiff_t i) {
    T pair[2];
    std::memcpy(pair, rows[0] + i, sizeof(T));
    std::memcpy(pair + 1, rows[1] + i, sizeof(T));
    constexpr uint32_t kBits = 8 * sizeof(Lane), kMask = (1u << kBits) - 1;
    const auto lane = [](T sample) { return static_cast<uint32_t>(sample) ^ kTurned; };
    return static_cast<Element>((lane(pair[0]) & kMask) | lane(pair[1]) << kBits);
  }
  static void Convert(const T* const (&rows)[2], Element* out, ptrdiff_t i) {
    const hn::ScalableTag<Lane> d;
    hn::StoreInterleaved2(Load(d, rows[0] + i), Load(d, rows[1] + i), d, reinterpret_cast<Lane*>(out + i));
  }

 private:
  // What makes signed words of those without sign: they become 32768 less.
  static constexpr uint32_t kTurned = std::is_same_v<T, uint16_t> && std::is_same_v<Lane, int16_t> ? 0x8000 : 0;

  template <class D>
  HWY_INLINE static hn::Vec<D> Load(D d, const T* from) {
    if constexpr (kTurned != 0) {
      return hn::Xor(hn::BitCast(d, hn::LoadU(hn::Rebind<T, D>(), from)), hn::Set(d, static_cast<Lane>(kTurned)));
    } else {
      return LoadWide(d, from);
    }
  }
};

// A coefficient b = 256 high + low, both from -128 to 128: so many pairs of them have a sum below 2^31, for any pixels.
constexpr int HighPart(int b) { return (b + 128) >> 8; }
constexpr int LowPart(int b) { return b - HighPart(b) * 256; }
inline constexpr ptrdiff_t kMostWordPairs = 255;

// Coefficients of a kernel for two successive results of a column, from at(row, column), 0 where there is none: pair p
// of column i is of rows 2p and 2p + 1 for the upper result, 2p - 1 and 2p for the lower one.
template <class At>
void WriteRowPairs(Size kernel, const At& at, int32_t* to) {
  const auto pair = [](int first, int second) {
    return static_cast<int32_t>((static_cast<uint32_t>(first) & 0xFFFF) | static_cast<uint32_t>(second) << 16);
  };
  for (ptrdiff_t p = 0; p <= kernel.height / 2; ++p) {
    for (ptrdiff_t i = 0; i < kernel.width; ++i) {
      const int row = at(2 * p, i);
      *to++ = pair(row, at(2 * p + 1, i));
      *to++ = pair(at(2 * p - 1, i), row);
    }
  }
}

}  // namespace qvp
