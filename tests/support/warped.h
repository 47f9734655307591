// Values of an image between its pixels, by the formulas in double precision.
#pragma once

#include <algorithm>
#include <cmath>

#include "tests/support/reference.h"

namespace test {

struct Point {
  double u, v;
};

// What is known about a point's surroundings.
struct Rule {
  int taps = 1;
  double b = 0, c = 0.5;
  bool isConstant = false;
  double constant[4] = {7, 80, 200, 33};
};

inline double Weight(const Rule& rule, double t) {
  if (rule.taps == 2) return std::max(0.0, 1 - std::fabs(t));
  return rule.taps == 6 ? LanczosWeight(t, 3) : CubicWeight(t, rule.b, rule.c);
}

inline double PixelAt(const Samples& src, QvpiSize size, const Rule& rule, int channels, long x, long y, int c) {
  const int kind = rule.isConstant ? qvpBorderConst : qvpBorderReplicate;
  const int column = BorderPosition(kind, static_cast<int>(x), 0, size.width - 1);
  const int row = BorderPosition(kind, static_cast<int>(y), 0, size.height - 1);
  if (column == kConstant || row == kConstant) return rule.constant[c];
  return static_cast<double>(src(column * channels + c, row));
}

inline double ValueAt(const Samples& src, QvpiSize size, const Rule& rule, int channels, Point p, int c) {
  p = {std::clamp(p.u, -999.0, 999.0), std::clamp(p.v, -999.0, 999.0)};
  if (rule.taps == 1) {
    return PixelAt(src, size, rule, channels, std::lround(std::floor(p.u + 0.5)), std::lround(std::floor(p.v + 0.5)),
                   c);
  }
  const int before = rule.taps / 2 - 1;
  const long x = std::lround(std::floor(p.u)) - before, y = std::lround(std::floor(p.v)) - before;
  double sum = 0, weights = 0;
  for (long j = y; j < y + rule.taps; ++j) {
    for (long i = x; i < x + rule.taps; ++i) {
      const double w = Weight(rule, p.u - i) * Weight(rule, p.v - j);
      sum += w * PixelAt(src, size, rule, channels, i, j, c);
      weights += w;
    }
  }
  return rule.taps == 6 ? sum / weights : sum;
}

// An image of random numbers.
inline Samples Numbers(const Element& element, int samples, int height, int gap) {
  Samples image(element, samples, height, gap * element.bytes);
  Random random(5);
  if (!element.isInteger) image.Fill([&](int, int) { return random.Next() % 10000 / 16.0L; });
  return image;
}

// What a value becomes in an image, as a double.
inline double Stored(const Element& element, double value) { return static_cast<double>(Converted(element, value)); }

inline bool IsIn(Point p, QvpiSize s) { return p.u >= 0 && p.v >= 0 && p.u <= s.width - 1 && p.v <= s.height - 1; }

}  // namespace test
