// Images that are planes: linear in column and row.
#include <algorithm>

#include "base/check.h"
#include "base/export.h"
#include "base/map.h"
#include "base/scalar.h"
#include "qvpi.h"

namespace {
using namespace qvp;

using Doubles = hn::ScalableTag<double>;
using DoubleVector = hn::Vec<Doubles>;

// Samples whose products with the slope are kept at a time, whole pixels of any layout; behind them there is room for
// as many as make a vector of bytes.
constexpr ptrdiff_t kStrip = 2304, kRoom = HWY_MAX_BYTES;
static_assert(kStrip % 12 == 0);

struct Plane {
  const double *start, *slopeX, *slopeY;  // one for each channel, at any address
  QvpiPoint offset;

  // slopeX * X of each channel of n pixels from column x on, and zeros in the room behind them.
  void FillAcross(ptrdiff_t x, ptrdiff_t n, Layout layout, double* to) const {
    const int channels = Channels(layout);
    for (int c = 0; c < channels; ++c) {
      const double slope = c < ProcessedChannels(layout) ? LoadScalar(slopeX + c) : 0;
      for (ptrdiff_t i = 0; i < n; ++i) to[i * channels + c] = slope * static_cast<double>(int64_t{offset.x} + x + i);
    }
    std::fill_n(to + n * channels, kRoom, 0.0);
  }
  // Whether 32-bit integers hold all values: these lie between those of the corners, as rounding keeps their order.
  bool IsWithinInts(Size roi, Layout layout) const {
    constexpr double kMost = INT32_MAX;
    const double x = offset.x, y = offset.y, width = static_cast<double>(roi.width - 1),
                 height = static_cast<double>(roi.height - 1);
    for (int c = 0; c < ProcessedChannels(layout); ++c) {
      const double first = LoadScalar(start + c), across = LoadScalar(slopeX + c), down = LoadScalar(slopeY + c);
      for (const double row : {first + down * y, first + down * (y + height)}) {
        for (const double v : {row + across * x, row + across * (x + width)}) {
          if (!(v > -kMost && v < kMost)) return false;
        }
      }
    }
    return true;
  }
};

// start + slopeY * Y of the samples of a row, from any of a pixel on: 12 are whole pixels of every layout.
class RowStart {
 public:
  RowStart(const Plane& plane, Layout layout)
      : start_(Doubles(), plane.start, layout),
        slope_(Doubles(), plane.slopeY, layout),
        offset_(plane.offset.y),
        period_(layout == Layout::kC1 ? 1 : kPeriod) {}

  // For vectors of kSamples.
  template <ptrdiff_t kSamples>
  void MoveTo(ptrdiff_t y) {
    const Doubles d;
    const DoubleVector place = hn::Set(d, static_cast<double>(offset_ + y));
    for (ptrdiff_t i = 0; i < kPeriod + kSamples; i += kLanes) {
      hn::StoreU(hn::Add(start_.From(i), hn::Mul(slope_.From(i), place)), d, lanes_ + i);
    }
  }
  HWY_INLINE const double* From(ptrdiff_t sample) const { return period_ == 1 ? lanes_ : lanes_ + sample % kPeriod; }

 private:
  static constexpr ptrdiff_t kPeriod = 12, kLanes = hn::MaxLanes(Doubles());
  PerChannel<Doubles> start_, slope_;
  int64_t offset_;
  ptrdiff_t period_;  // of one channel all lanes are alike: what was stored as a vector is loaded as one
  HWY_ALIGN double lanes_[kPeriod + kRoom + kLanes];
};

// What sums become: floats, integers that 32 bits hold, or any, which are bounded first.
enum class Range { kFloats, kInts, kAny };

template <class T>
HWY_INLINE DoubleVector Bounded(DoubleVector v) {
  const Doubles d;
  const DoubleVector raised = MaxOrSecond(v, hn::Set(d, std::numeric_limits<T>::lowest()));
  return hn::Min(raised, hn::Set(d, std::numeric_limits<T>::max()));
}

// As many samples as a vector holds.
template <class T, Range kRange>
HWY_INLINE auto Samples(const double* across, const double* down) {
  using Lane = std::conditional_t<std::is_integral_v<T>, int32_t, float>;
  constexpr ptrdiff_t kDoubles = hn::MaxLanes(Doubles());
  const auto sum = [&](ptrdiff_t i) QVP_INLINED {
    return hn::Add(hn::LoadU(Doubles(), down + i), hn::LoadU(Doubles(), across + i));
  };
  return NarrowParts<T>(hn::ScalableTag<Lane>(), [&](ptrdiff_t k) QVP_INLINED {
    const DoubleVector lower = sum(2 * k * kDoubles), upper = sum((2 * k + 1) * kDoubles);
    if constexpr (kRange == Range::kFloats) return FloatPair(lower, upper);
    if constexpr (kRange == Range::kInts) return RoundedPair(lower, upper);
    if constexpr (kRange == Range::kAny) return RoundedPair(Bounded<T>(lower), Bounded<T>(upper));
  });
}

template <bool kKeepAlpha, Range kRange, class T>
void WriteRow(const double* across, const RowStart& down, ptrdiff_t n, T* to) {
  const hn::ScalableTag<T> d;
  constexpr ptrdiff_t kLanes = hn::MaxLanes(d);
  const auto at = [&](ptrdiff_t i, ptrdiff_t phase, const T* old) QVP_INLINED {
    const auto v = Samples<T, kRange>(across + i, down.From(phase));
    if constexpr (kKeepAlpha) return hn::IfThenElse(FourthLanes(d, phase), hn::LoadU(d, old), v);
    return v;
  };
  if (n < kLanes) {
    Partial<T> staged(to, n);
    hn::StoreU(at(0, 0, staged.lanes), d, staged.lanes);
    return staged.CopyTo(to, n);
  }
  ForEachVectorInPlace<3, kLanes>(
      n, [&](ptrdiff_t i, ptrdiff_t phase) QVP_INLINED { return at(i, phase, to + i); },
      [&](ptrdiff_t i, auto v) QVP_INLINED { hn::StoreU(v, d, to + i); });
}

template <class T>
using RowFunction = void (*)(const double* across, const RowStart& down, ptrdiff_t n, T* to);

template <bool kKeepAlpha, class T>
RowFunction<T> RowFor(const Plane& plane, Size roi, Layout layout) {
  if constexpr (std::is_integral_v<T>) {
    if (plane.IsWithinInts(roi, layout)) return WriteRow<kKeepAlpha, Range::kInts, T>;
    return WriteRow<kKeepAlpha, Range::kAny, T>;
  } else {
    return WriteRow<kKeepAlpha, Range::kFloats, T>;
  }
}

template <class T>
QvpStatus Ramp(const Plane& plane, const Image<T>& dst, Size roi) {
  const Pointers numbers = {plane.start, plane.slopeX, plane.slopeY};
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {dst}, numbers)) return failed;
  const auto writeRow =
      KeepsAlpha(dst.layout) ? RowFor<true, T>(plane, roi, dst.layout) : RowFor<false, T>(plane, roi, dst.layout);
  const ptrdiff_t channels = Channels(dst.layout), most = kStrip / channels;
  HWY_ALIGN double across[kStrip + kRoom];
  RowStart down(plane, dst.layout);
  for (ptrdiff_t x = 0; x < roi.width; x += most) {
    const ptrdiff_t n = std::min(most, roi.width - x);
    plane.FillAcross(x, n, dst.layout, across);
    for (ptrdiff_t y = 0; y < roi.height; ++y) {
      down.MoveTo<hn::MaxLanes(hn::ScalableTag<T>())>(y);
      writeRow(across, down, n * channels, dst.Row(y) + x * channels);
    }
  }
  return qvpStatusNoError;
}

}  // namespace

#define RAMP(type, layout)                                                                                          \
  QvpStatus qvpiRamp_##type##_##layout##R(QVP_VALUES_##layout(64f) start, QVP_VALUES_##layout(64f) slopeX,          \
                                          QVP_VALUES_##layout(64f) slopeY, Qvp##type* pDst, int dstStep,            \
                                          QvpiSize roiSize, QvpiPoint dstOffset) {                                  \
    return Ramp({Values(start), Values(slopeX), Values(slopeY), dstOffset}, View(pDst, dstStep, Layout::k##layout), \
                roiSize);                                                                                           \
  }
QVP_EACH_LAYOUT(RAMP, 8u)
QVP_EACH_LAYOUT(RAMP, 16u)
QVP_EACH_LAYOUT(RAMP, 16s)
QVP_EACH_LAYOUT(RAMP, 32f)
