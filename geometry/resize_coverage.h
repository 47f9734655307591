// What a destination position covers of the source when areas are averaged.
#pragma once

#include "geometry/resize_record.h"

namespace qvp::resize {

// Source pixels along an axis, with the part that is covered of the first one, of each of the `whole` ones behind it,
// and, if that is not 0, of one more at the end. On grids that are not shifted the parts are whole numbers, in units of
// 1 / q pixels, else numbers of pixels.
struct Coverage {
  ptrdiff_t first, whole;
  double begin, each, end;

  ptrdiff_t Pixels() const { return 1 + whole + (end > 0); }
  // What is covered of the pixel k behind the first.
  double Part(ptrdiff_t k) const { return k == 0 ? begin : k <= whole ? each : k == whole + 1 ? end : 0; }
  double Total() const { return begin + each * static_cast<double>(whole) + end; }
};

// Position d covers [d p, (d + 1) p) in units of 1 / q.
inline Coverage PeriodicCoverage(const ResizeAxis& axis, ptrdiff_t d) {
  const int64_t p = axis.p, q = axis.q, at = d % q * p;
  const int64_t begin = std::min(q - at % q, p), rest = p - begin;
  return {static_cast<ptrdiff_t>(d / q * p + at / q), static_cast<ptrdiff_t>(rest / q), static_cast<double>(begin),
          static_cast<double>(q), static_cast<double>(rest % q)};
}

// That of the next position, for areas of few pixels: without a division.
inline Coverage Next(const ResizeAxis& axis, const Coverage& coverage) {
  const int64_t p = axis.p, q = axis.q, used = static_cast<int64_t>(coverage.end);
  const int64_t begin = std::min(q - used, p);
  int64_t rest = p - begin, whole = 0;
  while (rest >= q) rest -= q, ++whole;
  return {coverage.first + 1 + coverage.whole, static_cast<ptrdiff_t>(whole), static_cast<double>(begin),
          static_cast<double>(q), static_cast<double>(rest)};
}

// A part of less than this is none.
inline constexpr double kLeastPart = 0.0000001;

inline Coverage ShiftedCoverage(const ResizeAxis& axis, ptrdiff_t d, double shift) {
  const Interval interval = CoveredBy(axis, static_cast<double>(d), 1, shift);
  const ptrdiff_t first = std::min<ptrdiff_t>(FirstOf(interval), axis.source - 1);
  const ptrdiff_t last = std::min<ptrdiff_t>(std::max(EndOf(interval), first + 1), axis.source) - 1;
  const double begin = static_cast<double>(first + 1) - interval.begin, end = interval.end - static_cast<double>(last);
  if (first == last) return {first, 0, 1, 1, 0};
  if (begin > kLeastPart) return {first, last - first - 1, begin, 1, end > kLeastPart ? end : 0};
  if (first + 1 == last) return {last, 0, 1, 1, 0};
  return {first + 1, last - first - 2, 1, 1, end > kLeastPart ? end : 0};
}

inline Coverage CoverageOf(const ResizeRecord& record, const ResizeAxis& axis, ptrdiff_t d) {
  if (!record.IsShifted()) return PeriodicCoverage(axis, d);
  return ShiftedCoverage(axis, d, record.Shift(&axis == &record.columns ? 0 : 1));
}

}  // namespace qvp::resize
