// Curves through levels, in double precision: steps, lines, and cubics that are monotone where the values are.
//
// The cubics are Hermite's with slopes that never overshoot: F. N. Fritsch and R. E. Carlson, "Monotone Piecewise Cubic
// Interpolation", 1980; the slopes by F. N. Fritsch and J. Butland, "A Method for Constructing Local Monotone Piecewise
// Cubic Interpolants", 1984.
#pragma once

#include "base/scalar.h"
#include "qvptypes.h"

namespace qvp::lookup {

// c0 + c1 u + c2 u^2 + c3 u^3 for u from 0 at a level to 1 at the next
struct Cubic {
  double c0, c1, c2, c3;
  double At(double u) const { return ((c3 * u + c2) * u + c1) * u + c0; }
};

class Curve {
 public:
  Curve(const float* levels, const float* values, int n, QvpiLookupMethod method)
      : levels_(levels), values_(values), n_(n), method_(method) {}

  int levels() const { return n_; }
  double X(ptrdiff_t k) const { return LoadScalar(levels_ + k); }
  double Y(ptrdiff_t k) const { return LoadScalar(values_ + k); }
  double Gap(ptrdiff_t k) const { return X(k + 1) - X(k); }

  // The curve between the levels k and k + 1; after the last one, its value.
  Cubic Between(ptrdiff_t k) const {
    if (k == n_ - 1 || method_ == qvpLookupStep) return {Y(k), 0, 0, 0};
    const double rise = Y(k + 1) - Y(k);
    if (method_ == qvpLookupLinear) return {Y(k), rise, 0, 0};
    const double a = Gap(k) * Slope(k), b = Gap(k) * Slope(k + 1);
    return {Y(k), a, (3 * rise - 2 * a) - b, (a + b) - 2 * rise};
  }

  // At v, where k is the last level that is not above it and `cubic` goes from there on. A line multiplies first: of
  // levels and values that are whole numbers below 2^17, that is the exact quotient but for one rounding.
  double At(double v, ptrdiff_t k, const Cubic& cubic) const {
    if (k == n_ - 1 || method_ == qvpLookupStep) return cubic.c0;
    if (method_ == qvpLookupLinear) return cubic.c0 + ((v - X(k)) * cubic.c1) / Gap(k);
    return cubic.At((v - X(k)) / Gap(k));
  }

 private:
  double Steepness(ptrdiff_t k) const { return (Y(k + 1) - Y(k)) / Gap(k); }

  static bool HaveOneSign(double a, double b) { return (a > 0 && b > 0) || (a < 0 && b < 0); }
  static double Magnitude(double a) { return a < 0 ? -a : a; }

  // Of the cubic at a level: a weighted harmonic mean of the steepness on both sides, 0 where they turn.
  double Slope(ptrdiff_t k) const {
    if (n_ == 2) return Steepness(0);
    if (k == 0) return EndSlope(Gap(0), Gap(1), Steepness(0), Steepness(1));
    if (k == n_ - 1) return EndSlope(Gap(k - 1), Gap(k - 2), Steepness(k - 1), Steepness(k - 2));
    const double before = Steepness(k - 1), after = Steepness(k);
    if (!HaveOneSign(before, after)) return 0;
    const double w1 = 2 * Gap(k) + Gap(k - 1), w2 = Gap(k) + 2 * Gap(k - 1);
    return (w1 + w2) / (w1 / before + w2 / after);
  }

  // Of the parabola through the three levels at an end, as far as the curve stays monotone; `near` is at the end.
  static double EndSlope(double nearGap, double farGap, double near, double far) {
    const double slope = ((2 * nearGap + farGap) * near - nearGap * far) / (nearGap + farGap);
    if (!HaveOneSign(slope, near)) return 0;
    return HaveOneSign(near, -far) && Magnitude(slope) > Magnitude(3 * near) ? 3 * near : slope;
  }

  const float *levels_, *values_;
  int n_;
  QvpiLookupMethod method_;
};

}  // namespace qvp::lookup
