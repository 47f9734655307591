// Exponent and natural logarithm of float and double lanes. One text for all builds, of operations that every CPU rounds
// alike, so that all of them give the same bits.
#pragma once

#include <limits>

#include "base/simd.h"

namespace qvp {

// What depends on the width of the lanes. ln 2 is split so that its upper part times any exponent is exact.
template <class F>
struct ElementaryTraits;
template <>
struct ElementaryTraits<float> {
  static constexpr int kMantissaBits = 23, kBias = 127, kExpTerms = 7, kLnTerms = 4;
  static constexpr float kLn2Upper = 0x1.62ep-1f, kLn2Lower = 0x1.0bfbe8p-15f;
  static constexpr uint32_t kRootHalf = 0x3F3504F3;
};
template <>
struct ElementaryTraits<double> {
  static constexpr int kMantissaBits = 52, kBias = 1023, kExpTerms = 13, kLnTerms = 10;
  static constexpr double kLn2Upper = 0x1.62e42fefa38p-1, kLn2Lower = 0x1.ef35793c7673p-45;
  static constexpr uint64_t kRootHalf = 0x3FE6A09E667F3BCD;
};

// 2^n for whole n within the exponents of normal numbers. The sum has n + bias as its lowest mantissa bits.
template <class V>
HWY_INLINE V PowerOfTwo(V n) {
  const hn::DFromV<V> d;
  using F = hn::TFromD<decltype(d)>;
  using Traits = ElementaryTraits<F>;
  const hn::RebindToUnsigned<decltype(d)> bits;
  constexpr F kUnit = static_cast<F>(uint64_t{1} << Traits::kMantissaBits) + Traits::kBias;
  return hn::BitCast(d, hn::ShiftLeft<Traits::kMantissaBits>(hn::BitCast(bits, hn::Add(n, hn::Set(d, kUnit)))));
}

// e^r for |r| <= ln(2) / 2: the power series, whose first missing term is below a quarter of the last bit.
template <class V>
HWY_INLINE V ExpNearZero(V r) {
  const hn::DFromV<V> d;
  using F = hn::TFromD<decltype(d)>;
  constexpr int kTerms = ElementaryTraits<F>::kExpTerms;
  constexpr auto kReciprocal = [](int k) {  // 1 / k!
    double product = 1;
    for (int i = 2; i <= k; ++i) product *= i;
    return static_cast<F>(1 / product);
  };
  V sum = hn::Set(d, kReciprocal(kTerms));
#pragma GCC unroll 16
  for (int k = kTerms - 1; k >= 2; --k) sum = hn::Add(hn::Mul(sum, r), hn::Set(d, kReciprocal(k)));
  return hn::Add(hn::Add(hn::Mul(hn::Mul(sum, r), r), r), hn::Set(d, F{1}));
}

// e^x = 2^n e^r with n the nearest integer to x / ln(2), of float lanes. Beyond the bounds the result is infinite or
// zero; the power goes in as two factors, since 2^n alone leaves the normal numbers first. NaN stays NaN.
template <class V>
HWY_INLINE V Exp(V x) {
  const hn::DFromV<V> d;
  using Traits = ElementaryTraits<float>;
  const V bounded = hn::Min(hn::Max(x, hn::Set(d, -104.0f)), hn::Set(d, 89.0f));
  const V n = hn::Round(hn::Mul(bounded, hn::Set(d, 0x1.715476p+0f)));
  const V upper = hn::Sub(bounded, hn::Mul(n, hn::Set(d, Traits::kLn2Upper)));
  const V r = hn::Sub(upper, hn::Mul(n, hn::Set(d, Traits::kLn2Lower)));
  const V half = hn::Floor(hn::Mul(n, hn::Set(d, 0.5f)));
  const V result = hn::Mul(hn::Mul(ExpNearZero(r), PowerOfTwo(half)), PowerOfTwo(hn::Sub(n, half)));
  return hn::IfThenElse(hn::Ne(x, x), hn::Add(x, x), result);
}

// e^x 2^-scale for whole |x| <= 65535, of double lanes, to a part in 2^50, where the result is between 2^-80 and 2^80;
// beyond, no smaller or no larger than those. The upper part of 1 / ln(2) has so few bits that x times it is exact.
template <class V>
HWY_INLINE V ScaledExp(V x, double scale) {
  const hn::DFromV<V> d;
  const V upper = hn::Sub(hn::Mul(x, hn::Set(d, 0x1.71547652p+0)), hn::Set(d, scale));
  const V bounded = hn::Min(hn::Max(upper, hn::Set(d, -80.0)), hn::Set(d, 80.0));
  const V n = hn::Round(bounded);
  const V rest = hn::Add(hn::Sub(bounded, n), hn::Mul(x, hn::Set(d, 0x1.705fc2eefa2p-33)));
  return hn::Mul(ExpNearZero(hn::Mul(rest, hn::Set(d, 0x1.62e42fefa39efp-1))), PowerOfTwo(n));
}

// ln(1 + f) = f - s (f - R) for sqrt(1/2) <= 1 + f < sqrt(2), with s = f / (2 + f) and
// R = 2 s^2 (1/3 + s^2/5 + s^4/7 + ...), the series of the inverse hyperbolic tangent; plus e ln(2).
template <class V>
HWY_INLINE V LnOfParts(V e, V f) {
  const hn::DFromV<V> d;
  using F = hn::TFromD<decltype(d)>;
  using Traits = ElementaryTraits<F>;
  const V s = hn::Div(f, hn::Add(f, hn::Set(d, F{2}))), s2 = hn::Mul(s, s);
  V sum = hn::Set(d, F{2} / (2 * Traits::kLnTerms + 1));
#pragma GCC unroll 16
  for (int k = Traits::kLnTerms - 1; k >= 1; --k) sum = hn::Add(hn::Mul(sum, s2), hn::Set(d, F{2} / (2 * k + 1)));
  const V less = hn::Sub(hn::Mul(s, hn::Sub(f, hn::Mul(sum, s2))), hn::Mul(e, hn::Set(d, Traits::kLn2Lower)));
  return hn::Add(hn::Mul(e, hn::Set(d, Traits::kLn2Upper)), hn::Sub(f, less));
}

// Logarithm of positive normal numbers, times 2^-e0: x = 2^e (1 + f), found by the distance of x from sqrt(1/2), as
// integers, in whole exponents.
template <class V>
HWY_INLINE V LnOfNormal(V x, V e0) {
  const hn::DFromV<V> d;
  using F = hn::TFromD<decltype(d)>;
  using Traits = ElementaryTraits<F>;
  const hn::RebindToUnsigned<decltype(d)> bits;
  constexpr F kUnit = static_cast<F>(uint64_t{1} << Traits::kMantissaBits);
  const auto root = hn::Set(bits, Traits::kRootHalf), one = hn::Set(bits, hn::TFromD<decltype(bits)>{1});
  // The distance with the bias added, so that it is not negative.
  const auto lift = hn::ShiftLeft<Traits::kMantissaBits>(hn::Set(bits, hn::TFromD<decltype(bits)>{Traits::kBias}));
  const auto distance = hn::Sub(hn::Add(hn::BitCast(bits, x), lift), root);
  const auto exponent = hn::ShiftRight<Traits::kMantissaBits>(distance);
  const V e = hn::Sub(hn::BitCast(d, hn::Or(exponent, hn::BitCast(bits, hn::Set(d, kUnit)))),
                      hn::Set(d, kUnit + Traits::kBias));
  const auto fraction = hn::And(distance, hn::Sub(hn::ShiftLeft<Traits::kMantissaBits>(one), one));
  const V f = hn::Sub(hn::BitCast(d, hn::Add(fraction, root)), hn::Set(d, F{1}));
  return LnOfParts(hn::Sub(e, e0), f);
}

// Natural logarithm: of 0 minus infinity, of less NaN.
template <class V>
HWY_INLINE V Ln(V x) {
  const hn::DFromV<V> d;
  using F = hn::TFromD<decltype(d)>;
  using Limits = std::numeric_limits<F>;
  using Traits = ElementaryTraits<F>;
  constexpr F kUp = static_cast<F>(uint64_t{1} << (Traits::kMantissaBits + 1));
  const auto isSmall = hn::Lt(x, hn::Set(d, Limits::min()));  // subnormal, or not positive
  const V normal = hn::IfThenElse(isSmall, hn::Mul(x, hn::Set(d, kUp)), x);
  const V result = LnOfNormal(normal, hn::IfThenElseZero(isSmall, hn::Set(d, F{Traits::kMantissaBits + 1})));
  const auto isRegular = hn::And(hn::Gt(x, hn::Zero(d)), hn::Lt(x, hn::Set(d, Limits::infinity())));
  if (HWY_LIKELY(hn::AllTrue(d, isRegular))) return result;
  const V atZero = hn::IfThenElse(hn::Eq(x, hn::Zero(d)), hn::Set(d, -Limits::infinity()), hn::Set(d, Limits::quiet_NaN()));
  const V special = hn::IfThenElse(hn::Le(x, hn::Zero(d)), atZero, hn::Add(x, x));  // infinity and NaN stay
  return hn::IfThenElse(isRegular, result, special);
}

}  // namespace qvp
