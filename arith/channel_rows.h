// Rows of pixels whose channels have operations of their own: taken apart into a vector for each channel, and put
// together again.
#pragma once

#include <cstring>

#include "base/row_vectors.h"

namespace qvp {

template <int kChannels, class V>
struct Pixels {
  V v[kChannels];
};

template <int kChannels, class D, class T>
HWY_INLINE Pixels<kChannels, hn::Vec<D>> LoadChannels(D d, const T* from) {
  Pixels<kChannels, hn::Vec<D>> pixels;
  auto& v = pixels.v;
  if constexpr (kChannels == 3) hn::LoadInterleaved3(d, from, v[0], v[1], v[2]);
  if constexpr (kChannels == 4) hn::LoadInterleaved4(d, from, v[0], v[1], v[2], v[3]);
  return pixels;
}

template <int kChannels, class D, class T>
HWY_INLINE void StoreChannels(const Pixels<kChannels, hn::Vec<D>>& pixels, D d, T* to) {
  const auto& v = pixels.v;
  if constexpr (kChannels == 3) hn::StoreInterleaved3(v[0], v[1], v[2], d, to);
  if constexpr (kChannels == 4) hn::StoreInterleaved4(v[0], v[1], v[2], v[3], d, to);
}

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
