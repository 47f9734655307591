// Warps: sizes of records and buffers.
#include "base/export.h"
#include "geometry/warp_setup.h"

namespace qvp::warp {
namespace {

constexpr int64_t kSpare = kRecordBoundary, kLimit = 0x7FFFFFFF;

template <class Out>
QvpStatus StoreSizes(Out* recordSize, Out* initSize) {
  *recordSize = static_cast<Out>(kRecordBytes + kSpare);
  *initSize = static_cast<Out>(kSpare);
  return qvpStatusNoError;
}

QvpStatus CheckFirst(const Setup& setup) {
  if (const QvpStatus failed = setup.CheckSizesAndType()) return failed;
  return IsKnownMethod(setup.interpolation) ? qvpStatusNoError : qvpStatusInterpolation;
}
QvpStatus CheckLast(const Setup& setup, QvpiBorderType border) {
  return IsKnownBorder(border) ? setup.CheckLengths() : qvpStatusBorder;
}

template <class Out>
QvpStatus GetSize(const Setup& setup, QvpiBorderType border, const double (*coeffs)[3], Kind kind,
                  QvpiWarpDirection direction, Out* recordSize, Out* initSize) {
  if (coeffs == nullptr || recordSize == nullptr || initSize == nullptr) return qvpStatusNullPointer;
  if (const QvpStatus failed = CheckFirst(setup)) return failed;
  if (const QvpStatus failed = CheckDirection(direction)) return failed;
  if (Transform(kind, coeffs, direction).IsDegenerate()) return qvpStatusCoefficient;
  if (const QvpStatus failed = CheckLast(setup, border)) return failed;
  return StoreSizes(recordSize, initSize);
}

template <class Out>
QvpStatus GetQuadSize(const Setup& setup, QvpiBorderType border, const double (*srcQuad)[2], const double (*dstQuad)[2],
                      Out* recordSize, Out* initSize) {
  if (!srcQuad || !dstQuad || !recordSize || !initSize) return qvpStatusNullPointer;
  if (const QvpStatus failed = CheckFirst(setup)) return failed;
  if (const QvpStatus failed = CheckQuads(Quadrangle(srcQuad), Quadrangle(dstQuad))) return failed;
  if (const QvpStatus failed = CheckLast(setup, border)) return failed;
  return StoreSizes(recordSize, initSize);
}

// Room for two numbers a row.
template <class Out>
QvpStatus GetBufferSize(const QvpiWarpSpec* spec, Size dst, Out* size, Form form) {
  if (size == nullptr || spec == nullptr) return qvpStatusNullPointer;
  if (!IsOf(form, RecordOf(spec))) return qvpStatusContextMatch;
  if (dst.width < 1 || dst.height < 1) return qvpStatusSize;
  ByteCount bytes = (ByteCount(8) * dst.height).RoundedTo(kSpare) + kSpare;
  if (sizeof(Out) == sizeof(int32_t) && bytes.value() >= kLimit) bytes = ByteCount(INT64_MAX);
  return bytes.StoreTo(size);
}

}  // namespace
}  // namespace qvp::warp

using namespace qvp::warp;

// Each function twice: SUFFIX is empty or `_L`, Width empty or the letter behind the types of sizes.
#define SETUP \
  Setup { srcSize, dstSize, dataType, interpolation }
#define MATRIX_SIZE(name, Kind_, rows, SUFFIX, Width, OutType)                                       \
  QvpStatus name##SUFFIX(QvpiSize##Width srcSize, QvpiSize##Width dstSize, QvpDataType dataType,     \
                         const double coeffs[rows][3], QvpiInterpolationType interpolation,          \
                         QvpiWarpDirection direction, QvpiBorderType borderType, OutType* pSpecSize, \
                         OutType* pInitBufSize) {                                                    \
    return GetSize(SETUP, borderType, coeffs, Kind_, direction, pSpecSize, pInitBufSize);            \
  }
#define SIZES(SUFFIX, Width, OutType, form)                                                                           \
  MATRIX_SIZE(qvpiWarpAffineGetSize, Kind::kAffine, 2, SUFFIX, Width, OutType)                                        \
  MATRIX_SIZE(qvpiWarpPerspectiveGetSize, Kind::kPerspective, 3, SUFFIX, Width, OutType)                              \
  QvpStatus qvpiWarpQuadGetSize##SUFFIX(QvpiSize##Width srcSize, const double srcQuad[4][2], QvpiSize##Width dstSize, \
                                        const double dstQuad[4][2], QvpDataType dataType,                             \
                                        QvpiInterpolationType interpolation, QvpiBorderType borderType,               \
                                        OutType* pSpecSize, OutType* pInitBufSize) {                                  \
    return GetQuadSize(SETUP, borderType, srcQuad, dstQuad, pSpecSize, pInitBufSize);                                 \
  }                                                                                                                   \
  QvpStatus qvpiWarpGetBufferSize##SUFFIX(const QvpiWarpSpec* pSpec, QvpiSize##Width dstSize, OutType* pBufSize) {    \
    return GetBufferSize(pSpec, dstSize, pBufSize, form);                                                             \
  }

SIZES(, , int, Form::kPlain)
SIZES(_L, L, QvpSizeL, Form::kWide)
