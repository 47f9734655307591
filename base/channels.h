// Pixels as a vector for each channel.
#pragma once

#include "base/simd.h"

namespace qvp {

template <int kChannels, class V>
struct Pixels {
  V v[kChannels];
};

// As many pixels as D has lanes, taken apart.
template <int kChannels, class D, class T>
HWY_INLINE Pixels<kChannels, hn::Vec<D>> LoadChannels(D d, const T* from) {
  Pixels<kChannels, hn::Vec<D>> pixels;
  auto& v = pixels.v;
  if constexpr (kChannels == 1) v[0] = hn::LoadU(d, from);
  if constexpr (kChannels == 3) hn::LoadInterleaved3(d, from, v[0], v[1], v[2]);
  if constexpr (kChannels == 4) hn::LoadInterleaved4(d, from, v[0], v[1], v[2], v[3]);
  return pixels;
}

// And put together again.
template <int kChannels, class D, class T>
HWY_INLINE void StoreChannels(const Pixels<kChannels, hn::Vec<D>>& pixels, D d, T* to) {
  const auto& v = pixels.v;
  if constexpr (kChannels == 1) hn::StoreU(v[0], d, to);
  if constexpr (kChannels == 3) hn::StoreInterleaved3(v[0], v[1], v[2], d, to);
  if constexpr (kChannels == 4) hn::StoreInterleaved4(v[0], v[1], v[2], v[3], d, to);
}

}  // namespace qvp
