// Integer kernels: rows are taken in pairs, whose products are added by the multiplication.
#pragma once

#include "base/pairs.h"
#include "base/row_pairs.h"
#include "filter/border_filter_sums.h"

namespace qvp::filter {

// Sums for two rows of results at a time. kWidth and kHeight are those of the kernel where they are known, or 0.
template <class T, class Sums, int kWidth = 0, int kHeight = 0>
class PairKernel {
 public:
  using Form = PairedRows<T, typename Sums::Lane>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(hn::ScalableTag<typename Sums::Sum>());
  static constexpr int kVectors = 4;  // with their sums for two rows, coefficients and pixels they fill the registers

  PairKernel(const FilterRecord& record, int channels, const Sums& sums)
      : pairs_(record.PairsAt()),
        lines_(record.PairsOfRows()),
        width_(record.width),
        channels_(channels),
        sums_(sums) {}
  // The same of pairs that are in no record, for one channel.
  PairKernel(const int32_t* pairs, Size kernel, const Sums& sums)
      : pairs_(pairs), lines_(kernel.height / 2 + 1), width_(kernel.width), channels_(1), sums_(sums) {}

  template <int kCount>
  HWY_INLINE void Run(const typename Form::Element* const* lines, ptrdiff_t at, T* upper, T* lower) const {
    const hn::ScalableTag<typename Sums::Sum> d;
    const hn::ScalableTag<typename Sums::Lane> pixels;
    const hn::ScalableTag<hwy::MakeSigned<typename Sums::Lane>> coefficients;
    const hn::ScalableTag<int32_t> pairs;
    hn::Vec<decltype(d)> above[kCount], below[kCount];
    Unrolled<kCount>([&](auto v) QVP_INLINED { above[v] = below[v] = hn::Set(d, sums_.start); });
    const int32_t* pair = pairs_;
    const ptrdiff_t width = kWidth ? kWidth : width_;
    const ptrdiff_t lineCount = kHeight ? kHeight / 2 + 1 : lines_;
    for (ptrdiff_t p = 0; p < lineCount; ++p) {
      const auto* line = lines[p] + at;
      for (ptrdiff_t i = 0; i < width; ++i, line += channels_, pair += 2) {
        if constexpr (kWidth > 0) pair = Unknown(pair);
        const auto a = hn::BitCast(coefficients, hn::Set(pairs, pair[0]));
        const auto b = hn::BitCast(coefficients, hn::Set(pairs, pair[1]));
        Unrolled<kCount>([&](auto v) QVP_INLINED {
          const auto pixel = hn::LoadU(pixels, reinterpret_cast<const typename Sums::Lane*>(line + v * kLanes));
          above[v] = hn::Add(above[v], MulAddPairs(pixel, a));
          below[v] = hn::Add(below[v], MulAddPairs(pixel, b));
        });
      }
    }
    sums_.template Store<kCount>(below, lower);
    sums_.template Store<kCount>(above, upper);
  }

 private:
  const int32_t* pairs_;
  ptrdiff_t lines_, width_, channels_;
  Sums sums_;
};

}  // namespace qvp::filter
