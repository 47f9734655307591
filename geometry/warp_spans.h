// Which columns of a row take something from the image, and which need no test.
#pragma once

#include "geometry/sample_rim.h"
#include "geometry/warp_points.h"

namespace qvp::warp {

// The first of columns [0, n) with a property that all columns behind it have too, or n. A close guess saves the
// search.
template <class Property>
ptrdiff_t FirstWith(ptrdiff_t n, double guess, const Property& has) {
  const auto near = static_cast<ptrdiff_t>(guess >= 0 ? std::min(guess, static_cast<double>(n - 1)) : 0);
  Span open{0, n};
  const auto probe = [&](ptrdiff_t x) {
    if (x < open.first || x >= open.end) return;
    if (has(x)) open.end = x;
    if (open.end != x) open.first = x + 1;
  };
  for (const ptrdiff_t x : {near + 1, near}) probe(x);
  while (open.first < open.end) probe(open.first + (open.end - open.first) / 2);
  return open.first;
}

// The columns of n, counted from column `x`, whose coordinates lie in the interval. The line is finite there. Its ends
// tell which bounds it crosses at all.
inline Span SpanOf(const Line& line, const Interval& interval, double x, ptrdiff_t n) {
  const double sign = line.a >= 0 ? 1 : -1;
  const double enter = line.a >= 0 ? interval.low : -interval.high, leave = line.a >= 0 ? interval.high : -interval.low;
  const auto guess = [&](double value) { return (value * sign - line.b - line.c) / line.a - x; };
  const auto at = [&](ptrdiff_t i) { return sign * line.At(x + static_cast<double>(i)); };
  const double begin = at(0), last = at(n - 1);
  Span span{0, n};
  if (begin < enter)
    span.first = last < enter ? n : FirstWith(n, guess(enter), [&](ptrdiff_t i) { return at(i) >= enter; });
  if (last > leave)
    span.end = begin > leave ? 0 : FirstWith(n, guess(leave), [&](ptrdiff_t i) { return at(i) > leave; });
  return {span.first, std::max(span.first, span.end)};
}

inline Span SpanOf(const AffinePoints& points, const PointBox& box, ptrdiff_t n) {
  const Span a = SpanOf(points.u, box.u, points.columns.first, n), b = SpanOf(points.v, box.v, points.columns.first, n);
  const ptrdiff_t first = std::max(a.first, b.first);
  return {first, std::max(first, std::min(a.end, b.end))};
}

// The box without its rim, where rounding may lead a point out of it.
inline constexpr double kSafeRim = 1.0 / (1 << 20);
inline PointBox SafeBox(const PointBox& box) {
  return {{box.u.low + kSafeRim, box.u.high - kSafeRim}, {box.v.low + kSafeRim, box.v.high - kSafeRim}};
}

// The columns that need not be tested, among those that may take something from the image.
struct Spans {
  Span touching, inside;
};

template <int kTaps, class T>
Spans SpansOf(const Task<T>& task, const PointBox& inner, const AffinePoints& points, ptrdiff_t n) {
  const Area& area = task.area;
  const double begin = points.columns.first, last = begin + static_cast<double>(n - 1);
  const double ends = (points.u.At(begin) + points.v.At(begin)) + (points.u.At(last) + points.v.At(last));
  Spans spans{{0, n}, {n, n}};
  if (!(ends - ends == 0)) return spans;
  if (IsBeyondKnown(area)) {
    spans.touching = SpanOf(points, TouchingBox<kTaps>(area), n);
  }
  const Span inside = SpanOf(points, inner, n);
  spans.inside = inside.first < inside.end ? inside : Span{spans.touching.end, spans.touching.end};
  return spans;
}

}  // namespace qvp::warp
