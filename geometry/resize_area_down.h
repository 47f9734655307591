// Sums and means down the rows that a destination row covers.
#pragma once

#include <bit>
#include <utility>

#include "base/map.h"
#include "geometry/resize_area_near.h"
#include "geometry/resize_coverage.h"

namespace qvp::resize {

template <class V>
HWY_INLINE V Sum(V v) {
  return v;
}
template <class V, class... W>
HWY_INLINE V Sum(V a, V b, W... more) {
  return Sum(hn::Add(a, b), more...);
}

// sums[i] += each times the samples at place i of some rows.
template <class D, class T, class... Row>
HWY_INLINE void AddToSums(D d, hn::Vec<D> each, ptrdiff_t n, hn::TFromD<D>* sums, const T* first, const Row*... rows) {
  MapRow<false>(
      d, sums, n, [=](auto sum, auto v, auto... w) HWY_ATTR { return hn::Add(sum, hn::Mul(Sum(v, w...), each)); },
      static_cast<const hn::TFromD<D>*>(sums), first, rows...);
}

// sums[i] = the samples at place i of the rows that are covered, by their parts. The first one is row 0.
template <class D, class T>
void SumCovered(D d, const Image<const T>& rows, const Coverage& down, ptrdiff_t n, hn::TFromD<D>* sums) {
  using S = hn::TFromD<D>;
  const auto begin = hn::Set(d, static_cast<S>(down.begin)), each = hn::Set(d, static_cast<S>(down.each));
  if (down.end > 0) {
    const auto end = hn::Set(d, static_cast<S>(down.end));
    MapRow<false>(
        d, sums, n, [=](auto a, auto b) HWY_ATTR { return hn::Add(hn::Mul(a, begin), hn::Mul(b, end)); }, rows.Row(0),
        rows.Row(1 + down.whole));
  } else {
    MapRow<false>(
        d, sums, n, [=](auto a) HWY_ATTR { return hn::Mul(a, begin); }, rows.Row(0));
  }
  const auto row = [&](ptrdiff_t y) { return rows.Row(y); };
  ptrdiff_t y = 1;
  for (; y + 7 <= down.whole; y += 8) {
    AddToSums(d, each, n, sums, row(y), row(y + 1), row(y + 2), row(y + 3), row(y + 4), row(y + 5), row(y + 6),
              row(y + 7));
  }
  for (; y + 2 <= down.whole; y += 3) AddToSums(d, each, n, sums, row(y), row(y + 1), row(y + 2));
  for (; y <= down.whole; ++y) AddToSums(d, each, n, sums, row(y));
}

// The sum of kCount vectors, by powers of two: of equal numbers it is off by less than a unit of the last place.
template <size_t kCount, class V>
HWY_INLINE V TreeOf(const V* v) {
  if constexpr (kCount == 1) {
    return v[0];
  } else {
    constexpr size_t kHalf = std::bit_floor(kCount - 1);
    return hn::Add(TreeOf<kHalf>(v), TreeOf<kCount - kHalf>(v + kHalf));
  }
}

// sums[i] = those before, if kAdds, and the sum of successive rows from the first one of `rows` on.
template <bool kAdds, size_t... kRow>
void SumRows(const Image<const float>& rows, ptrdiff_t n, float* sums, std::index_sequence<kRow...>) {
  using V = hn::Vec<hn::ScalableTag<float>>;
  const auto tree = [](auto... v) HWY_ATTR {
    const V all[] = {v...};
    return TreeOf<sizeof...(v)>(all);
  };
  if constexpr (kAdds) {
    const auto add = [=](auto sum, auto... v) HWY_ATTR { return hn::Add(sum, tree(v...)); };
    MapRow<false>(hn::ScalableTag<float>(), sums, n, add, static_cast<const float*>(sums), rows.Row(kRow)...);
  } else {
    MapRow<false>(hn::ScalableTag<float>(), sums, n, tree, rows.Row(kRow)...);
  }
}
template <bool kAdds, size_t kRows>
void SumRowsOf(const Image<const float>& rows, ptrdiff_t n, float* sums) {
  SumRows<kAdds>(rows, n, sums, std::make_index_sequence<kRows>());
}

// sums[i] = the sum of `count` successive rows: of eight at a time, then of four, two and one.
inline void SumWhole(Image<const float> rows, ptrdiff_t count, ptrdiff_t n, float* sums) {
  using Sum = void (*)(const Image<const float>&, ptrdiff_t, float*);
  static constexpr Sum kFirst[] = {SumRowsOf<false, 1>, SumRowsOf<false, 2>, SumRowsOf<false, 3>, SumRowsOf<false, 4>,
                                   SumRowsOf<false, 5>, SumRowsOf<false, 6>, SumRowsOf<false, 7>, SumRowsOf<false, 8>};
  static constexpr Sum kFurther[] = {SumRowsOf<true, 1>, SumRowsOf<true, 2>, SumRowsOf<true, 4>, SumRowsOf<true, 8>};
  const ptrdiff_t first = std::min<ptrdiff_t>(count, 8);
  kFirst[first - 1](rows, n, sums);
  rows.data = rows.Row(first);
  count -= first;
  for (int log = 3; log >= 0; --log) {
    for (const ptrdiff_t some = ptrdiff_t{1} << log; count >= some; count -= some) {
      kFurther[log](rows, n, sums);
      rows.data = rows.Row(some);
    }
  }
}

// Rows up to which means of floats are taken down in floats. With up to 31 whole rows, equal pixels have themselves as
// mean within two units of the last place.
inline constexpr ptrdiff_t kMostFloatRows = 30;
inline bool AreMeansFloat(const ResizeRecord& record) {
  return !record.IsShifted() && record.rows.p / record.rows.q <= kMostFloatRows;
}

// What the results of MeanDown still have to be divided by.
inline double DivisorOf(const ResizeAxis& rows) { return rows.q == 1 && rows.p > kMostNear ? rows.p : 1; }

// sums[i] = the mean of the samples at place i of the rows that are covered, or, where all of these are whole, their
// sum. The mean of whole rows is the anchor, to which the weighted differences of the others are added.
inline void MeanDown(const Image<const float>& rows, const ResizeAxis& axis, const Coverage& down, ptrdiff_t n,
                     float* sums) {
  if (axis.taps <= kMostNear) return BlendDown(rows, NearAreas(down, down.first), n, sums);
  const bool isWhole = down.begin == down.each;
  const ptrdiff_t first = isWhole ? 0 : 1, whole = down.whole + 1 - first;
  SumWhole({rows.Row(first), rows.step, rows.layout}, whole, n, sums);
  if (axis.q == 1) return;
  const hn::ScalableTag<float> d;
  const double total = down.Total();
  const auto inverse = hn::Set(d, static_cast<float>(1.0 / static_cast<double>(whole)));
  const auto begin = hn::Set(d, isWhole ? 0.0f : static_cast<float>(down.begin / total));
  const auto end = hn::Set(d, static_cast<float>(down.end / total));
  const auto mean = [=](auto sum, auto a, auto b) HWY_ATTR {
    const auto anchor = hn::Mul(sum, inverse);
    return Blended(anchor, a, b, begin, end);
  };
  // What is not covered has weight 0, and a row that is.
  MapRow<false>(d, sums, n, mean, static_cast<const float*>(sums), rows.Row(0),
                rows.Row(down.end > 0 ? 1 + down.whole : 0));
}

}  // namespace qvp::resize
