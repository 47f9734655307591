// Transforms that take the corners of one quadrangle to those of another.
#include <algorithm>
#include <cmath>

#include "base/export.h"
#include "geometry/quadrangle.h"

namespace qvp::warp {
namespace {

using Corners = const double (*)[2];

bool AreFinite(Corners quad) {
  return std::all_of(&quad[0][0], &quad[0][0] + 8, [](double x) { return std::isfinite(x); });
}

QvpStatus CheckCorners(Corners src, Corners dst, const void* coeffs) {
  if (src == nullptr || dst == nullptr || coeffs == nullptr) return qvpStatusNullPointer;
  return AreFinite(src) && AreFinite(dst) ? +qvpStatusNoError : +qvpStatusQuad;
}

// The parallelogram of the corners 0, 1 and 3.
Quadrangle ParallelogramOf(Corners corners) {
  Quadrangle quad(corners);
  const Vertex a = quad.at[0], b = quad.at[1], d = quad.at[3];
  quad.at[2] = {b.x + d.x - a.x, b.y + d.y - a.y};
  return quad;
}

QvpStatus GetAffine(Corners src, Corners dst, double (*coeffs)[3]) {
  if (const QvpStatus failed = CheckCorners(src, dst, coeffs)) return failed;
  const Quadrangle from = ParallelogramOf(src), to = ParallelogramOf(dst);
  if (ShapeOf(from) == Shape::kDegenerate || ShapeOf(to) == Shape::kDegenerate) return qvpStatusCoefficient;
  const double bx = src[1][0] - src[0][0], by = src[1][1] - src[0][1];
  const double dx = src[3][0] - src[0][0], dy = src[3][1] - src[0][1], det = bx * dy - by * dx;
  double c[2][3];
  for (int i = 0; i < 2; ++i) {
    const double b = dst[1][i] - dst[0][i], d = dst[3][i] - dst[0][i];
    c[i][0] = (b * dy - d * by) / det;
    c[i][1] = (d * bx - b * dx) / det;
    c[i][2] = dst[0][i] - (c[i][0] * src[0][0] + c[i][1] * src[0][1]);
  }
  if (!std::all_of(&c[0][0], &c[0][0] + 6, [](double x) { return std::isfinite(x); })) return qvpStatusCoefficient;
  for (int i = 0; i < 2; ++i) std::copy(c[i], c[i] + 3, coeffs[i]);
  return qvpStatusNoError;
}

QvpStatus GetPerspective(Corners src, Corners dst, double (*coeffs)[3]) {
  if (const QvpStatus failed = CheckCorners(src, dst, coeffs)) return failed;
  const Quadrangle from(src), to(dst);
  if (ShapeOf(from) != Shape::kConvex || ShapeOf(to) != Shape::kConvex) return qvpStatusQuad;
  Projection projection = Between(from, to);
  if (projection.c[2][2] == 0) return qvpStatusCoefficient;
  projection.Normalize();
  if (!projection.IsFinite()) return qvpStatusCoefficient;
  for (int i = 0; i < 3; ++i) std::copy(projection.c[i], projection.c[i] + 3, coeffs[i]);
  return qvpStatusNoError;
}

}  // namespace
}  // namespace qvp::warp

using namespace qvp::warp;

QvpStatus qvpiGetAffineQuadTransform(const double srcQuad[4][2], const double dstQuad[4][2], double coeffs[2][3]) {
  return GetAffine(srcQuad, dstQuad, coeffs);
}
QvpStatus qvpiGetPerspectiveQuadTransform(const double srcQuad[4][2], const double dstQuad[4][2], double coeffs[3][3]) {
  return GetPerspective(srcQuad, dstQuad, coeffs);
}
