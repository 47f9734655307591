// Warps: sizes, and making records.
#include <algorithm>
#include <cmath>

#include "base/border.h"
#include "base/export.h"
#include "geometry/quad.h"
#include "geometry/warp_record.h"

namespace qvp {
namespace {

constexpr int64_t kSpare = 64, kLimit = 0x7FFFFFFF;
constexpr double kRelative = 1e-10;

// What all Inits are told.
struct WarpSetup {
  Size src, dst;
  QvpDataType type;
  QvpiInterpolationType interpolation;
  int channels;
  QvpiBorderType border;
  const double* borderValue;
  bool isSmooth;
  double b, c;
};

bool IsKnownBorder(QvpiBorderType border) {
  return IsBorderOf({BorderKind::kReplicate, BorderKind::kConst, BorderKind::kTransparent}, border);
}
bool IsKnownType(QvpDataType type) {
  return type == qvp8u || type == qvp16u || type == qvp16s || type == qvp32f || type == qvp64f;
}
bool IsKnownMethod(QvpiInterpolationType i) {
  return i == qvpInterpolationNearest || i == qvpInterpolationLinear || i == qvpInterpolationCubic;
}
bool IsAnyBelowOne(Size a, Size b) { return a.width < 1 || a.height < 1 || b.width < 1 || b.height < 1; }
bool IsAnyTooLong(Size a, Size b) {
  return std::max(std::max(a.width, a.height), std::max(b.width, b.height)) > kLongestWarp;
}

// The coefficients as they were given.
struct Given {
  WarpKind kind;
  Projection matrix;
  QvpiWarpDirection direction;

  static Given Of(const double (*c)[3], WarpKind kind, QvpiWarpDirection direction) {
    Given given{kind, {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}}, direction};
    for (int i = 0; i < (kind == WarpKind::kAffine ? 2 : 3); ++i) std::copy(c[i], c[i] + 3, given.matrix.c[i]);
    if (kind == WarpKind::kPerspective) given.matrix.Scale();
    return given;
  }

  bool IsDegenerate() const {
    if (!matrix.IsFinite()) return true;
    if (kind == WarpKind::kPerspective) return matrix.IsSingular();
    const double d1 = matrix.c[0][0] * matrix.c[1][1], d2 = matrix.c[0][1] * matrix.c[1][0];
    const double measure = std::fabs(d1) <= 1e-200 ? std::fabs(d2) : std::fabs((d1 - d2) / d1);
    return !(measure > kRelative);
  }

  Projection Inverse() const {
    if (kind == WarpKind::kPerspective) {
      Projection inverse = matrix.Inverse();
      inverse.Scale();
      return inverse;
    }
    const auto& c = matrix.c;
    const double det = c[0][0] * c[1][1] - c[0][1] * c[1][0];
    const double a = c[1][1] / det, b = -c[0][1] / det, d = -c[1][0] / det, e = c[0][0] / det;
    return {{{a, b, -(a * c[0][2] + b * c[1][2])}, {d, e, -(d * c[0][2] + e * c[1][2])}, {0, 0, 1}}};
  }
  Projection ToSource() const { return direction == qvpWarpBackward ? matrix : Inverse(); }
  Projection ToDestination() const { return direction == qvpWarpForward ? matrix : Inverse(); }
};

QvpStatus CheckDirection(QvpiWarpDirection direction) {
  return direction == qvpWarpForward || direction == qvpWarpBackward ? qvpStatusNoError : qvpStatusWarpDirection;
}

// The checks after those of the coefficients.
QvpStatus CheckRest(const WarpSetup& s) {
  const BorderKind kind = KindOf(s.border);
  if (kind == BorderKind::kConst && s.borderValue == nullptr) return qvpStatusNullPointer;
  if (s.channels != 1 && s.channels != 3 && s.channels != 4) return qvpStatusNumChannels;
  if (!std::isfinite(s.b) || !std::isfinite(s.c)) return qvpStatusBadArgument;
  if (s.isSmooth && (kind == BorderKind::kConst || kind == BorderKind::kReplicate)) return qvpStatusNotSupportedMode;
  const bool isNearest = s.interpolation == qvpInterpolationNearest;
  if (!isNearest && (s.src.width == 1 || s.src.height == 1)) return qvpStatusSize;
  return IsAnyTooLong(s.src, s.dst) ? qvpStatusSizeOverflow : qvpStatusNoError;
}

// The source's corners in the destination. A source one pixel wide counts as two.
Quad4 TargetOf(const Given& given, Size src) {
  const Projection map = given.ToDestination();
  Quad4 quad(0, 0, static_cast<double>(std::max<ptrdiff_t>(src.width - 1, 1)),
             static_cast<double>(std::max<ptrdiff_t>(src.height - 1, 1)));
  for (Vertex& p : quad.at) p = map(p);
  return quad;
}

double Within(double x, double last) { return x > 0 ? x < last ? x : last : 0; }

bool IsWhole(double x) {
  return std::fabs(x) <= static_cast<double>(kLimit) / 2 && x == static_cast<double>(static_cast<int32_t>(x));
}

void FillShift(const Given& given, WarpRecord& record) {
  const auto& c = given.matrix.c;
  const bool isUnit = c[0][0] == 1 && c[0][1] == 0 && c[1][0] == 0 && c[1][1] == 1;
  record.isShift = given.kind == WarpKind::kAffine && isUnit && IsWhole(c[0][2]) && IsWhole(c[1][2]);
  record.shiftX = record.isShift ? static_cast<int32_t>(record.c[0][2]) : 0;
  record.shiftY = record.isShift ? static_cast<int32_t>(record.c[1][2]) : 0;
}

void FillRecord(const WarpSetup& s, const Given& given, const Quad4& target, WarpRecord& record) {
  record.kind = given.kind;
  record.interpolation = s.interpolation;
  record.type = s.type;
  record.channels = s.channels;
  record.border = s.border;
  record.isSmooth = s.isSmooth;
  record.sourceWidth = static_cast<int32_t>(s.src.width);
  record.sourceHeight = static_cast<int32_t>(s.src.height);
  record.width = static_cast<int32_t>(s.dst.width);
  record.height = static_cast<int32_t>(s.dst.height);
  const Projection toSource = given.ToSource();
  std::copy(&toSource.c[0][0], &toSource.c[0][0] + 9, &record.c[0][0]);
  FillShift(given, record);
  for (int i = 0; i < 4; ++i) {
    record.quad[i][0] = Within(target.at[i].x, static_cast<double>(s.dst.width - 1));
    record.quad[i][1] = Within(target.at[i].y, static_cast<double>(s.dst.height - 1));
    record.borderValue[i] = KindOf(s.border) == BorderKind::kConst && i < s.channels ? s.borderValue[i] : 0;
  }
  record.b = s.b;
  record.c2 = s.c;
}

QvpStatus CheckGiven(const WarpSetup& s, const double (*coeffs)[3], WarpKind kind, QvpiWarpDirection direction) {
  if (IsAnyBelowOne(s.src, s.dst)) return qvpStatusSize;
  if (!IsKnownType(s.type)) return qvpStatusDataType;
  if (const QvpStatus failed = CheckDirection(direction)) return failed;
  const Given given = Given::Of(coeffs, kind, direction);
  if (given.IsDegenerate()) return qvpStatusCoefficient;
  if (const QvpStatus failed = CheckRest(s)) return failed;
  const bool isFlat = kind == WarpKind::kAffine && ShapeOf(TargetOf(given, s.src)) == QuadShape::kDegenerate;
  return isFlat ? qvpStatusCoefficient : qvpStatusNoError;
}

// `buffer` is the record where no Init buffer is asked for.
QvpStatus Init(const WarpSetup& s, const double (*coeffs)[3], WarpKind kind, QvpiWarpDirection direction,
               QvpiWarpSpec* spec, const void* buffer, WarpForm form) {
  WarpRecord* record = RecordOf(spec);
  return InitRecord(record, static_cast<uint32_t>(form), [&]() -> QvpStatus {
    if (!IsKnownBorder(s.border)) return qvpStatusBorder;
    if (spec == nullptr || coeffs == nullptr || buffer == nullptr) return qvpStatusNullPointer;
    if (const QvpStatus failed = CheckGiven(s, coeffs, kind, direction)) return failed;
    const Given given = Given::Of(coeffs, kind, direction);
    FillRecord(s, given, TargetOf(given, s.src), *record);
    return qvpStatusNoError;
  });
}

QvpStatus CheckQuads(const WarpSetup& s, const Quad4& from, const Quad4& to) {
  if (IsAnyBelowOne(s.src, s.dst)) return qvpStatusSize;
  if (!IsKnownType(s.type)) return qvpStatusDataType;
  if (ShapeOf(from) != QuadShape::kConvex || ShapeOf(to) != QuadShape::kConvex) return qvpStatusQuad;
  return CheckRest(s);
}

QvpStatus InitQuad(const WarpSetup& s, const double (*srcQuad)[2], const double (*dstQuad)[2], QvpiWarpSpec* spec,
                   const void* buffer, WarpForm form) {
  WarpRecord* record = RecordOf(spec);
  return InitRecord(record, static_cast<uint32_t>(form), [&]() -> QvpStatus {
    if (!IsKnownBorder(s.border)) return qvpStatusBorder;
    if (spec == nullptr || srcQuad == nullptr || dstQuad == nullptr || buffer == nullptr) return qvpStatusNullPointer;
    const Quad4 from(srcQuad), to(dstQuad);
    if (const QvpStatus failed = CheckQuads(s, from, to)) return failed;
    Projection toSource = Between(to, from);
    toSource.Normalize();
    if (!toSource.IsFinite()) return qvpStatusQuad;
    FillRecord(s, {WarpKind::kPerspective, toSource, qvpWarpBackward}, to, *record);
    return qvpStatusNoError;
  });
}

// ---- Sizes

template <class Out>
QvpStatus StoreSizes(Out* recordSize, Out* initSize) {
  *recordSize = static_cast<Out>(kWarpRecordBytes + kSpare);
  *initSize = static_cast<Out>(kSpare);
  return qvpStatusNoError;
}

struct SizeQuery {
  Size src, dst;
  QvpDataType type;
  QvpiInterpolationType interpolation;
  QvpiBorderType border;

  QvpStatus CheckFirst() const {
    if (IsAnyBelowOne(src, dst)) return qvpStatusSize;
    if (!IsKnownType(type)) return qvpStatusDataType;
    return IsKnownMethod(interpolation) ? qvpStatusNoError : qvpStatusInterpolation;
  }
  QvpStatus CheckLast() const {
    if (!IsKnownBorder(border)) return qvpStatusBorder;
    const bool isNearest = interpolation == qvpInterpolationNearest;
    if (!isNearest && (src.width == 1 || src.height == 1)) return qvpStatusSize;
    return IsAnyTooLong(src, dst) ? qvpStatusSizeOverflow : qvpStatusNoError;
  }
};

template <class Out>
QvpStatus GetSize(const SizeQuery& q, const double (*coeffs)[3], WarpKind kind, QvpiWarpDirection direction,
                  Out* recordSize, Out* initSize) {
  if (coeffs == nullptr || recordSize == nullptr || initSize == nullptr) return qvpStatusNullPointer;
  if (const QvpStatus failed = q.CheckFirst()) return failed;
  if (const QvpStatus failed = CheckDirection(direction)) return failed;
  if (Given::Of(coeffs, kind, direction).IsDegenerate()) return qvpStatusCoefficient;
  if (const QvpStatus failed = q.CheckLast()) return failed;
  return StoreSizes(recordSize, initSize);
}

template <class Out>
QvpStatus GetQuadSize(const SizeQuery& q, const double (*srcQuad)[2], const double (*dstQuad)[2], Out* recordSize,
                      Out* initSize) {
  if (srcQuad == nullptr || dstQuad == nullptr || recordSize == nullptr || initSize == nullptr) {
    return qvpStatusNullPointer;
  }
  if (const QvpStatus failed = q.CheckFirst()) return failed;
  const bool areConvex = ShapeOf(Quad4(srcQuad)) == QuadShape::kConvex && ShapeOf(Quad4(dstQuad)) == QuadShape::kConvex;
  if (!areConvex) return qvpStatusQuad;
  if (const QvpStatus failed = q.CheckLast()) return failed;
  return StoreSizes(recordSize, initSize);
}

// Room for two numbers a row.
template <class Out>
QvpStatus GetBufferSize(const QvpiWarpSpec* spec, Size dst, Out* size, WarpForm form) {
  if (size == nullptr || spec == nullptr) return qvpStatusNullPointer;
  if (!IsOf(form, RecordOf(spec))) return qvpStatusContextMatch;
  if (dst.width < 1 || dst.height < 1) return qvpStatusSize;
  ByteCount bytes = (ByteCount(8) * dst.height).RoundedTo(kSpare) + kSpare;
  if (sizeof(Out) == sizeof(int32_t) && bytes.value() >= kLimit) bytes = ByteCount(INT64_MAX);
  return bytes.StoreTo(size);
}

}  // namespace
}  // namespace qvp

using namespace qvp;

#define SIZE_QUERY \
  SizeQuery { srcSize, dstSize, dataType, interpolation, borderType }
#define SETUP(method, b, c)                                                                                            \
  WarpSetup {                                                                                                          \
    srcSize, dstSize, dataType, qvpInterpolation##method, numChannels, borderType, pBorderValue, smoothEdge != 0, b, c \
  }

// Each Init twice: `L` is empty or the letter behind `SizeType`, `SUFFIX` empty or `_L`.
#define MATRIX_INITS(Kind, rows, SUFFIX, SizeType, OutType, form)                                                      \
  QvpStatus qvpiWarp##Kind##GetSize##SUFFIX(SizeType srcSize, SizeType dstSize, QvpDataType dataType,                  \
                                            const double coeffs[rows][3], QvpiInterpolationType interpolation,         \
                                            QvpiWarpDirection direction, QvpiBorderType borderType,                    \
                                            OutType* pSpecSize, OutType* pInitBufSize) {                               \
    return GetSize(SIZE_QUERY, coeffs, WarpKind::k##Kind, direction, pSpecSize, pInitBufSize);                         \
  }                                                                                                                    \
  QvpStatus qvpiWarp##Kind##NearestInit##SUFFIX(SizeType srcSize, SizeType dstSize, QvpDataType dataType,              \
                                                const double coeffs[rows][3], QvpiWarpDirection direction,             \
                                                int numChannels, QvpiBorderType borderType,                            \
                                                const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec) {     \
    return Init(SETUP(Nearest, 0, 0), coeffs, WarpKind::k##Kind, direction, pSpec, pSpec, form);                       \
  }                                                                                                                    \
  QvpStatus qvpiWarp##Kind##LinearInit##SUFFIX(SizeType srcSize, SizeType dstSize, QvpDataType dataType,               \
                                               const double coeffs[rows][3], QvpiWarpDirection direction,              \
                                               int numChannels, QvpiBorderType borderType, const Qvp64f* pBorderValue, \
                                               int smoothEdge, QvpiWarpSpec* pSpec) {                                  \
    return Init(SETUP(Linear, 0, 0), coeffs, WarpKind::k##Kind, direction, pSpec, pSpec, form);                        \
  }                                                                                                                    \
  QvpStatus qvpiWarp##Kind##CubicInit##SUFFIX(                                                                         \
      SizeType srcSize, SizeType dstSize, QvpDataType dataType, const double coeffs[rows][3],                          \
      QvpiWarpDirection direction, int numChannels, double valueB, double valueC, QvpiBorderType borderType,           \
      const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec, Qvp8u* pInitBuf) {                              \
    return Init(SETUP(Cubic, valueB, valueC), coeffs, WarpKind::k##Kind, direction, pSpec, pInitBuf, form);            \
  }
MATRIX_INITS(Affine, 2, , QvpiSize, int, WarpForm::kPlain)
MATRIX_INITS(Affine, 2, _L, QvpiSizeL, QvpSizeL, WarpForm::kWide)
MATRIX_INITS(Perspective, 3, , QvpiSize, int, WarpForm::kPlain)
MATRIX_INITS(Perspective, 3, _L, QvpiSizeL, QvpSizeL, WarpForm::kWide)

#define QUAD_INITS(SUFFIX, SizeType, OutType, form)                                                                \
  QvpStatus qvpiWarpQuadGetSize##SUFFIX(SizeType srcSize, const double srcQuad[4][2], SizeType dstSize,            \
                                        const double dstQuad[4][2], QvpDataType dataType,                          \
                                        QvpiInterpolationType interpolation, QvpiBorderType borderType,            \
                                        OutType* pSpecSize, OutType* pInitBufSize) {                               \
    return GetQuadSize(SIZE_QUERY, srcQuad, dstQuad, pSpecSize, pInitBufSize);                                     \
  }                                                                                                                \
  QvpStatus qvpiWarpQuadNearestInit##SUFFIX(SizeType srcSize, const double srcQuad[4][2], SizeType dstSize,        \
                                            const double dstQuad[4][2], QvpDataType dataType, int numChannels,     \
                                            QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge, \
                                            QvpiWarpSpec* pSpec) {                                                 \
    return InitQuad(SETUP(Nearest, 0, 0), srcQuad, dstQuad, pSpec, pSpec, form);                                   \
  }                                                                                                                \
  QvpStatus qvpiWarpQuadLinearInit##SUFFIX(SizeType srcSize, const double srcQuad[4][2], SizeType dstSize,         \
                                           const double dstQuad[4][2], QvpDataType dataType, int numChannels,      \
                                           QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge,  \
                                           QvpiWarpSpec* pSpec) {                                                  \
    return InitQuad(SETUP(Linear, 0, 0), srcQuad, dstQuad, pSpec, pSpec, form);                                    \
  }                                                                                                                \
  QvpStatus qvpiWarpQuadCubicInit##SUFFIX(                                                                         \
      SizeType srcSize, const double srcQuad[4][2], SizeType dstSize, const double dstQuad[4][2],                  \
      QvpDataType dataType, int numChannels, double valueB, double valueC, QvpiBorderType borderType,              \
      const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec, Qvp8u* pInitBuf) {                          \
    return InitQuad(SETUP(Cubic, valueB, valueC), srcQuad, dstQuad, pSpec, pInitBuf, form);                        \
  }                                                                                                                \
  QvpStatus qvpiWarpGetBufferSize##SUFFIX(const QvpiWarpSpec* pSpec, SizeType dstSize, OutType* pBufSize) {        \
    return GetBufferSize(pSpec, dstSize, pBufSize, form);                                                          \
  }
QUAD_INITS(, QvpiSize, int, WarpForm::kPlain)
QUAD_INITS(_L, QvpiSizeL, QvpSizeL, WarpForm::kWide)
