// Kernels of floats and of doubles.
#pragma once

#include "base/lanes.h"
#include "base/unrolled.h"
#include "filter/border_filter_quotient.h"

namespace qvp::filter {

// Sums for two rows of results at a time: every result has one sum, to which the products are added in the order of
// rows and columns.
// kHasOffset: whether the record may have an offset.
template <class T, class F, bool kHasOffset, int kWidth = 0, int kHeight = 0>
class RealKernel {
 public:
  using Form = SingleRows<T, F>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(hn::ScalableTag<F>());
  static constexpr int kVectors = 4;

  RealKernel(const FilterRecord& record, const F* coefficients, int channels)
      : coefficients_(coefficients),
        width_(record.width),
        height_(record.height),
        channels_(channels),
        mode_(record.mode()),
        offset_(static_cast<F>(record.offset) * static_cast<F>(record.divisor)),
        divisor_(static_cast<F>(record.divisor)) {}
  // Without a record. The samples that a row of coefficients is for are `step` apart; -1 takes them from right to left.
  RealKernel(const F* coefficients, Size kernel, ptrdiff_t step)
      : coefficients_(coefficients),
        width_(kernel.width),
        height_(kernel.height),
        channels_(step),
        mode_(qvpRoundNear),
        offset_(0),
        divisor_(1) {}

  template <int kCount>
  HWY_INLINE void Run(const F* const* lines, ptrdiff_t at, T* upper, T* lower) const {
    const hn::ScalableTag<F> d;
    hn::Vec<decltype(d)> above[kCount], below[kCount];
    Unrolled<kCount>([&](auto v) QVP_INLINED { above[v] = below[v] = hn::Zero(d); });
    const F* k = Unknown(coefficients_);
    AddRow<kCount>(lines[0] + at, k, above);
    const auto addRows = [&](ptrdiff_t j) QVP_INLINED {
      AddRows<kCount>(lines[j] + at, k + width(), k, above, below);
      k = Unknown(k + width());
    };
    if constexpr (kHeight > 0) {
      Unrolled<kHeight - 1>([&](auto j) QVP_INLINED { addRows(j + 1); });
    } else {
      for (ptrdiff_t j = 1; j < height_; ++j) addRows(j);
    }
    AddRow<kCount>(lines[height()] + at, k, below);
    Store<kCount>(below, lower);
    Store<kCount>(above, upper);
  }

 private:
  HWY_INLINE ptrdiff_t width() const { return kWidth ? kWidth : width_; }
  HWY_INLINE ptrdiff_t height() const { return kHeight ? kHeight : height_; }

  template <int kCount, class V>
  HWY_INLINE void AddRow(const F* line, const F* k, V (&sums)[kCount]) const {
    const hn::ScalableTag<F> d;
    for (ptrdiff_t i = 0; i < width(); ++i, line += channels_) {
      const V a = hn::Set(d, k[i]);
      Unrolled<kCount>([&](auto v)
                           QVP_INLINED { sums[v] = hn::Add(sums[v], hn::Mul(hn::LoadU(d, line + v * kLanes), a)); });
    }
  }
  template <int kCount, class V>
  HWY_INLINE void AddRows(const F* line, const F* k, const F* kBelow, V (&above)[kCount], V (&below)[kCount]) const {
    const hn::ScalableTag<F> d;
    for (ptrdiff_t i = 0; i < width(); ++i, line += channels_) {
      if constexpr (kWidth > 3) k = Unknown(k);
      const V a = hn::Set(d, k[i]), b = hn::Set(d, kBelow[i]);
      Unrolled<kCount>([&](auto v) QVP_INLINED {
        const V pixel = hn::LoadU(d, line + v * kLanes);
        above[v] = hn::Add(above[v], hn::Mul(pixel, a));
        below[v] = hn::Add(below[v], hn::Mul(pixel, b));
      });
    }
  }
  // All NaN become one: which of two a sum keeps hangs on the order of an instruction's operands.
  template <int kCount, class V>
  HWY_INLINE void Store(const V (&sums)[kCount], T* to) const {
    const hn::ScalableTag<F> d;
    Unrolled<kCount>([&](auto v) QVP_INLINED {
      V result = sums[v];
      if constexpr (kHasOffset) result = hn::Add(result, hn::Set(d, offset_));
      if constexpr (sizeof(F) == sizeof(double)) result = hn::Div(result, hn::Set(d, divisor_));
      if constexpr (std::is_integral_v<T>) {
        result = RoundedBy(mode_, d, result);
      } else {
        result = hn::Or(result, hn::VecFromMask(d, hn::IsNaN(result)));
      }
      hn::StoreU(Narrow<T>(d, result), hn::Rebind<T, decltype(d)>(), to + v * kLanes);
    });
  }

  const F* coefficients_;
  ptrdiff_t width_, height_, channels_;
  int mode_;
  F offset_, divisor_;
};

}  // namespace qvp::filter
