// Quotients of two images, or of an image and a constant.
#include "arith/scale.h"
#include "base/check.h"
#include "base/export.h"
#include "base/pixelwise.h"
#include "base/round.h"

namespace {
using namespace qvp;

// Whether quotients in single precision, scaled and rounded in any mode, are the exact ones'. A quotient b / a that is
// no integer or tie differs from these by 1 / 2a or more, or by 2^(scale-1) / a for a negative scale. That of 16 bits
// is rounded by less than 2^-8 / a. Bytes of any scale are exact, as results beyond 255 do not count.
inline bool IsExactInFloats(int scale) { return scale >= -6; }

// second / first * 2^-scale in lanes of F. A zero divisor gives an infinity, 0 / 0 a NaN, which saturates to 0 if
// unsigned and is replaced otherwise.
template <class T, class F, class Rounding>
auto QuotientKernel(int scale, const Rounding& rounding) {
  return [factor = ScaleFactor<F>(scale), rounding](auto a, auto b) HWY_ATTR {
    const hn::DFromV<decltype(a)> d;
    const auto quotient = rounding(hn::Mul(hn::Div(b, a), hn::Set(d, factor)));
    if constexpr (std::is_signed_v<T>) return hn::IfThenElseZero(hn::Ne(b, hn::Zero(d)), quotient);
    return quotient;
  };
}

// Calls then(d, kernel) with the lanes of d in which the kernel computes the quotient.
template <class T, class Rounding, class Then>
auto WithQuotientKernel(int scale, const Rounding& rounding, const Then& then) {
  if constexpr (sizeof(T) == 1)
    return then(hn::ScalableTag<T>(), InFloatLanes(QuotientKernel<T, float>(scale, rounding)));
  if (IsExactInFloats(scale)) return then(hn::ScalableTag<float>(), QuotientKernel<T, float>(scale, rounding));
  return then(hn::ScalableTag<double>(), QuotientKernel<T, double>(scale, rounding));
}

// second / first of bytes, to the nearest. Zero divisors become ones first, so that no quotient leaves the range.
template <class V>
HWY_INLINE V ByteQuotient(V a, V b) {
  const hn::ScalableTag<uint8_t> bytes;
  const auto divide = [](auto x, auto y) HWY_ATTR { return RoundToIntInRange(hn::Div(y, x)); };
  const auto isZero = hn::Eq(a, hn::Zero(bytes));
  const V quotient = ViaFloats(divide, hn::Sub(a, hn::VecFromMask(bytes, isZero)), b);
  return hn::IfThenElse(isZero, hn::VecFromMask(bytes, hn::Ne(b, hn::Zero(bytes))), quotient);
}

// Divisors come first.
struct Quotient {
  template <class V>
  HWY_INLINE V operator()(V a, V b) const {
    return hn::Div(b, a);
  }
};

// Whether a lane is set; with kKeepAlpha, one of the first three of four.
template <bool kKeepAlpha, class D>
HWY_INLINE bool IsAny(D d, hn::Mask<D> lanes) {
  if constexpr (kKeepAlpha) lanes = hn::AndNot(FourthLanes(d, 0), lanes);
  return !hn::AllFalse(d, lanes);
}

// Whether an element is zero; with kKeepAlpha, one of the first three of four.
template <bool kKeepAlpha, class T>
bool ContainsZero(const T* elements, ptrdiff_t n) {
  const hn::ScalableTag<T> d;
  constexpr ptrdiff_t kLanes = hn::MaxLanes(d);
  const auto zerosAt = [&](const T* at) HWY_ATTR { return hn::VecFromMask(d, hn::Eq(hn::LoadU(d, at), hn::Zero(d))); };
  if (n < kLanes) {
    T staged[kLanes];
    std::fill_n(staged, kLanes, T{1});
    std::memcpy(staged, elements, n * sizeof(T));
    return ContainsZero<kKeepAlpha>(staged, kLanes);
  }
  auto zeros = hn::Zero(d);
  ForEachVector<kLanes>(n, [&](ptrdiff_t i) HWY_ATTR { zeros = hn::Or(zeros, zerosAt(elements + i)); });
  return IsAny<kKeepAlpha>(d, hn::MaskFromVec(zeros));
}

// The quotients of a row of floats, and whether a divisor was zero: dividing takes long enough to look at once.
template <bool kKeepAlpha>
HWY_INLINE bool DivideFloatRow(float* to, ptrdiff_t n, const float* divisors, const float* dividends) {
  const hn::ScalableTag<float> d;
  if (n < static_cast<ptrdiff_t>(hn::MaxLanes(d))) {
    const bool containsZero = ContainsZero<kKeepAlpha>(divisors, n);
    MapRow<kKeepAlpha>(d, to, n, Quotient(), divisors, dividends);
    return containsZero;
  }
  auto zeros = hn::Zero(d);
  const auto divide = [&](auto a, auto b) HWY_ATTR {
    zeros = hn::Or(zeros, hn::VecFromMask(d, hn::Eq(a, hn::Zero(d))));
    return Quotient()(a, b);
  };
  MapRow<kKeepAlpha>(d, to, n, divide, divisors, dividends);
  return IsAny<kKeepAlpha>(d, hn::MaskFromVec(zeros));
}

// Divides and returns whether a divisor was zero. Divisors are looked through piece by piece while they are in the
// first-level cache, and before a result in the same place replaces them.
template <bool kKeepAlpha, class D, class Kernel, class T>
bool DivideRows(D d, const Kernel& kernel, Size roi, const Image<const T>& a, const Image<const T>& b,
                const Image<T>& dst) {
  constexpr ptrdiff_t kPiece = kPieceBytes / ptrdiff_t{sizeof(T)};
  bool foundZero = false;
  const auto row = [&](ptrdiff_t n, T* to, const T* divisors, const T* dividends) HWY_ATTR {
    const Kernel own = kernel;
    for (ptrdiff_t i = 0; i < n; i += kPiece) {
      const ptrdiff_t piece = std::min(kPiece, n - i);
      foundZero |= ContainsZero<kKeepAlpha>(divisors + i, piece);
      MapRow<kKeepAlpha>(d, to + i, piece, own, divisors + i, dividends + i);
    }
  };
  ForEachPiece(roi, row, dst, a, b);
  return foundZero;
}

template <class D, class Kernel, class T>
QvpStatus DivideImages(D d, const Kernel& kernel, Size roi, const Image<const T>& a, const Image<const T>& b,
                       const Image<T>& dst) {
  const bool foundZero = KeepsAlpha(dst.layout) ? DivideRows<true>(d, kernel, roi, a, b, dst)
                                                : DivideRows<false>(d, kernel, roi, a, b, dst);
  return foundZero ? qvpStatusDivideByZero : qvpStatusNoError;
}

template <class T>
QvpStatus DivideRounded(const Image<const T>& a, const Image<const T>& b, const Image<T>& dst, Size roi,
                        QvpRoundMode mode, int scale) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {a, b, dst})) return failed;
  if (!IsRoundMode(mode)) return qvpStatusRoundMode;
  return WithRounding(mode, [&](const auto& rounding) {
    return WithQuotientKernel<T>(scale, rounding,
                                 [&](auto d, const auto& kernel) { return DivideImages(d, kernel, roi, a, b, dst); });
  });
}

template <class T>
QvpStatus Divide(const Image<const T>& a, const Image<const T>& b, const Image<T>& dst, Size roi, int scale) {
  if constexpr (sizeof(T) == 1) {
    if (scale == 0) {
      if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {a, b, dst})) return failed;
      const auto kernel = [](auto x, auto y) HWY_ATTR { return ByteQuotient(x, y); };
      return DivideImages(hn::ScalableTag<T>(), kernel, roi, a, b, dst);
    }
  }
  return DivideRounded(a, b, dst, roi, qvpRoundNear, scale);
}

QvpStatus DivideFloats(const Image<const float>& a, const Image<const float>& b, const Image<float>& dst, Size roi) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {a, b, dst})) return failed;
  const auto divide = [&](auto keepAlpha) {
    bool foundZero = false;
    const auto row = [&](ptrdiff_t n, float* to, const float* divisors, const float* dividends) HWY_ATTR {
      foundZero |= DivideFloatRow<decltype(keepAlpha)::value>(to, n, divisors, dividends);
    };
    ForEachPiece(roi, row, dst, a, b);
    return foundZero ? qvpStatusDivideByZero : qvpStatusNoError;
  };
  return KeepsAlpha(dst.layout) ? divide(std::true_type()) : divide(std::false_type());
}

template <class T>
bool ContainsZeroConstant(const T* values, Layout layout) {
  for (int c = 0; c < ProcessedChannels(layout); ++c) {
    T value;
    std::memcpy(&value, values + c, sizeof(T));
    if (value == 0) return true;
  }
  return false;
}

template <class T>
QvpStatus DivideBy(const T* values, const Image<const T>& src, const Image<T>& dst, Size roi, int scale = 0) {
  if (const QvpStatus failed = Validate<kPointers, kSize, kSteps>(roi, {src, dst}, {values})) return failed;
  if (ContainsZeroConstant(values, dst.layout)) return qvpStatusDivideByZeroError;
  if constexpr (std::is_integral_v<T>) {
    WithRounding(qvpRoundNear, [&](const auto& rounding) {
      WithQuotientKernel<T>(scale, rounding,
                            [&](auto d, const auto& kernel) { MapImagesWith(d, kernel, roi, values, dst, src); });
    });
  } else {
    MapImagesWith(hn::ScalableTag<T>(), Quotient(), roi, values, dst, src);
  }
  return qvpStatusNoError;
}

}  // namespace

#define DIV_SFS(type)                                                        \
  QVP_C1_C3_C4_AC4(QVP_BINARY_SFS, qvpiDiv, type, Divide)                    \
  QVP_C1_C3_C4_AC4(QVP_BINARY_ROUND_SFS, qvpiDiv_Round, type, DivideRounded) \
  QVP_C1_C3_C4_AC4(QVP_CONSTANT_SFS, qvpiDivC, type, DivideBy)
DIV_SFS(8u)
DIV_SFS(16u)
DIV_SFS(16s)

QVP_C1_C3_C4_AC4(QVP_BINARY, qvpiDiv, 32f, DivideFloats)
QVP_C1_C3_C4_AC4(QVP_CONSTANT, qvpiDivC, 32f, DivideBy)
