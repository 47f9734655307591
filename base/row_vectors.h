// The walk along a row by full vectors. The last vector of a row overlaps the one before it, by one of two policies;
// rows that are shorter than a vector are staged by the caller (Partial).
#pragma once

#include "base/lanes.h"

namespace qvp {

// step(i) for each vector of kStride elements of a row of n >= kStride. Elements that the last two steps cover are done
// twice: for results that do not depend on what was there before.
template <ptrdiff_t kStride, class Step>
HWY_INLINE void ForEachVector(ptrdiff_t n, const Step& step) {
  ptrdiff_t i = 0;
  for (; i + kStride <= n; i += kStride) step(i);
  if (i < n) step(n - kStride);
}

// step(d, i) for each vector of D, then, with a tag of one lane, for the elements that are left: for rows in place, or
// without room behind them.
template <class D, class Step>
HWY_INLINE void ForEachElement(D, ptrdiff_t n, const Step& step) {
  constexpr ptrdiff_t kLanes = hn::MaxLanes(D());
  ptrdiff_t i = 0;
  for (; i + kLanes <= n; i += kLanes) step(D(), i);
  for (; i < n; ++i) step(hn::CappedTag<hn::TFromD<D>, 1>(), i);
}

// The same for rows that may be their own source: store(i, at(i, phase)), where the last vector is computed before the
// first one is stored. kSteps vectors go at a time. `phase` is i modulo kSteps vectors but in the last few, so that it
// is a constant in the loop: what has a period that divides kSteps vectors may go by it.
template <int kSteps, ptrdiff_t kStride, class At, class Store>
HWY_INLINE void ForEachVectorInPlace(ptrdiff_t n, const At& at, const Store& store) {
  const ptrdiff_t end = n - kStride;
  const auto last = at(end, end);
  ptrdiff_t i = 0;
  for (; i + kSteps * kStride <= end; i += kSteps * kStride) {
    for (ptrdiff_t v = 0; v < kSteps * kStride; v += kStride) store(i + v, at(i + v, v));
  }
  for (; i < end; i += kStride) store(i, at(i, i));
  store(end, last);
}

}  // namespace qvp
