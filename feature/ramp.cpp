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

  // start + slopeY * Y of each channel.
  PerChannel<Doubles> Down(ptrdiff_t y, Layout layout) const {
    const double place = static_cast<double>(int64_t{offset.y} + y);
    double values[4];
    for (int c = 0; c < ProcessedChannels(layout); ++c) {
      values[c] = LoadScalar(start + c) + LoadScalar(slopeY + c) * place;
    }
    return {Doubles(), values, layout};
  }
  // slopeX * X of each channel of n pixels from column x on, and zeros in the room behind them.
  void FillAcross(ptrdiff_t x, ptrdiff_t n, Layout layout, double* to) const {
    const int channels = Channels(layout);
    for (int c = 0; c < channels; ++c) {
      const double slope = c < ProcessedChannels(layout) ? LoadScalar(slopeX + c) : 0;
      for (ptrdiff_t i = 0; i < n; ++i) to[i * channels + c] = slope * static_cast<double>(offset.x + x + i);
    }
    std::fill_n(to + n * channels, kRoom, 0.0);
  }
};

template <class T>
HWY_INLINE DoubleVector Bounded(DoubleVector v) {
  const Doubles d;
  const DoubleVector raised = MaxOrSecond(v, hn::Set(d, std::numeric_limits<T>::lowest()));
  return hn::Min(raised, hn::Set(d, std::numeric_limits<T>::max()));
}

// As many samples as a vector holds, from sample `phase` of a pixel on.
template <class T>
HWY_INLINE auto Samples(const double* across, const PerChannel<Doubles>& down, ptrdiff_t phase) {
  using Lane = std::conditional_t<std::is_integral_v<T>, int32_t, float>;
  constexpr ptrdiff_t kDoubles = hn::MaxLanes(Doubles());
  const auto sum = [&](ptrdiff_t i)
                       QVP_INLINED { return hn::Add(down.From(phase + i), hn::LoadU(Doubles(), across + i)); };
  return NarrowParts<T>(hn::ScalableTag<Lane>(), [&](ptrdiff_t k) QVP_INLINED {
    const DoubleVector lower = sum(2 * k * kDoubles), upper = sum((2 * k + 1) * kDoubles);
    if constexpr (std::is_integral_v<T>) return RoundedPair(Bounded<T>(lower), Bounded<T>(upper));
    if constexpr (!std::is_integral_v<T>) return FloatPair(lower, upper);
  });
}

template <bool kKeepAlpha, class T>
void WriteRow(const double* across, const PerChannel<Doubles>& down, ptrdiff_t n, T* to) {
  const hn::ScalableTag<T> d;
  constexpr ptrdiff_t kLanes = hn::MaxLanes(d);
  const auto at = [&](ptrdiff_t i, ptrdiff_t phase, const T* old) QVP_INLINED {
    const auto v = Samples<T>(across + i, down, phase);
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
QvpStatus Ramp(const Plane& plane, const Image<T>& dst, Size roi) {
  const Pointers numbers = {plane.start, plane.slopeX, plane.slopeY};
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {dst}, numbers)) return failed;
  const auto writeRow = KeepsAlpha(dst.layout) ? WriteRow<true, T> : WriteRow<false, T>;
  const ptrdiff_t channels = Channels(dst.layout), most = kStrip / channels;
  HWY_ALIGN double across[kStrip + kRoom];
  for (ptrdiff_t x = 0; x < roi.width; x += most) {
    const ptrdiff_t n = std::min(most, roi.width - x);
    plane.FillAcross(x, n, dst.layout, across);
    for (ptrdiff_t y = 0; y < roi.height; ++y) {
      writeRow(across, plane.Down(y, dst.layout), n * channels, dst.Row(y) + x * channels);
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
