// What size queries and Inits of all warps share: their steps, and the part of a record that is no transform.
#pragma once

#include <cstddef>
#include <cstring>

#include "geometry/warp_setup.h"

namespace qvp::warp {

// What Inits are told beyond sizes, type and method.
struct Options {
  int channels;
  QvpiBorderType border;
  const double* borderValue;
  bool isSmooth;
  double cubicB, cubicC;
};

// The checks after those of the coefficients or corners.
inline QvpStatus CheckOptions(const Setup& setup, const Options& options) {
  const BorderKind kind = KindOf(options.border);
  if (kind == BorderKind::kConst && options.borderValue == nullptr) return qvpStatusNullPointer;
  if (options.channels != 1 && options.channels != 3 && options.channels != 4) return qvpStatusNumChannels;
  if (!std::isfinite(options.cubicB) || !std::isfinite(options.cubicC)) return qvpStatusBadArgument;
  const bool isFilled = kind == BorderKind::kConst || kind == BorderKind::kReplicate;
  if (options.isSmooth && isFilled) return qvpStatusNotSupportedMode;
  return setup.CheckLengths();
}

// ---- Sizes

inline constexpr int64_t kSpareBytes = kRecordBoundary;

// `check` is that of the transform.
template <class Out, class CheckTransform>
QvpStatus GetSize(const Setup& setup, QvpiBorderType border, bool isGiven, Out* recordSize, Out* initSize,
                  const CheckTransform& check) {
  if (!isGiven || recordSize == nullptr || initSize == nullptr) return qvpStatusNullPointer;
  if (const QvpStatus failed = setup.CheckSizesAndType()) return failed;
  if (!IsKnownMethod(setup.interpolation)) return qvpStatusInterpolation;
  if (const QvpStatus failed = check()) return failed;
  if (!IsKnownBorder(border)) return qvpStatusBorder;
  if (const QvpStatus failed = setup.CheckLengths()) return failed;
  *recordSize = static_cast<Out>(kRecordBytes + kSpareBytes);
  *initSize = static_cast<Out>(kSpareBytes);
  return qvpStatusNoError;
}

// ---- Records

inline void FillSetup(const Setup& setup, Record& record) {
  record.interpolation = setup.interpolation;
  record.type = setup.type;
  record.sourceWidth = static_cast<int32_t>(setup.src.width);
  record.sourceHeight = static_cast<int32_t>(setup.src.height);
  record.width = static_cast<int32_t>(setup.dst.width);
  record.height = static_cast<int32_t>(setup.dst.height);
}

inline void FillOptions(const Options& options, Record& record) {
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

// An affine transform to the source, or the lines of a bilinear one.
inline bool IsWhole(double x) { return std::fabs(x) <= 0x1p30 && x == static_cast<double>(static_cast<int32_t>(x)); }
inline bool IsShift(const double (&c)[3][3], const double (&twist)[2]) {
  const bool isUnit = c[0][0] == 1 && c[0][1] == 0 && c[1][0] == 0 && c[1][1] == 1;
  return isUnit && twist[0] == 0 && twist[1] == 0 && IsWhole(c[0][2]) && IsWhole(c[1][2]);
}

// The steps of an Init. `initBuffer` is the record itself where no Init buffer is asked for. check() is that of the
// transform with the options, fill(record) writes the transform.
template <class Check, class Fill>
QvpStatus Init(const Setup& setup, const Options& options, bool isGiven, QvpiWarpSpec* spec, const void* initBuffer,
               Form form, const Check& check, const Fill& fill) {
  Record* record = RecordOf(spec);
  return InitRecord(record, static_cast<uint32_t>(form), [&]() -> QvpStatus {
    if (!IsKnownBorder(options.border)) return qvpStatusBorder;
    if (!isGiven || spec == nullptr || initBuffer == nullptr) return qvpStatusNullPointer;
    if (const QvpStatus failed = setup.CheckSizesAndType()) return failed;
    if (const QvpStatus failed = check()) return failed;
    std::memset(&record->kind, 0, sizeof(Record) - offsetof(Record, kind));
    FillSetup(setup, *record);
    FillOptions(options, *record);
    fill(*record);
    return qvpStatusNoError;
  });
}

}  // namespace qvp::warp

// The functions of a transform, by one that takes its coefficients or quadrangles. SUFFIX is empty or `_L`, Width empty
// or the letter behind the types of sizes.
#define QVP_WARP_MATRIX_SIZE(name, rows, columns, function, SUFFIX, Width, OutType, form)                  \
  QvpStatus name##SUFFIX(QvpiSize##Width srcSize, QvpiSize##Width dstSize, QvpDataType dataType,           \
                         const double coeffs[rows][columns], QvpiInterpolationType interpolation,          \
                         QvpiWarpDirection direction, QvpiBorderType borderType, OutType* pSpecSize,       \
                         OutType* pInitBufSize) {                                                          \
    return function({srcSize, dstSize, dataType, interpolation}, borderType, coeffs, direction, pSpecSize, \
                    pInitBufSize, form);                                                                   \
  }
#define QVP_WARP_QUAD_SIZE(name, function, SUFFIX, Width, OutType, form)                                        \
  QvpStatus name##SUFFIX(QvpiSize##Width srcSize, const double srcQuad[4][2], QvpiSize##Width dstSize,          \
                         const double dstQuad[4][2], QvpDataType dataType, QvpiInterpolationType interpolation, \
                         QvpiBorderType borderType, OutType* pSpecSize, OutType* pInitBufSize) {                \
    return function({srcSize, dstSize, dataType, interpolation}, borderType, srcQuad, dstQuad, pSpecSize,       \
                    pInitBufSize, form);                                                                        \
  }

#define QVP_WARP_SETUP(Method) \
  Setup { srcSize, dstSize, dataType, qvpInterpolation##Method }
#define QVP_WARP_OPTIONS(b, c) \
  Options { numChannels, borderType, pBorderValue, smoothEdge != 0, b, c }

#define QVP_WARP_MATRIX_INIT(name, rows, columns, Method, function, SUFFIX, Width, form)                       \
  QvpStatus name##Method##Init##SUFFIX(QvpiSize##Width srcSize, QvpiSize##Width dstSize, QvpDataType dataType, \
                                       const double coeffs[rows][columns], QvpiWarpDirection direction,        \
                                       int numChannels, QvpiBorderType borderType, const Qvp64f* pBorderValue, \
                                       int smoothEdge, QvpiWarpSpec* pSpec) {                                  \
    return function(QVP_WARP_SETUP(Method), QVP_WARP_OPTIONS(0, 0), coeffs, direction, pSpec, pSpec, form);    \
  }
#define QVP_WARP_MATRIX_INITS(name, rows, columns, function, SUFFIX, Width, form)                                 \
  QVP_WARP_MATRIX_INIT(name, rows, columns, Nearest, function, SUFFIX, Width, form)                               \
  QVP_WARP_MATRIX_INIT(name, rows, columns, Linear, function, SUFFIX, Width, form)                                \
  QvpStatus name##CubicInit##SUFFIX(                                                                              \
      QvpiSize##Width srcSize, QvpiSize##Width dstSize, QvpDataType dataType, const double coeffs[rows][columns], \
      QvpiWarpDirection direction, int numChannels, double valueB, double valueC, QvpiBorderType borderType,      \
      const Qvp64f* pBorderValue, int smoothEdge, QvpiWarpSpec* pSpec, Qvp8u* pInitBuf) {                         \
    return function(QVP_WARP_SETUP(Cubic), QVP_WARP_OPTIONS(valueB, valueC), coeffs, direction, pSpec, pInitBuf,  \
                    form);                                                                                        \
  }
#define QVP_WARP_QUAD_INIT(name, Method, function, SUFFIX, Width, form)                                              \
  QvpStatus name##Method##Init##SUFFIX(QvpiSize##Width srcSize, const double srcQuad[4][2], QvpiSize##Width dstSize, \
                                       const double dstQuad[4][2], QvpDataType dataType, int numChannels,            \
                                       QvpiBorderType borderType, const Qvp64f* pBorderValue, int smoothEdge,        \
                                       QvpiWarpSpec* pSpec) {                                                        \
    return function(QVP_WARP_SETUP(Method), QVP_WARP_OPTIONS(0, 0), srcQuad, dstQuad, pSpec, pSpec, form);           \
  }
#define QVP_WARP_QUAD_INITS(name, function, SUFFIX, Width, form)                                                       \
  QVP_WARP_QUAD_INIT(name, Nearest, function, SUFFIX, Width, form)                                                     \
  QVP_WARP_QUAD_INIT(name, Linear, function, SUFFIX, Width, form)                                                      \
  QvpStatus name##CubicInit##SUFFIX(QvpiSize##Width srcSize, const double srcQuad[4][2], QvpiSize##Width dstSize,      \
                                    const double dstQuad[4][2], QvpDataType dataType, int numChannels, double valueB,  \
                                    double valueC, QvpiBorderType borderType, const Qvp64f* pBorderValue,              \
                                    int smoothEdge, QvpiWarpSpec* pSpec, Qvp8u* pInitBuf) {                            \
    return function(QVP_WARP_SETUP(Cubic), QVP_WARP_OPTIONS(valueB, valueC), srcQuad, dstQuad, pSpec, pInitBuf, form); \
  }
