// Ordinary and cache-bypassing stores, and when to use which.
#pragma once

#include <hwy/cache_control.h>

#include <algorithm>
#include <cstring>

#include "base/simd.h"
#include "qvpcore.h"

namespace qvp {

enum class Store { kOrdinary, kStreaming };

// Streaming stores leave the CPU by cache lines.
inline constexpr int kStreamedLine = 64;

// Streaming pays once the bytes that a call touches no longer fit into the largest cache: written lines would push out
// what the caller works on, and would be read before they are overwritten. Small calls do not even ask for the size.
inline Store StoreFor(int64_t bytes) {
  if (bytes <= 524288) return Store::kOrdinary;
  int cache = 0;
  return qvpGetMaxCacheSizeB(&cache) == qvpStatusNoError && bytes >= cache ? Store::kStreaming : Store::kOrdinary;
}

// The same for calls that read about as much as they write, by the bytes of both. A cache beyond this is shared by so
// many cores that one of them reaches memory as fast by streaming.
inline constexpr int64_t kLargestUsefulCache = 32 << 20;
inline Store StoreForMoved(int64_t bytes) { return bytes >= kLargestUsefulCache ? Store::kStreaming : StoreFor(bytes); }

// Makes streamed rows visible to other threads before the call returns.
inline void Fence(Store store) {
  if (store == Store::kStreaming) hwy::FlushStream();
}

// A streaming store asks for an address aligned to the vector.
template <Store kStore, class D, class T = hn::TFromD<D>>
HWY_INLINE void StoreTo(hn::Vec<D> v, D d, T* to) {
  if constexpr (kStore == Store::kStreaming) {
    hn::Stream(v, d, to);
  } else {
    hn::StoreU(v, d, to);
  }
}

// Bytes from `p` up to the next multiple of the vector length.
template <class D, class T = hn::TFromD<D>>
HWY_INLINE ptrdiff_t BytesToAlignment(D, const T* p) {
  return static_cast<ptrdiff_t>(-reinterpret_cast<uintptr_t>(p) & (hn::MaxLanes(D()) * sizeof(T) - 1));
}

// A row past the caches; its ends are stored ordinarily.
inline void StreamRow(const uint8_t* from, uint8_t* to, ptrdiff_t bytes) {
  const hn::ScalableTag<uint8_t> d;
  constexpr ptrdiff_t kVector = hn::MaxLanes(d);
  ptrdiff_t i = std::min(BytesToAlignment(d, to), bytes);
  std::memcpy(to, from, i);
  for (; i + kVector <= bytes; i += kVector) StoreTo<Store::kStreaming>(hn::LoadU(d, from + i), d, to + i);
  std::memcpy(to + i, from + i, bytes - i);
}

}  // namespace qvp
