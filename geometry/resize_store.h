// Rows of results, rounded and saturated to the destination type.
#pragma once

#include "base/map.h"
#include "geometry/resize_record.h"

namespace qvp::resize {

// dst[i] = at(i), the vector of the values from place i on, for i in [0, n), rounded and saturated to T. For a row that
// is shorter than a vector at(0) may give more values.
template <class D, class T, class At>
HWY_INLINE void StoreRow(D d, T* dst, ptrdiff_t n, const At& at) {
  const hn::Rebind<T, D> narrow;
  constexpr ptrdiff_t kLanes = hn::MaxLanes(D()), kStride = kLanes * kVectorsAtOnce<T, hn::TFromD<D>>;
  if (n < kLanes) {
    Partial<T> out(dst, n);
    hn::StoreU(Narrow<T>(d, at(0)), narrow, out.lanes);
    return out.CopyTo(dst, n);
  }
  ptrdiff_t i = 0;
  for (; i + kStride <= n; i += kStride) {
    const auto part = [&](ptrdiff_t k) HWY_ATTR { return at(i + k * kLanes); };
    hn::StoreU(NarrowParts<T>(d, part), hn::CappedTag<T, kStride>(), dst + i);
  }
  for (; i < n - kLanes; i += kLanes) hn::StoreU(Narrow<T>(d, at(i)), narrow, dst + i);
  hn::StoreU(Narrow<T>(d, at(n - kLanes)), narrow, dst + n - kLanes);
}

// The same, four vectors at a time: at(i, vectors, v) fills the vectors from place i on.
template <class D, class T, class At>
HWY_INLINE void StoreRowByFours(D d, T* dst, ptrdiff_t n, const At& at) {
  constexpr ptrdiff_t kLanes = hn::MaxLanes(D()), kFour = 4 * kLanes;
  const auto one = [&](ptrdiff_t i) HWY_ATTR {
    hn::Vec<D> v;
    at(i, std::integral_constant<int, 1>(), &v);
    return v;
  };
  if (n < kFour) return StoreRow(d, dst, n, one);
  const auto store = [&](ptrdiff_t i) HWY_ATTR {
    hn::Vec<D> v[4];
    at(i, std::integral_constant<int, 4>(), v);
    StoreRow(d, dst + i, kFour, [&](ptrdiff_t place) HWY_ATTR { return v[place / kLanes]; });
  };
  for (ptrdiff_t i = 0; i < n - kFour; i += kFour) store(i);
  store(n - kFour);
}

// The same for 16-bit lanes and bytes, two vectors at a time.
template <class D, class At>
HWY_INLINE void StoreBytes(D d, uint8_t* dst, ptrdiff_t n, const At& at) {
  const hn::Repartition<uint8_t, D> bytes;
  constexpr ptrdiff_t kLanes = hn::MaxLanes(D());
  if (n < 2 * kLanes) return StoreRow(d, dst, n, at);
  const auto store = [&](ptrdiff_t i)
                         HWY_ATTR { hn::StoreU(PackedInOrder<uint8_t>(at(i), at(i + kLanes)), bytes, dst + i); };
  for (ptrdiff_t i = 0; i < n - 2 * kLanes; i += 2 * kLanes) store(i);
  store(n - 2 * kLanes);
}

}  // namespace qvp::resize
