// Linear functions of the column along a row of the destination.
#pragma once

#include <array>
#include <cmath>

#include "geometry/sample_task.h"

namespace qvp::warp {

using namespace sampling;

// Columns [first, end).
struct Span {
  ptrdiff_t first, end;
};

// One linear function of the column x: (a x + b) + c. Each of its rounded steps is monotone in x, and so is the result.
struct Line {
  double a, b, c;

  // Of row y. The twist of a bilinear function turns the line from row to row; affine ones have 0.
  Line(const double (&coefficients)[3], double twist, ptrdiff_t y)
      : a(twist * static_cast<double>(y) + coefficients[0]),
        b(coefficients[1] * static_cast<double>(y)),
        c(coefficients[2]) {}

  double At(double x) const { return a * x + b + c; }

  // The same in other units, a power of two.
  Line Times(double units) const {
    Line line(*this);
    line.a *= units, line.b *= units, line.c *= units;
    return line;
  }

  // Whether no step before column x loses more than 2^-27 by rounding.
  static constexpr double kSmall = 1 << 24;
  bool IsSmall(double x) const { return std::fabs(a * x) < kSmall && std::fabs(b) < kSmall && std::fabs(c) < kSmall; }

  // No column up to x is farther from the exact value.
  double RoundingUpTo(double x) const { return (std::fabs(a * x) + std::fabs(b) + std::fabs(c)) * 0x1p-51; }

  template <class D, class V = hn::Vec<D>>
  HWY_INLINE V At(D d, V x) const {
    return hn::Add(hn::Add(hn::Mul(hn::Set(d, a), x), hn::Set(d, b)), hn::Set(d, c));
  }
};

// Columns from `first` on.
struct Columns {
  double first;

  template <class D>
  HWY_INLINE hn::Vec<D> Load(D d, ptrdiff_t i) const {
    static constexpr auto kNumbers = [] {
      std::array<double, kBlock> numbers{};
      for (int k = 0; k < kBlock; ++k) numbers[k] = k;
      return numbers;
    }();
    return hn::Add(hn::LoadU(d, kNumbers.data() + i), hn::Set(d, first));
  }
};

}  // namespace qvp::warp
