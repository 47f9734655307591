// The continuous kernels that the weights of interpolation are taken from.
#pragma once

#include <array>
#include <cstdint>

#include "qvptypes.h"

namespace qvp {

// sin(pi t) for t = i / n by the power series, on at most a quarter of a turn. Evaluated by the compiler.
constexpr double SineOfPi(int i, int n) {
  i %= 2 * n;
  if (i > n) return -SineOfPi(i - n, n);
  if (2 * i > n) return SineOfPi(n - i, n);
  const double x = 3.14159265358979323846 * i / n;
  double term = x, sum = 0;
  for (int k = 1; k < 30; k += 2) {
    sum += term;
    term *= -x * x / ((k + 1) * (k + 2));
  }
  return sum;
}

// L(t) = sinc(t) sinc(t / lobes) at t = i / kPerUnit, up to the last lobe's end, and a zero.
template <int kLobes, int kPerUnit>
constexpr auto LanczosTable() {
  constexpr int kEnd = kLobes * kPerUnit;
  std::array<double, kEnd + 2> table{};
  table[0] = 1;
  for (int i = 1; i < kEnd; ++i) {
    if (i % kPerUnit == 0) continue;
    const double x = 3.14159265358979323846 * i / kPerUnit;
    table[i] = SineOfPi(i, kPerUnit) * SineOfPi(i, kEnd) * kLobes / (x * x);
  }
  return table;
}

inline constexpr int kPerUnitOf2 = 200, kPerUnitOf3 = 100;
inline constexpr auto kLanczos2 = LanczosTable<2, kPerUnitOf2>();
inline constexpr auto kLanczos3 = LanczosTable<3, kPerUnitOf3>();

// A table at a place between its entries, 0 from `end` on.
inline double Interpolated(const double* table, int end, double place) {
  if (!(place < end)) return 0;
  const auto i = static_cast<int>(place);
  return table[i] + (table[i + 1] - table[i]) * (place - i);
}

// Mitchell, Netravali: Reconstruction filters in computer graphics (1988). B = 0, C = 0.5 is the Catmull-Rom spline.
struct CubicKernel {
  double b, c;

  // At distance t >= 0.
  double At(double t) const {
    if (t < 1) return ((2 - 1.5 * b - c) * t + (-3 + 2 * b + c)) * t * t + (1 - b / 3);
    if (t < 2) return (((-b / 6 - c) * t + (b + 5 * c)) * t + (-2 * b - 8 * c)) * t + (4 * b / 3 + 4 * c);
    return 0;
  }
};

// The same as the weights of the four pixels around a position, which are polynomials of its fraction f: expanded for
// the distances f + 1, f, 1 - f and 2 - f.
template <class W>
struct CubicPolynomials {
  W of[4][4] = {};  // coefficients of 1, f, f^2, f^3

  CubicPolynomials() = default;
  CubicPolynomials(double b, double c) {
    const double exact[4][4] = {{b / 6, -b / 2 - c, b / 2 + 2 * c, -b / 6 - c},
                                {1 - b / 3, 0, -3 + 2 * b + c, 2 - 1.5 * b - c},
                                {b / 6, b / 2 + c, 3 - 2.5 * b - 2 * c, -2 + 1.5 * b + c},
                                {0, 0, -c, b / 6 + c}};
    for (int k = 0; k < 16; ++k) of[k / 4][k % 4] = static_cast<W>(exact[k / 4][k % 4]);
  }
};

// sinc(t) sinc(t / lobes), interpolated linearly between the entries of a table.
struct LanczosKernel {
  uint32_t lobes;  // 2 or 3

  // At distance t >= 0.
  double At(double t) const {
    return lobes == 2 ? Interpolated(kLanczos2.data(), 2 * kPerUnitOf2, t * kPerUnitOf2)
                      : Interpolated(kLanczos3.data(), 3 * kPerUnitOf3, t * kPerUnitOf3);
  }
};

// A kernel by its interpolation and parameters.
struct InterpolationKernel {
  QvpiInterpolationType interpolation;
  double b = 0, c = 0;
  uint32_t lobes = 0;

  // The distance from which on the kernel is 0.
  int Reach() const {
    if (interpolation == qvpInterpolationLinear) return 1;
    return interpolation == qvpInterpolationCubic ? 2 : static_cast<int>(lobes);
  }

  // At distance t >= 0.
  double At(double t) const {
    if (interpolation == qvpInterpolationLinear) return t < 1 ? 1 - t : 0;
    return interpolation == qvpInterpolationCubic ? CubicKernel{b, c}.At(t) : LanczosKernel{lobes}.At(t);
  }
};

}  // namespace qvp
