// Sine and cosine of fractions of a turn, for tables: one text for all builds, of operations that every CPU rounds
// alike.
#pragma once

#include <cstdint>

namespace qvp {

struct SinCos {
  double sin, cos;
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

}  // namespace qvp
