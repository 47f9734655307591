// Rules that many families share, in the plainest form: what their results are compared with.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numbers>

#include "tests/support/element.h"

namespace test {

// To a whole number by a rounding mode; any other mode rounds ties away from zero.
inline Real Rounded(Real v, QvpRoundMode mode = qvpRoundNear) {
  return mode == qvpRoundZero ? std::trunc(v) : mode == qvpRoundNear ? std::nearbyint(v) : std::round(v);
}

// An exact value as an element: rounded and saturated for integers, of which a NaN makes the lowest.
inline Real Converted(const Element& element, Real v, QvpRoundMode mode = qvpRoundNear) {
  if (!element.isInteger) return element.Stored(v);
  return std::isnan(v) ? element.lowest : Rounded(std::clamp(v, element.lowest, element.highest), mode) + 0;  // no -0
}

// n / d as an element, by whole numbers.
inline Real Quotient(const Element& element, int64_t n, int64_t d, QvpRoundMode mode) {
  if (d < 0) n = -n, d = -d;
  const int64_t m = std::abs(n), whole = m / d, rest = m % d;
  const bool isUp =
      mode != qvpRoundZero && (2 * rest > d || (2 * rest == d && (mode == qvpRoundFinancial || whole % 2 == 1)));
  return std::clamp<Real>((n < 0 ? -1 : 1) * (whole + isUp), element.lowest, element.highest);
}

// The sum of n values in the order of a tree: powers of two from the largest on, each of two halves.
template <class F, class Value>
F TreeSum(int n, const Value& value, int at = 0) {
  if (n == 1) return value(at);
  const int first = (n & (n - 1)) == 0 ? n / 2 : 1 << (31 - __builtin_clz(n));
  const volatile F sum = TreeSum<F>(first, value, at) + TreeSum<F>(n - first, value, at + first);
  return sum;
}

// A kind besides those of QvpiBorderType: the image is repeated.
constexpr int kWrap = 2;
// What BorderPosition gives for the constant.
constexpr int kConstant = INT32_MIN;

// The position in [first, last] that stands for position i, step by step as far as it takes.
inline int BorderPosition(int kind, int i, int first, int last) {
  if (i >= first && i <= last) return i;
  if (kind == qvpBorderConst) return kConstant;
  if (kind != kWrap && (kind != qvpBorderMirror || first == last)) return std::clamp(i, first, last);
  const int n = last - first + 1;
  while (i < first || i > last) {
    i = kind == kWrap ? (i < first ? i + n : i - n) : i < first ? 2 * first - i : 2 * last - i;
  }
  return i;
}

// The weight of a pixel at distance t in cubic interpolation with parameters b and c.
inline double CubicWeight(double t, double b, double c) {
  t = std::fabs(t);
  if (t < 1) return (2 - 1.5 * b - c) * t * t * t + (-3 + 2 * b + c) * t * t + 1 - b / 3;
  return t < 2 ? (-b / 6 - c) * t * t * t + (b + 5 * c) * t * t - (2 * b + 8 * c) * t + 4 * b / 3 + 4 * c : 0;
}

// In Lanczos interpolation; not yet divided by the sum of all weights.
inline double LanczosWeight(double t, double lobes) {
  const auto sinc = [](double x) { return x == 0 ? 1 : std::sin(std::numbers::pi * x) / (std::numbers::pi * x); };
  return std::fabs(t) < lobes ? sinc(t) * sinc(t / lobes) : 0;
}

}  // namespace test
