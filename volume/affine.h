// Affine transforms in space.
#pragma once

#include <algorithm>
#include <cmath>

namespace qvp::volume {

struct Point {
  double x, y, z;
};

struct Affine {
  double c[3][4];

  Affine() = default;
  explicit Affine(const double (*coeffs)[4]) {
    for (int i = 0; i < 3; ++i) std::copy(coeffs[i], coeffs[i] + 4, c[i]);
  }
  void CopyTo(double (*coeffs)[4]) const {
    for (int i = 0; i < 3; ++i) std::copy(c[i], c[i] + 4, coeffs[i]);
  }

  double Of(int row, const Point& p) const {
    return (c[row][0] * p.x + c[row][1] * p.y) + (c[row][2] * p.z + c[row][3]);
  }

  bool IsFinite() const {
    for (const auto& row : c) {
      if (!std::all_of(row, row + 4, [](double x) { return std::isfinite(x); })) return false;
    }
    return true;
  }
  // Of the determinant: what the coefficient is multiplied by.
  double Cofactor(int row, int column) const {
    const int r1 = (row + 1) % 3, r2 = (row + 2) % 3, c1 = (column + 1) % 3, c2 = (column + 2) % 3;
    return c[r1][c1] * c[r2][c2] - c[r1][c2] * c[r2][c1];
  }
  double Determinant() const {
    return (c[0][0] * Cofactor(0, 0) + c[0][1] * Cofactor(0, 1)) + c[0][2] * Cofactor(0, 2);
  }
  // Whether it flattens space; also where a number is not finite.
  bool IsDegenerate() const {
    double product = 1;
    for (const auto& row : c) product *= (std::fabs(row[0]) + std::fabs(row[1])) + std::fabs(row[2]);
    return !(std::fabs(Determinant()) > 1e-10 * product);
  }
  // Of one that is not degenerate.
  Affine Inverse() const {
    Affine inverse;
    const double determinant = Determinant();
    for (int i = 0; i < 3; ++i) {
      double* const row = inverse.c[i];
      for (int j = 0; j < 3; ++j) row[j] = Cofactor(j, i) / determinant;
      row[3] = -((row[0] * c[0][3] + row[1] * c[1][3]) + row[2] * c[2][3]);
    }
    return inverse;
  }
};

}  // namespace qvp::volume
