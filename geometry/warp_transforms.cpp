// Quadrangles, bounds and transforms for the coefficients of warps.
#include <algorithm>

#include "base/export.h"
#include "geometry/corner_maps.h"

namespace qvp::warp {
namespace {

struct Perspective {
  const double (*c)[3];
  Vertex operator()(Vertex p) const {
    const double w = c[2][0] * p.x + c[2][1] * p.y + c[2][2];
    return {(c[0][0] * p.x + c[0][1] * p.y + c[0][2]) / w, (c[1][0] * p.x + c[1][1] * p.y + c[1][2]) / w};
  }
};
struct Bilinear {
  const double (*c)[4];
  Vertex operator()(Vertex p) const { return BilinearMap(c)(p); }
};

// A rectangle of one pixel across or down has no two corners on that axis to tell a scale from.
QvpStatus CheckTransform(QvpiRect roi, const double (*quad)[2], const void* coeffs) {
  if (quad == nullptr || coeffs == nullptr) return qvpStatusNullPointer;
  if (roi.width < 1 || roi.height < 1) return qvpStatusRect;
  return roi.width == 1 || roi.height == 1 ? qvpStatusCoefficient : qvpStatusNoError;
}

QvpStatus GetAffineTransform(QvpiRect roi, const double (*corners)[2], double (*coeffs)[3]) {
  if (const QvpStatus failed = CheckTransform(roi, corners, coeffs)) return failed;
  Quadrangle quad(corners);  // the corner opposite to the first one follows from the others
  quad.at[2] = {quad.at[1].x + quad.at[3].x - quad.at[0].x, quad.at[1].y + quad.at[3].y - quad.at[0].y};
  if (ShapeOf(quad) == Shape::kDegenerate) return qvpStatusCoefficient;
  const Vertex origin = quad.at[0];
  const double width = roi.width - 1.0, height = roi.height - 1.0;
  const double across[] = {(quad.at[1].x - origin.x) / width, (quad.at[1].y - origin.y) / width};
  const double down[] = {(quad.at[3].x - origin.x) / height, (quad.at[3].y - origin.y) / height};
  const double from[] = {origin.x, origin.y};
  for (int i = 0; i < 2; ++i) {
    coeffs[i][0] = across[i];
    coeffs[i][1] = down[i];
    coeffs[i][2] = from[i] - across[i] * roi.x - down[i] * roi.y;
  }
  return qvpStatusNoError;
}

QvpStatus GetPerspectiveTransform(QvpiRect roi, const double (*corners)[2], double (*coeffs)[3]) {
  if (const QvpStatus failed = CheckTransform(roi, corners, coeffs)) return failed;
  const Quadrangle quad(corners);
  if (ShapeOf(quad) != Shape::kConvex) return qvpStatusQuad;
  Projection projection = Between(CornersOf(roi), quad);
  projection.Normalize();
  for (int i = 0; i < 3; ++i) std::copy(projection.c[i], projection.c[i] + 3, coeffs[i]);
  return qvpStatusNoError;
}

QvpStatus GetBilinearTransform(QvpiRect roi, const double (*q)[2], double (*coeffs)[4]) {
  if (const QvpStatus failed = CheckTransform(roi, q, coeffs)) return failed;
  if (ShapeOf(Quadrangle(q)) != Shape::kConvex) return qvpStatusQuad;
  const double width = roi.width - 1.0, height = roi.height - 1.0, x = roi.x, y = roi.y;
  double c[2][4];
  for (int i = 0; i < 2; ++i) {
    const double twist = (q[0][i] - q[1][i] + q[2][i] - q[3][i]) / (width * height);
    const double across = (q[1][i] - q[0][i]) / width, down = (q[3][i] - q[0][i]) / height;
    c[i][0] = twist;
    c[i][1] = across - twist * y;
    c[i][2] = down - twist * x;
    c[i][3] = q[0][i] - across * x - down * y + twist * x * y;
  }
  for (int i = 0; i < 2; ++i) std::copy(c[i], c[i] + 4, coeffs[i]);
  return qvpStatusNoError;
}

}  // namespace
}  // namespace qvp::warp

using namespace qvp::warp;

#define QUERIES(Kind, columns, rows)                                                                           \
  QvpStatus qvpiGet##Kind##Quad(QvpiRect srcRoi, double quad[4][2], const double coeffs[rows][columns]) {      \
    return GetQuad(srcRoi, quad, Kind{coeffs});                                                                \
  }                                                                                                            \
  QvpStatus qvpiGet##Kind##Bound(QvpiRect srcRoi, double bound[2][2], const double coeffs[rows][columns]) {    \
    return GetBound(srcRoi, bound, Kind{coeffs});                                                              \
  }                                                                                                            \
  QvpStatus qvpiGet##Kind##Transform(QvpiRect srcRoi, const double quad[4][2], double coeffs[rows][columns]) { \
    return Get##Kind##Transform(srcRoi, quad, coeffs);                                                         \
  }
QUERIES(Affine, 3, 2)
QUERIES(Perspective, 3, 3)
QUERIES(Bilinear, 4, 2)
