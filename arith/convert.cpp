// Conversions between pixel types.
#include "base/check.h"
#include "base/export.h"
#include "base/pixelwise.h"
#include "base/round.h"

namespace {
using namespace qvp;

// Lanes in which a value of S passes on its way to D: the wider of both types, or a type that holds the values of both.
template <class S, class T>
using WidestLane =
    std::conditional_t<(sizeof(S) > sizeof(T)), S,
                       std::conditional_t<(sizeof(S) < sizeof(T)) && std::is_signed_v<S> && std::is_unsigned_v<T>,
                                          std::make_signed_t<std::conditional_t<std::is_integral_v<T>, T, int>>, T>>;

template <class L, class S, class T>
QvpStatus Convert(const Image<const S>& src, const Image<T>& dst, Size roi) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {src, dst})) return failed;
  MapImages(
      hn::ScalableTag<L>(), [](auto v) HWY_ATTR { return v; }, roi, dst, src);
  return qvpStatusNoError;
}

// Integers of both signs, saturated, and floats from integers. 32-bit integers to floats are rounded to the nearest.
template <class S, class T>
QvpStatus ConvertValues(const Image<const S>& src, const Image<T>& dst, Size roi) {
  if constexpr (std::is_same_v<S, T>) static_assert(sizeof(S) == 0, "a copy");
  if constexpr (sizeof(S) == sizeof(T) && std::is_integral_v<T>) {
    return Convert<S>(src, dst, roi);  // the other signedness
  } else {
    return Convert<WidestLane<S, T>>(src, dst, roi);
  }
}

// 2^exponent of a normal number.
template <class F>
F PowerOfTwoOf(int exponent) {
  using Bits = hwy::MakeUnsigned<F>;
  constexpr int kMantissa = std::numeric_limits<F>::digits - 1, kBias = std::numeric_limits<F>::max_exponent - 1;
  const Bits bits = static_cast<Bits>(exponent + kBias) << kMantissa;
  F power;
  std::memcpy(&power, &bits, sizeof(power));
  return power;
}

// 2^-scale as two factors, as one alone could leave the normal numbers. What is beyond their product is so too large or
// too small already that the result is a bound of the type or 0; a product that loses bits is far below one half.
template <class F>
struct TwoFactors {
  F first, second;
  explicit TwoFactors(int scale) {
    constexpr int kMost = std::numeric_limits<F>::max_exponent - 2;
    const int exponent = -std::clamp(scale, -2 * kMost, 2 * kMost);
    first = PowerOfTwoOf<F>(exponent / 2);
    second = PowerOfTwoOf<F>(exponent - exponent / 2);
  }
};

// Float lanes that hold every value of S exactly.
template <class S>
using ExactFloat = std::conditional_t<(std::is_integral_v<S> ? sizeof(S) <= 2 : sizeof(S) == 4), float, double>;

template <class S, class T>
void ConvertScaled(const Image<const S>& src, const Image<T>& dst, Size roi, QvpRoundMode mode, int scale) {
  using F = ExactFloat<S>;
  const TwoFactors<F> factors(scale);
  WithRounding(mode, [&](const auto& rounding) {
    const auto kernel = [=](auto v) HWY_ATTR {
      const hn::DFromV<decltype(v)> d;
      return rounding(hn::Mul(hn::Mul(v, hn::Set(d, factors.first)), hn::Set(d, factors.second)));
    };
    MapOneChannel(hn::ScalableTag<F>(), kernel, roi, dst, src);
  });
}

// 16-bit integers to bytes by small factors stay in 16-bit lanes: beyond 2^15 - 1, where the sum of the rounding
// saturates, the quotient is above every byte still.
constexpr int kLastShiftOfWords = 7;

template <class T>
void ShiftWords(const Image<const int16_t>& src, const Image<T>& dst, Size roi, QvpRoundMode mode, int scale) {
  const hn::ScalableTag<int16_t> d;
  const ShiftRounding<int16_t> rounding(mode, scale);
  const auto kernel = [=](auto v) HWY_ATTR { return rounding.Saturated(hn::ScalableTag<int16_t>(), v); };
  MapOneChannel(d, kernel, roi, dst, src);
}

template <class S, class T>
QvpStatus ConvertIntegers(const Image<const S>& src, const Image<T>& dst, Size roi, QvpRoundMode mode, int scale) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {src, dst})) return failed;
  if (!IsRoundMode(mode)) return qvpStatusRoundMode;
  if constexpr (std::is_same_v<S, int16_t> && sizeof(T) == 1) {
    if (scale >= 0 && scale <= kLastShiftOfWords) return ShiftWords(src, dst, roi, mode, scale), qvpStatusNoError;
  }
  ConvertScaled(src, dst, roi, mode, scale);
  return qvpStatusNoError;
}

// From floats; the modes are not checked.
template <class S, class T>
QvpStatus ConvertFloats(const Image<const S>& src, const Image<T>& dst, Size roi, QvpRoundMode mode, int scale) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {src, dst})) return failed;
  ConvertScaled(src, dst, roi, mode, scale);
  return qvpStatusNoError;
}

template <class S, class T>
QvpStatus RoundFloats(const Image<const S>& src, const Image<T>& dst, Size roi, QvpRoundMode mode) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {src, dst})) return failed;
  WithRounding(mode, [&](const auto& rounding) {
    MapImages(
        hn::ScalableTag<S>(), [=](auto v) HWY_ATTR { return rounding(v); }, roi, dst, src);
  });
  return qvpStatusNoError;
}

}  // namespace

#define CONVERT(from, to, suffix, impl, layout) \
  QVP_CONVERT(qvpiConvert_##from##to##_##layout##suffix, from, to, layout, impl, (), ())
#define CONVERT_ROUND(from, to, layout)                                                                      \
  QVP_CONVERT(qvpiConvert_##from##to##_##layout##R, from, to, layout, RoundFloats, (QvpRoundMode roundMode), \
              (roundMode))
#define CONVERT_SFS(from, to, impl)                                                                           \
  QVP_CONVERT(qvpiConvert_##from##to##_C1RSfs, from, to, C1, impl, (QvpRoundMode roundMode, int scaleFactor), \
              (roundMode, scaleFactor))

#define CONVERT_LAYOUTS(from, to) QVP_EACH_LAYOUT(CONVERT, from, to, R, ConvertValues)
CONVERT_LAYOUTS(8u, 16u)
CONVERT_LAYOUTS(8u, 16s)
CONVERT_LAYOUTS(8u, 32s)
CONVERT_LAYOUTS(8u, 32f)
CONVERT_LAYOUTS(8s, 32s)
CONVERT_LAYOUTS(8s, 32f)
CONVERT_LAYOUTS(16u, 32s)
CONVERT_LAYOUTS(16u, 32f)
CONVERT_LAYOUTS(16s, 32s)
CONVERT_LAYOUTS(16s, 32f)
CONVERT_LAYOUTS(16u, 8u)
CONVERT_LAYOUTS(16s, 8u)
CONVERT_LAYOUTS(32s, 8u)
CONVERT_LAYOUTS(32s, 8s)

QVP_EACH_LAYOUT(CONVERT_ROUND, 32f, 8u)
QVP_EACH_LAYOUT(CONVERT_ROUND, 32f, 8s)
QVP_EACH_LAYOUT(CONVERT_ROUND, 32f, 16u)
QVP_EACH_LAYOUT(CONVERT_ROUND, 32f, 16s)

CONVERT(16u, 32u, R, ConvertValues, C1)
CONVERT(32s, 32f, R, ConvertValues, C1)
CONVERT(32u, 32f, R, ConvertValues, C1)
CONVERT(8s, 16s, R, ConvertValues, C1)
CONVERT(8s, 64f, R, ConvertValues, C1)

CONVERT(8s, 8u, Rs, ConvertValues, C1)
CONVERT(8s, 16u, Rs, ConvertValues, C1)
CONVERT(8s, 32u, Rs, ConvertValues, C1)
CONVERT(16s, 16u, Rs, ConvertValues, C1)
CONVERT(16s, 32u, Rs, ConvertValues, C1)
CONVERT(32s, 32u, Rs, ConvertValues, C1)

CONVERT_SFS(8u, 8s, ConvertIntegers)
CONVERT_SFS(16u, 8s, ConvertIntegers)
CONVERT_SFS(16s, 8s, ConvertIntegers)
CONVERT_SFS(16u, 16s, ConvertIntegers)
CONVERT_SFS(32s, 16s, ConvertIntegers)
CONVERT_SFS(32s, 16u, ConvertIntegers)
CONVERT_SFS(32u, 8u, ConvertIntegers)
CONVERT_SFS(32u, 8s, ConvertIntegers)
CONVERT_SFS(32u, 16u, ConvertIntegers)
CONVERT_SFS(32u, 16s, ConvertIntegers)
CONVERT_SFS(32u, 32s, ConvertIntegers)
CONVERT_SFS(32f, 8u, ConvertFloats)
CONVERT_SFS(32f, 8s, ConvertFloats)
CONVERT_SFS(32f, 16u, ConvertFloats)
CONVERT_SFS(32f, 16s, ConvertFloats)
CONVERT_SFS(32f, 32s, ConvertFloats)
CONVERT_SFS(32f, 32u, ConvertFloats)
CONVERT_SFS(64f, 8u, ConvertFloats)
CONVERT_SFS(64f, 8s, ConvertFloats)
CONVERT_SFS(64f, 16u, ConvertFloats)
CONVERT_SFS(64f, 16s, ConvertFloats)

// The image holds floats before, and integers in their place afterwards.
QvpStatus qvpiConvert_32f32u_C1IRSfs(Qvp32u* pSrcDst, int srcDstStep, QvpiSize roiSize, QvpRoundMode roundMode,
                                     int scaleFactor) {
  return ConvertFloats(View(reinterpret_cast<const Qvp32f*>(pSrcDst), srcDstStep, Layout::kC1),
                       View(pSrcDst, srcDstStep, Layout::kC1), roiSize, roundMode, scaleFactor);
}
