// A plane of results by vectors, to the end of its rows.
#pragma once

#include "base/image.h"
#include "geometry/decimate_halving.h"

namespace qvp::decimate {

template <class T, int kChannels, class R, class D>
using KernelOf =
    std::conditional_t<kIsHalving<T, kChannels, R>, HalvingKernel<T, kChannels, R, D>, Kernel<T, kChannels, R, D>>;

// A plane of `results` samples and the part of its source that counts.
struct Plane {
  const uint8_t* src;
  ptrdiff_t srcStep;
  uint8_t* dst;
  ptrdiff_t dstStep;
  Size results, samples;
};

// Columns of vectors are taken one after the other over a band of rows: what the end of rows needs, which differs from
// vector to vector, is found once for a band, whose rows stay in the caches.
template <class T, int kChannels, class R>
class Decimation {
 public:
  explicit Decimation(const Plane& plane) : plane_(plane), bytes_(plane.samples.width * kUnit) {}

  void Run() const {
    constexpr ptrdiff_t kBand = 16 * R::kTo;
    for (ptrdiff_t top = 0; top < plane_.results.height; top += kBand) {
      const Band band{top, std::min(kBand, plane_.results.height - top)};
      ptrdiff_t at = InGroups(band);
      if (at < plane_.results.width) at = ToTheEnd<KernelOf<T, kChannels, R, Wide>>(band, at);
      if (at < plane_.results.width) at = ToTheEnd<KernelOf<T, kChannels, R, Block>>(band, at);
      while (at < plane_.results.width) at = Staged(band, at);
    }
  }

 private:
  using Wide = hn::CappedTag<uint8_t, 2 * kBlockBytes>;
  using Block = hn::Full128<uint8_t>;
  static constexpr ptrdiff_t kUnit = kChannels * sizeof(T);

  struct Band {
    ptrdiff_t top, height;
  };

  // Calls use(rows) for each period. Rows are found with constant counts, as loops of unknown ones would take longer
  // than short rows; those below the plane repeat its last one. What is stored could be anything to the compiler:
  // copies of all addresses stay in registers.
  template <class Use>
  HWY_INLINE void ForEachPeriod(const Band& band, const Use& use) const {
    const Plane plane = plane_;
    const ptrdiff_t last = plane.samples.height - 1, lastResult = plane.results.height - 1,
                    end = band.top + band.height;
    for (ptrdiff_t y = band.top; y < end; y += R::kTo) {
      Rows<R> rows;
      const ptrdiff_t top = R::First(y);
      rows.from[0] = plane.src + top * plane.srcStep;
      Unrolled<R::kFrom - 1>(
          [&](auto i) QVP_INLINED { rows.from[i + 1] = rows.from[i] + (top + i < last ? plane.srcStep : 0); });
      rows.to[0] = plane.dst + y * plane.dstStep;
      Unrolled<R::kTo - 1>([&](auto i)
                               QVP_INLINED { rows.to[i + 1] = rows.to[i] + (y + i < lastResult ? plane.dstStep : 0); });
      rows.results = static_cast<int>(std::min<ptrdiff_t>(R::kTo, end - y));
      use(rows);
    }
  }

  // Groups of vectors, as long as no load would end behind the row. Returns the place of the first result that is left.
  HWY_INLINE ptrdiff_t InGroups(const Band& band) const {
    using K = KernelOf<T, kChannels, R, Wide>;
    constexpr ptrdiff_t kResults = K::kGroup * K::kResults;
    ptrdiff_t end = plane_.results.width / kResults * kResults;
    const auto fits = [&](ptrdiff_t group) {
      return R::First(group) * kUnit + K::BytesRead(static_cast<int>(group / kResults % K::kGroupCycle)) <= bytes_;
    };
    while (end > 0 && !fits(end - kResults)) end -= kResults;
    if (end == 0) return 0;
    ForEachPeriod(band, [&](const Rows<R>& rows) QVP_INLINED { RowInGroups<K>(rows, end); });
    return end;
  }

  template <class K>
  static HWY_INLINE void RowInGroups(const Rows<R>& rows, ptrdiff_t end) {
    ptrdiff_t now = 0;
    const auto step = [&](auto place) QVP_INLINED {
      const ptrdiff_t first = R::First(now) * kUnit;
      K::template Group<place>(
          rows.results, [&](int i) QVP_INLINED { return rows.from[i] + first; },
          [&](int i) QVP_INLINED { return rows.to[i] + now * kUnit; });
      now += K::kGroup * K::kResults;
      return now < end;
    };
    const auto cycle = [&]<int... kPlace>(std::integer_sequence<int, kPlace...>) QVP_INLINED {
      return (step(std::integral_constant<int, kPlace>()) && ...);
    };
    while (cycle(std::make_integer_sequence<int, K::kGroupCycle>())) continue;
  }

  // Vectors all of whose samples are there.
  template <class K>
  ptrdiff_t ToTheEnd(const Band& band, ptrdiff_t at) const {
    const auto isWhole = [&](ptrdiff_t end) {
      const ptrdiff_t samples = R::First(end) + (end % R::kTo * R::kFrom % R::kTo != 0);
      return end <= plane_.results.width && samples * kUnit <= bytes_ && bytes_ >= kBlockBytes;
    };
    for (; isWhole(at + K::kResults); at += K::kResults) {
      Unrolled<K::kCycle>([&](auto place) QVP_INLINED {
        if (at / K::kResults % K::kCycle == place) OneColumn<K, place>(band, at);
      });
    }
    return at;
  }

  template <class K, int kPlace>
  HWY_NOINLINE void OneColumn(const Band& band, ptrdiff_t at) const {
    const ptrdiff_t first = R::First(at) * kUnit, left = bytes_ - first;
    ForEachPeriod(band, [&](const Rows<R>& rows) QVP_INLINED {
      K::template Vector<kPlace, true>(
          rows.results, [&](int i) QVP_INLINED { return rows.from[i] + first; }, left,
          [&](int i) QVP_INLINED { return rows.to[i] + at * kUnit; });
    });
  }

  // The last results, fewer than a vector's or with samples that are missing: the last sample counts for these.
  HWY_NOINLINE ptrdiff_t Staged(const Band& band, ptrdiff_t at) const {
    using K = KernelOf<T, kChannels, R, Block>;
    const ptrdiff_t made = std::min<ptrdiff_t>(K::kResults, plane_.results.width - at);
    Unrolled<K::kCycle>([&](auto place) QVP_INLINED {
      if (at / K::kResults % K::kCycle != place) return;
      ForEachPeriod(band, [&](const Rows<R>& rows) QVP_INLINED { StageRows<K, place>(rows, at, made); });
    });
    return at + made;
  }

  template <class K, int kPlace>
  HWY_INLINE void StageRows(const Rows<R>& rows, ptrdiff_t at, ptrdiff_t made) const {
    constexpr ptrdiff_t kRowBytes = 64, kMissing = 4;
    alignas(kBlockBytes) uint8_t from[R::kFrom][kRowBytes] = {}, to[R::kTo][kBlockBytes];
    const ptrdiff_t first = R::First(at) * kUnit, n = std::min(bytes_ - first, kRowBytes - kMissing * kUnit);
    for (int i = 0; i < R::kFrom; ++i) {
      std::memcpy(from[i], rows.from[i] + first, n);
      for (ptrdiff_t b = n; b < n + kMissing * kUnit; b += kUnit) std::memcpy(from[i] + b, from[i] + n - kUnit, kUnit);
    }
    K::template Vector<kPlace, false>(
        rows.results, [&](int i) QVP_INLINED { return from[i]; }, kRowBytes, [&](int i) QVP_INLINED { return to[i]; });
    for (int i = 0; i < rows.results; ++i) std::memcpy(rows.to[i] + at * kUnit, to[i], made * kUnit);
  }

  Plane plane_;
  ptrdiff_t bytes_;  // of samples in a row
};

}  // namespace qvp::decimate
