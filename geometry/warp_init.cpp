// Warps: making records of affine and perspective transforms.
#include "geometry/warp_init.h"

#include "base/export.h"

namespace qvp::warp {
namespace {

// Whether an affine transform leaves the source no area in the destination.
bool IsFlat(const Transform& transform, Size src) {
  if (transform.kind() != Kind::kAffine) return false;
  const Projection map = transform.ToDestination();
  Quadrangle quad = CornersOf(src);
  for (Vertex& p : quad.at) p = map(p);
  return ShapeOf(quad) == Shape::kDegenerate;
}

QvpStatus CheckTransform(const Setup& setup, const Options& options, const Transform& transform) {
  if (transform.IsDegenerate()) return qvpStatusCoefficient;
  if (const QvpStatus failed = CheckOptions(setup, options)) return failed;
  return IsFlat(transform, setup.src) ? qvpStatusCoefficient : qvpStatusNoError;
}

void FillTransform(const Transform& transform, Record& record) {
  record.kind = transform.kind();
  const Projection toSource = transform.ToSource();
  std::copy(&toSource.c[0][0], &toSource.c[0][0] + 9, &record.c[0][0]);
  const bool isUnit = IsShift(transform.matrix().c, record.twist);
  record.isShift = transform.kind() == Kind::kAffine && isUnit;
}

template <Kind kKind>
QvpStatus InitMatrix(const Setup& setup, const Options& options, const double (*coeffs)[3], QvpiWarpDirection direction,
                     QvpiWarpSpec* spec, const void* initBuffer, Form form) {
  const auto transform = [&] { return Transform(kKind, coeffs, direction); };
  const auto check = [&]() -> QvpStatus {
    if (const QvpStatus failed = CheckDirection(direction)) return failed;
    return CheckTransform(setup, options, transform());
  };
  const auto fill = [&](Record& record) { FillTransform(transform(), record); };
  return Init(setup, options, coeffs != nullptr, spec, initBuffer, form, check, fill);
}

QvpStatus InitQuad(const Setup& setup, const Options& options, const double (*srcQuad)[2], const double (*dstQuad)[2],
                   QvpiWarpSpec* spec, const void* initBuffer, Form form) {
  Projection toSource;
  const auto check = [&]() -> QvpStatus {
    const Quadrangle from(srcQuad), to(dstQuad);
    if (const QvpStatus failed = CheckQuads(from, to)) return failed;
    if (const QvpStatus failed = CheckOptions(setup, options)) return failed;
    toSource = Between(to, from);
    toSource.Normalize();
    return toSource.IsFinite() ? qvpStatusNoError : qvpStatusQuad;
  };
  const auto fill = [&](Record& record) { FillTransform({Kind::kPerspective, toSource, qvpWarpBackward}, record); };
  return Init(setup, options, srcQuad && dstQuad, spec, initBuffer, form, check, fill);
}

}  // namespace
}  // namespace qvp::warp

using namespace qvp::warp;

// Each function twice.
#define INITS(SUFFIX, Width, form)                                                                      \
  QVP_WARP_MATRIX_INITS(qvpiWarpAffine, 2, 3, InitMatrix<Kind::kAffine>, SUFFIX, Width, form)           \
  QVP_WARP_MATRIX_INITS(qvpiWarpPerspective, 3, 3, InitMatrix<Kind::kPerspective>, SUFFIX, Width, form) \
  QVP_WARP_QUAD_INITS(qvpiWarpQuad, InitQuad, SUFFIX, Width, form)

INITS(, , Form::kPlain)
INITS(_L, L, Form::kWide)
