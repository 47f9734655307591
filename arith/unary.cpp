// Functions of one image: absolute value, square root, natural logarithm and exponent.
#include "arith/scale.h"
#include "base/check.h"
#include "base/export.h"
#include "base/pixelwise.h"
#include "signal/exp_log.h"

namespace {
using namespace qvp;

template <class D, class Kernel, class T>
QvpStatus Transform(D d, const Kernel& kernel, const Image<const T>& src, const Image<T>& dst, Size roi) {
  if (const QvpStatus failed = Validate<kPointers, kSize>(roi, {src, dst})) return failed;
  MapImages(d, kernel, roi, dst, src);
  return qvpStatusNoError;
}

// |-32768| is one more than 16 signed bits hold, so that magnitudes are unsigned until they have been scaled.
QvpStatus Abs(const Image<const int16_t>& src, const Image<int16_t>& dst, Size roi, int scale = 0) {
  const hn::ScalableTag<int16_t> d;
  const hn::ScalableTag<uint16_t> magnitudes;
  QvpStatus status = qvpStatusNoError;
  WithScaling<uint16_t, int16_t>(scale, [&](const auto& scaling) {
    const auto kernel = [=](auto v) HWY_ATTR {
      const auto scaled = scaling(hn::BitCast(magnitudes, hn::Abs(v)));
      return hn::BitCast(d, hn::Min(scaled, hn::Set(magnitudes, 32767)));
    };
    status = Transform(d, kernel, src, dst, roi);
  });
  return status;
}
QvpStatus Abs(const Image<const float>& src, const Image<float>& dst, Size roi) {
  const auto kernel = [](auto v) HWY_ATTR { return hn::Abs(v); };
  return Transform(hn::ScalableTag<float>(), kernel, src, dst, roi);
}

// The square root of an integer is a whole number, or as far from one, and from a half, as float lanes can tell for 8
// bits, double lanes for 16.
template <class T>
using RootLane = std::conditional_t<sizeof(T) == 1, float, double>;

template <class T>
QvpStatus Sqrt(const Image<const T>& src, const Image<T>& dst, Size roi, int scale) {
  using F = RootLane<T>;
  const auto kernel = [factor = ScaleFactor<F>(scale)](auto v) HWY_ATTR {
    const hn::DFromV<decltype(v)> d;
    return hn::Mul(hn::Sqrt(hn::Max(v, hn::Zero(d))), hn::Set(d, factor));
  };
  if constexpr (sizeof(T) == 1) {
    return Transform(hn::ScalableTag<T>(), InFloatLanes(kernel), src, dst, roi);
  } else {
    return Transform(hn::ScalableTag<F>(), kernel, src, dst, roi);
  }
}
QvpStatus Sqrt(const Image<const float>& src, const Image<float>& dst, Size roi) {
  const auto kernel = [](auto v) HWY_ATTR { return hn::Sqrt(v); };
  return Transform(hn::ScalableTag<float>(), kernel, src, dst, roi);
}

template <class T>
QvpStatus Logarithm(const Image<const T>& src, const Image<T>& dst, Size roi, int scale) {
  const auto kernel = [factor = ScaleFactor<double>(scale)](auto v)
                          HWY_ATTR { return hn::Mul(Ln(v), hn::Set(hn::DFromV<decltype(v)>(), factor)); };
  return Transform(hn::ScalableTag<double>(), kernel, src, dst, roi);
}
QvpStatus Logarithm(const Image<const float>& src, const Image<float>& dst, Size roi) {
  const auto kernel = [](auto v) HWY_ATTR { return Ln(v); };
  return Transform(hn::ScalableTag<float>(), kernel, src, dst, roi);
}

// e^65535 is below 2^94549: a larger scale factor gives zero all the same, and one below -94549 the bounds.
template <class T>
QvpStatus Exponent(const Image<const T>& src, const Image<T>& dst, Size roi, int scale) {
  const auto kernel = [scale = static_cast<double>(std::clamp(scale, -100000, 100000))](auto v)
                          HWY_ATTR { return ScaledExp(v, scale); };
  return Transform(hn::ScalableTag<double>(), kernel, src, dst, roi);
}
QvpStatus Exponent(const Image<const float>& src, const Image<float>& dst, Size roi) {
  const auto kernel = [](auto v) HWY_ATTR { return Exp(v); };
  return Transform(hn::ScalableTag<float>(), kernel, src, dst, roi);
}

}  // namespace

QVP_C1_C3_C4_AC4(QVP_UNARY, qvpiAbs, 16s, Abs)
QVP_C1_C3_C4_AC4(QVP_UNARY_SFS, qvpiAbs, 16s, Abs)
QVP_C1_C3_C4_AC4(QVP_UNARY, qvpiAbs, 32f, Abs)

#define C1_C3(SHAPE, name, type, impl) SHAPE(name, type, C1, impl) SHAPE(name, type, C3, impl)
#define ROOT_LN_EXP(type)                       \
  C1_C3(QVP_UNARY_SFS, qvpiSqrt, type, Sqrt)    \
  QVP_UNARY_SFS(qvpiSqrt, type, AC4, Sqrt)      \
  C1_C3(QVP_UNARY_SFS, qvpiLn, type, Logarithm) \
  C1_C3(QVP_UNARY_SFS, qvpiExp, type, Exponent)
ROOT_LN_EXP(8u)
ROOT_LN_EXP(16u)
ROOT_LN_EXP(16s)

QVP_C1_C3_C4_AC4(QVP_UNARY, qvpiSqrt, 32f, Sqrt)
C1_C3(QVP_UNARY, qvpiLn, 32f, Logarithm)
C1_C3(QVP_UNARY, qvpiExp, 32f, Exponent)
