// Fills with one pixel, whatever its type and layout, and its repetition along a row.
#pragma once

#include <algorithm>
#include <array>
#include <cstring>

#include "base/image.h"
#include "base/simd.h"

namespace qvp {

inline constexpr int kLargestPixel = 4 * sizeof(Qvp32s);

// kPhases[p][i] = i mod p: the byte of a pixel of p bytes that stands at byte i of a row. Three vectors in turn hold a
// whole number of pixels of every size.
inline constexpr int kPhaseCount = 3 * HWY_MAX_BYTES + kLargestPixel;
inline constexpr auto kPhases = [] {
  std::array<std::array<uint8_t, kPhaseCount>, kLargestPixel + 1> phases{};
  for (int p = 1; p <= kLargestPixel; ++p) {
    for (int i = 0; i < kPhaseCount; ++i) phases[p][i] = static_cast<uint8_t>(i % p);
  }
  return phases;
}();

// What a fill writes: the bytes of one pixel, and which of them stay as they are (0xFF, else 0).
struct FillPixel {
  alignas(16) uint8_t bytes[kBlockBytes] = {}, keep[kBlockBytes] = {};
  int size;

  FillPixel(const void* value, const Bytes& dst) : size(dst.PixelBytes()) {
    const int given = ProcessedChannels(dst.layout) * dst.elementBytes;
    for (int i = 0; i < given; ++i) bytes[i] = static_cast<const uint8_t*>(value)[i];
    for (int i = given; i < size; ++i) keep[i] = 0xFF;
  }

  bool Keeps() const { return keep[size - 1] != 0; }
  bool IsOneByte() const {
    return !Keeps() && std::all_of(bytes, bytes + size, [&](uint8_t b) { return b == *bytes; });
  }

  // One vector of the repeated pixel, or of what it keeps, that begins `phase` bytes into a pixel. `phase` leaves a
  // vector's length to kPhaseCount.
  template <class D>
  HWY_INLINE hn::Vec<D> Repeat(D d, const uint8_t (&pixel)[kBlockBytes], int phase) const {
    return hn::TableLookupBytes(hn::LoadDup128(d, pixel), hn::LoadU(d, kPhases[size].data() + phase));
  }
};

// Fills a region. `value` has an element for each processed channel.
void FillPixels(const void* value, const Bytes& dst, Size roi);

}  // namespace qvp
