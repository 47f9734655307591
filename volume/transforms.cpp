// Coefficients of affine transforms in space.
#include "geometry/angle.h"
#include "qvpi.h"
#include "volume/affine.h"

namespace {
using namespace qvp::volume;

bool AreFinite(const double* first, const double* end) {
  return std::all_of(first, end, [](double x) { return std::isfinite(x); });
}

// Nothing is written that is not finite.
QvpStatus Give(const Affine& affine, double (*coeffs)[4]) {
  if (!affine.IsFinite()) return qvpStatusCoefficient;
  affine.CopyTo(coeffs);
  return qvpStatusNoError;
}

// The axis with the length 1. Divided by its largest number first, so that no square overflows or vanishes.
void Normalize(const double* axis, double* n) {
  const double largest = std::max({std::fabs(axis[0]), std::fabs(axis[1]), std::fabs(axis[2])});
  for (int i = 0; i < 3; ++i) n[i] = axis[i] / largest;
  const double length = std::sqrt((n[0] * n[0] + n[1] * n[1]) + n[2] * n[2]);
  for (int i = 0; i < 3; ++i) n[i] /= length;
}

Affine Rotation(double angle, const double* axis, const double* center) {
  const auto [cosine, sine] = qvp::warp::RotationBy(angle);
  double n[3];
  Normalize(axis, n);
  Affine rotation;
  for (int i = 0; i < 3; ++i) {
    double* const row = rotation.c[i];
    const int j = (i + 1) % 3, k = (i + 2) % 3;
    row[i] = n[i] * n[i] + cosine * (1 - n[i] * n[i]);
    row[j] = (1 - cosine) * n[i] * n[j] + sine * n[k];
    row[k] = (1 - cosine) * n[i] * n[k] - sine * n[j];
    row[3] = center[i] - ((row[0] * center[0] + row[1] * center[1]) + row[2] * center[2]);
  }
  return rotation;
}

QvpStatus GetRotateTransform(double angle, const double* axis, const double* center, double (*coeffs)[4]) {
  if (!axis || !center || !coeffs) return qvpStatusNullPointer;
  if (!std::isfinite(angle) || !AreFinite(axis, axis + 3) || !AreFinite(center, center + 3)) {
    return qvpStatusCoefficient;
  }
  if (axis[0] == 0 && axis[1] == 0 && axis[2] == 0) return qvpStatusBadArgument;
  return Give(Rotation(angle, axis, center), coeffs);
}

QvpStatus GetAffineTransform(const QvprCuboid& cuboid, const double (*corners)[3], double (*coeffs)[4]) {
  if (!corners || !coeffs) return qvpStatusNullPointer;
  const int lengths[] = {cuboid.width, cuboid.height, cuboid.depth}, start[] = {cuboid.x, cuboid.y, cuboid.z};
  for (const int length : lengths) {
    if (length < 1) return qvpStatusRect;
  }
  Affine affine;
  for (int i = 0; i < 3; ++i) {
    double* const row = affine.c[i];
    for (int j = 0; j < 3; ++j) row[j] = (corners[j + 1][i] - corners[0][i]) / (lengths[j] - 1.0);
    row[3] = corners[0][i] - ((row[0] * start[0] + row[1] * start[1]) + row[2] * start[2]);
  }
  return affine.IsDegenerate() ? +qvpStatusCoefficient : Give(affine, coeffs);
}

QvpStatus GetAffineBound(const QvprCuboid& cuboid, double (*bound)[3], const double (*coeffs)[4]) {
  if (!bound || !coeffs) return qvpStatusNullPointer;
  if (std::min({cuboid.x, cuboid.y, cuboid.z}) < 0) return qvpStatusSize;
  if (std::min({cuboid.width, cuboid.height, cuboid.depth}) < 1) return qvpStatusSize;
  const Affine affine(coeffs);
  if (!affine.IsFinite()) return qvpStatusCoefficient;
  for (int i = 0; i < 3; ++i) {
    for (int corner = 0; corner < 8; ++corner) {
      const double value = affine.Of(
          i, {cuboid.x + (corner & 1 ? cuboid.width - 1.0 : 0), cuboid.y + (corner & 2 ? cuboid.height - 1.0 : 0),
              cuboid.z + (corner & 4 ? cuboid.depth - 1.0 : 0)});
      bound[0][i] = corner == 0 ? value : std::min(bound[0][i], value);
      bound[1][i] = corner == 0 ? value : std::max(bound[1][i], value);
    }
  }
  return affine.IsDegenerate() ? qvpStatusCoefficient : qvpStatusNoError;
}

QvpStatus GetAffineProduct(const double (*first)[4], const double (*second)[4], double (*coeffs)[4]) {
  if (!first || !second || !coeffs) return qvpStatusNullPointer;
  const Affine f(first), s(second);
  if (!f.IsFinite() || !s.IsFinite()) return qvpStatusCoefficient;
  Affine product;
  for (int i = 0; i < 3; ++i) {
    for (int j = 0; j < 4; ++j) {
      const double sum = (s.c[i][0] * f.c[0][j] + s.c[i][1] * f.c[1][j]) + s.c[i][2] * f.c[2][j];
      product.c[i][j] = j == 3 ? sum + s.c[i][3] : sum;
    }
  }
  return Give(product, coeffs);
}

QvpStatus GetAffineInverse(const double (*coeffs)[4], double (*inverse)[4]) {
  if (!coeffs || !inverse) return qvpStatusNullPointer;
  const Affine affine(coeffs);
  return affine.IsFinite() && !affine.IsDegenerate() ? Give(affine.Inverse(), inverse) : +qvpStatusCoefficient;
}

}  // namespace

QvpStatus qvprGetRotateTransform(double angle, const double axis[3], const double center[3], double coeffs[3][4]) {
  return GetRotateTransform(angle, axis, center, coeffs);
}
QvpStatus qvprGetAffineTransform(QvprCuboid srcCuboid, const double corners[4][3], double coeffs[3][4]) {
  return GetAffineTransform(srcCuboid, corners, coeffs);
}
QvpStatus qvprGetAffineBound(QvprCuboid srcCuboid, double bound[2][3], const double coeffs[3][4]) {
  return GetAffineBound(srcCuboid, bound, coeffs);
}
QvpStatus qvprGetAffineProduct(const double first[3][4], const double second[3][4], double coeffs[3][4]) {
  return GetAffineProduct(first, second, coeffs);
}
QvpStatus qvprGetAffineInverse(const double coeffs[3][4], double inverse[3][4]) {
  return GetAffineInverse(coeffs, inverse);
}
