// Rotations: matrices, where the corners of a rectangle go, and canvases for whole images.
#include <algorithm>
#include <climits>
#include <cmath>

#include "base/export.h"
#include "geometry/angle.h"
#include "geometry/corner_maps.h"

namespace qvp::warp {
namespace {

QvpStatus GetRotateShift(double x, double y, double angle, double* shiftX, double* shiftY) {
  if (shiftX == nullptr || shiftY == nullptr) return qvpStatusNullPointer;
  if (!std::isfinite(x) || !std::isfinite(y) || !std::isfinite(angle)) return qvpStatusCoefficient;
  const Rotation rotation = RotationBy(angle);
  *shiftX = (1 - rotation.cosine) * x - rotation.sine * y;
  *shiftY = rotation.sine * x + (1 - rotation.cosine) * y;
  return qvpStatusNoError;
}

struct Matrix {
  double c[2][3];

  Matrix(Rotation r, double shiftX, double shiftY) : c{{r.cosine, r.sine, shiftX}, {-r.sine, r.cosine, shiftY}} {}
  void CopyTo(double (*coeffs)[3]) const {
    for (int i = 0; i < 2; ++i) std::copy(c[i], c[i] + 3, coeffs[i]);
  }
};

QvpStatus GetRotateTransform(double angle, double shiftX, double shiftY, double (*coeffs)[3]) {
  if (coeffs == nullptr) return qvpStatusNullPointer;
  if (!std::isfinite(angle) || !std::isfinite(shiftX) || !std::isfinite(shiftY)) return qvpStatusCoefficient;
  Matrix(RotationBy(angle), shiftX, shiftY).CopyTo(coeffs);
  return qvpStatusNoError;
}

QvpStatus GetRotateScaleTransform(Vertex from, Vertex to, double angle, double scale, double (*coeffs)[3]) {
  if (coeffs == nullptr) return qvpStatusNullPointer;
  for (const double number : {from.x, from.y, to.x, to.y, angle}) {
    if (!std::isfinite(number)) return qvpStatusCoefficient;
  }
  if (!std::isfinite(scale) || scale <= 0) return qvpStatusResizeFactor;
  const Rotation r = RotationBy(angle);
  const Matrix turn({scale * r.cosine, scale * r.sine}, 0, 0);
  const Vertex turned = Affine{turn.c}(from);
  Matrix({scale * r.cosine, scale * r.sine}, to.x - turned.x, to.y - turned.y).CopyTo(coeffs);
  return qvpStatusNoError;
}

// What get(map), of the affine form, tells of a rotation.
template <class Get>
QvpStatus OfRotation(QvpiRect roi, const void* result, double angle, double shiftX, double shiftY, const Get& get) {
  if (result == nullptr) return qvpStatusNullPointer;
  if (!IsRegion(roi)) return qvpStatusSize;
  double matrix[2][3];
  const QvpStatus failed = GetRotateTransform(angle, shiftX, shiftY, matrix);
  return failed ? failed : get(Affine{matrix});
}

// The canvas of a whole turned image, which has its centre in the canvas's.
struct Canvas {
  int64_t width, height;
  Vertex shift;
};

// The least whole number that is not below a length, but for what rounding adds to it.
int64_t CeilingOf(double length) {
  const double least = length - 1e-9;
  const auto whole = static_cast<int64_t>(least);
  return static_cast<double>(whole) < least ? whole + 1 : whole;
}

QvpStatus FitCanvas(QvpiSize size, double angle, Canvas& canvas) {
  if (size.width < 1 || size.height < 1) return qvpStatusSize;
  if (!std::isfinite(angle)) return qvpStatusCoefficient;
  const Rotation r = RotationBy(angle);
  const double w = size.width - 1.0, h = size.height - 1.0, x = w / 2, y = h / 2;
  const double c = std::fabs(r.cosine), s = std::fabs(r.sine);
  canvas.width = CeilingOf(w * c + h * s) + 1;
  canvas.height = CeilingOf(w * s + h * c) + 1;
  canvas.shift = {static_cast<double>(canvas.width - 1) / 2 - (r.cosine * x + r.sine * y),
                  static_cast<double>(canvas.height - 1) / 2 - (r.cosine * y - r.sine * x)};
  return std::max(canvas.width, canvas.height) > INT_MAX ? +qvpStatusSizeOverflow : +qvpStatusNoError;
}

QvpStatus GetRotateFit(QvpiSize size, double angle, QvpiSize* fit, double* shiftX, double* shiftY) {
  if (fit == nullptr || shiftX == nullptr || shiftY == nullptr) return qvpStatusNullPointer;
  Canvas canvas;
  if (const QvpStatus failed = FitCanvas(size, angle, canvas)) return failed;
  *fit = {static_cast<int>(canvas.width), static_cast<int>(canvas.height)};
  *shiftX = canvas.shift.x;
  *shiftY = canvas.shift.y;
  return qvpStatusNoError;
}

// The largest upright rectangle within a turned one of w x h about the same centre; c, s: cosine and sine, not
// negative. Either two of its corners lie on the long sides, or all four on the four sides.
Vertex InscribedSpans(double w, double h, double c, double s) {
  constexpr double kLess = 1e-9;  // so that corners are not rounded to the outside
  if (s == 0) return {w, h};
  if (c == 0) return {h, w};
  const double longer = std::max(w, h), shorter = std::min(w, h);
  if (shorter <= 2 * s * c * longer || std::fabs(c - s) < 1e-10) {
    const double x = shorter / 2;
    return w >= h ? Vertex{x / s - kLess, x / c - kLess} : Vertex{x / c - kLess, x / s - kLess};
  }
  const double both = c * c - s * s;
  return {(w * c - h * s) / both - kLess, (h * c - w * s) / both - kLess};
}

// The most steps from pixel to pixel within a span, about the centre of a canvas of `length` pixels; below 0 if none.
int64_t CentredSteps(double span, int64_t length) {
  const auto whole = static_cast<int64_t>(span), most = length - 1;
  return std::min(whole - ((whole ^ most) & 1), most);
}

QvpStatus GetRotateInside(QvpiSize size, double angle, QvpiRect* roi) {
  if (roi == nullptr) return qvpStatusNullPointer;
  Canvas canvas;
  if (const QvpStatus failed = FitCanvas(size, angle, canvas)) return failed;
  const Rotation r = RotationBy(angle);
  const Vertex spans = InscribedSpans(size.width - 1.0, size.height - 1.0, std::fabs(r.cosine), std::fabs(r.sine));
  const int64_t across = CentredSteps(spans.x, canvas.width), down = CentredSteps(spans.y, canvas.height);
  if (across < 0 || down < 0) return qvpStatusRect;
  const auto toInt = [](int64_t x) { return static_cast<int>(x); };
  *roi = {toInt((canvas.width - 1 - across) / 2), toInt((canvas.height - 1 - down) / 2), toInt(across + 1),
          toInt(down + 1)};
  return qvpStatusNoError;
}

}  // namespace
}  // namespace qvp::warp

using namespace qvp::warp;

QvpStatus qvpiGetRotateShift(double xCenter, double yCenter, double angle, double* pShiftX, double* pShiftY) {
  return GetRotateShift(xCenter, yCenter, angle, pShiftX, pShiftY);
}
QvpStatus qvpiGetRotateTransform(double angle, double shiftX, double shiftY, double coeffs[2][3]) {
  return GetRotateTransform(angle, shiftX, shiftY, coeffs);
}
QvpStatus qvpiGetRotateScaleTransform(double xSrc, double ySrc, double xDst, double yDst, double angle, double scale,
                                      double coeffs[2][3]) {
  return GetRotateScaleTransform({xSrc, ySrc}, {xDst, yDst}, angle, scale, coeffs);
}
QvpStatus qvpiGetRotateQuad(QvpiRect srcRoi, double quad[4][2], double angle, double shiftX, double shiftY) {
  return OfRotation(srcRoi, quad, angle, shiftX, shiftY, [&](const Affine& map) { return GetQuad(srcRoi, quad, map); });
}
QvpStatus qvpiGetRotateBound(QvpiRect srcRoi, double bound[2][2], double angle, double shiftX, double shiftY) {
  return OfRotation(srcRoi, bound, angle, shiftX, shiftY,
                    [&](const Affine& map) { return GetBound(srcRoi, bound, map); });
}
QvpStatus qvpiGetRotateFit(QvpiSize srcSize, double angle, QvpiSize* pDstSize, double* pShiftX, double* pShiftY) {
  return GetRotateFit(srcSize, angle, pDstSize, pShiftX, pShiftY);
}
QvpStatus qvpiGetRotateInside(QvpiSize srcSize, double angle, QvpiRect* pRoi) {
  return GetRotateInside(srcSize, angle, pRoi);
}
