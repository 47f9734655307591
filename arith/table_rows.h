// Maps of whole images through tables with an entry for each value of an element.
#pragma once

#include "base/image.h"
#include "base/simd.h"

namespace qvp {

// step(i) for i in [0, n), four at a time.
template <class Step>
HWY_INLINE void ForEachOf(ptrdiff_t n, const Step& step) {
  ptrdiff_t i = 0;
  for (; i + 4 <= n; i += 4) {
    for (int k = 0; k < 4; ++k) step(i + k);
  }
  for (; i < n; ++i) step(i);
}

// The tables of the processed channels; those of one channel may stand for all.
template <class T>
using Tables = const T* [4];

// dst = tables[channel][src]. Tables have 256 or 65536 entries, at any address. In place is safe.
void MapThroughTables(const Tables<uint8_t>& tables, const Image<const uint8_t>& src, const Image<uint8_t>& dst,
                      Size roi);
void MapThroughTables(const Tables<uint16_t>& tables, const Image<const uint16_t>& src, const Image<uint16_t>& dst,
                      Size roi);

}  // namespace qvp
