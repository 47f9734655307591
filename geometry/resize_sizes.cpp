// Resize: sizes of the record and of the work buffer, and which source pixels a tile reads.
#include "geometry/resize_sizes.h"

#include <algorithm>
#include <numeric>
#include <type_traits>

#include "base/export.h"

namespace qvp::resize {
namespace {

constexpr int64_t kSpare = 64, kWideLengthLimit = 0x2000000;

bool IsAnyZero(Size a, Size b) { return a.width == 0 || a.height == 0 || b.width == 0 || b.height == 0; }
ptrdiff_t Shortest(Size a, Size b) { return std::min(std::min(a.width, a.height), std::min(b.width, b.height)); }
ptrdiff_t Longest(Size a, Size b) { return std::max(std::max(a.width, a.height), std::max(b.width, b.height)); }

bool IsKnown(QvpiInterpolationType interpolation) {
  switch (interpolation) {
    case 0:
    case qvpInterpolationNearest:
    case qvpInterpolationLinear:
    case qvpInterpolationCubic:
    case qvpInterpolationSuper:
    case qvpInterpolationLanczos: return true;
    default: return false;
  }
}

QvpStatus CheckLimits(QvpiInterpolationType interpolation, Size src, Size dst) {
  const ptrdiff_t shortest = std::min(src.width, src.height);
  switch (interpolation) {
    case 0: return qvpStatusNotSupportedMode;
    case qvpInterpolationNearest: return qvpStatusNoError;
    case qvpInterpolationLinear: return shortest < 2 ? qvpStatusSize : qvpStatusNoError;
    case qvpInterpolationSuper:
      return src.width < dst.width || src.height < dst.height ? qvpStatusSize : qvpStatusNoError;
    default: return shortest < 4 ? qvpStatusSize : qvpStatusNoError;
  }
}

QvpStatus CheckType(QvpDataType type, QvpiInterpolationType interpolation, bool isAntialiasing) {
  if (type == qvp8u || type == qvp16u || type == qvp16s || type == qvp32f) return qvpStatusNoError;
  if (type != qvp64f || interpolation != qvpInterpolationLinear) return qvpStatusDataType;
  return isAntialiasing ? qvpStatusNotSupportedMode : qvpStatusNoError;
}

// An index and a float for each tap, with antialiasing a double, too.
ByteCount TapTables(QvpiInterpolationType interpolation, bool isAntialiasing, int64_t source, int64_t destination) {
  const int64_t taps = MostTaps(interpolation, isAntialiasing, source, destination);
  return ByteCount(4) * (1 + (isAntialiasing ? 3 : 1) * taps) * PlaneOf(destination);
}

ByteCount AreaTables(ptrdiff_t source, ptrdiff_t destination) {
  const ptrdiff_t g = std::gcd(source, destination);
  const TableBytes bytes = SuperTables(source / g, destination / g);
  return bytes.index + bytes.weights;
}

}  // namespace

ByteCount RecordBytes(QvpDataType type, QvpiInterpolationType interpolation, bool isAntialiasing, Size src, Size dst) {
  const ByteCount positions = ByteCount(PlaneOf(dst.width)) + PlaneOf(dst.height);
  if (interpolation == qvpInterpolationNearest) return ByteCount(4) * positions + 260 + kSpare;
  if (interpolation == qvpInterpolationSuper) {
    return AreaTables(src.width, dst.width) + AreaTables(src.height, dst.height) + 256 + 68;
  }
  if (type == qvp64f) return ByteCount(12) * positions + 256 + kSpare;
  if (interpolation == qvpInterpolationLinear && !isAntialiasing) return ByteCount(8) * positions + 260 + kSpare;
  return TapTables(interpolation, isAntialiasing, src.width, dst.width) +
         TapTables(interpolation, isAntialiasing, src.height, dst.height) + 260 + kSpare;
}

ByteCount WorkBytes(const ResizeRecord& record, int64_t width, int64_t height, int channels) {
  const auto rounded = [](ByteCount n) { return n.RoundedTo(kTableAlignment); };
  const int64_t rows = record.interpolation == qvpInterpolationNearest ? 0
                       : record.interpolation == qvpInterpolationSuper ? 2
                                                                       : 2 * int64_t{record.tapPairsDown};
  return rounded(ByteCount(4) * height) + rounded(ByteCount(4) * width) +
         ByteCount(rows) * rounded(ByteCount(4) * channels * width) + kSpare;
}

ptrdiff_t SourceEnd(const ResizeRecord& record, const ResizeAxis& axis, ptrdiff_t end) {
  if (record.interpolation == qvpInterpolationSuper) {
    const double shift = record.Shift(&axis == &record.columns ? 0 : 1);
    if (shift != 0) return EndOf(CoveredBy(axis, static_cast<double>(end - 1), 1, shift));
    return static_cast<ptrdiff_t>((static_cast<int64_t>(end) * axis.p + axis.q - 1) / axis.q);
  }
  if (end == axis.destination) return axis.source;
  const bool isNearest = record.interpolation == qvpInterpolationNearest;
  return 1 + (isNearest ? axis.Nearest(end - 1) : FloorOf(record.Coordinate(axis, end - 1)));
}

namespace {

template <class Out>
QvpStatus GetSize(Size src, Size dst, QvpDataType type, QvpiInterpolationType interpolation, bool isAntialiasing,
                  Out* recordSize, Out* initSize, bool isWide) {
  if (recordSize == nullptr || initSize == nullptr) return qvpStatusNullPointer;
  if (IsAnyZero(src, dst)) return qvpStatusNoOperation;
  if (Shortest(src, dst) < 1) return qvpStatusSize;
  if (!IsKnown(interpolation)) return qvpStatusInterpolation;
  if (const QvpStatus failed = CheckType(type, interpolation, isAntialiasing)) return failed;
  if (isWide && Longest(src, dst) >= kWideLengthLimit) return qvpStatusSizeOverflow;
  if (const QvpStatus failed = CheckLimits(interpolation, src, dst)) return failed;
  const bool isIgnored = interpolation == qvpInterpolationNearest || interpolation == qvpInterpolationSuper;
  const ByteCount bytes = RecordBytes(type, interpolation, isAntialiasing && !isIgnored, src, dst);
  const QvpStatus failed = StoreSize(bytes, recordSize);
  *initSize = failed ? 0 : kSpare;
  return failed ? failed : isAntialiasing && isIgnored ? qvpStatusAntialiasIgnored : qvpStatusNoError;
}

template <class Out>
QvpStatus GetBufferSize(const QvpiResizeSpec* spec, Size dst, int channels, Out* size, ResizeForm form) {
  if (spec == nullptr || size == nullptr) return qvpStatusNullPointer;
  const ResizeRecord* record = RecordOf(spec);
  if (!IsOf(form, record)) return qvpStatusContextMatch;
  if (dst.width < 1 || dst.height < 1) return qvpStatusSize;
  if (channels < 1 || channels > 4) return qvpStatusChannel;
  const ptrdiff_t width = std::min<ptrdiff_t>(dst.width, record->width);
  const ptrdiff_t height = std::min<ptrdiff_t>(dst.height, record->height);
  if (const QvpStatus failed = StoreSize(WorkBytes(*record, width, height, channels), size)) return failed;
  return dst.width > width || dst.height > height ? qvpStatusSizeWarning : qvpStatusNoError;
}

QvpStatus GetBorderSize(const QvpiResizeSpec* spec, QvpiBorderSize* size, ResizeForm form) {
  if (spec == nullptr || size == nullptr) return qvpStatusNullPointer;
  if (!IsOf(form, RecordOf(spec))) return qvpStatusContextMatch;
  *size = RecordOf(spec)->border;
  return qvpStatusNoError;
}

bool IsInside(const ResizeRecord& record, Point offset) {
  return offset.x >= 0 && offset.y >= 0 && offset.x < record.width && offset.y < record.height;
}

template <class OutPoint>
void Store(Point point, OutPoint* out) {
  out->x = static_cast<decltype(out->x)>(point.x);
  out->y = static_cast<decltype(out->y)>(point.y);
}

template <class OutPoint>
QvpStatus GetSrcOffset(const QvpiResizeSpec* spec, Point offset, OutPoint* srcOffset, ResizeForm form) {
  if (spec == nullptr || srcOffset == nullptr) return qvpStatusNullPointer;
  const ResizeRecord* record = RecordOf(spec);
  if (!IsOf(form, record)) return qvpStatusContextMatch;
  if (!IsInside(*record, offset)) return qvpStatusOutOfRange;
  Store(SourceOffset(*record, offset), srcOffset);
  return qvpStatusNoError;
}

template <class OutPoint, class OutSize>
QvpStatus GetSrcRoi(const QvpiResizeSpec* spec, Point offset, Size size, OutPoint* srcOffset, OutSize* srcSize,
                    ResizeForm form) {
  if (spec == nullptr || srcOffset == nullptr || srcSize == nullptr) return qvpStatusNullPointer;
  const ResizeRecord* record = RecordOf(spec);
  if (!IsOf(form, record)) return qvpStatusContextMatch;
  if (size.width < 1 || size.height < 1) return qvpStatusSize;
  if (!IsInside(*record, offset)) return qvpStatusOutOfRange;
  const ptrdiff_t width = std::min(size.width, record->width - offset.x);
  const ptrdiff_t height = std::min(size.height, record->height - offset.y);
  const Point first = SourceOffset(*record, offset);
  Store(first, srcOffset);
  using Length = decltype(srcSize->width);
  const auto from = [](ptrdiff_t begin, ptrdiff_t end) {
    return static_cast<Length>(std::max<ptrdiff_t>(end - begin, 1));
  };
  srcSize->width = from(first.x, SourceEnd(*record, record->columns, offset.x + width));
  srcSize->height = from(first.y, SourceEnd(*record, record->rows, offset.y + height));
  return width < size.width || height < size.height ? qvpStatusSizeWarning : qvpStatusNoError;
}

}  // namespace
}  // namespace qvp::resize

using namespace qvp;
using namespace qvp::resize;

// 16-bit and 32-bit types reserve what 8-bit ones do.
#define SIZES(type, asType)                                                                                           \
  QvpStatus qvpiResizeGetSize_##type(QvpiSize srcSize, QvpiSize dstSize, QvpiInterpolationType interpolation,         \
                                     Qvp32u antialiasing, int* pSpecSize, int* pInitBufSize) {                        \
    return GetSize(srcSize, dstSize, asType, interpolation, antialiasing != 0, pSpecSize, pInitBufSize, false);       \
  }                                                                                                                   \
  QvpStatus qvpiResizeGetBufferSize_##type(const QvpiResizeSpec* pSpec, QvpiSize dstSize, int numChannels,            \
                                           int* pBufSize) {                                                           \
    return GetBufferSize(pSpec, dstSize, numChannels, pBufSize, ResizeForm::kPlain);                                  \
  }                                                                                                                   \
  QvpStatus qvpiResizeGetBorderSize_##type(const QvpiResizeSpec* pSpec, QvpiBorderSize* pBorderSize) {                \
    return GetBorderSize(pSpec, pBorderSize, ResizeForm::kPlain);                                                     \
  }                                                                                                                   \
  QvpStatus qvpiResizeGetSrcOffset_##type(const QvpiResizeSpec* pSpec, QvpiPoint dstOffset, QvpiPoint* pSrcOffset) {  \
    return GetSrcOffset(pSpec, dstOffset, pSrcOffset, ResizeForm::kPlain);                                            \
  }                                                                                                                   \
  QvpStatus qvpiResizeGetSrcRoi_##type(const QvpiResizeSpec* pSpec, QvpiRect dstRoi, QvpiPoint* pSrcRoiOffset,        \
                                       QvpiSize* pSrcRoiSize) {                                                       \
    return GetSrcRoi(pSpec, Point(dstRoi.x, dstRoi.y), Size(dstRoi.width, dstRoi.height), pSrcRoiOffset, pSrcRoiSize, \
                     ResizeForm::kPlain);                                                                             \
  }
SIZES(8u, qvp8u)
SIZES(16u, qvp8u)
SIZES(16s, qvp8u)
SIZES(32f, qvp8u)
SIZES(64f, qvp64f)

QvpStatus qvpiResizeGetSize_L(QvpiSizeL srcSize, QvpiSizeL dstSize, QvpDataType dataType,
                              QvpiInterpolationType interpolation, Qvp32u antialiasing, QvpSizeL* pSpecSize,
                              QvpSizeL* pInitBufSize) {
  return GetSize(srcSize, dstSize, dataType, interpolation, antialiasing != 0, pSpecSize, pInitBufSize, true);
}
QvpStatus qvpiResizeGetBufferSize_L(const QvpiResizeSpec* pSpec, QvpiSizeL dstSize, int numChannels,
                                    QvpSizeL* pBufSize) {
  return GetBufferSize(pSpec, dstSize, numChannels, pBufSize, ResizeForm::kWide);
}
QvpStatus qvpiResizeGetBorderSize_L(const QvpiResizeSpec* pSpec, QvpiBorderSize* pBorderSize) {
  return GetBorderSize(pSpec, pBorderSize, ResizeForm::kWide);
}
QvpStatus qvpiResizeGetSrcOffset_L(const QvpiResizeSpec* pSpec, QvpiPointL dstOffset, QvpiPointL* pSrcOffset) {
  return GetSrcOffset(pSpec, dstOffset, pSrcOffset, ResizeForm::kWide);
}
QvpStatus qvpiResizeGetSrcRoi_L(const QvpiResizeSpec* pSpec, QvpiRectL dstRoi, QvpiPointL* pSrcRoiOffset,
                                QvpiSizeL* pSrcRoiSize) {
  return GetSrcRoi(pSpec, Point(dstRoi.x, dstRoi.y), Size(dstRoi.width, dstRoi.height), pSrcRoiOffset, pSrcRoiSize,
                   ResizeForm::kWide);
}
