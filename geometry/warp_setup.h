// What size queries and Inits of warps are told, and the checks that they share.
#pragma once

#include <algorithm>
#include <cmath>

#include "base/border.h"
#include "geometry/quadrangle.h"
#include "geometry/warp_record.h"

namespace qvp::warp {

inline bool IsKnownBorder(QvpiBorderType border) {
  return IsBorderOf({BorderKind::kReplicate, BorderKind::kConst, BorderKind::kTransparent}, border);
}
inline bool IsKnownType(QvpDataType type) {
  return type == qvp8u || type == qvp16u || type == qvp16s || type == qvp32f || type == qvp64f;
}
inline bool IsKnownMethod(QvpiInterpolationType i) {
  return i == qvpInterpolationNearest || i == qvpInterpolationLinear || i == qvpInterpolationCubic;
}

// Sizes, type and method.
struct Setup {
  Size src, dst;
  QvpDataType type;
  QvpiInterpolationType interpolation;
  bool takesDoubles = true;

  QvpStatus CheckSizesAndType() const {
    if (std::min({src.width, src.height, dst.width, dst.height}) < 1) return qvpStatusSize;
    return IsKnownType(type) && (takesDoubles || type != qvp64f) ? qvpStatusNoError : qvpStatusDataType;
  }
  // Interpolation needs two pixels an axis.
  QvpStatus CheckLengths() const {
    const bool isNearest = interpolation == qvpInterpolationNearest;
    if (!isNearest && (src.width == 1 || src.height == 1)) return qvpStatusSize;
    const bool isTooLong = std::max({src.width, src.height, dst.width, dst.height}) > kLongestSide;
    return isTooLong ? qvpStatusSizeOverflow : qvpStatusNoError;
  }
};

inline QvpStatus CheckDirection(QvpiWarpDirection direction) {
  return direction == qvpWarpForward || direction == qvpWarpBackward ? qvpStatusNoError : qvpStatusWarpDirection;
}

inline QvpStatus CheckQuads(const Quadrangle& src, const Quadrangle& dst) {
  return ShapeOf(src) == Shape::kConvex && ShapeOf(dst) == Shape::kConvex ? qvpStatusNoError : qvpStatusQuad;
}

// The centres of an image's corner pixels. One pixel counts as two.
inline Quadrangle CornersOf(Size size) {
  return {0, 0, static_cast<double>(std::max<ptrdiff_t>(size.width - 1, 1)),
          static_cast<double>(std::max<ptrdiff_t>(size.height - 1, 1))};
}

// A transform by its coefficients, with any factor that a perspective has in common removed.
class Transform {
 public:
  Transform(Kind kind, const Projection& matrix, QvpiWarpDirection direction)
      : kind_(kind), matrix_(matrix), direction_(direction) {
    if (kind == Kind::kPerspective) matrix_.Scale();
  }
  // The rows of an affine transform are those of a projection but for the last.
  Transform(Kind kind, const double (*coeffs)[3], QvpiWarpDirection direction)
      : Transform(kind, ProjectionOf(kind, coeffs), direction) {}

  Kind kind() const { return kind_; }
  const Projection& matrix() const { return matrix_; }

  // An affine transform by its determinant relative to the first of the two products.
  bool IsDegenerate() const {
    if (!matrix_.IsFinite()) return true;
    if (kind_ == Kind::kPerspective) return matrix_.IsSingular();
    const double d1 = matrix_.c[0][0] * matrix_.c[1][1], d2 = matrix_.c[0][1] * matrix_.c[1][0];
    const double measure = std::fabs(d1) <= 1e-200 ? std::fabs(d2) : std::fabs((d1 - d2) / d1);
    return !(measure > 1e-10);
  }

  Projection ToSource() const { return direction_ == qvpWarpBackward ? matrix_ : Inverse(); }
  Projection ToDestination() const { return direction_ == qvpWarpForward ? matrix_ : Inverse(); }

 private:
  static Projection ProjectionOf(Kind kind, const double (*coeffs)[3]) {
    Projection matrix{{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
    for (int i = 0; i < (kind == Kind::kAffine ? 2 : 3); ++i) std::copy(coeffs[i], coeffs[i] + 3, matrix.c[i]);
    return matrix;
  }

  Projection Inverse() const {
    if (kind_ == Kind::kPerspective) {
      Projection inverse = matrix_.Inverse();
      inverse.Scale();
      return inverse;
    }
    const auto& c = matrix_.c;
    const double det = c[0][0] * c[1][1] - c[0][1] * c[1][0];
    const double a = c[1][1] / det, b = -c[0][1] / det, d = -c[1][0] / det, e = c[0][0] / det;
    return {{{a, b, -(a * c[0][2] + b * c[1][2])}, {d, e, -(d * c[0][2] + e * c[1][2])}, {0, 0, 1}}};
  }

  Kind kind_;
  Projection matrix_;
  QvpiWarpDirection direction_;
};

}  // namespace qvp::warp
