// Rows of two channels as two rows of one, and back.
#pragma once

#include "base/lanes.h"

namespace qvp::resize {

// first[i], second[i] = pairs[2 i], pairs[2 i + 1] for i in [0, n).
template <class T>
void SplitPairs(const T* pairs, ptrdiff_t n, T* first, T* second) {
  const hn::ScalableTag<T> d;
  ptrdiff_t i = 0;
  for (; i + ptrdiff_t{hn::MaxLanes(d)} <= n; i += hn::MaxLanes(d)) {
    hn::Vec<decltype(d)> a, b;
    hn::LoadInterleaved2(d, pairs + 2 * i, a, b);
    hn::StoreU(a, d, first + i);
    hn::StoreU(b, d, second + i);
  }
  for (; i < n; ++i) first[i] = pairs[2 * i], second[i] = pairs[2 * i + 1];
}

// The other way.
template <class T>
void JoinPairs(const T* first, const T* second, ptrdiff_t n, T* pairs) {
  const hn::ScalableTag<T> d;
  ptrdiff_t i = 0;
  for (; i + ptrdiff_t{hn::MaxLanes(d)} <= n; i += hn::MaxLanes(d)) {
    hn::StoreInterleaved2(hn::LoadU(d, first + i), hn::LoadU(d, second + i), d, pairs + 2 * i);
  }
  for (; i < n; ++i) pairs[2 * i] = first[i], pairs[2 * i + 1] = second[i];
}

}  // namespace qvp::resize
