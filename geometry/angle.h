// Sines and cosines of angles in degrees, in which whole right angles are exact.
#pragma once

#include <cmath>

namespace qvp::warp {

struct Rotation {
  double cosine, sine;
};

// The remainder of a non-negative number, exact: only multiples of the modulus times powers of two are subtracted.
inline double Remainder(double x, double modulus) {
  double m = modulus;
  while (m <= x / 2) m *= 2;
  for (; m >= modulus; m /= 2) x = x >= m ? x - m : x;
  return x;
}

// By the power series on half a right angle. Whole right angles are exact.
inline Rotation SmallRotation(double degrees) {
  const double x = degrees * (3.14159265358979323846 / 180), square = x * x;
  double sine = 0, cosine = 0;
  for (int k = 20; k > 0; k -= 2) {
    cosine = (1 - cosine) * square / (k * (k - 1));
    sine = (1 - sine) * square / (k * (k + 1));
  }
  return {1 - cosine, x * (1 - sine)};
}

inline Rotation RotationBy(double degrees) {
  const double angle = Remainder(std::fabs(degrees), 360);
  const int quarter = (static_cast<int>(angle / 45) + 1) / 2;  // the nearest one
  const Rotation r = SmallRotation(angle - 90.0 * quarter);
  const double cosines[] = {r.cosine, -r.sine, -r.cosine, r.sine};
  const double sine = cosines[(quarter + 3) % 4];
  return {cosines[quarter % 4], degrees < 0 ? -sine : sine};
}

}  // namespace qvp::warp
