// The Gauss filter: symmetric sums across, then down.
#include "filter/gauss.h"

#include "filter/axis_kernels.h"
#include "filter/window_call.h"

namespace qvp::filter {
namespace {

// Bytes. Rows have kGaussRowBits behind the point, and both sums are rounded.
struct ByteAxes {
  PairedTaps across, down;
  int channels, acrossShift, downShift;
};

struct ByteKernel {
  using D = hn::ScalableTag<int16_t>;
  static constexpr ptrdiff_t kLanes = hn::MaxLanes(D());
  static constexpr int kVectors = 2;

  // Sums rounded and shifted, as 16-bit lanes in order.
  template <int kCount, class Value>
  static HWY_INLINE std::array<hn::Vec<D>, kCount> Rounded(const PairedTaps& taps, int shift, const Value& value) {
    const auto sums = SumsOfPairs<true, kCount>(D(), taps, 1 << (shift - 1), value);
    std::array<hn::Vec<D>, kCount> results;
    Unrolled<kCount>([&](auto v) QVP_INLINED {
      results[v] =
          Packed(int16_t(), hn::ShiftRightSame(sums[v].lower, shift), hn::ShiftRightSame(sums[v].upper, shift));
    });
    return results;
  }

  static void Across(const void* context, const void* source, void* line, ptrdiff_t samples) {
    const auto axes = *static_cast<const ByteAxes*>(context);
    const auto* const from = static_cast<const uint8_t*>(source);
    auto* const to = static_cast<int16_t*>(line);
    ForEachVectors<kVectors, kLanes>(samples, [&](auto count, ptrdiff_t i) HWY_ATTR {
      const auto value = [&](ptrdiff_t k, auto v)
                             QVP_INLINED { return LoadWide(D(), from + i + v * kLanes + k * axes.channels); };
      const auto results = Rounded<count>(axes.across, axes.acrossShift, value);
      Unrolled<count>([&](auto v) QVP_INLINED { hn::StoreU(results[v], D(), to + i + v * kLanes); });
    });
  }

  static void Down(const void* context, const Window& window, const ResultRows& rows) {
    const auto axes = *static_cast<const ByteAxes*>(context);
    const auto* const from = reinterpret_cast<const int16_t* const*>(window.lines);
    MakeRow<kVectors, kLanes>(window.samples, rows.upper[0], [&](auto count, ptrdiff_t i, uint8_t* to) HWY_ATTR {
      const auto value = [&](ptrdiff_t k, auto v) QVP_INLINED { return hn::LoadU(D(), from[k] + i + v * kLanes); };
      const auto results = Rounded<count>(axes.down, axes.downShift, value);
      if constexpr (count == kVectors) {
        hn::StoreU(PackedInOrder<uint8_t>(results[0], results[1]), hn::ScalableTag<uint8_t>(), to);
      } else {
        const hn::Rebind<uint8_t, D> bytes;
        hn::StoreU(hn::DemoteTo(bytes, results[0]), bytes, to);
      }
    });
  }
};

template <class Bits>
void FilterBytes(const GaussRecord& r, const Windows<Bits>& windows) {
  const auto pairs = [](const uint8_t* table, int64_t size) {
    return PairedTaps{reinterpret_cast<const int32_t*>(table), static_cast<ptrdiff_t>(GaussRecord::Terms(size))};
  };
  const ByteAxes axes{pairs(r.Across(), r.width), pairs(r.Down(), r.height), windows.src.channels(),
                      r.acrossBits - kGaussRowBits, r.downBits + kGaussRowBits};
  FilterWindows(windows, {&axes, ByteKernel::Across, ByteKernel::Down, sizeof(int16_t), 1});
}

template <class T, class Bits>
void FilterFloats(const GaussRecord& r, const Windows<Bits>& windows) {
  const auto axis = [](const uint8_t* table, int64_t size) {
    return AxisOf<float>{reinterpret_cast<const float*>(table), static_cast<ptrdiff_t>(GaussRecord::Terms(size))};
  };
  using Kernel = LaneKernel<T, T, float, true>;
  const LaneAxes<float> axes{axis(r.Across(), r.width), axis(r.Down(), r.height), windows.src.channels(), qvpRoundNear,
                             1};
  FilterWindows(windows, {&axes, Kernel::Across, Kernel::Down, sizeof(float), 1});
}

template <class T>
QvpStatus Gauss(const WindowCall<T>& call, const QvpiFilterGaussBorderSpec* spec) {
  if (const QvpStatus failed = call.Check(spec)) return failed;
  if (const QvpStatus failed = CheckBorder(call.border)) return failed;
  const GaussRecord& r = *GaussRecord::At(spec);
  const bool isOurs =
      r.identification == GaussRecord::kIdentification && r.type == kDataTypeOf<T> && r.channels == call.channels();
  if (!isOurs) return qvpStatusContextMatch;
  if constexpr (sizeof(T) == 1) {
    FilterBytes(r, call.Reaching(r.reach()));
  } else {
    FilterFloats<T>(r, call.Reaching(r.reach()));
  }
  return qvpStatusNoError;
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
