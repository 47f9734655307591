// The Wiener filter (Lim 1990): pixels go to the mean under a mask, the more the less their variance there exceeds that
// of the noise.
#include "base/export.h"
#include "filter/double_sums.h"
#include "filter/exact_differences.h"
#include "filter/window_call.h"

namespace qvp::filter {
namespace {

using D = DoubleLanes;
using V = DoubleVector;

constexpr int kLongestSide = 255;

constexpr bool IsSide(int n) { return n >= 1 && n <= kLongestSide && n % 2 == 1; }
constexpr bool IsMask(QvpiSize mask) { return IsSide(mask.width) && IsSide(mask.height); }

// n^2 times the variance, n s2 - s1^2. That of bytes is exact in doubles; the products of sums of 16-bit numbers leave
// them, and are whole numbers modulo 2^64, which hold the difference.
template <class T>
HWY_INLINE V Deviation(double n, V s1, V s2) {
  if constexpr (sizeof(T) != 2) return RealDifference(n, s2, s1, s1);
  const V magnitude = hn::Abs(s1);
  return Rounded(WholeDifference(n, s2, magnitude, magnitude));
}

// What the filter sums, and what becomes of it: (s1 + (n p - s1) g) / n with g = (d - noise) / d, or 0.
template <class T>
struct WienerFamily {
  using Result = T;
  static constexpr int kPlanes = 2;

  double count;
  const double* noise;  // for each result of a row, times n^2

  static HWY_INLINE std::array<V, kPlanes> Quantities(V p) { return {p, hn::Mul(p, p)}; }

  HWY_INLINE V Of(ptrdiff_t i, V p, const std::array<V, kPlanes>& sums) const {
    const V n = hn::Set(D(), count), v = hn::LoadU(D(), noise + i), deviation = Deviation<T>(count, sums[0], sums[1]);
    const V gain = hn::IfThenElseZero(hn::Gt(deviation, v), hn::Div(hn::Sub(deviation, v), deviation));
    return hn::Div(hn::Add(sums[0], hn::Mul(hn::Sub(hn::Mul(n, p), sums[0]), gain)), n);
  }
};

// That of each channel; that of a fourth one that is kept does not matter.
template <class T>
void FillNoise(const float* noise, double count, const WindowCall<T>& call, double* to) {
  constexpr double kUnit = std::is_same_v<T, float> ? 1 : sizeof(T) == 1 ? 255 : 65535;
  double variances[4] = {};
  for (int c = 0; c < ProcessedChannels(call.src.layout); ++c) {
    variances[c] = noise[c] * ((kUnit * count) * (kUnit * count));
  }
  for (ptrdiff_t i = 0; i < call.roi.width * call.channels(); ++i) to[i] = variances[i % call.channels()];
}

bool IsNoise(const float* noise, int channels) {
  for (int c = 0; c < channels; ++c) {
    if (!(noise[c] >= 0 && noise[c] < 1)) return false;
  }
  return true;
}

template <class T>
QvpStatus Wiener(const WindowCall<T>& call, QvpiSize mask, const float* noise) {
  if (const QvpStatus failed = call.Check(noise)) return failed;
  if (!IsMask(mask)) return qvpStatusMaskSize;
  const int processed = ProcessedChannels(call.src.layout);
  if (!IsNoise(noise, processed)) return qvpStatusNoiseRange;
  if (const QvpStatus failed = CheckBorder(call.border)) return failed;
  uint8_t* const memory = AtBoundary(call.buffer);
  uint8_t* const work = memory + DoubleRowBytes(mask, call.roi.width, call.channels()).value();
  auto* const variances = reinterpret_cast<double*>(memory);
  const WienerFamily<T> family{static_cast<double>(mask.width) * mask.height, variances};
  FillNoise(noise, family.count, call, variances);
  using Sums = DoubleSums<T, WienerFamily<T>>;
  const Sums sums(mask, call.channels(), call.roi.width, family, work);
  auto windows = call.Reaching(ReachOf(mask, {mask.width / 2, mask.height / 2}));
  windows.buffer = work + Sums::WorkBytes(mask, call.roi.width, call.channels()).value();
  FilterWindows(windows, sums.AsKernel());
  return qvpStatusNoError;
}

}  // namespace
}  // namespace qvp::filter

using namespace qvp;
using namespace qvp::filter;

QvpStatus qvpiFilterWienerBorderGetBufferSize(QvpiSize maskSize, QvpiSize roiSize, QvpDataType dataType,
                                              int numChannels, int* pBufferSize) {
  if (const QvpStatus failed = CheckQuery(pBufferSize, roiSize, filter::IsMask(maskSize), dataType, numChannels))
    return failed;
  using Sums = DoubleSums<float, WienerFamily<float>>;
  return (Sums::WorkBytes(maskSize, roiSize.width, numChannels) +
          Sums::WalkBytes(maskSize, roiSize.width, numChannels) + DoubleRowBytes(maskSize, roiSize.width, numChannels) +
          kRecordBoundary)
      .StoreTo(pBufferSize);
}

#define WIENER_C1(type) \
  QVP_WINDOW(Wiener, type, type, type, C1, Wiener, (QvpiSize maskSize, Qvp32f noise), (), (maskSize, &noise))
#define WIENER_MORE(type, layout, n)                                                                   \
  QVP_WINDOW(Wiener, type, type, type, layout, Wiener, (QvpiSize maskSize, const Qvp32f noise[n]), (), \
             (maskSize, noise))
#define WIENER(type) WIENER_C1(type) WIENER_MORE(type, C3, 3) WIENER_MORE(type, C4, 4) WIENER_MORE(type, AC4, 3)
WIENER(8u)
WIENER(16u)
WIENER(16s)
WIENER(32f)
