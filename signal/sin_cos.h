// Sine and cosine of fractions of a turn: one text for all builds, of operations that every CPU rounds
// alike.
#pragma once

#include <cstdint>
#include <iterator>

#include "base/simd.h"

namespace qvp {

struct SinCos {
  double sin, cos;
};
template <class V>
struct SinCosLanes {
  V sin, cos;
};

// Of 2 pi x for x in [0, 1/8], by the power series, to a part in 2^52.
inline SinCos SinCosOfSmall(double x) {
  const double a = x * 0x1.921fb54442d18p+2, a2 = a * a;
  double sin = 0, cos = 0;
  for (int k = 18; k >= 2; k -= 2) {
    cos = (1 - cos) * a2 / (k * (k - 1));
    sin = (1 - sin) * a2 / (k * (k + 1));
  }
  return {a * (1 - sin), 1 - cos};
}

// Of 2 pi k / n for 0 <= k < n < 2^60. Reduced in whole numbers, so that what is 0, 1 or equal comes out exactly so.
inline SinCos SinCosOfTurn(int64_t k, int64_t n) {
  if (2 * k > n) {
    const SinCos mirrored = SinCosOfTurn(n - k, n);
    return {-mirrored.sin, mirrored.cos};
  }
  if (4 * k > n) {
    const SinCos beyond = SinCosOfTurn(4 * k - n, 4 * n);
    return {beyond.cos, -beyond.sin};
  }
  if (8 * k > n) {
    const SinCos other = SinCosOfTurn(n - 4 * k, 4 * n);
    return {other.cos, other.sin};
  }
  return SinCosOfSmall(static_cast<double>(k) / static_cast<double>(n));
}

// Of |x| <= pi / 4, by the power series of double lanes, to a part in 2^52.
template <class V>
HWY_INLINE V CosOfSmall(V x) {
  const hn::DFromV<V> d;
  constexpr double kTerms[] = {1 / 20922789888000.0, -1 / 87178291200.0, 1 / 479001600.0, -1 / 3628800.0,
                               1 / 40320.0,          -1 / 720.0,         1 / 24.0,        -1 / 2.0};
  const V x2 = hn::Mul(x, x);
  V sum = hn::Set(d, kTerms[0]);
  for (size_t i = 1; i < std::size(kTerms); ++i) sum = hn::Add(hn::Mul(sum, x2), hn::Set(d, kTerms[i]));
  return hn::Add(hn::Mul(sum, x2), hn::Set(d, 1.0));
}
template <class V>
HWY_INLINE V SinOfSmall(V x) {
  const hn::DFromV<V> d;
  constexpr double kTerms[] = {-1 / 1307674368000.0, 1 / 6227020800.0, -1 / 39916800.0, 1 / 362880.0,
                               -1 / 5040.0,          1 / 120.0,        -1 / 6.0};
  const V x2 = hn::Mul(x, x);
  V sum = hn::Set(d, kTerms[0]);
  for (size_t i = 1; i < std::size(kTerms); ++i) sum = hn::Add(hn::Mul(sum, x2), hn::Set(d, kTerms[i]));
  return hn::Add(hn::Mul(hn::Mul(sum, x2), x), x);
}

// Where the turn k / n lies, of double lanes that hold whole numbers, 0 <= k <= n < 2^50, n > 0. The same reduction: k
// becomes its distance to the nearer end, then to a quarter of a turn where that is nearer.
template <class V>
struct PlaceOnTurn {
  using Mask = decltype(hn::Lt(V(), V()));
  V x;  // the angle that is left, 0 to pi / 4
  Mask isBeyondHalf, isBeyondQuarter, isNearQuarter;

  HWY_INLINE PlaceOnTurn(V k, V n) {
    const hn::DFromV<V> d;
    constexpr double kPi = 0x1.921fb54442d18p+1;
    const V rest = hn::Sub(n, k), half = hn::Min(k, rest), twice = hn::Add(half, half), four = hn::Add(twice, twice);
    isBeyondHalf = hn::Lt(rest, k);
    isBeyondQuarter = hn::Gt(four, n);                                           // twice <= n
    const V folded = hn::IfThenElse(isBeyondQuarter, hn::Sub(n, twice), twice);  // pi folded / n is up to pi / 2
    const V left = hn::Sub(n, hn::Add(folded, folded));                          // pi left / 2n from there
    isNearQuarter = hn::Lt(left, folded);
    const V part = hn::IfThenElse(isNearQuarter, hn::Mul(left, hn::Set(d, 0.5)), folded);
    x = hn::Mul(hn::Div(part, n), hn::Set(d, kPi));
  }
  HWY_INLINE V Cos(V sinOfX, V cosOfX) const {
    const V cos = hn::IfThenElse(isNearQuarter, sinOfX, cosOfX);
    return hn::IfThenElse(isBeyondQuarter, hn::Neg(cos), cos);
  }
  HWY_INLINE V Sin(V sinOfX, V cosOfX) const {
    const V sin = hn::IfThenElse(isNearQuarter, cosOfX, sinOfX);
    return hn::IfThenElse(isBeyondHalf, hn::Neg(sin), sin);
  }
};

// cos(2 pi k / n), and the sine with it, of such lanes.
template <class V>
HWY_INLINE V CosOfTurn(V k, V n) {
  const PlaceOnTurn<V> place(k, n);
  return place.Cos(SinOfSmall(place.x), CosOfSmall(place.x));
}
template <class V>
HWY_INLINE SinCosLanes<V> SinCosOfTurns(V k, V n) {
  const PlaceOnTurn<V> place(k, n);
  const V sin = SinOfSmall(place.x), cos = CosOfSmall(place.x);
  return {place.Sin(sin, cos), place.Cos(sin, cos)};
}

// Of |x| <= pi / 4 as floats, by the polynomials of the smallest error, by Lawson's method.
template <class V>
HWY_INLINE SinCosLanes<V> SinCosOfSmallAngle(V x) {
  const hn::DFromV<V> d;
  constexpr float kSin[] = {-0x1.994eb4p-13f, 0x1.110760p-7f, -0x1.555546p-3f};
  constexpr float kCos[] = {0x1.9a025ap-16f, -0x1.6c0c8cp-10f, 0x1.55554ap-5f, -0.5f, 1};
  const V x2 = hn::Mul(x, x);
  V sin = hn::Set(d, kSin[0]), cos = hn::Set(d, kCos[0]);
  for (size_t i = 1; i < std::size(kSin); ++i) sin = hn::Add(hn::Mul(sin, x2), hn::Set(d, kSin[i]));
  for (size_t i = 1; i < std::size(kCos); ++i) cos = hn::Add(hn::Mul(cos, x2), hn::Set(d, kCos[i]));
  return {hn::Add(x, hn::Mul(x, hn::Mul(x2, sin))), cos};
}

// Of 2 pi q / 2^32 as floats, to 2^-23, for lanes of q. Quarters of a turn, to the nearest, are its two upper bits;
// what lies beyond them, with its sign, is what the others are once these are gone.
template <class Words>
HWY_INLINE auto SinCosOfTurn(Words q) {
  const hn::DFromV<Words> words;
  const hn::RebindToSigned<decltype(words)> ints;
  const hn::RebindToFloat<decltype(words)> d;
  using V = hn::Vec<decltype(d)>;
  const V x = hn::Mul(hn::ConvertTo(d, hn::BitCast(ints, hn::ShiftLeft<2>(q))), hn::Set(d, 0x1.921fb6p-32f));
  const SinCosLanes<V> small = SinCosOfSmallAngle(x);
  const auto quarter = hn::Add(q, hn::Set(words, 0x20000000u));  // its bits 31 and 30: 0 to 3
  const auto isOdd =
      hn::MaskFromVec(hn::BitCast(d, hn::BroadcastSignBit(hn::BitCast(ints, hn::ShiftLeft<1>(quarter)))));
  const auto sign = [&](auto bits) QVP_INLINED { return hn::And(hn::BitCast(d, bits), hn::SignBit(d)); };
  const V sin = hn::IfThenElse(isOdd, small.cos, small.sin), cos = hn::IfThenElse(isOdd, small.sin, small.cos);
  return SinCosLanes<V>{hn::Xor(sin, sign(quarter)), hn::Xor(cos, sign(hn::Add(quarter, hn::Set(words, 0x40000000u))))};
}

}  // namespace qvp
