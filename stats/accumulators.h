// Accumulators of reductions: vectors that stay in registers along a row and in memory from row to row.
//
// A kernel says what happens to a round of kVectors vectors of consecutive samples. A round is a multiple of 12 samples
// unless there is one channel only, so that each lane of the accumulators belongs to one channel.
#pragma once

#include <algorithm>

#include "base/lanes.h"
#include "base/rows.h"

namespace qvp::stats {

// Two factors of a product.
template <class V>
struct Factors {
  V a, b;
};

// The even and the odd lanes of a vector in lanes of twice the width.
template <class U>
struct EvenOdd {
  using Wide = hwy::MakeWide<U>;
  using D = hn::ScalableTag<Wide>;
  hn::Vec<D> even, odd;

  explicit HWY_INLINE EvenOdd(hn::Vec<hn::ScalableTag<U>> v) {
    const auto wide = hn::BitCast(D(), v);
    even = hn::And(wide, hn::Set(D(), hwy::LimitsMax<U>()));
    odd = hn::ShiftRight<8 * sizeof(U)>(wide);
  }
};

// As many samples as D has lanes, or those of them that a row of n still has, then zeros.
template <class D, class T>
HWY_INLINE hn::Vec<D> LoadUpTo(D d, const T* from, ptrdiff_t n) {
  if (n >= static_cast<ptrdiff_t>(hn::MaxLanes(d))) return LoadWide(d, from);
  if (n <= 0) return hn::Zero(d);
  return LoadWide(d, Partial<T>(from, n).lanes);
}

// The accumulators of a kernel, kept in memory from row to row.
template <class Kernel>
class Accumulators {
 public:
  using Lane = hn::TFromD<typename Kernel::Sums>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(typename Kernel::D()), kRound = kLanes * Kernel::kVectors;
  static constexpr int kSums = Kernel::kSums, kSumLanes = static_cast<int>(hn::MaxLanes(typename Kernel::Sums()));

  // Whole rounds of what f makes of the samples of the rows.
  template <class F, class... T>
  HWY_INLINE void AddRounds(ptrdiff_t rounds, const F& f, const T*... rows) {
    hn::Vec<typename Kernel::Sums> sums[kSums];
    for (int s = 0; s < kSums; ++s) sums[s] = hn::Load(typename Kernel::Sums(), lanes_[s]);
    for (ptrdiff_t i = 0; i < rounds * kRound; i += kRound) {
      Kernel::Round(sums, [&](int k) HWY_ATTR { return f(LoadWide(typename Kernel::D(), rows + i + k * kLanes)...); });
    }
    for (int s = 0; s < kSums; ++s) hn::Store(sums[s], typename Kernel::Sums(), lanes_[s]);
  }

  // One round of n samples, filled up with zeros.
  template <class F, class... T>
  void AddEnd(ptrdiff_t n, const F& f, const T*... rows) {
    hn::Vec<typename Kernel::Sums> sums[kSums];
    for (int s = 0; s < kSums; ++s) sums[s] = hn::Load(typename Kernel::Sums(), lanes_[s]);
    Kernel::Round(
        sums, [&](int k) HWY_ATTR { return f(LoadUpTo(typename Kernel::D(), rows + k * kLanes, n - k * kLanes)...); });
    for (int s = 0; s < kSums; ++s) hn::Store(sums[s], typename Kernel::Sums(), lanes_[s]);
  }

  // n samples, the first of which belongs to the first channel.
  template <class F, class... T>
  void Add(ptrdiff_t n, const F& f, const T*... rows) {
    const ptrdiff_t rounds = n / kRound, done = rounds * kRound;
    AddRounds(rounds, f, rows...);
    if (done < n) AddEnd(n - done, f, rows + done...);
  }

  const Lane* operator[](int sum) const { return lanes_[sum]; }
  Lane At(int place) const { return lanes_[place / kSumLanes][place % kSumLanes]; }
  void Clear() { std::memset(lanes_, 0, sizeof(lanes_)); }

 private:
  HWY_ALIGN Lane lanes_[kSums][kSumLanes] = {};
};

// The samples of a row without their signs: kernels of integers tell themselves what the bits mean.
template <class T>
HWY_INLINE auto AsUnsigned(const T* row) {
  if constexpr (std::is_integral_v<T>) {
    return reinterpret_cast<const hwy::MakeUnsigned<T>*>(row);
  } else {
    return row;
  }
}

// Writes one value for each channel, to any address.
template <class T>
void StoreValues(T* to, const T* values, int channels) {
  std::memcpy(to, values, channels * sizeof(T));
}

}  // namespace qvp::stats
