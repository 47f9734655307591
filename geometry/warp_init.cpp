// Warps: making records.
#include "base/export.h"
#include "geometry/warp_setup.h"

namespace qvp::warp {
namespace {

// What Inits are told beyond sizes, type and method.
struct Options {
  int channels;
  QvpiBorderType border;
  const double* borderValue;
  bool isSmooth;
  double cubicB, cubicC;
};

// The checks after those of the coefficients or corners.
QvpStatus CheckOptions(const Setup& setup, const Options& options) {
  const BorderKind kind = KindOf(options.border);
  if (kind == BorderKind::kConst && options.borderValue == nullptr) return qvpStatusNullPointer;
  if (options.channels != 1 && options.channels != 3 && options.channels != 4) return qvpStatusNumChannels;
  if (!std::isfinite(options.cubicB) || !std::isfinite(options.cubicC)) return qvpStatusBadArgument;
  const bool isFilled = kind == BorderKind::kConst || kind == BorderKind::kReplicate;
  if (options.isSmooth && isFilled) return qvpStatusNotSupportedMode;
  return setup.CheckLengths();
}

// The source's corners in the destination. A source one pixel wide counts as two.
Quadrangle TargetOf(const Transform& transform, Size src) {
  const Projection map = transform.ToDestination();
  Quadrangle quad(0, 0, static_cast<double>(std::max<ptrdiff_t>(src.width - 1, 1)),
                  static_cast<double>(std::max<ptrdiff_t>(src.height - 1, 1)));
  for (Vertex& p : quad.at) p = map(p);
  return quad;
}

QvpStatus CheckTransform(const Setup& setup, const Options& options, const Transform& transform) {
  if (transform.IsDegenerate()) return qvpStatusCoefficient;
  if (const QvpStatus failed = CheckOptions(setup, options)) return failed;
  const bool isFlat =
      transform.kind() == Kind::kAffine && ShapeOf(TargetOf(transform, setup.src)) == Shape::kDegenerate;
  return isFlat ? qvpStatusCoefficient : qvpStatusNoError;
}

// ---- Records

double Within(double x, double last) { return x > 0 ? x < last ? x : last : 0; }

bool IsWhole(double x) { return std::fabs(x) <= 0x1p30 && x == static_cast<double>(static_cast<int32_t>(x)); }

void FillShift(const Transform& transform, Record& record) {
  const auto& c = transform.matrix().c;
  const bool isUnit = c[0][0] == 1 && c[0][1] == 0 && c[1][0] == 0 && c[1][1] == 1;
  record.isShift = transform.kind() == Kind::kAffine && isUnit && IsWhole(c[0][2]) && IsWhole(c[1][2]);
  record.shiftX = record.isShift ? static_cast<int32_t>(record.c[0][2]) : 0;
  record.shiftY = record.isShift ? static_cast<int32_t>(record.c[1][2]) : 0;
}

void FillSetup(const Setup& setup, Record& record) {
  record.interpolation = setup.interpolation;
  record.type = setup.type;
  record.sourceWidth = static_cast<int32_t>(setup.src.width);
  record.sourceHeight = static_cast<int32_t>(setup.src.height);
  record.width = static_cast<int32_t>(setup.dst.width);
  record.height = static_cast<int32_t>(setup.dst.height);
}

void FillOptions(const Options& options, Record& record) {
  record.channels = options.channels;
  record.border = options.border;
  record.isSmooth = options.isSmooth;
  record.cubicB = options.cubicB;
  record.cubicC = options.cubicC;
  for (int i = 0; i < 4; ++i) {
    const bool isUsed = KindOf(options.border) == BorderKind::kConst && i < options.channels;
    record.borderValue[i] = isUsed ? options.borderValue[i] : 0;
  }
}

void FillTransform(const Transform& transform, const Quadrangle& target, Record& record) {
  record.kind = transform.kind();
  const Projection toSource = transform.ToSource();
  std::copy(&toSource.c[0][0], &toSource.c[0][0] + 9, &record.c[0][0]);
  FillShift(transform, record);
  for (int i = 0; i < 4; ++i) {
    record.quad[i][0] = Within(target.at[i].x, record.width - 1);
    record.quad[i][1] = Within(target.at[i].y, record.height - 1);
  }
}

// `initBuffer` is the record itself where no Init buffer is asked for.
QvpStatus Init(const Setup& setup, const Options& options, const double (*coeffs)[3], Kind kind,
               QvpiWarpDirection direction, QvpiWarpSpec* spec, const void* initBuffer, Form form) {
  Record* record = RecordOf(spec);
  return InitRecord(record, static_cast<uint32_t>(form), [&]() -> QvpStatus {
    if (!IsKnownBorder(options.border)) return qvpStatusBorder;
    if (spec == nullptr || coeffs == nullptr || initBuffer == nullptr) return qvpStatusNullPointer;
    if (const QvpStatus failed = setup.CheckSizesAndType()) return failed;
    if (const QvpStatus failed = CheckDirection(direction)) return failed;
    const Transform transform(kind, coeffs, direction);
    if (const QvpStatus failed = CheckTransform(setup, options, transform)) return failed;
    FillSetup(setup, *record);
    FillOptions(options, *record);
    FillTransform(transform, TargetOf(transform, setup.src), *record);
    return qvpStatusNoError;
  });
}

QvpStatus InitQuad(const Setup& setup, const Options& options, const double (*srcQuad)[2], const double (*dstQuad)[2],
                   QvpiWarpSpec* spec, const void* initBuffer, Form form) {
  Record* record = RecordOf(spec);
  return InitRecord(record, static_cast<uint32_t>(form), [&]() -> QvpStatus {
    if (!IsKnownBorder(options.border)) return qvpStatusBorder;
    if (!spec || !srcQuad || !dstQuad || !initBuffer) return qvpStatusNullPointer;
    if (const QvpStatus failed = setup.CheckSizesAndType()) return failed;
    const Quadrangle from(srcQuad), to(dstQuad);
    if (const QvpStatus failed = CheckQuads(from, to)) return failed;
    if (const QvpStatus failed = CheckOptions(setup, options)) return failed;
    Projection toSource = Between(to, from);
    toSource.Normalize();
    if (!toSource.IsFinite()) return qvpStatusQuad;
    FillSetup(setup, *record);
    FillOptions(options, *record);
    FillTransform({Kind::kPerspective, toSource, qvpWarpBackward}, to, *record);
    return qvpStatusNoError;
  });
}

}  // namespace
}  // namespace qvp::warp

using namespace qvp::warp;

// Each function twice: SUFFIX is empty or `_L`, Width empty or the letter behind the types of sizes.
#define SETUP(Method) \
  Setup { srcSize, dstSize, dataType, qvpInterpolation##Method }
#define OPTIONS(b, c) \
  Options { numChannels, borderType, pBorderValue, smoothEdge != 0, b, c }

#define MATRIX_INIT(name, Kind_, rows, Method, SUFFIX, Width, form)                                                    \
  QvpStatus name##SUFFIX(QvpiSize##Width srcSize, QvpiSize##Width dstSize, QvpDataType dataType,                       \
                         const double coeffs[rows][3], QvpiWarpDirection direction, int numChannels,                   \
                         QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec) { \
    return Init(SETUP(Method), OPTIONS(0, 0), coeffs, Kind_, direction, pSpec, pSpec, form);                           \
  }
#define MATRIX_CUBIC_INIT(name, Kind_, rows, SUFFIX, Width, form)                                                   \
  QvpStatus name##SUFFIX(QvpiSize##Width srcSize, QvpiSize##Width dstSize, QvpDataType dataType,                    \
                         const double coeffs[rows][3], QvpiWarpDirection direction, int numChannels, double valueB, \
                         double valueC, QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge,      \
                         QvpiWarpSpec* pSpec, Qvp8u* pInitBuf) {                                                    \
    return Init(SETUP(Cubic), OPTIONS(valueB, valueC), coeffs, Kind_, direction, pSpec, pInitBuf, form);            \
  }
#define QUAD_INIT(name, Method, SUFFIX, Width, form)                                                                   \
  QvpStatus name##SUFFIX(QvpiSize##Width srcSize, const double srcQuad[4][2], QvpiSize##Width dstSize,                 \
                         const double dstQuad[4][2], QvpDataType dataType, int numChannels, QvpiBorderType borderType, \
                         const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec) {                            \
    return InitQuad(SETUP(Method), OPTIONS(0, 0), srcQuad, dstQuad, pSpec, pSpec, form);                               \
  }
#define QUAD_CUBIC_INIT(name, SUFFIX, Width, form)                                                             \
  QvpStatus name##SUFFIX(QvpiSize##Width srcSize, const double srcQuad[4][2], QvpiSize##Width dstSize,         \
                         const double dstQuad[4][2], QvpDataType dataType, int numChannels, double valueB,     \
                         double valueC, QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge, \
                         QvpiWarpSpec* pSpec, Qvp8u* pInitBuf) {                                               \
    return InitQuad(SETUP(Cubic), OPTIONS(valueB, valueC), srcQuad, dstQuad, pSpec, pInitBuf, form);           \
  }

#define INITS(SUFFIX, Width, form)                                                                 \
  MATRIX_INIT(qvpiWarpAffineNearestInit, Kind::kAffine, 2, Nearest, SUFFIX, Width, form)           \
  MATRIX_INIT(qvpiWarpAffineLinearInit, Kind::kAffine, 2, Linear, SUFFIX, Width, form)             \
  MATRIX_CUBIC_INIT(qvpiWarpAffineCubicInit, Kind::kAffine, 2, SUFFIX, Width, form)                \
  MATRIX_INIT(qvpiWarpPerspectiveNearestInit, Kind::kPerspective, 3, Nearest, SUFFIX, Width, form) \
  MATRIX_INIT(qvpiWarpPerspectiveLinearInit, Kind::kPerspective, 3, Linear, SUFFIX, Width, form)   \
  MATRIX_CUBIC_INIT(qvpiWarpPerspectiveCubicInit, Kind::kPerspective, 3, SUFFIX, Width, form)      \
  QUAD_INIT(qvpiWarpQuadNearestInit, Nearest, SUFFIX, Width, form)                                 \
  QUAD_INIT(qvpiWarpQuadLinearInit, Linear, SUFFIX, Width, form)                                   \
  QUAD_CUBIC_INIT(qvpiWarpQuadCubicInit, SUFFIX, Width, form)

INITS(, , Form::kPlain)
INITS(_L, L, Form::kWide)
