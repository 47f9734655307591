// The guided filter (He, Sun, Tang 2013): around each pixel the source is a linear function of the guide, as near as
// the least squares of a mask make it; results are the means of these functions over the mask. See the public header
// for the formulas.
#pragma once

#include <array>

#include "base/unrolled.h"
#include "filter/exact_differences.h"

namespace qvp::filter {

// What is summed of pixels: a plane, or the product of a guide's plane and one that is not before it.
struct GuidedTerm {
  int first, second;  // -1: no product
};

// kGuides planes of the guide, 1 or 3, and behind them that of the source; of a single guide it may be the same.
template <class T, int kGuides_, int kPlanes_>
struct GuidedModel {
  static constexpr int kGuides = kGuides_, kPlanes = kPlanes_, kSource = kPlanes - 1;
  static constexpr int kTerms = kPlanes + kGuides * kPlanes - kGuides * (kGuides - 1) / 2;
  static constexpr int kCoefficients = kGuides + 1;

  static constexpr auto kTermTable = [] {
    std::array<GuidedTerm, kTerms> terms{};
    int q = 0;
    for (int i = 0; i < kPlanes; ++i) terms[q++] = {i, -1};
    for (int i = 0; i < kGuides; ++i) {
      for (int j = i; j < kPlanes; ++j) terms[q++] = {i, j};
    }
    return terms;
  }();

  // A factor for each guide, then the constant. Those for bytes are single precision, and all that is made of them.
  using Coefficient = std::conditional_t<std::is_same_v<T, uint8_t>, float, double>;
  using Sums = std::array<DoubleVector, kTerms>;
  using Coefficients = std::array<DoubleVector, kCoefficients>;

  double count, eps;  // eps (unit count)^2

  GuidedModel(double pixels, float relative) : count(pixels) {
    constexpr double kUnit = std::is_same_v<T, float> ? 1 : sizeof(T) == 1 ? 255 : 65535;
    eps = relative * ((kUnit * count) * (kUnit * count));
  }

  HWY_INLINE Coefficients Solve(const Sums& sums) const {
    Coefficients c;
    if constexpr (kGuides == 1) {
      c[0] = Quotient(Deviation<0, kSource>(sums), Variance<0>(sums));
    } else {
      SolveThree(sums, c);
    }
    auto rest = sums[kSource];
    Unrolled<kGuides>([&](auto i) QVP_INLINED {
      c[i] = AsCoefficient(c[i]);
      rest = hn::Sub(rest, hn::Mul(c[i], sums[i]));
    });
    c[kGuides] = hn::Div(rest, hn::Set(D(), count));
    return c;
  }

 private:
  using D = DoubleLanes;
  using V = DoubleVector;

  // count^2 times the covariance of two planes.
  template <int kFirst, int kSecond>
  HWY_INLINE V Deviation(const Sums& sums) const {
    constexpr int kProduct = kPlanes + kFirst * kPlanes - kFirst * (kFirst - 1) / 2 + kSecond - kFirst;
    if constexpr (sizeof(T) != 2) {
      return RealDifference(count, sums[kProduct], sums[kFirst], sums[kSecond]);
    } else {
      return RoundedSigned(WholeDifference(count, sums[kProduct], sums[kFirst], sums[kSecond]));
    }
  }
  template <int kGuide>
  HWY_INLINE V Variance(const Sums& sums) const {
    return hn::Add(Deviation<kGuide, kGuide>(sums), hn::Set(D(), eps));
  }

  // 0 unless the divisor is above 0.
  static HWY_INLINE V Quotient(V dividend, V divisor) {
    return hn::IfThenElseZero(hn::Gt(divisor, hn::Zero(D())), hn::Div(dividend, divisor));
  }

  static HWY_INLINE V AsCoefficient(V v) {
    const hn::Rebind<Coefficient, D> d;
    if constexpr (std::is_same_v<Coefficient, double>)
      return v;
    else
      return hn::PromoteTo(D(), hn::DemoteTo(d, v));
  }

  // The symmetric equations of three guides, by elimination: L D L' a = v.
  HWY_INLINE void SolveThree(const Sums& sums, Coefficients& a) const {
    const V d1 = Variance<0>(sums), m12 = Deviation<0, 1>(sums), m13 = Deviation<0, 2>(sums);
    const V l21 = Quotient(m12, d1), l31 = Quotient(m13, d1);
    const V d2 = Less(Variance<1>(sums), l21, m12), t = Less(Deviation<1, 2>(sums), l31, m12), l32 = Quotient(t, d2);
    const V d3 = Less(Less(Variance<2>(sums), l31, m13), l32, t);
    const V v1 = Deviation<0, kSource>(sums), z2 = Less(Deviation<1, kSource>(sums), l21, v1);
    const V z3 = Less(Less(Deviation<2, kSource>(sums), l31, v1), l32, z2);
    a[2] = Quotient(z3, d3);
    a[1] = Less(Quotient(z2, d2), l32, a[2]);
    a[0] = Less(Less(Quotient(v1, d1), l21, a[1]), l31, a[2]);
  }
  static HWY_INLINE V Less(V v, V a, V b) { return hn::Sub(v, hn::Mul(a, b)); }
};

}  // namespace qvp::filter
