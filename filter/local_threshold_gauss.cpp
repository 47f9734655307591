// Threshold by the Gauss mean: its sums across, beside which lines keep the pixels, then down, where both meet.
#include "filter/gauss_axes.h"
#include "filter/local_threshold.h"
#include "filter/means.h"

namespace qvp::filter {
namespace {

template <class T>
using LaneOf = std::conditional_t<sizeof(T) == 1, int16_t, float>;

// A line has sums of lanes, and as many pixels behind them.
template <class T>
inline constexpr int kLineBytes = 2 * sizeof(LaneOf<T>);

template <class Axes, class T>
struct GaussThreshold {
  using Lane = LaneOf<T>;

  Axes axes;
  AcrossFunction sumAcross;
  T above, others;

  static void Across(const void* context, const void* source, void* line, ptrdiff_t samples) {
    const auto& self = *static_cast<const GaussThreshold*>(context);
    self.sumAcross(&self.axes, source, line, samples);
    std::memcpy(static_cast<Lane*>(line) + samples, static_cast<const Lane*>(source) + self.axes.across.count - 1,
                samples * sizeof(Lane));
  }
  const Lane* PixelsOf(const Window& window) const {
    return static_cast<const Lane*>(window.lines[axes.down.count - 1]) + window.samples;
  }
};

// In units of the sums, p - mean > -delta is p - sum > bound, of whole numbers that fit 32 bits as those below do.
struct ByteThreshold : GaussThreshold<ByteAxes, uint8_t> {
  int32_t bound;

  ByteThreshold(const LocalThreshold<uint8_t>& call, const GaussRecord& r)
      : GaussThreshold{{r, 1}, nullptr, call.above, call.others} {
    sumAcross = GaussAcrossBytes(axes);
    const double unit = static_cast<double>(1 << axes.downShift);
    bound = static_cast<int32_t>(std::clamp<double>(Below(-call.delta * unit), INT32_MIN, INT32_MAX));
  }

  template <int kTerms>
  static void Down(const void* context, const Window& window, const ResultRows& rows) {
    using D = hn::ScalableTag<int16_t>;
    constexpr ptrdiff_t kLanes = hn::MaxLanes(D());
    constexpr int kVectors = 2;
    const D d;
    const auto& self = *static_cast<const ByteThreshold*>(context);
    const auto from = LinesOfTerms<int16_t, true, kTerms>(window.lines);
    const auto* const pixels = self.PixelsOf(window);
    const auto above = hn::Set(d, int16_t{self.above}), others = hn::Set(d, int16_t{self.others});
    const PairVectors<D, kTerms> taps(self.axes.down);
    MakeRow<kVectors, kLanes>(window.samples, rows.upper[0], [&](auto count, ptrdiff_t i, uint8_t* to) HWY_ATTR {
      const auto value = [&](ptrdiff_t k, auto v) QVP_INLINED { return hn::LoadU(d, from[k] + i + v * kLanes); };
      const auto sums = SumsOfPairs<true, count>(taps, 0, value);
      std::array<hn::Vec<D>, count> results;
      Unrolled<count>([&](auto v) QVP_INLINED {
        const auto isAbove = self.AreAbove(hn::LoadU(d, pixels + i + v * kLanes), sums[v]);
        results[v] = hn::IfVecThenElse(isAbove, above, others);
      });
      StoreNarrow<uint8_t, count>(d, results, to);
    });
  }

 private:
  template <class Sums, class V, class D = hn::DFromV<V>>
  HWY_INLINE V AreAbove(V pixels, const Sums& sums) const {
    const D d;
    const hn::Repartition<int32_t, D> ints;
    const auto half = [&](auto pixel, auto sum) QVP_INLINED {
      const auto excess = hn::Sub(hn::ShiftLeftSame(hn::BitCast(ints, pixel), axes.downShift), sum);
      return hn::VecFromMask(ints, hn::Gt(excess, hn::Set(ints, bound)));
    };
    return Packed(int16_t(), half(hn::InterleaveLower(d, pixels, hn::Zero(d)), sums.lower),
                  half(hn::InterleaveUpper(d, pixels, hn::Zero(d)), sums.upper));
  }
};

// Floats and 16-bit numbers, in lanes of floats and two rows at a time.
template <class T>
struct FloatThreshold : GaussThreshold<LaneAxes<float>, T> {
  using Base = GaussThreshold<LaneAxes<float>, T>;

  float delta;

  FloatThreshold(const LocalThreshold<T>& call, const GaussRecord& r)
      : Base{GaussFloatAxes(r, 1), nullptr, call.above, call.others}, delta(call.delta) {
    Base::sumAcross = LaneKernel<float, T, float, true>::For(Base::axes).across;
  }

  template <int kTerms>
  static void Down(const void* context, const Window& window, const ResultRows& rows) {
    const auto& self = *static_cast<const FloatThreshold*>(context);
    const TapVectors<hn::ScalableTag<float>, float, kTerms> taps(self.axes.down);
    FilterRows(RowsKernel<kTerms>{taps, window.samples, self.delta, static_cast<float>(self.above),
                                  static_cast<float>(self.others)},
               reinterpret_cast<const float* const*>(window.lines), window.samples, reinterpret_cast<T*>(rows.upper[0]),
               reinterpret_cast<T*>(rows.lower[0]));
  }

 private:
  template <int kTerms>
  struct RowsKernel {
    using D = hn::ScalableTag<float>;
    static constexpr ptrdiff_t kLanes = hn::MaxLanes(D());
    static constexpr int kVectors = 2;

    TapVectors<D, float, kTerms> taps;
    ptrdiff_t pixels;  // where they begin in a line
    float delta, above, others;

    template <int kCount>
    HWY_INLINE void Run(const float* const* lines, ptrdiff_t at, T* upper, T* lower) const {
      const auto value = [=](ptrdiff_t k, auto v) QVP_INLINED { return hn::LoadU(D(), lines[k] + at + v * kLanes); };
      const auto means = TwoSumsOfProducts<true, kCount>(taps, value);
      const float* const* const middle = lines + taps.count() - 1;
      Unrolled<kCount>([&](auto v) QVP_INLINED {
        const ptrdiff_t i = at + v * kLanes;
        Store(hn::LoadU(D(), middle[1] + pixels + i), means.lower[v], lower + v * kLanes);
      });
      Unrolled<kCount>([&](auto v) QVP_INLINED {
        const ptrdiff_t i = at + v * kLanes;
        Store(hn::LoadU(D(), middle[0] + pixels + i), means.upper[v], upper + v * kLanes);
      });
    }

    HWY_INLINE void Store(hn::Vec<D> pixel, hn::Vec<D> mean, T* to) const {
      const D d;
      const auto isAbove = hn::Gt(pixel, hn::Sub(mean, hn::Set(d, delta)));
      const auto result = hn::IfThenElse(isAbove, hn::Set(d, above), hn::Set(d, others));
      hn::StoreU(Narrow<T>(d, result), hn::Rebind<T, D>(), to);
    }
  };
};

template <class T>
void FilterByWeights(const LocalThreshold<T>& call, const GaussRecord& record, uint8_t* work) {
  using Threshold = std::conditional_t<sizeof(T) == 1, ByteThreshold, FloatThreshold<T>>;
  using Lines = LineTypes<T, LaneOf<T>>;
  const Threshold threshold(call, record);
  const auto down = [](auto terms) { return Threshold::template Down<terms>; };
  FilterWindows<typename Lines::Pixel, typename Lines::Element>(
      call.template Reaching<typename Lines::Pixel>(work),
      {.context = &threshold,
       .across = Threshold::Across,
       .down = ForTerms<kFewTerms>(threshold.axes.down.count, down),
       .elementBytes = kLineBytes<T>,
       .rowsAtOnce = sizeof(T) == 1 ? 1 : 2,
       .cacheBytes = sizeof(T) == 1 ? kNearestCacheBytes : kSecondCacheBytes});
}

// The taps are made in the work buffer.
template <class T>
QvpStatus ThresholdByGauss(const LocalThreshold<T>& call, float sigma) {
  if (const QvpStatus failed = call.CheckFirst()) return failed;
  if (!IsGaussSigma(sigma)) return qvpStatusBadArgument;
  if (const QvpStatus failed = call.CheckLast()) return failed;
  auto& record = *reinterpret_cast<GaussRecord*>(AtBoundary(call.on.buffer));
  FillGauss(call.mask, sigma, sigma, kDataTypeOf<T>, 1, record);
  FilterByWeights(call, record, reinterpret_cast<uint8_t*>(&record) + GaussRecord::Bytes(call.mask));
  return qvpStatusNoError;
}

}  // namespace
}  // namespace qvp::filter

using namespace qvp;
using namespace qvp::filter;

// In place there is one block of columns.
QvpStatus qvpiThresholdLocalGaussBorderGetBufferSize(QvpiSize maskSize, QvpiSize roiSize, QvpDataType dataType,
                                                     int* pBufferSize) {
  if (const QvpStatus failed = CheckThresholdQuery(pBufferSize, maskSize, roiSize, dataType)) return failed;
  const int lineBytes = dataType == qvp8u ? kLineBytes<uint8_t> : kLineBytes<float>;
  return (WindowBytes(maskSize, roiSize.width, 1, lineBytes, {}, kWholeRows) + GaussRecord::Bytes(maskSize) +
          kRecordBoundary)
      .StoreTo(pBufferSize);
}

QVP_LOCAL_THRESHOLD(Gauss, 8u, ThresholdByGauss, (Qvp32f sigma), (sigma))
QVP_LOCAL_THRESHOLD(Gauss, 16u, ThresholdByGauss, (Qvp32f sigma), (sigma))
QVP_LOCAL_THRESHOLD(Gauss, 32f, ThresholdByGauss, (Qvp32f sigma), (sigma))
