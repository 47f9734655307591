// Sums of numbers times the taps of two filters, for many neighbouring results.
#pragma once

#include <array>

#include "base/row_vectors.h"
#include "base/store.h"
#include "transform/wavelet.h"

namespace qvp::wavelet {

// kCount vectors side by side.
template <int kCount, class D>
struct Lanes {
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(D());
  hn::Vec<D> of[kCount];

  static HWY_INLINE Lanes Load(const float* from) {
    Lanes loaded;
    for (int v = 0; v < kCount; ++v) loaded.of[v] = hn::LoadU(D(), from + v * kLanes);
    return loaded;
  }
  template <Store kStore>
  HWY_INLINE void StoreTo(float* to) const {
    for (int v = 0; v < kCount; ++v) qvp::StoreTo<kStore>(of[v], D(), to + v * kLanes);
  }
  // -0 leaves whatever is added to it first as it is; a sum of nothing is +0.
  HWY_INLINE void Clear(bool isOfNothing) {
    for (auto& sum : of) sum = hn::Set(D(), isOfNothing ? 0.0f : -0.0f);
  }
  HWY_INLINE void Add(const Lanes& other) {
    for (int v = 0; v < kCount; ++v) of[v] = hn::Add(of[v], other.of[v]);
  }
  HWY_INLINE void AddProducts(const Lanes& other, float tap) {
    const auto factor = hn::Set(D(), tap);
    for (int v = 0; v < kCount; ++v) of[v] = hn::Add(of[v], hn::Mul(other.of[v], factor));
  }
};

// Taps from one of several sources on.
struct Taps {
  const float* taps;
  int begin, end;  // sources
};

// Two sums for each place i, of taps times from[j][i] in ascending j: numbers that both need are loaded once.
struct TwoSums {
  static constexpr int kVectors = 4;                 // side by side: as many as registers hold sums of
  std::array<const float*, 2 * kMostTaps + 2> from;  // as many as there are
  Taps first, second;

  TwoSums(const Taps& a, const Taps& b) : first(a), second(b) {}

  template <class L>
  HWY_INLINE void Sum(ptrdiff_t i, L& a, L& b) const {
    const int begin = std::max(first.begin, second.begin), end = std::max(begin, std::min(first.end, second.end));
    const auto add = [&](const Taps& filter, int j, int stop, L& sum) QVP_INLINED {
      for (; j < stop; ++j) sum.AddProducts(L::Load(from[j] + i), filter.taps[j - filter.begin]);
    };
    a.Clear(first.begin == first.end);
    b.Clear(second.begin == second.end);
    add(first, first.begin, std::min(begin, first.end), a);
    add(second, second.begin, std::min(begin, second.end), b);
    for (int j = begin; j < end; ++j) {
      const L loaded = L::Load(from[j] + i);
      a.AddProducts(loaded, first.taps[j - first.begin]);
      b.AddProducts(loaded, second.taps[j - second.begin]);
    }
    add(first, end, first.end, a);
    add(second, end, second.end, b);
  }
};

// The same where the sources are known: all is in registers, and loops over taps are none. The sums of the known banks
// begin and end at constants.
template <int kFirst, int kFirstEnd, int kSecond, int kSecondEnd>
struct KnownSums {
  static constexpr int kEnd = std::max(kFirstEnd, kSecondEnd);
  static constexpr int kVectors = kEnd <= 5 ? 2 : 4;  // the taps of short filters stay in registers, too
  const float* from[kEnd];
  float first[kFirstEnd - kFirst], second[kSecondEnd - kSecond];

  explicit KnownSums(const TwoSums& sums) {
    for (int j = 0; j < kEnd; ++j) from[j] = sums.from[j];
    for (int j = kFirst; j < kFirstEnd; ++j) first[j - kFirst] = sums.first.taps[j - kFirst];
    for (int j = kSecond; j < kSecondEnd; ++j) second[j - kSecond] = sums.second.taps[j - kSecond];
  }
  static bool Are(const TwoSums& sums) {
    return sums.first.begin == kFirst && sums.first.end == kFirstEnd && sums.second.begin == kSecond &&
           sums.second.end == kSecondEnd;
  }

  template <class L>
  HWY_INLINE void Sum(ptrdiff_t i, L& a, L& b) const {
    a.Clear(false);
    b.Clear(false);
    for (int j = 0; j < kEnd; ++j) {
      const L loaded = L::Load(from[j] + i);
      if (j >= kFirst && j < kFirstEnd) a.AddProducts(loaded, first[j - kFirst]);
      if (j >= kSecond && j < kSecondEnd) b.AddProducts(loaded, second[j - kSecond]);
    }
  }
};

// Stores both sums of place i and of those behind it, or the sums of these with others. Where both go to one place the
// first ones stay: those of a pair that the end of a line cuts.
template <int kCount, Store kStore = Store::kOrdinary, class D, class Sums, class... More>
HWY_INLINE void StoreLanes(D, ptrdiff_t i, float* first, float* second, const Sums& sums, const More&... more) {
  using L = Lanes<kCount, D>;
  L a, b;
  sums.Sum(i, a, b);
  [[maybe_unused]] const auto add = [&](const auto& others) QVP_INLINED {
    L c, e;
    others.Sum(i, c, e);
    a.Add(c);
    b.Add(e);
  };
  (add(more), ...);
  b.template StoreTo<kStore>(second);
  a.template StoreTo<kStore>(first);
}

// Stores them at first[i] and second[i] for a range of i, which are no part of what is summed.
template <Store kStore, class... Sums>
HWY_INLINE void StoreRange(Extent range, float* first, float* second, const Sums&... sums) {
  const hn::ScalableTag<float> d;
  constexpr ptrdiff_t kLanes = hn::MaxLanes(d);
  constexpr int kCount = sizeof...(sums) == 1 ? std::min({Sums::kVectors...}) : 2;
  const ptrdiff_t end = range.end;
  ptrdiff_t i = range.begin;
  if (end - i < kLanes) {
    for (; i < end; ++i) StoreLanes<1>(hn::CappedTag<float, 1>(), i, first + i, second + i, sums...);
    return;
  }
  if constexpr (kStore == Store::kStreaming) {  // from a boundary on
    StoreLanes<1>(d, i, first + i, second + i, sums...);
    i += BytesToAlignment(d, first + i) / ptrdiff_t{sizeof(float)};
  }
  for (; i + kCount * kLanes <= end; i += kCount * kLanes) {
    StoreLanes<kCount, kStore>(d, i, first + i, second + i, sums...);
  }
  for (; i + kLanes <= end; i += kLanes) StoreLanes<1>(d, i, first + i, second + i, sums...);
  if (i < end) StoreLanes<1>(d, end - kLanes, first + end - kLanes, second + end - kLanes, sums...);
}

// Whether rows may be streamed: as floats and vectors they begin at boundaries alike.
inline bool AreAlike(const float* a, const float* b) {
  const auto at = reinterpret_cast<uintptr_t>(a), other = reinterpret_cast<uintptr_t>(b);
  return at % sizeof(float) == 0 && (at - other) % (hn::MaxLanes(hn::ScalableTag<float>()) * sizeof(float)) == 0;
}

template <class>
using SumsFor = TwoSums;

template <class... Known>
HWY_NOINLINE void StoreKnown(Store store, Extent range, float* first, float* second, const SumsFor<Known>&... sums) {
  if (store == Store::kStreaming && AreAlike(first, second)) {
    return StoreRange<Store::kStreaming>(range, first, second, Known(sums)...);
  }
  StoreRange<Store::kOrdinary>(range, first, second, Known(sums)...);
}

// Those of an analysis.
HWY_NOINLINE inline void StoreSums(Store store, Extent range, float* first, float* second, const TwoSums& sums) {
  using Haar = KnownSums<0, 2, 0, 2>;
  using Daubechies4 = KnownSums<0, 4, 0, 4>;
  using Cdf53 = KnownSums<0, 5, 2, 5>;
  using Cdf97 = KnownSums<0, 9, 2, 9>;
  if (Haar::Are(sums)) return StoreKnown<Haar>(store, range, first, second, sums);
  if (Daubechies4::Are(sums)) return StoreKnown<Daubechies4>(store, range, first, second, sums);
  if (Cdf53::Are(sums)) return StoreKnown<Cdf53>(store, range, first, second, sums);
  if (Cdf97::Are(sums)) return StoreKnown<Cdf97>(store, range, first, second, sums);
  StoreKnown<TwoSums>(store, range, first, second, sums);
}

// Those of a synthesis.
HWY_NOINLINE inline void StoreSums(Extent range, float* first, float* second, const TwoSums& low, const TwoSums& high) {
  using Haar = KnownSums<0, 1, 0, 1>;
  using Daubechies4 = KnownSums<0, 2, 1, 3>;
  using Cdf53Low = KnownSums<0, 1, 0, 2>;
  using Cdf53High = KnownSums<0, 2, 0, 3>;
  using Cdf97Low = KnownSums<0, 3, 0, 4>;
  using Cdf97High = KnownSums<0, 4, 0, 5>;
  const Store to = Store::kOrdinary;
  if (Haar::Are(low) && Haar::Are(high)) return StoreKnown<Haar, Haar>(to, range, first, second, low, high);
  if (Daubechies4::Are(low) && Daubechies4::Are(high)) {
    return StoreKnown<Daubechies4, Daubechies4>(to, range, first, second, low, high);
  }
  if (Cdf53Low::Are(low) && Cdf53High::Are(high)) {
    return StoreKnown<Cdf53Low, Cdf53High>(to, range, first, second, low, high);
  }
  if (Cdf97Low::Are(low) && Cdf97High::Are(high)) {
    return StoreKnown<Cdf97Low, Cdf97High>(to, range, first, second, low, high);
  }
  StoreKnown<TwoSums, TwoSums>(to, range, first, second, low, high);
}

// An analysis as sums: from[j] is that of place j - span.before. `at(place)` tells the number that place 0 begins with.
template <class At>
void SetSources(Span span, const At& at, TwoSums& sums) {
  for (int place = -span.before; place <= span.behind; ++place) sums.from[place + span.before] = at(place);
}
inline TwoSums AnalysisSums(const WaveletRecord& record) {
  const Filter &low = record.analysisLow, &high = record.analysisHigh;
  const int before = record.Analysis().before, first = before - low.anchor, second = before + 1 - high.anchor;
  return {{low.taps, first, first + low.length}, {high.taps, second, second + high.length}};
}

// What a synthesis takes from one band for results at even places, and at odd ones: results 2 q and 2 q + 1 are made
// from numbers q + begin to q + end - 1 of the band.
class BandTaps {
 public:
  BandTaps(const Filter& filter, bool isHigh) : phases_{Phase(filter, 0, isHigh), Phase(filter, 1, isHigh)} {
    begin_ = std::min(phases_[0].begin, phases_[1].begin);
    end_ = std::max(phases_[0].begin + phases_[0].count, phases_[1].begin + phases_[1].count);
  }

  // at(k) tells where number k of the band is, counted from q.
  template <class At>
  TwoSums Sums(const At& at) const {
    TwoSums sums(TapsOf(phases_[0]), TapsOf(phases_[1]));
    for (int k = begin_; k < end_; ++k) sums.from[k - begin_] = at(k);
    return sums;
  }

 private:
  struct Phase {
    std::array<float, kMostTaps / 2> taps;
    int begin, count = 0;

    // Result 2 q + r takes number q + k by tap t = r + anchor - isHigh - 2 k.
    Phase(const Filter& f, int r, bool isHigh) {
      int t = f.length - 1;
      if (t % 2 != (r + f.anchor + isHigh) % 2) --t;
      begin = (r + f.anchor - isHigh - t) / 2;
      for (; t >= 0; t -= 2) taps[count++] = f.taps[t];
    }
  };

  Taps TapsOf(const Phase& phase) const {
    const int begin = phase.begin - begin_;
    return {phase.taps.data(), begin, begin + phase.count};
  }

  std::array<Phase, 2> phases_;
  int begin_, end_;
};

}  // namespace qvp::wavelet
