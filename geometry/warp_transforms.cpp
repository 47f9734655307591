// Quadrangles, bounds and transforms for the coefficients of warps.
#include <algorithm>
#include <cmath>

#include "base/export.h"
#include "geometry/quadrangle.h"

namespace qvp::warp {
namespace {

struct Affine {
  const double (*c)[3];
  Vertex operator()(Vertex p) const {
    return {c[0][0] * p.x + c[0][1] * p.y + c[0][2], c[1][0] * p.x + c[1][1] * p.y + c[1][2]};
  }
};
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

Quadrangle CornersOf(QvpiRect r) {
  const double left = r.x, top = r.y;
  return {left, top, left + r.width - 1, top + r.height - 1};
}

template <class Map>
QvpStatus MapCorners(QvpiRect roi, const Map& map, Quadrangle& quad) {
  if (map.c == nullptr) return qvpStatusNullPointer;
  if (roi.x < 0 || roi.y < 0 || roi.width < 1 || roi.height < 1) return qvpStatusSize;
  quad = CornersOf(roi);
  for (Vertex& p : quad.at) p = map(p);
  const Shape shape = ShapeOf(quad);
  if (shape == Shape::kDegenerate) return qvpStatusCoefficient;
  return shape == Shape::kConvex ? qvpStatusNoError : qvpStatusQuad;
}

// A degenerate result is told, and yet written.
bool IsWritten(QvpStatus status) { return status == qvpStatusNoError || status == qvpStatusCoefficient; }

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

struct Rotation {
  double cosine, sine;
};

// The remainder of a non-negative number, exact: only multiples of the modulus times powers of two are subtracted.
double Remainder(double x, double modulus) {
  double m = modulus;
  while (m <= x / 2) m *= 2;
  for (; m >= modulus; m /= 2) x = x >= m ? x - m : x;
  return x;
}

// By the power series on half a right angle. Whole right angles are exact.
Rotation SmallRotation(double degrees) {
  const double x = degrees * (3.14159265358979323846 / 180), square = x * x;
  double sine = 0, cosine = 0;
  for (int k = 20; k > 0; k -= 2) {
    cosine = (1 - cosine) * square / (k * (k - 1));
    sine = (1 - sine) * square / (k * (k + 1));
  }
  return {1 - cosine, x * (1 - sine)};
}
Rotation RotationBy(double degrees) {
  const double angle = Remainder(std::fabs(degrees), 360);
  const int quarter = (static_cast<int>(angle / 45) + 1) / 2;  // the nearest one
  const Rotation r = SmallRotation(angle - 90.0 * quarter);
  const double cosines[] = {r.cosine, -r.sine, -r.cosine, r.sine};
  const double sine = cosines[(quarter + 3) % 4];
  return {cosines[quarter % 4], degrees < 0 ? -sine : sine};
}

QvpStatus GetRotateShift(double x, double y, double angle, double* shiftX, double* shiftY) {
  if (shiftX == nullptr || shiftY == nullptr) return qvpStatusNullPointer;
  if (!std::isfinite(x) || !std::isfinite(y) || !std::isfinite(angle)) return qvpStatusCoefficient;
  const Rotation rotation = RotationBy(angle);
  *shiftX = (1 - rotation.cosine) * x - rotation.sine * y;
  *shiftY = rotation.sine * x + (1 - rotation.cosine) * y;
  return qvpStatusNoError;
}

QvpStatus GetRotateTransform(double angle, double shiftX, double shiftY, double (*coeffs)[3]) {
  if (coeffs == nullptr) return qvpStatusNullPointer;
  if (!std::isfinite(angle) || !std::isfinite(shiftX) || !std::isfinite(shiftY)) return qvpStatusCoefficient;
  const Rotation rotation = RotationBy(angle);
  const double matrix[2][3] = {{rotation.cosine, rotation.sine, shiftX}, {-rotation.sine, rotation.cosine, shiftY}};
  for (int i = 0; i < 2; ++i) std::copy(matrix[i], matrix[i] + 3, coeffs[i]);
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

QvpStatus qvpiGetRotateShift(double xCenter, double yCenter, double angle, double* pShiftX, double* pShiftY) {
  return GetRotateShift(xCenter, yCenter, angle, pShiftX, pShiftY);
}
QvpStatus qvpiGetRotateTransform(double angle, double shiftX, double shiftY, double coeffs[2][3]) {
  return GetRotateTransform(angle, shiftX, shiftY, coeffs);
}
