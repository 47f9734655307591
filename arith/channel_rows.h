// Rows of pixels whose channels have operations of their own.
#pragma once

#include <cstring>

#include "base/channels.h"
#include "base/row_vectors.h"

namespace qvp {

// dst[i] = op(channel, src[i]) for the first kProcessed channels of pixels; the others keep what dst has. `n` counts
// elements. The source may be the destination.
template <int kChannels, int kProcessed, class D, class T, class Op>
HWY_INLINE void MapChannelsOfRow(D d, T* dst, ptrdiff_t n, const Op& op, const T* src) {
  constexpr ptrdiff_t kStride = ptrdiff_t{hn::MaxLanes(D())} * kChannels;
  const auto apply = [&](const T* from, const T* old) HWY_ATTR {
    auto pixels = LoadChannels<kChannels>(d, from);
    for (int c = 0; c < kProcessed; ++c) pixels.v[c] = op(c, pixels.v[c]);
    if constexpr (kProcessed < kChannels) pixels.v[kProcessed] = LoadChannels<kChannels>(d, old).v[kProcessed];
    return pixels;
  };
  if (n < kStride) {
    T in[kStride] = {}, out[kStride] = {};
    std::memcpy(in, src, n * sizeof(T));
    std::memcpy(out, dst, n * sizeof(T));
    StoreChannels<kChannels>(apply(in, out), d, out);
    std::memcpy(dst, out, n * sizeof(T));
    return;
  }
  const auto at = [&](ptrdiff_t i, ptrdiff_t) HWY_ATTR { return apply(src + i, dst + i); };
  const auto store = [&](ptrdiff_t i, const auto& pixels) HWY_ATTR { StoreChannels<kChannels>(pixels, d, dst + i); };
  ForEachVectorInPlace<1, kStride>(n, at, store);
}

}  // namespace qvp
