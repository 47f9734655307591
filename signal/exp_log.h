// Exponent and natural logarithm of float and double lanes. One text for all builds, of operations that every CPU
// rounds alike, so that all of them give the same bits.
#pragma once

#include <array>
#include <limits>

#include "base/simd.h"

namespace qvp {

// What depends on the width of the lanes. ln 2 is split so that its upper part times any exponent is exact. The
// exponent's coefficients, from the highest power down, are those of (e^r - 1 - r) / r^2 on |r| <= ln(2) / 2: the
// polynomial of the smallest error for float lanes (2^-28 of the result, by Lawson's method), the power series for
// double lanes (2^-57).
template <class F>
struct ElementaryTraits;
template <>
struct ElementaryTraits<float> {
  static constexpr int kMantissaBits = 23, kBias = 127, kLnTerms = 4;
  static constexpr float kLn2Upper = 0x1.62ep-1f, kLn2Lower = 0x1.0bfbe8p-15f;
  static constexpr uint32_t kRootHalf = 0x3F3504F3;
  static constexpr float kExp[] = {0x1.6db41p-10f, 0x1.123b46p-7f, 0x1.55545ep-5f, 0x1.55548ep-3f, 0.5f};
};
template <>
struct ElementaryTraits<double> {
  static constexpr int kMantissaBits = 52, kBias = 1023, kLnTerms = 10;
  static constexpr double kLn2Upper = 0x1.62e42fefa38p-1, kLn2Lower = 0x1.ef35793c7673p-45;
  static constexpr uint64_t kRootHalf = 0x3FE6A09E667F3BCD;
  static constexpr double kExp[] = {1 / 6227020800.0, 1 / 479001600.0, 1 / 39916800.0, 1 / 3628800.0,
                                    1 / 362880.0,     1 / 40320.0,     1 / 5040.0,     1 / 720.0,
                                    1 / 120.0,        1 / 24.0,        1 / 6.0,        1 / 2.0};
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

// e^r for |r| <= ln(2) / 2.
template <class V>
HWY_INLINE V ExpNearZero(V r) {
  const hn::DFromV<V> d;
  using Traits = ElementaryTraits<hn::TFromD<decltype(d)>>;
  V sum = hn::Set(d, Traits::kExp[0]);
  for (size_t i = 1; i < std::size(Traits::kExp); ++i) sum = hn::Add(hn::Mul(sum, r), hn::Set(d, Traits::kExp[i]));
  return hn::Add(hn::Add(hn::Mul(hn::Mul(sum, r), r), r), hn::Set(d, hn::TFromD<decltype(d)>{1}));
}

// The nearest integer to x / ln(2), and e^r for what then is left of x, of float lanes.
template <class V>
HWY_INLINE V ReducedExp(V x, V& n) {
  const hn::DFromV<V> d;
  using Traits = ElementaryTraits<float>;
  n = hn::Round(hn::Mul(x, hn::Set(d, 0x1.715476p+0f)));
  const V upper = hn::Sub(x, hn::Mul(n, hn::Set(d, Traits::kLn2Upper)));
  return ExpNearZero(hn::Sub(upper, hn::Mul(n, hn::Set(d, Traits::kLn2Lower))));
}

// e^x of any float: beyond the bounds the result is infinite or zero; the power goes in as two factors, since 2^n alone
// leaves the normal numbers first. NaN stays NaN.
template <class V>
HWY_INLINE V ExpOfAny(V x) {
  const hn::DFromV<V> d;
  V n;
  const V exp = ReducedExp(hn::Min(hn::Max(x, hn::Set(d, -104.0f)), hn::Set(d, 89.0f)), n);
  const V half = hn::Floor(hn::Mul(n, hn::Set(d, 0.5f)));
  const V result = hn::Mul(hn::Mul(exp, PowerOfTwo(half)), PowerOfTwo(hn::Sub(n, half)));
  return hn::IfThenElse(hn::IsNaN(x), hn::Add(x, x), result);
}

// e^x = 2^n e^r of float lanes. Where the power is a normal number the two ways give the same bits.
template <class V>
HWY_INLINE V Exp(V x) {
  const hn::DFromV<V> d;
  const auto isNormal = hn::Lt(hn::Abs(x), hn::Set(d, 87.0f));
  if (HWY_UNLIKELY(!hn::AllTrue(d, isNormal))) return ExpOfAny(x);
  V n;
  const V exp = ReducedExp(x, n);
  return hn::Mul(exp, PowerOfTwo(n));
}

// e^x of float lanes for any x <= 0, to 1.3e-7 and with 1 for 0; below -87 it is 0. NaN stays NaN. The sum whose lowest
// bits are the exponent n rounds x / ln(2) to it, and 2^r is taken for what is left, |r| <= 1/2: its polynomial has the
// smallest error, 2^-23 of the result, by Lawson's method.
template <class V>
HWY_INLINE V ExpOfDecay(V x) {
  const hn::DFromV<V> d;
  using Traits = ElementaryTraits<float>;
  constexpr float kUnit = static_cast<float>(1 << Traits::kMantissaBits) + Traits::kBias;
  constexpr float kPowers[] = {0x1.5bba14p-10f, 0x1.3cea88p-7f, 0x1.c6b752p-5f, 0x1.ebf9bcp-3f, 0x1.62e42ap-1f, 1};
  const V t = hn::Mul(x, hn::Set(d, 0x1.715476p+0f)), sum = hn::Add(t, hn::Set(d, kUnit)),
          r = hn::Sub(t, hn::Sub(sum, hn::Set(d, kUnit)));
  V power = hn::Set(d, kPowers[0]);
  for (size_t i = 1; i < std::size(kPowers); ++i) power = hn::Add(hn::Mul(power, r), hn::Set(d, kPowers[i]));
  const hn::RebindToUnsigned<decltype(d)> bits;
  const V whole = hn::BitCast(d, hn::ShiftLeft<Traits::kMantissaBits>(hn::BitCast(bits, sum)));
  return hn::IfThenZeroElse(hn::Lt(x, hn::Set(d, -87.0f)), hn::Mul(power, whole));
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

// e^x of double lanes for any x <= 0, to a part in 2^51; below e^-700 it is 0.
template <class V>
HWY_INLINE V ExpOfNegative(V x) {
  const hn::DFromV<V> d;
  using Traits = ElementaryTraits<double>;
  const V bounded = hn::Max(x, hn::Set(d, -700.0));
  const V n = hn::Round(hn::Mul(bounded, hn::Set(d, 0x1.71547652b82fep+0)));
  const V upper = hn::Sub(bounded, hn::Mul(n, hn::Set(d, Traits::kLn2Upper)));
  const V result = hn::Mul(ExpNearZero(hn::Sub(upper, hn::Mul(n, hn::Set(d, Traits::kLn2Lower)))), PowerOfTwo(n));
  return hn::IfThenElseZero(hn::Ge(x, hn::Set(d, -700.0)), result);
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
  for (int k = Traits::kLnTerms - 1; k >= 1; --k) sum = hn::Add(hn::Mul(sum, s2), hn::Set(d, F{2} / (2 * k + 1)));
  const V less = hn::Sub(hn::Mul(s, hn::Sub(f, hn::Mul(sum, s2))), hn::Mul(e, hn::Set(d, Traits::kLn2Lower)));
  return hn::Add(hn::Mul(e, hn::Set(d, Traits::kLn2Upper)), hn::Sub(f, less));
}

// Logarithm of positive normal numbers x = 2^e (1 + f), divided by 2^e0 first. The distance of x from sqrt(1/2), as
// integers, has e above the mantissa.
template <class V>
HWY_INLINE V LnOfNormal(V x, V e0) {
  const hn::DFromV<V> d;
  using F = hn::TFromD<decltype(d)>;
  using Traits = ElementaryTraits<F>;
  const hn::RebindToUnsigned<decltype(d)> bits;
  using Word = hn::TFromD<decltype(bits)>;
  constexpr F kUnit = static_cast<F>(uint64_t{1} << Traits::kMantissaBits);
  constexpr Word kOne = Word{1} << Traits::kMantissaBits;
  // With the bias added, so that it is not negative.
  const auto distance = hn::Sub(hn::BitCast(bits, x), hn::Set(bits, Traits::kRootHalf - Traits::kBias * kOne));
  const auto exponent = hn::Or(hn::ShiftRight<Traits::kMantissaBits>(distance), hn::BitCast(bits, hn::Set(d, kUnit)));
  const auto mantissa = hn::Add(hn::And(distance, hn::Set(bits, kOne - 1)), hn::Set(bits, Traits::kRootHalf));
  const V e = hn::Sub(hn::BitCast(d, exponent), hn::Add(e0, hn::Set(d, kUnit + Traits::kBias)));
  return LnOfParts(e, hn::Sub(hn::BitCast(d, mantissa), hn::Set(d, F{1})));
}

// Natural logarithm of any number: of 0 minus infinity, of less NaN; infinity and NaN stay.
template <class V>
HWY_INLINE V LnOfAny(V x) {
  const hn::DFromV<V> d;
  using F = hn::TFromD<decltype(d)>;
  using Limits = std::numeric_limits<F>;
  constexpr int kUp = ElementaryTraits<F>::kMantissaBits + 1;
  const auto isSmall = hn::Lt(x, hn::Set(d, Limits::min()));
  const V lifted = hn::IfThenElse(isSmall, hn::Mul(x, hn::Set(d, static_cast<F>(uint64_t{1} << kUp))), x);
  const V result = LnOfNormal(lifted, hn::IfThenElseZero(isSmall, hn::Set(d, F{kUp})));
  const V below =
      hn::IfThenElse(hn::Eq(x, hn::Zero(d)), hn::Set(d, -Limits::infinity()), hn::Set(d, Limits::quiet_NaN()));
  const V special = hn::IfThenElse(hn::Le(x, hn::Zero(d)), below, hn::Add(x, x));
  const auto isRegular = hn::And(hn::Gt(x, hn::Zero(d)), hn::Lt(x, hn::Set(d, Limits::infinity())));
  return hn::IfThenElse(isRegular, result, special);
}

// The same; numbers that are all positive and normal need less, and get the same bits.
template <class V>
HWY_INLINE V Ln(V x) {
  const hn::DFromV<V> d;
  using Limits = std::numeric_limits<hn::TFromD<decltype(d)>>;
  const auto isNormal = hn::And(hn::Ge(x, hn::Set(d, Limits::min())), hn::Lt(x, hn::Set(d, Limits::infinity())));
  if (HWY_UNLIKELY(!hn::AllTrue(d, isNormal))) return LnOfAny(x);
  return LnOfNormal(x, hn::Zero(d));
}

}  // namespace qvp
