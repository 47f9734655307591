// Which columns of a row come from a box of the source of a bilinear map.
#pragma once

#include "geometry/warp_bilinear.h"
#include "geometry/warp_spans.h"

namespace qvp::warp {

// How far from its exact place, at most, rounding leads a point of the box that InverseRow finds. Coefficients of the
// equation A v^2 + B v + C = 0 are wrong by some units in the last place of their largest term, which moves a root by
// (dA v^2 + dB v + dC) / R, and R, linear in u and v, is least at a corner. Infinite where the map folds in the box.
inline double RoundingIn(const PointBox& box, const BilinearMap& map) {
  double a[4], b[4];
  for (int i = 0; i < 4; ++i) a[i] = std::fabs(map.c[0][i]), b[i] = std::fabs(map.c[1][i]);
  const double u = std::max(std::fabs(box.u.low), std::fabs(box.u.high));
  const double v = std::max(std::fabs(box.v.low), std::fabs(box.v.high));
  const double p = a[0] * u * v + a[1] * u + a[2] * v + 2 * a[3], q = b[0] * u * v + b[1] * u + b[2] * v + 2 * b[3];
  const double linear = 3 * (a[1] * b[2] + a[2] * b[1]) + q * a[0] + p * b[0];
  const double ofV = (a[0] * b[2] + a[2] * b[0]) * v * v + linear * v + p * b[1] + q * a[1];
  const double ofU = (a[0] * b[1] + a[1] * b[0]) * u * u + linear * u + p * b[2] + q * a[2];
  double least = INFINITY;
  for (const Vertex corner : Quadrangle(box.u.low, box.v.low, box.u.high, box.v.high).at) {
    const auto across = [&](int i) { return map.c[i][0] * corner.y + map.c[i][1]; };
    const auto down = [&](int i) { return map.c[i][0] * corner.x + map.c[i][2]; };
    least = std::min(least, across(0) * down(1) - down(0) * across(1));
  }
  const double error = 0x1p-48 * std::max(ofU, ofV) / least;
  return error >= 0 ? error : INFINITY;
}

// The image of a box: a convex quadrangle with straight edges, as long as the map does not fold in the box.
class Outline {
 public:
  Outline(const BilinearMap& map, const PointBox& box) {
    const Quadrangle quad = map(Quadrangle(box.u.low, box.v.low, box.u.high, box.v.high));
    for (int i = 0; i < 4; ++i) edges_[i] = Edge(quad.at[i], quad.at[(i + 1) % 4]);
  }

  // From the topmost corner to the lowest one.
  Interval Rows() const {
    Interval rows{INFINITY, -INFINITY};
    for (const Edge& edge : edges_) {
      rows = {std::min(rows.low, edge.origin.y), std::max(rows.high, edge.origin.y)};
    }
    return rows;
  }

  // What lies inside on a row of the plane.
  Interval At(double y) const {
    Interval inside{-INFINITY, INFINITY};
    for (const Edge& edge : edges_) edge.Clip(y, inside);
    return inside;
  }

 private:
  // The inside is on the right of an edge on the way down the plane.
  struct Edge {
    Edge() = default;
    Edge(Vertex from, Vertex to) : origin(from), across(to.x - from.x), down(to.y - from.y), slope(across / down) {
      if (!(std::fabs(slope) < INFINITY)) down = 0;
    }
    void Clip(double y, Interval& inside) const {
      const double x = origin.x + slope * (y - origin.y);
      if (down > 0) {
        inside.high = std::min(inside.high, x);
      } else if (down < 0) {
        inside.low = std::max(inside.low, x);
      } else if (across * (y - origin.y) < 0) {
        inside = {};
      }
    }

    Vertex origin;
    double across, down, slope;
  };
  Edge edges_[4];
};

// The places of n, counted from `x`, that lie in an interval.
inline Span PlacesIn(const Interval& interval, double x, ptrdiff_t n) {
  const double first = std::max(interval.low - x, 0.0), last = std::min(interval.high - x, static_cast<double>(n - 1));
  if (!(first <= last)) return {n, n};
  const auto begin = static_cast<ptrdiff_t>(first);
  return {begin + (static_cast<double>(begin) < first), static_cast<ptrdiff_t>(last) + 1};
}

// The spans of the rows of a tile.
class Outlines {
 public:
  // Points touch the image in `outer`, less a rim; those of `inner` need no test.
  Outlines(const Record& record, const PointBox& outer, double rim, const PointBox& inner)
      : side_(record.side), outer_(record.solved, outer), inner_(record.solved, SafeBox(inner)) {
    isOuterKnown_ = RoundingIn(outer, record.solved) < rim / 2;
    isInnerKnown_ = !inner.u.IsEmpty() && !inner.v.IsEmpty() && RoundingIn(inner, record.solved) < kSafeRim / 2;
  }

  // The rows of n, from row y on, that may be touched at all.
  Span Rows(ptrdiff_t y, ptrdiff_t n) const {
    const Interval rows = outer_.Rows();
    const Interval turned = side_ < 0 ? Interval{-rows.high, -rows.low} : rows;
    return isOuterKnown_ ? PlacesIn(turned, static_cast<double>(y), n) : Span{0, n};
  }

  // Of n columns from `x` on in row y.
  Spans At(ptrdiff_t x, ptrdiff_t y, ptrdiff_t n) const {
    const double row = side_ * static_cast<double>(y), column = static_cast<double>(x);
    Spans spans{{0, n}, {n, n}};
    if (isOuterKnown_) spans.touching = PlacesIn(outer_.At(row), column, n);
    const Span inside = isInnerKnown_ ? PlacesIn(inner_.At(row), column, n) : Span{n, n};
    const bool isPart = inside.first >= spans.touching.first && inside.end <= spans.touching.end;
    spans.inside = isPart && inside.first < inside.end ? inside : Span{spans.touching.end, spans.touching.end};
    return spans;
  }

 private:
  double side_;
  Outline outer_, inner_;
  bool isOuterKnown_, isInnerKnown_;
};

}  // namespace qvp::warp
