// A row of results by vectors, down to its end.
#pragma once

#include "geometry/decimate_halving.h"

namespace qvp::decimate {

template <class T, int kChannels, class R, class D>
using KernelOf =
    std::conditional_t<kIsHalving<T, kChannels, R>, HalvingKernel<T, kChannels, R, D>, Kernel<T, kChannels, R, D>>;

template <class T, int kChannels, class R>
struct Row {
  using Wide = hn::CappedTag<uint8_t, 2 * kBlockBytes>;
  using Block = hn::Full128<uint8_t>;
  static constexpr ptrdiff_t kUnit = kChannels * sizeof(T);
  static constexpr bool kIsHalved = kIsHalving<T, kChannels, R>;

  const Rows<R>& rows;
  ptrdiff_t results, bytes;  // results, and bytes of samples
  ptrdiff_t at = 0;

  // A vector whose place in the cycle is kPlace.
  template <class K, int kPlace, bool kAtEnd>
  HWY_INLINE void Vector() {
    const ptrdiff_t first = R::First(at) * kUnit;
    K::template Vector<kPlace, kAtEnd>(
        rows.results, [&](int i) QVP_INLINED { return rows.from[i] + first; }, bytes - first,
        [&](int i) QVP_INLINED { return rows.to[i] + at * kUnit; });
    at += K::kResults;
  }

  // All samples of a vector's results are there.
  template <class K>
  HWY_INLINE bool HasVector() const {
    const ptrdiff_t end = at + K::kResults, samples = R::First(end) + (end % R::kTo * R::kFrom % R::kTo != 0);
    return end <= results && samples * kUnit <= bytes && bytes >= kBlockBytes;
  }

  template <class K>
  void ToTheEnd() {
    while (HasVector<K>()) {
      Unrolled<K::kCycle>([&](auto place) QVP_INLINED {
        if (HasVector<K>() && at / K::kResults % K::kCycle == place) Vector<K, place, true>();
      });
    }
  }

  // The last results, fewer than a vector's or with samples that are missing: the last sample counts for these.
  HWY_NOINLINE void Staged() {
    using K = KernelOf<T, kChannels, R, Block>;
    constexpr ptrdiff_t kRowBytes = 64, kMissing = 4;
    alignas(kBlockBytes) uint8_t from[R::kFrom][kRowBytes] = {}, to[R::kTo][kBlockBytes];
    const ptrdiff_t first = R::First(at) * kUnit, n = std::min(bytes - first, kRowBytes - kMissing * kUnit);
    for (int i = 0; i < R::kFrom; ++i) {
      std::memcpy(from[i], rows.from[i] + first, n);
      for (ptrdiff_t b = n; b < n + kMissing * kUnit; b += kUnit) std::memcpy(from[i] + b, from[i] + n - kUnit, kUnit);
    }
    Unrolled<K::kCycle>([&](auto place) QVP_INLINED {
      if (at / K::kResults % K::kCycle != place) return;
      K::template Vector<place, false>(
          rows.results, [&](int i) QVP_INLINED { return from[i]; }, kRowBytes,
          [&](int i) QVP_INLINED { return to[i]; });
    });
    const ptrdiff_t made = std::min<ptrdiff_t>(K::kResults, results - at);
    for (int i = 0; i < rows.results; ++i) std::memcpy(rows.to[i] + at * kUnit, to[i], made * kUnit);
    at += made;
  }

  // Groups of vectors, as long as no load would end behind the row. What is stored could be anything: copies of all
  // addresses stay in registers.
  HWY_INLINE void InGroups() {
    using K = KernelOf<T, kChannels, R, Wide>;
    constexpr ptrdiff_t kResults = K::kGroup * K::kResults;
    const Rows<R> of = rows;
    const ptrdiff_t all = results, end = bytes;
    ptrdiff_t now = 0;
    const auto step = [&](auto place) QVP_INLINED {
      const ptrdiff_t first = R::First(now) * kUnit;
      if (now + kResults > all || first + K::BytesRead(place) > end) return false;
      K::template Group<place>(
          of.results, [&](int i) QVP_INLINED { return of.from[i] + first; },
          [&](int i) QVP_INLINED { return of.to[i] + now * kUnit; });
      now += kResults;
      return true;
    };
    const auto cycle = [&]<int... kPlace>(std::integer_sequence<int, kPlace...>) QVP_INLINED {
      return (step(std::integral_constant<int, kPlace>()) && ...);
    };
    while (cycle(std::make_integer_sequence<int, K::kGroupCycle>())) continue;
    at = now;
  }

  HWY_INLINE void Run() {
    InGroups();
    if (at == results) return;
    ToTheEnd<KernelOf<T, kChannels, R, Wide>>();
    ToTheEnd<KernelOf<T, kChannels, R, Block>>();
    while (at < results) Staged();
  }
};

}  // namespace qvp::decimate
