// The separable filter: sums across by one kernel, then down by another.
#include "filter/separable.h"

#include "base/scalar.h"
#include "filter/axis_kernels.h"
#include "filter/window_call.h"

namespace qvp::filter {
namespace {

// Sums down in 32 bits, from lines of 16 or 32 bits.
struct IntegerAxes {
  AxisOf<int32_t> across, down;
  PairedTaps acrossPairs, downPairs;
  int channels;
  int32_t acrossStart;
  IntegerQuotient quotient;
};

// Sums of blocks, divided and packed in their order to 16 bits, and these stored as results.
template <class R, class Sums>
HWY_INLINE auto Words(const IntegerQuotient& quotient, const Sums& sums) {
  const hn::DFromV<decltype(sums.lower)> d;
  using Word = std::conditional_t<std::is_same_v<R, uint16_t>, uint16_t, int16_t>;
  return Packed(Word(), quotient(d, sums.lower), quotient(d, sums.upper));
}
template <class R, class V>
HWY_INLINE void StoreWords(V words, R* to) {
  const hn::DFromV<V> d;
  if constexpr (sizeof(R) == 1) {
    const hn::Rebind<uint8_t, decltype(d)> bytes;
    hn::StoreU(hn::DemoteTo(bytes, words), bytes, to);
  } else {
    hn::StoreU(words, d, to);
  }
}

// Bytes, whose sums across fit 16 bits.
template <class R>
struct WordKernel {
  static void Across(const void* context, const void* source, void* line, ptrdiff_t samples) {
    const auto& axes = *static_cast<const IntegerAxes*>(context);
    SumAcross<uint8_t, int16_t, int32_t, false>(static_cast<const uint8_t*>(source), axes.across, axes.channels,
                                                samples, static_cast<int16_t*>(line));
  }
  static void Down(const void* context, const Window& window, const ResultRows& rows) {
    const auto axes = *static_cast<const IntegerAxes*>(context);
    const auto* const from = reinterpret_cast<const int16_t* const*>(window.lines);
    using D = hn::ScalableTag<int16_t>;
    const D d;
    constexpr ptrdiff_t kLanes = hn::MaxLanes(d);
    const PairVectors<D, 0> taps(axes.downPairs);
    auto* const out = reinterpret_cast<R*>(rows.upper[0]);
    MakeRow<2, kLanes>(window.samples, out, [&](auto count, ptrdiff_t i, R* to) HWY_ATTR {
      const auto value = [&](ptrdiff_t k, auto v) QVP_INLINED { return hn::LoadU(d, from[k] + i + v * kLanes); };
      const auto sums = SumsOfPairs<false, count>(taps, axes.quotient.Start(), value);
      Unrolled<count>([&](auto v) QVP_INLINED { StoreWords(Words<R>(axes.quotient, sums[v]), to + v * kLanes); });
    });
  }
};

// Lines of 32 bits are in groups of a vector of lower and one of upper halves of blocks, which packing puts in order.
// Vectors have 256 bits at most, as there is room for 64 bytes behind a line.
template <class T, class R>
struct IntKernel {
  using D = hn::CappedTag<int16_t, 16>;
  using Sums = hn::Repartition<int32_t, D>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(D()), kHalf = kLanes / 2;

  // 16u pixels are taken less 32768, which makes them 16s.
  static HWY_INLINE hn::Vec<D> Load(const T* from) {
    const D d;
    if constexpr (std::is_same_v<T, uint16_t>) {
      const hn::RebindToUnsigned<D> u;
      return hn::BitCast(d, hn::Xor(hn::LoadU(u, from), hn::Set(u, 0x8000)));
    } else {
      return LoadWide(d, from);
    }
  }

  static void Across(const void* context, const void* source, void* line, ptrdiff_t samples) {
    const auto axes = *static_cast<const IntegerAxes*>(context);
    const auto* const from = static_cast<const T*>(source);
    auto* const to = static_cast<int32_t*>(line);
    const PairVectors<D, 0> taps(axes.acrossPairs);
    for (ptrdiff_t i = 0; i < samples; i += kLanes) {
      const auto value = [&](ptrdiff_t k, auto) QVP_INLINED { return Load(from + i + k * axes.channels); };
      const auto sums = SumsOfPairs<false, 1>(taps, axes.acrossStart, value);
      hn::StoreU(sums[0].lower, Sums(), to + i);
      hn::StoreU(sums[0].upper, Sums(), to + i + kHalf);
    }
  }

  static void Down(const void* context, const Window& window, const ResultRows& rows) {
    const auto axes = *static_cast<const IntegerAxes*>(context);
    const auto* const from = reinterpret_cast<const int32_t* const*>(window.lines);
    const auto start = hn::Set(Sums(), axes.quotient.Start());
    const TapVectors<Sums, int32_t, 0> taps(axes.down);
    MakeGroups<kLanes>(window.samples, reinterpret_cast<R*>(rows.upper[0]), [&](ptrdiff_t i, R* to) HWY_ATTR {
      const auto value = [&](ptrdiff_t k, auto v) QVP_INLINED { return hn::LoadU(Sums(), from[k] + i + v * kHalf); };
      const auto halves = SumsOfProducts<false, 2>(taps, value);
      const BlockSums<D> sums{hn::Add(start, halves[0]), hn::Add(start, halves[1])};
      StoreWords(Words<R>(axes.quotient, sums), to);
    });
  }
};

// Where neither 32 bits nor doubles hold the sums.
struct LongAxes {
  AxisOf<int64_t> across, down;
  int channels, mode, divisor;
};

// n / d for a rounding mode.
int64_t Quotient(int64_t n, int64_t d, int mode) {
  const int64_t whole = n / d, rest = n % d, magnitude = rest < 0 ? -rest : rest, divisor = d < 0 ? -d : d;
  const int64_t away = (n < 0) != (d < 0) ? -1 : 1;
  const bool isTie = 2 * magnitude == divisor;
  const bool isUp = 2 * magnitude > divisor || (isTie && (mode == qvpRoundFinancial || whole % 2 != 0));
  return mode != qvpRoundZero && isUp ? whole + away : whole;
}

template <class T, class R>
struct LongKernel {
  static void Across(const void* context, const void* source, void* line, ptrdiff_t samples) {
    const auto& axes = *static_cast<const LongAxes*>(context);
    auto* const to = static_cast<int64_t*>(line);
    for (ptrdiff_t i = 0; i < samples; ++i) {
      int64_t sum = 0;
      for (ptrdiff_t k = 0; k < axes.across.count; ++k) {
        sum += int64_t{LoadScalar(static_cast<const T*>(source) + i + k * axes.channels)} * axes.across.taps[k];
      }
      to[i] = sum;
    }
  }
  static void Down(const void* context, const Window& window, const ResultRows& rows) {
    const auto& axes = *static_cast<const LongAxes*>(context);
    using Limits = std::numeric_limits<R>;
    for (ptrdiff_t i = 0; i < window.samples; ++i) {
      int64_t sum = 0;
      for (ptrdiff_t k = 0; k < axes.down.count; ++k) {
        sum += static_cast<const int64_t*>(window.lines[k])[i] * axes.down.taps[k];
      }
      const int64_t result = Quotient(sum, axes.divisor, axes.mode);
      StoreScalar(reinterpret_cast<R*>(rows.upper[0]) + i,
                  static_cast<R>(std::clamp<int64_t>(result, Limits::lowest(), Limits::max())));
    }
  }
};

template <class Tap>
AxisOf<Tap> AxisIn(const uint8_t* table, ptrdiff_t taps) {
  return {SeparableRecord::TapsIn<Tap>(table), taps};
}

template <class Kernel, class Axes, class Bits>
void Filter(const Windows<Bits>& windows, const Axes& axes, int elementBytes, bool readsBeyond = false) {
  FilterWindows(windows, {&axes, Kernel::Across, Kernel::Down, elementBytes, 1, {}, readsBeyond});
}

template <class T, class R, class F, class Bits>
void FilterInLanes(const SeparableRecord& r, const Windows<Bits>& windows) {
  const LaneAxes<F> axes{AxisIn<F>(r.Across(), r.width), AxisIn<F>(r.Down(), r.height), windows.src.channels(), r.mode,
                         static_cast<double>(r.divisor)};
  FilterWindows(windows, LaneKernel<T, R, F, false>::For(axes));
}

template <class T, class R, class Bits>
void FilterIntegers(const SeparableRecord& r, const Windows<Bits>& windows) {
  const PairedTaps across{SeparableRecord::PairsIn(r.Across(), r.width), r.width},
      down{SeparableRecord::PairsIn(r.Down(), r.height), r.height};
  const IntegerAxes axes{AxisIn<int32_t>(r.Across(), r.width),
                         AxisIn<int32_t>(r.Down(), r.height),
                         across,
                         down,
                         windows.src.channels(),
                         std::is_same_v<T, uint16_t> ? 32768 * r.rowSum : 0,
                         IntegerQuotient(r.mode, r.divisor, r.largestSum)};
  if constexpr (sizeof(T) == 1) {
    if (r.form == SeparableForm::kWords) return Filter<WordKernel<R>>(windows, axes, sizeof(int16_t));
  }
  Filter<IntKernel<T, R>>(windows, axes, sizeof(int32_t), true);
}

template <class T, class R, class Bits>
void FilterByForm(const SeparableRecord& r, const Windows<Bits>& windows) {
  if (r.form == SeparableForm::kFloats) return FilterInLanes<T, R, float>(r, windows);
  if constexpr (std::is_integral_v<T>) {
    if (r.form == SeparableForm::kDoubles) return FilterInLanes<T, R, double>(r, windows);
    if (r.form != SeparableForm::kLongs) return FilterIntegers<T, R>(r, windows);
    const LongAxes axes{AxisIn<int64_t>(r.Across(), r.width), AxisIn<int64_t>(r.Down(), r.height),
                        windows.src.channels(), r.mode, r.divisor};
    Filter<LongKernel<T, R>>(windows, axes, sizeof(int64_t));
  }
}

template <class T, class R>
QvpStatus Separable(const WindowCall<T, R>& call, const QvpiFilterSeparableBorderSpec* spec) {
  return FilterByRecord<SeparableRecord>(
      call, spec, [&](const SeparableRecord& r) { FilterByForm<T, R>(r, call.Reaching(r.reach())); });
}

}  // namespace
}  // namespace qvp::filter

using namespace qvp;
using namespace qvp::filter;

#define SEPARABLE(from, to, types, layout) \
  QVP_WINDOW_BY_RECORD(Separable, from, to, types, layout, Separable, QvpiFilterSeparableBorderSpec)
QVP_EACH_LAYOUT(SEPARABLE, 8u, 8u, 8u)
QVP_EACH_LAYOUT(SEPARABLE, 16u, 16u, 16u)
QVP_EACH_LAYOUT(SEPARABLE, 16s, 16s, 16s)
QVP_EACH_LAYOUT(SEPARABLE, 32f, 32f, 32f)
QVP_C1_C3_C4(SEPARABLE, 8u, 16s, 8u16s)
