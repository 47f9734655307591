// Sums of products of 16 bits that 32 bits do not hold: of kMostWordPairs pairs of them. Sums of these are added up as
// doubles, which hold all that images in memory can have.
#pragma once

#include "filter/border_filter_pairs.h"

namespace qvp::convolution {

template <class T>
class WideKernel {
 public:
  using Form = PairedRows<T, int16_t>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(hn::ScalableTag<int32_t>());
  static constexpr int kVectors = 2;

  // Pairs of the high parts, and of the low ones.
  WideKernel(const int32_t* high, const int32_t* low, Size kernel, int divisor)
      : high_(high), low_(low), lines_(kernel.height / 2 + 1), width_(kernel.width), divisor_(divisor) {}

  template <int kCount>
  HWY_INLINE void Run(const uint32_t* const* lines, ptrdiff_t at, T* upper, T* lower) const {
    Totals<kCount> high, low;
    Add<kCount>(high_, lines, at, high);
    Add<kCount>(low_, lines, at, low);
    Store<kCount>(high[1], low[1], lower);
    Store<kCount>(high[0], low[0], upper);
  }

 private:
  using D = hn::ScalableTag<int32_t>;
  using V = hn::Vec<D>;
  using Doubles = hn::ScalableTag<double>;
  static constexpr ptrdiff_t kMostSteps = kMostWordPairs, kHalf = kLanes / 2;
  // Of two rows; for each vector of sums two of doubles.
  template <int kCount>
  using Totals = hn::Vec<Doubles>[2][2 * kCount];

  template <int kCount>
  HWY_INLINE void Add(const int32_t* pair, const uint32_t* const* lines, ptrdiff_t at, Totals<kCount>& totals) const {
    V sums[2][kCount];
    for (auto& row : totals) std::fill(std::begin(row), std::end(row), hn::Zero(Doubles()));
    for (auto& row : sums) std::fill(std::begin(row), std::end(row), hn::Zero(D()));
    ptrdiff_t left = kMostSteps;
    for (ptrdiff_t p = 0; p < lines_; ++p) {
      for (ptrdiff_t i = 0; i < width_;) {
        const ptrdiff_t n = std::min(left, width_ - i);
        AddSteps<kCount>(pair, lines[p] + at + i, n, sums);
        pair += 2 * n, i += n, left -= n;
        if (left > 0) continue;
        left = kMostSteps;
        Flush<kCount>(sums, totals);
      }
    }
    Flush<kCount>(sums, totals);
  }

  template <int kCount>
  HWY_INLINE static void AddSteps(const int32_t* pair, const uint32_t* line, ptrdiff_t n, V (&sums)[2][kCount]) {
    const hn::ScalableTag<int16_t> words;
    for (ptrdiff_t i = 0; i < n; ++i, ++line, pair += 2) {
      const auto a = hn::BitCast(words, hn::Set(D(), pair[0])), b = hn::BitCast(words, hn::Set(D(), pair[1]));
      Unrolled<kCount>([&](auto v) QVP_INLINED {
        const auto pixel = hn::LoadU(words, reinterpret_cast<const int16_t*>(line + v * kLanes));
        sums[0][v] = hn::Add(sums[0][v], MulAddPairs(pixel, a));
        sums[1][v] = hn::Add(sums[1][v], MulAddPairs(pixel, b));
      });
    }
  }

  template <int kCount>
  HWY_NOINLINE static void Flush(V (&sums)[2][kCount], Totals<kCount>& totals) {
    for (int row = 0; row < 2; ++row) {
      for (int v = 0; v < kCount; ++v) {
        auto* const total = totals[row] + 2 * v;
        total[0] = hn::Add(total[0], hn::PromoteTo(Doubles(), hn::LowerHalf(sums[row][v])));
        total[1] = hn::Add(total[1], hn::PromoteTo(Doubles(), hn::UpperHalf(hn::Half<D>(), sums[row][v])));
        sums[row][v] = hn::Zero(D());
      }
    }
  }

  // The sum is exact below 2^53, and its quotient, if no tie, too far from one to be rounded to it; above, the quotient
  // is saturated whatever the divisor.
  template <int kCount>
  HWY_INLINE void Store(const hn::Vec<Doubles>* high, const hn::Vec<Doubles>* low, T* to) const {
    const Doubles d;
    for (int v = 0; v < 2 * kCount; ++v) {
      const auto sum = hn::Add(hn::Mul(high[v], hn::Set(d, 256.0)), low[v]);
      const auto quotient = hn::Div(sum, hn::Set(d, static_cast<double>(divisor_)));
      hn::StoreU(Narrow<T>(d, quotient), hn::Rebind<T, Doubles>(), to + v * kHalf);
    }
  }

  const int32_t *high_, *low_;
  ptrdiff_t lines_, width_;
  int divisor_;
};

}  // namespace qvp::convolution
