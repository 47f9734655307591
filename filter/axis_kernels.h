// Filters that sum across, then down, as functions of a window's walk. Each has an axis of taps for either direction.
#pragma once

#include "base/pack.h"
#include "filter/axis_sums.h"
#include "filter/border_filter_quotient.h"

namespace qvp::filter {

// Sums in lanes of F: floats or doubles, or 16-bit numbers for what comes across before it goes down in pairs.
template <class F>
struct LaneAxes {
  AxisOf<F> across, down;
  int channels, mode;
  double divisor;
};

// Vectors that are summed at a time: enough to hide how long additions take, few enough for the registers.
template <class F>
inline constexpr int kSumsAtOnce = 4;

// Axes of so few terms have a function of their own.
inline constexpr int kFewTerms = 8;

template <class T, class F, class Tap, bool kIsFolded, int kTerms = 0>
HWY_INLINE void SumAcross(const T* source, const AxisOf<Tap>& axis, ptrdiff_t channels, ptrdiff_t samples, F* line) {
  using D = hn::ScalableTag<F>;
  const D d;
  constexpr ptrdiff_t kLanes = hn::MaxLanes(d);
  const TapVectors<D, Tap, kTerms> taps(axis);
  ForEachVectors<kSumsAtOnce<F>, kLanes>(samples, [&](auto count, ptrdiff_t i) HWY_ATTR {
    const auto value = [&](ptrdiff_t k, auto v)
                           QVP_INLINED { return LoadWide(d, source + i + v * kLanes + k * channels); };
    const auto sums = SumsOfProducts<kIsFolded, count>(taps, value);
    Unrolled<count>([&](auto v) QVP_INLINED { hn::StoreU(sums[v], d, line + i + v * kLanes); });
  });
}

// The lines that so many terms are made of: a constant number of them is copied, which keeps their places in registers.
template <class E, bool kIsFolded, int kTerms>
HWY_INLINE auto LinesOfTerms(const void* const* lines) {
  if constexpr (kTerms == 0) return reinterpret_cast<const E* const*>(lines);
  if constexpr (kTerms > 0) return LinesOf<E, (kIsFolded ? 2 * kTerms - 1 : kTerms)>(lines);
}

// T to R, by lanes of floats or doubles. Integers are rounded by the mode; doubles are divided first.
template <class T, class R, class F, bool kIsFolded>
struct LaneKernel {
  template <int kTerms>
  static void Across(const void* context, const void* source, void* line, ptrdiff_t samples) {
    const auto& axes = *static_cast<const LaneAxes<F>*>(context);
    SumAcross<T, F, F, kIsFolded, kTerms>(static_cast<const T*>(source), axes.across, axes.channels, samples,
                                          static_cast<F*>(line));
  }

  template <int kTerms>
  static void Down(const void* context, const Window& window, const ResultRows& rows) {
    const auto& axes = *static_cast<const LaneAxes<F>*>(context);
    const TapVectors<hn::ScalableTag<F>, F, kTerms> taps(axes.down);
    FilterRows(DownKernel<kTerms>{taps, axes.mode, axes.divisor}, reinterpret_cast<const F* const*>(window.lines),
               window.samples, reinterpret_cast<R*>(rows.upper[0]), reinterpret_cast<R*>(rows.lower[0]));
  }

  // Of axes with few terms by functions for their number.
  static WindowKernel For(const LaneAxes<F>& axes) {
    const auto across = [](auto terms) { return Across<terms>; };
    const auto down = [](auto terms) { return Down<terms>; };
    return {.context = &axes,
            .across = ForTerms<kFewTerms>(axes.across.count, across),
            .down = ForTerms<kFewTerms>(axes.down.count, down),
            .elementBytes = sizeof(F),
            .rowsAtOnce = 2,
            .cacheBytes = LaneCacheBytes(sizeof(F))};
  }

 private:
  template <int kTerms>
  struct DownKernel {
    using D = hn::ScalableTag<F>;
    static constexpr ptrdiff_t kLanes = hn::MaxLanes(D());
    static constexpr int kVectors = kSumsAtOnce<F> / 2;

    TapVectors<D, F, kTerms> taps;
    int mode;
    double divisor;

    template <int kCount>
    HWY_INLINE void Run(const F* const* lines, ptrdiff_t at, R* upper, R* lower) const {
      const auto value = [=](ptrdiff_t k, auto v) QVP_INLINED { return hn::LoadU(D(), lines[k] + at + v * kLanes); };
      const auto sums = TwoSumsOfProducts<kIsFolded, kCount>(taps, value);
      Unrolled<kCount>([&](auto v) QVP_INLINED { Store(sums.lower[v], lower + v * kLanes); });
      Unrolled<kCount>([&](auto v) QVP_INLINED { Store(sums.upper[v], upper + v * kLanes); });
    }

    HWY_INLINE void Store(hn::Vec<D> sum, R* to) const {
      const D d;
      if constexpr (sizeof(F) == sizeof(double)) sum = hn::Div(sum, hn::Set(d, static_cast<F>(divisor)));
      if constexpr (std::is_integral_v<R>) sum = RoundedBy(mode, d, sum);
      hn::StoreU(Narrow<R>(d, sum), hn::Rebind<R, D>(), to);
    }
  };
};

}  // namespace qvp::filter
