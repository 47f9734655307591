// Reading words at the places of points, and writing their pixels.
#pragma once

#include "geometry/sample_places.h"

namespace qvp {

// Elements at offsets from any address.
#if HWY_TARGET <= HWY_AVX2
template <class D>
HWY_INLINE hn::Vec<D> GatherWords(D d, const uint8_t* base, hn::Vec<hn::Rebind<int32_t, D>> offset) {
  using T = hn::TFromD<D>;
  const auto* from = reinterpret_cast<const T*>(base);
  if constexpr (sizeof(T) == sizeof(int32_t)) return hn::GatherOffset(d, from, offset);
  if constexpr (sizeof(T) == sizeof(int64_t))
    return hn::GatherOffset(d, from, hn::PromoteTo(hn::Rebind<int64_t, D>(), offset));
}
#else
template <class T>
T WordAt(const uint8_t* from) {
  T word;
  std::memcpy(&word, from, sizeof(T));
  return word;
}
HWY_INLINE hn::Vec128<int32_t> GatherWords(hn::Full128<int32_t>, const uint8_t* base, hn::Vec128<int32_t> offset) {
  const auto at = [&](int i) { return WordAt<int32_t>(base + i); };
  return hn::Vec128<int32_t>{_mm_setr_epi32(at(_mm_extract_epi32(offset.raw, 0)), at(_mm_extract_epi32(offset.raw, 1)),
                                            at(_mm_extract_epi32(offset.raw, 2)),
                                            at(_mm_extract_epi32(offset.raw, 3)))};
}
HWY_INLINE hn::Vec128<double> GatherWords(hn::Full128<double>, const uint8_t* base, hn::Vec128<int32_t, 2> offset) {
  return hn::Vec128<double>{_mm_setr_pd(WordAt<double>(base + _mm_extract_epi32(offset.raw, 0)),
                                        WordAt<double>(base + _mm_extract_epi32(offset.raw, 1)))};
}
#endif

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
