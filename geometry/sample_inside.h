// Values at interior points: all taps lie in the image, so that nothing is judged and no tap is tested.
#pragma once

#include <hwy/cache_control.h>

#include "geometry/sample_bytes.h"
#include "geometry/sample_floats.h"
#include "geometry/sample_places.h"

namespace qvp::sampling {

// ---- Nearest

template <int kChannels, class T>
void MovePixels(const Task<T>& task, const int32_t* offset, ptrdiff_t n, T* dst) {
  const auto* src = reinterpret_cast<const uint8_t*>(task.src.data);
  if (ProcessedChannels(task.src.layout) < kChannels) {
    for (ptrdiff_t i = 0; i < n; ++i) std::memcpy(dst + i * kChannels, src + offset[i], (kChannels - 1) * sizeof(T));
  } else if (task.isShift) {
    std::memcpy(dst, src + offset[0], n * kChannels * sizeof(T));
  } else {
    for (ptrdiff_t i = 0; i < n; ++i) std::memcpy(dst + i * kChannels, src + offset[i], kChannels * sizeof(T));
  }
}

// ---- Blocks

// Fetches what the same columns need some rows below. A line of the cache holds the taps of several points that are
// close together, and those of a few rows.
template <int kPixelBytes, class T>
void Fetch(const Task<T>& task, const int32_t* offset, ptrdiff_t n) {
  if (task.ahead == 0) return;
  const auto* base = reinterpret_cast<const uint8_t*>(task.src.data) + task.ahead;
  for (ptrdiff_t i = 0; i < n; i += std::max(4, 16 / kPixelBytes)) hwy::Prefetch(base + offset[i]);
}

template <int kTaps, int kChannels, class T, class F>
HWY_INLINE void Blend(const Task<T>& task, const Places<F>& places, ptrdiff_t n, T* dst) {
  constexpr bool kAreWords = kChannels == 1 || (kTaps <= 4 && sizeof(T) == 1);
  if constexpr (kIsWhole<F>) {
    BlendBytes<kChannels>(task, places, n, dst);
  } else if constexpr (kAreWords) {
    BlendPoints<kTaps, kChannels>(task, places, n, dst);
  } else {
    BlendPixels<kTaps, kChannels>(task, places, n, dst);
  }
}

template <int kTaps, int kChannels, class T, class Points>
void SampleChannelsInside(const Task<T>& task, const Points& points, ptrdiff_t n, T* dst) {
  constexpr int kPixelBytes = kChannels * int{sizeof(T)};
  const auto step = static_cast<int32_t>(task.src.step);
  Places<FractionOf<kTaps, T>> places;
  if constexpr (kTaps == 1) {
    if (!points.template PlaceNearest<kPixelBytes>(n, step, places.offset)) {
      Place<1, kPixelBytes>(points, task.isShift ? 1 : n, step, places);
    }
    Fetch<kPixelBytes>(task, places.offset, task.isShift ? 0 : n);
    MovePixels<kChannels>(task, places.offset, n, dst);
  } else {
    Place<kTaps, kPixelBytes>(points, n, step, places);
    Fetch<kPixelBytes>(task, places.offset + places.first, n);
    Blend<kTaps, kChannels>(task, places, n, dst);
  }
}

// Values at n interior points, up to kBlock, to as many pixels.
template <int kTaps, class T, class Points>
void SampleInside(const Task<T>& task, const Points& points, ptrdiff_t n, T* dst) {
  switch (Channels(task.src.layout)) {
    case 1: return SampleChannelsInside<kTaps, 1>(task, points, n, dst);
    case 3: return SampleChannelsInside<kTaps, 3>(task, points, n, dst);
    default: return SampleChannelsInside<kTaps, 4>(task, points, n, dst);
  }
}

}  // namespace qvp::sampling
