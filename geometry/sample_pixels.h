// Reading words at the places of points, and writing their pixels.
#pragma once

#include "geometry/sample_places.h"

namespace qvp {

template <class T>
T WordAt(const uint8_t* from) {
  T word;
  std::memcpy(&word, from, sizeof(T));
  return word;
}

// Words at offsets from any address. Of 32 bits, gathering is quicker than single loads, of 64 it is not.
#if HWY_TARGET <= HWY_AVX2
template <class D>
HWY_INLINE hn::Vec<D> GatherWords(D d, const uint8_t* base, hn::Vec<D> offset) {
  return hn::GatherOffset(d, reinterpret_cast<const int32_t*>(base), offset);
}
#else
HWY_INLINE hn::Vec128<int32_t> GatherWords(hn::Full128<int32_t>, const uint8_t* base, hn::Vec128<int32_t> offset) {
  const auto at = [&](int i) { return WordAt<int32_t>(base + i); };
  return hn::Vec128<int32_t>{_mm_setr_epi32(at(_mm_extract_epi32(offset.raw, 0)), at(_mm_extract_epi32(offset.raw, 1)),
                                            at(_mm_extract_epi32(offset.raw, 2)),
                                            at(_mm_extract_epi32(offset.raw, 3)))};
}
#endif

// Words of 64 bits, at every kStride-th offset.
template <int kStride>
HWY_INLINE hn::Vec<hn::ScalableTag<double>> LoadWords(const uint8_t* base, const int32_t* offset) {
  const auto at = [&](int i) { return WordAt<double>(base + offset[i * kStride]); };
#if HWY_TARGET <= HWY_AVX3
  return hn::Vec512<double>{_mm512_setr_pd(at(0), at(1), at(2), at(3), at(4), at(5), at(6), at(7))};
#elif HWY_TARGET <= HWY_AVX2
  return hn::Vec256<double>{_mm256_setr_pd(at(0), at(1), at(2), at(3))};
#else
  return hn::Vec128<double>{_mm_setr_pd(at(0), at(1))};
#endif
}

// Makes the pixels of n points by strides: make(i, to) writes those of kStride points from the i-th on, and elements of
// kOver pixels behind them. What a stride has too much, and channels that stay, are kept off the destination.
template <int kStride, int kOver, int kChannels, class T, class Make>
void MakePixels(const SampleTask<T>& task, ptrdiff_t n, T* dst, const Make& make) {
  const int written = ProcessedChannels(task.src.layout);
  ptrdiff_t i = 0;
  for (; written == kChannels && i + kStride + kOver <= n; i += kStride) make(i, dst + i * kChannels);
  for (; i < n; i += kStride) {
    T out[kStride * kChannels + 4];
    make(i, out);
    const ptrdiff_t rest = std::min<ptrdiff_t>(n - i, kStride);
    T* to = dst + i * kChannels;
    if (written == kChannels) {
      std::memcpy(to, out, rest * kChannels * sizeof(T));
      continue;
    }
    for (ptrdiff_t j = 0; j < rest; ++j) std::memcpy(to + j * kChannels, out + j * kChannels, written * sizeof(T));
  }
}

}  // namespace qvp
