// Rows of results from sums. What becomes of sums is the finish:
//
//   Finish::Result                       the type of results
//   Finish::kVectors                     vectors of sums that it takes at a time
//   finish.Store<kCount>(d, sums, i, to) stores the results of so many vectors, or of one, from result i of a row on
//   finish.Over(pixels)                  if there is one: the finish of a row of results that lie over these pixels
#pragma once

#include "filter/sum_tree.h"

namespace qvp::filter {

// Of a block of columns: what sums keep is read and written again for each row, so that many blocks would cost more
// than a larger cache.
inline constexpr int64_t kSumCacheBytes = 49152;

struct SumShape {
  ptrdiff_t width, height;
  int channels;

  // What a row of columns has for a row of results.
  ptrdiff_t Columns(ptrdiff_t results) const { return results + (width - 1) * channels; }
};

// A row of n results: sums(count, i) gives `count` vectors of sums, a constant, from result i on.
template <class E, class Finish, class Sums>
HWY_INLINE void FinishRow(const Finish& shared, ptrdiff_t n, uint8_t* row, const Sums& sums) {
  using Result = typename Finish::Result;
  const hn::ScalableTag<E> d;
  const Finish finish = shared;
  MakeRow<Finish::kVectors, ptrdiff_t{hn::MaxLanes(d)}>(
      n, reinterpret_cast<Result*>(row),
      [&](auto count, ptrdiff_t i, Result* to) QVP_INLINED { finish.template Store<count>(d, sums(count, i), i, to); });
}

// The finish of a row, if it looks at pixels.
template <class Finish>
Finish FinishOver(const Finish& finish, [[maybe_unused]] const void* pixels) {
  if constexpr (requires { finish.Over(pixels); }) {
    return finish.Over(pixels);
  } else {
    return finish;
  }
}

template <class E, class Finish>
HWY_INLINE void FinishRow(const Finish& finish, const TreeParts<E>& parts, ptrdiff_t n, uint8_t* row) {
  FinishRow<E>(finish, n, row,
               [&](auto count, ptrdiff_t i) QVP_INLINED { return TreeSums<count>(hn::ScalableTag<E>(), parts, i); });
}

}  // namespace qvp::filter
