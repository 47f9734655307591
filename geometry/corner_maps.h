// Where the corners of a rectangle of pixels go, and the box around them.
#pragma once

#include <algorithm>

#include "geometry/quadrangle.h"

namespace qvp::warp {

struct Affine {
  const double (*c)[3];
  Vertex operator()(Vertex p) const {
    return {c[0][0] * p.x + c[0][1] * p.y + c[0][2], c[1][0] * p.x + c[1][1] * p.y + c[1][2]};
  }
};

inline Quadrangle CornersOf(QvpiRect r) {
  const double left = r.x, top = r.y;
  return {left, top, left + r.width - 1, top + r.height - 1};
}

inline bool IsRegion(QvpiRect roi) { return roi.x >= 0 && roi.y >= 0 && roi.width >= 1 && roi.height >= 1; }

template <class Map>
QvpStatus MapCorners(QvpiRect roi, const Map& map, Quadrangle& quad) {
  if (map.c == nullptr) return qvpStatusNullPointer;
  if (!IsRegion(roi)) return qvpStatusSize;
  quad = CornersOf(roi);
  for (Vertex& p : quad.at) p = map(p);
  const Shape shape = ShapeOf(quad);
  if (shape == Shape::kDegenerate) return qvpStatusCoefficient;
  return shape == Shape::kConvex ? qvpStatusNoError : qvpStatusQuad;
}

// A degenerate result is told, and yet written.
inline bool IsWritten(QvpStatus status) { return status == qvpStatusNoError || status == qvpStatusCoefficient; }

template <class Map>
QvpStatus GetQuad(QvpiRect roi, double (*corners)[2], const Map& map) {
  if (corners == nullptr) return qvpStatusNullPointer;
  Quadrangle quad;
  const QvpStatus status = MapCorners(roi, map, quad);
  if (IsWritten(status)) quad.CopyTo(corners);
  return status;
}

template <class Map>
QvpStatus GetBound(QvpiRect roi, double (*bound)[2], const Map& map) {
  if (bound == nullptr) return qvpStatusNullPointer;
  Quadrangle quad;
  const QvpStatus status = MapCorners(roi, map, quad);
  if (!IsWritten(status)) return status;
  Vertex low = quad.at[0], high = quad.at[0];
  for (const Vertex& p : quad.at) {
    low = {std::min(low.x, p.x), std::min(low.y, p.y)};
    high = {std::max(high.x, p.x), std::max(high.y, p.y)};
  }
  bound[0][0] = low.x, bound[0][1] = low.y, bound[1][0] = high.x, bound[1][1] = high.y;
  return status;
}

}  // namespace qvp::warp
