// The Wiener filter (Lim 1990): pixels go to the mean under a mask, the more the less their variance there exceeds that
// of the noise.
#include "base/export.h"
#include "filter/double_sums.h"
#include "filter/window_call.h"

namespace qvp::filter {
namespace {

using D = DoubleLanes;
using V = DoubleVector;

constexpr int kLongestSide = 255;

constexpr bool IsSide(int n) { return n >= 1 && n <= kLongestSide && n % 2 == 1; }
constexpr bool IsMask(QvpiSize mask) { return IsSide(mask.width) && IsSide(mask.height); }

// Whole numbers below 2^52, from doubles.
HWY_INLINE hn::Vec<hn::Repartition<uint64_t, D>> Whole(V v) {
  const hn::Repartition<uint64_t, D> words;
  return hn::And(hn::BitCast(words, hn::Add(v, hn::Set(D(), 0x1p52))), hn::Set(words, (uint64_t{1} << 52) - 1));
}

// A whole number below 2^63 as a double: its halves are exact, so that their sum is rounded once.
HWY_INLINE V Rounded(hn::Vec<hn::Repartition<uint64_t, D>> whole) {
  const hn::Repartition<uint64_t, D> words;
  const auto as = [=](auto half, double unit) QVP_INLINED {
    const V offset = hn::Set(D(), unit);
    return hn::Sub(hn::BitCast(D(), hn::Or(half, hn::BitCast(words, offset))), offset);
  };
  const auto lower = hn::And(whole, hn::Set(words, 0xFFFFFFFF));
  return hn::Add(as(hn::ShiftRight<32>(whole), 0x1p84), as(lower, 0x1p52));
}

// n^2 times the variance, n s2 - s1^2. That of bytes is exact in doubles; the products of sums of 16-bit numbers leave
// them, and are whole numbers modulo 2^64, which hold the difference.
template <class T>
HWY_INLINE V Deviation(double n, V s1, V s2) {
  if constexpr (sizeof(T) != 2) {
    return hn::Sub(hn::Mul(hn::Set(D(), n), s2), hn::Mul(s1, s1));
  } else {
    const hn::Repartition<uint64_t, D> words;
    const hn::Repartition<uint32_t, D> halves;
    const auto square = hn::BitCast(halves, Whole(hn::Abs(s1)));
    const auto count = hn::BitCast(halves, hn::Set(words, static_cast<uint64_t>(n))),
               sum = hn::BitCast(halves, Whole(s2));
    const auto upper = hn::MulEven(hn::BitCast(halves, hn::ShiftRight<32>(hn::BitCast(words, sum))), count);
    const auto product = hn::Add(hn::MulEven(sum, count), hn::ShiftLeft<32>(upper));
    return Rounded(hn::Sub(product, hn::MulEven(square, square)));
  }
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
