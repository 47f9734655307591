// Warps: sizes of records and buffers.
#include "base/export.h"
#include "geometry/warp_init.h"

namespace qvp::warp {
namespace {

template <Kind kKind, class Out>
QvpStatus GetMatrixSize(const Setup& setup, QvpiBorderType border, const double (*coeffs)[3],
                        QvpiWarpDirection direction, Out* recordSize, Out* initSize, Form) {
  return GetSize(setup, border, coeffs != nullptr, recordSize, initSize, [&]() -> QvpStatus {
    if (const QvpStatus failed = CheckDirection(direction)) return failed;
    return Transform(kKind, coeffs, direction).IsDegenerate() ? qvpStatusCoefficient : qvpStatusNoError;
  });
}

template <class Out>
QvpStatus GetQuadSize(const Setup& setup, QvpiBorderType border, const double (*srcQuad)[2], const double (*dstQuad)[2],
                      Out* recordSize, Out* initSize, Form) {
  return GetSize(setup, border, srcQuad && dstQuad, recordSize, initSize,
                 [&] { return CheckQuads(Quadrangle(srcQuad), Quadrangle(dstQuad)); });
}

// Room for two numbers a row.
template <class Out>
QvpStatus GetBufferSize(const QvpiWarpSpec* spec, Size dst, Out* size, Form form) {
  if (size == nullptr || spec == nullptr) return qvpStatusNullPointer;
  if (!IsOf(form, RecordOf(spec))) return qvpStatusContextMatch;
  if (dst.width < 1 || dst.height < 1) return qvpStatusSize;
  ByteCount bytes = (ByteCount(8) * dst.height).RoundedTo(kSpareBytes) + kSpareBytes;
  if (sizeof(Out) == sizeof(int32_t) && bytes.value() >= INT32_MAX) bytes = ByteCount(INT64_MAX);
  return bytes.StoreTo(size);
}

}  // namespace
}  // namespace qvp::warp

using namespace qvp::warp;

// Each function twice.
#define SIZES(SUFFIX, Width, OutType, form)                                                                         \
  QVP_WARP_MATRIX_SIZE(qvpiWarpAffineGetSize, 2, 3, GetMatrixSize<Kind::kAffine>, SUFFIX, Width, OutType, form)     \
  QVP_WARP_MATRIX_SIZE(qvpiWarpPerspectiveGetSize, 3, 3, GetMatrixSize<Kind::kPerspective>, SUFFIX, Width, OutType, \
                       form)                                                                                        \
  QVP_WARP_QUAD_SIZE(qvpiWarpQuadGetSize, GetQuadSize, SUFFIX, Width, OutType, form)                                \
  QvpStatus qvpiWarpGetBufferSize##SUFFIX(const QvpiWarpSpec* pSpec, QvpiSize##Width dstSize, OutType* pBufSize) {  \
    return GetBufferSize(pSpec, dstSize, pBufSize, form);                                                           \
  }

SIZES(, , int, Form::kPlain)
SIZES(_L, L, QvpSizeL, Form::kWide)
