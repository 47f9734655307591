// The Gauss filter: symmetric sums across, then down.
#include "filter/gauss.h"

#include "filter/axis_kernels.h"
#include "filter/neighbour_sums.h"
#include "filter/window_call.h"

namespace qvp::filter {
namespace {

// Bytes. Rows have kGaussRowBits behind the point, and both sums are rounded.
struct ByteAxes {
  PairedTaps across, down;
  int channels, acrossShift, downShift;
  NeighbourTaps neighbours;
};

// From lines of 16-bit lanes.
template <int kTerms>
struct ByteKernel {
  using D = hn::ScalableTag<int16_t>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(D());
  static constexpr int kVectors = 2, kNeighbourVectors = kTerms > 0 && kTerms < 4 ? 2 : 4;

  // Sums rounded and shifted, as 16-bit lanes in order.
  template <int kCount, class Value>
  static HWY_INLINE std::array<hn::Vec<D>, kCount> Rounded(const PairVectors<D, kTerms>& taps, int shift,
                                                           const Value& value) {
    const auto sums = SumsOfPairs<true, kCount>(taps, 1 << (shift - 1), value);
    std::array<hn::Vec<D>, kCount> results;
    Unrolled<kCount>([&](auto v) QVP_INLINED {
      results[v] =
          Packed(int16_t(), hn::ShiftRightSame(sums[v].lower, shift), hn::ShiftRightSame(sums[v].upper, shift));
    });
    return results;
  }

  static void Across(const void* context, const void* source, void* line, ptrdiff_t samples) {
    const auto& axes = *static_cast<const ByteAxes*>(context);
    const auto* const from = static_cast<const int16_t*>(source);
    auto* const to = static_cast<int16_t*>(line);
    const int shift = axes.acrossShift;
    const ptrdiff_t channels = axes.channels;
    const PairVectors<D, kTerms> taps(axes.across);
    ForEachVectors<kVectors, kLanes>(samples, [&](auto count, ptrdiff_t i) HWY_ATTR {
      const auto value = [&](ptrdiff_t k, auto v)
                             QVP_INLINED { return hn::LoadU(D(), from + i + v * kLanes + k * channels); };
      const auto results = Rounded<count>(taps, shift, value);
      Unrolled<count>([&](auto v) QVP_INLINED { hn::StoreU(results[v], D(), to + i + v * kLanes); });
    });
  }

  // Of one channel.
  static void AcrossNeighbours(const void* context, const void* source, void* line, ptrdiff_t samples) {
    const auto& axes = *static_cast<const ByteAxes*>(context);
    const auto* const from = static_cast<const int16_t*>(source);
    auto* const to = static_cast<int16_t*>(line);
    const int shift = axes.acrossShift;
    const ptrdiff_t terms = axes.across.count;
    const NeighbourVectors<D, kTerms> taps(axes.neighbours, terms);
    ForEachVectors<kNeighbourVectors, kLanes>(samples, [&](auto count, ptrdiff_t i) HWY_ATTR {
      const auto value = [&](ptrdiff_t p, auto v) QVP_INLINED { return hn::LoadU(D(), from + i + v * kLanes + 2 * p); };
      const auto sums = taps.template Sums<count>(1 << (shift - 1), value);
      Unrolled<count>([&](auto v) QVP_INLINED {
        const auto even = hn::BitCast(D(), hn::ShiftRightSame(sums[v].even, shift));
        const auto odd = hn::BitCast(D(), hn::ShiftLeftSame(sums[v].odd, 16 - shift));
        hn::StoreU(hn::OddEven(odd, even), D(), to + i + v * kLanes);
      });
    });
  }

  static void Down(const void* context, const Window& window, const ResultRows& rows) {
    const auto& axes = *static_cast<const ByteAxes*>(context);
    const auto from = LinesOfTerms<int16_t, true, kTerms>(window.lines);
    const int shift = axes.downShift;
    const PairVectors<D, kTerms> taps(axes.down);
    MakeRow<kVectors, kLanes>(window.samples, rows.upper[0], [&](auto count, ptrdiff_t i, uint8_t* to) HWY_ATTR {
      const auto value = [&](ptrdiff_t k, auto v) QVP_INLINED { return hn::LoadU(D(), from[k] + i + v * kLanes); };
      const auto results = Rounded<count>(taps, shift, value);
      if constexpr (count == kVectors) {
        Unrolled<kVectors / 2>([&](auto p) QVP_INLINED {
          hn::StoreU(PackedInOrder<uint8_t>(results[2 * p], results[2 * p + 1]), hn::ScalableTag<uint8_t>(),
                     to + 2 * p * kLanes);
        });
      } else {
        const hn::Rebind<uint8_t, D> bytes;
        hn::StoreU(hn::DemoteTo(bytes, results[0]), bytes, to);
      }
    });
  }
};

void FilterBytes(const GaussRecord& r, const Windows<uint8_t>& windows) {
  const auto pairs = [](const uint8_t* table, int64_t size) {
    return PairedTaps{reinterpret_cast<const int32_t*>(table), static_cast<ptrdiff_t>(GaussRecord::Terms(size))};
  };
  const ByteAxes axes{pairs(r.Across(), r.width), pairs(r.Down(), r.height),
                      windows.src.channels(),     r.acrossBits - kGaussRowBits,
                      r.downBits + kGaussRowBits, NeighbourTaps(r.Across(), GaussRecord::Terms(r.width))};
  const auto across = [&](auto terms) {
    return windows.src.channels() == 1 ? ByteKernel<terms>::AcrossNeighbours : ByteKernel<terms>::Across;
  };
  const auto down = [](auto terms) { return ByteKernel<terms>::Down; };
  FilterWindows<uint8_t, int16_t>(windows, {.context = &axes,
                                            .across = ForTerms<kFewTerms>(axes.across.count, across),
                                            .down = ForTerms<kFewTerms>(axes.down.count, down),
                                            .elementBytes = sizeof(int16_t),
                                            .rowsAtOnce = 1});
}

// In lines of floats.
template <class T>
void FilterFloats(const GaussRecord& r, const Windows<typename LineTypes<T, float>::Pixel>& windows) {
  using Lines = LineTypes<T, float>;
  const auto axis = [](const uint8_t* table, int64_t size) {
    return AxisOf<float>{reinterpret_cast<const float*>(table), static_cast<ptrdiff_t>(GaussRecord::Terms(size))};
  };
  const LaneAxes<float> axes{axis(r.Across(), r.width), axis(r.Down(), r.height), windows.src.channels(), qvpRoundNear,
                             1};
  FilterWindows<typename Lines::Pixel, typename Lines::Element>(windows, LaneKernel<float, T, float, true>::For(axes));
}

template <class T>
QvpStatus Gauss(const WindowCall<T>& call, const QvpiFilterGaussBorderSpec* spec) {
  return FilterByRecord<GaussRecord>(call, spec, [&](const GaussRecord& r) {
    const auto windows = call.template Reaching<typename LineTypes<T, float>::Pixel>(r.reach());
    if constexpr (sizeof(T) == 1) {
      FilterBytes(r, windows);
    } else {
      FilterFloats<T>(r, windows);
    }
  });
}

}  // namespace
}  // namespace qvp::filter

using namespace qvp;
using namespace qvp::filter;

#define GAUSS(type, layout) QVP_WINDOW_BY_RECORD(Gauss, type, type, type, layout, Gauss, QvpiFilterGaussBorderSpec)
QVP_EACH_LAYOUT(GAUSS, 8u)
QVP_EACH_LAYOUT(GAUSS, 16u)
QVP_EACH_LAYOUT(GAUSS, 16s)
QVP_EACH_LAYOUT(GAUSS, 32f)
