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

template <class T, class F, class Tap, bool kIsFolded>
HWY_INLINE void SumAcross(const T* source, const AxisOf<Tap>& shared, ptrdiff_t channels, ptrdiff_t samples, F* line) {
  const hn::ScalableTag<F> d;
  constexpr ptrdiff_t kLanes = hn::MaxLanes(d);
  const AxisOf<Tap> axis = shared;
  ForEachVectors<kSumsAtOnce<F>, kLanes>(samples, [&](auto count, ptrdiff_t i) HWY_ATTR {
    const auto value = [&](ptrdiff_t k, auto v)
                           QVP_INLINED { return LoadWide(d, source + i + v * kLanes + k * channels); };
    const auto sums = SumsOfProducts<kIsFolded, count>(d, axis, value);
    Unrolled<count>([&](auto v) QVP_INLINED { hn::StoreU(sums[v], d, line + i + v * kLanes); });
  });
}

// T to R, by lanes of floats or doubles. Integers are rounded by the mode; doubles are divided first.
template <class T, class R, class F, bool kIsFolded>
struct LaneKernel {
  static void Across(const void* context, const void* source, void* line, ptrdiff_t samples) {
    const auto& axes = *static_cast<const LaneAxes<F>*>(context);
    SumAcross<T, F, F, kIsFolded>(static_cast<const T*>(source), axes.across, axes.channels, samples,
                                  static_cast<F*>(line));
  }

  static void Down(const void* context, const Window& window, const ResultRows& rows) {
    const auto axes = *static_cast<const LaneAxes<F>*>(context);
    const auto* const from = reinterpret_cast<const F* const*>(window.lines);
    const hn::ScalableTag<F> d;
    constexpr ptrdiff_t kLanes = hn::MaxLanes(d);
    auto* const out = reinterpret_cast<R*>(rows.upper[0]);
    MakeRow<kSumsAtOnce<F>, kLanes>(window.samples, out, [&](auto count, ptrdiff_t i, R* to) HWY_ATTR {
      const auto value = [&](ptrdiff_t k, auto v) QVP_INLINED { return hn::LoadU(d, from[k] + i + v * kLanes); };
      const auto sums = SumsOfProducts<kIsFolded, count>(d, axes.down, value);
      Unrolled<count>([&](auto v) QVP_INLINED { Store(axes, sums[v], to + v * kLanes); });
    });
  }

 private:
  static HWY_INLINE void Store(const LaneAxes<F>& axes, hn::Vec<hn::ScalableTag<F>> sum, R* to) {
    const hn::ScalableTag<F> d;
    if constexpr (sizeof(F) == sizeof(double)) sum = hn::Div(sum, hn::Set(d, axes.divisor));
    if constexpr (std::is_integral_v<R>) sum = RoundedBy(axes.mode, d, sum);
    hn::StoreU(Narrow<R>(d, sum), hn::Rebind<R, decltype(d)>(), to);
  }
};

}  // namespace qvp::filter
