// What the Gauss filter and thresholds by its means share. Rows of bytes have kGaussRowBits behind the point, and the
// taps of 16 bits go by pairs; all others are sums of floats.
#pragma once

#include "filter/axis_kernels.h"
#include "filter/gauss.h"
#include "filter/neighbour_sums.h"

namespace qvp::filter {

// Both sums are rounded.
struct ByteAxes {
  PairedTaps across, down;
  int channels, acrossShift, downShift;
  NeighbourTaps neighbours;

  ByteAxes(const GaussRecord& r, int channelCount)
      : across(PairsOf(r.Across(), r.width)),
        down(PairsOf(r.Down(), r.height)),
        channels(channelCount),
        acrossShift(r.acrossBits - kGaussRowBits),
        downShift(r.downBits + kGaussRowBits),
        neighbours(r.Across(), across.count) {}

 private:
  static PairedTaps PairsOf(const uint8_t* table, int64_t size) {
    return {reinterpret_cast<const int32_t*>(table), static_cast<ptrdiff_t>(GaussRecord::Terms(size))};
  }
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

using AcrossFunction = void (*)(const void*, const void*, void*, ptrdiff_t);

inline AcrossFunction GaussAcrossBytes(const ByteAxes& axes) {
  return ForTerms<kFewTerms>(axes.across.count, [&](auto terms) {
    return axes.channels == 1 ? ByteKernel<terms>::AcrossNeighbours : ByteKernel<terms>::Across;
  });
}

inline LaneAxes<float> GaussFloatAxes(const GaussRecord& r, int channels) {
  const auto axis = [](const uint8_t* table, int64_t size) {
    return AxisOf<float>{reinterpret_cast<const float*>(table), static_cast<ptrdiff_t>(GaussRecord::Terms(size))};
  };
  return {axis(r.Across(), r.width), axis(r.Down(), r.height), channels, qvpRoundNear, 1};
}

}  // namespace qvp::filter
