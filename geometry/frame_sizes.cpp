// Resize of chroma-subsampled frames: sizes, and which source a tile reads.
#include <cmath>

#include "base/export.h"
#include "geometry/frame_record.h"
#include "geometry/resize_sizes.h"

namespace qvp::resize {
namespace {

constexpr int kInitBytes = 64;

bool IsFactor(double factor) { return std::isfinite(factor) && factor > 0; }

// n samples by a factor, or more than fit. Axes of halved chroma get even lengths, but never grow where the factor is
// at most 1.
int64_t Scaled(int n, double factor, bool isHalved) {
  constexpr double kTooMany = 4294967296, kHalf = 0.5;
  const double exact = n * factor;
  if (!(exact < kTooMany)) return INT64_MAX;
  if (!isHalved) return std::max<int64_t>(1, static_cast<int64_t>(exact + kHalf));
  const int64_t even = std::max<int64_t>(2, 2 * static_cast<int64_t>(exact / 2 + kHalf));
  return factor <= 1 ? std::min<int64_t>(even, n) : even;
}

QvpStatus GetDstSize(FrameForm form, QvpiSize src, double xFactor, double yFactor, QvpiSize* dst) {
  if (dst == nullptr) return qvpStatusNullPointer;
  if (!IsFrameSize(form, src)) return qvpStatusSize;
  if (!IsFactor(xFactor) || !IsFactor(yFactor)) return qvpStatusResizeFactor;
  const int64_t width = Scaled(src.width, xFactor, true), height = Scaled(src.height, yFactor, HalvesRows(form));
  if (std::max(width, height) > INT32_MAX) return qvpStatusSizeOverflow;
  *dst = {static_cast<int>(width), static_cast<int>(height)};
  return qvpStatusNoError;
}

bool IsMethod(QvpiInterpolationType interpolation) {
  return interpolation == qvpInterpolationLinear || interpolation == qvpInterpolationSuper ||
         interpolation == qvpInterpolationLanczos;
}

QvpStatus GetSize(FrameForm form, Size src, Size dst, QvpDataType type, QvpiInterpolationType interpolation,
                  bool isAntialiasing, int* recordSize, int* initSize) {
  if (recordSize == nullptr || initSize == nullptr) return qvpStatusNullPointer;
  if (src.width == 0 || src.height == 0 || dst.width == 0 || dst.height == 0) return qvpStatusNoOperation;
  if (!IsFrameSize(form, src) || !IsFrameSize(form, dst)) return qvpStatusSize;
  if (type != qvp8u && type != qvp16u) return qvpStatusDataType;
  if (!IsMethod(interpolation)) return qvpStatusInterpolation;
  if (!FrameLimits{interpolation}.Take(form, src, dst)) return qvpStatusSize;
  const ByteCount plane = RecordBytes(qvp8u, interpolation, false, src, dst);
  const QvpStatus failed = StoreSize(plane + plane + static_cast<int64_t>(sizeof(FrameRecord)), recordSize);
  *initSize = failed ? 0 : kInitBytes;
  return failed ? failed : isAntialiasing ? qvpStatusAntialiasIgnored : qvpStatusNoError;
}

ByteCount Greater(ByteCount a, ByteCount b) { return a.value() < b.value() ? b : a; }

// 4:2:0 planes take turns with the buffer. Packed rows are split into one row of the source and joined from one of the
// destination, and have filtered rows of luma and chroma at once.
ByteCount BufferBytes(const FrameRecord& record, Size dst) {
  const ResizeRecord &luma = record.Luma(), &chroma = record.Chroma();
  if (record.Form() == FrameForm::k420) {
    const Size half = record.ChromaOf(dst);
    return Greater(WorkBytes(luma, dst.width, dst.height, 1), WorkBytes(chroma, half.width, half.height, 2));
  }
  const int64_t pixelBytes = record.type == qvp8u ? 2 : 4;
  const auto row = [&](int64_t width) { return (ByteCount(pixelBytes) * width).RoundedTo(kTableAlignment); };
  return WorkBytes(luma, dst.width, dst.height, 2) + row(luma.sourceWidth) + row(dst.width);
}

QvpStatus CheckRecord(FrameForm form, const FrameRecord& record) {
  return record.identification == static_cast<uint32_t>(form) ? qvpStatusNoError : qvpStatusContextMatch;
}

QvpStatus GetBufferSize(FrameForm form, const QvpiResizeChromaSpec* spec, Size dst, int* size) {
  if (spec == nullptr || size == nullptr) return qvpStatusNullPointer;
  const auto& record = *RecordIn<FrameRecord>(spec);
  if (const QvpStatus failed = CheckRecord(form, record)) return failed;
  if (!IsFrameSize(form, dst)) return qvpStatusSize;
  const Size clipped = Clipped(record, {0, 0}, dst);
  if (const QvpStatus failed = StoreSize(BufferBytes(record, clipped), size)) return failed;
  return ClippingStatus(clipped, dst);
}

QvpStatus GetBorderSize(FrameForm form, const QvpiResizeChromaSpec* spec, QvpiBorderSize* size) {
  if (spec == nullptr || size == nullptr) return qvpStatusNullPointer;
  const auto& record = *RecordIn<FrameRecord>(spec);
  if (const QvpStatus failed = CheckRecord(form, record)) return failed;
  const uint32_t unit = HalvesRows(form) ? 2 : 1;
  const QvpiBorderSize reach = record.Luma().border;
  *size = {2 * reach.left, unit * reach.top, 2 * reach.right, unit * reach.bottom};
  return qvpStatusNoError;
}

QvpiPoint Narrow(Point p) { return {static_cast<int>(p.x), static_cast<int>(p.y)}; }

QvpStatus GetSrcOffset(FrameForm form, const QvpiResizeChromaSpec* spec, Point at, QvpiPoint* source) {
  if (spec == nullptr || source == nullptr) return qvpStatusNullPointer;
  const auto& record = *RecordIn<FrameRecord>(spec);
  if (const QvpStatus failed = CheckRecord(form, record)) return failed;
  if (const QvpStatus failed = CheckOffset(record, at)) return failed;
  *source = Narrow(FrameSource(record, at));
  return qvpStatusNoError;
}

// The end of what both luma and chroma of a tile read on one axis, given those of each.
ptrdiff_t EndOfBoth(ptrdiff_t luma, ptrdiff_t chroma, bool isHalved, ptrdiff_t length) {
  const ptrdiff_t end = std::max(luma, isHalved ? 2 * chroma : chroma);
  return std::min(isHalved ? 2 * HalfUp(end) : end, length);
}

// Behind the last pixel that a tile reads, borders aside.
Point FrameEnd(const FrameRecord& record, Point end) {
  const ResizeRecord &luma = record.Luma(), &chroma = record.Chroma();
  const Size half = record.ChromaOf(Size(end.x, end.y));
  return {EndOfBoth(SourceEnd(luma, luma.columns, end.x), SourceEnd(chroma, chroma.columns, half.width), true,
                    luma.sourceWidth),
          EndOfBoth(SourceEnd(luma, luma.rows, end.y), SourceEnd(chroma, chroma.rows, half.height),
                    HalvesRows(record.Form()), luma.sourceHeight)};
}

QvpStatus GetSrcRoi(FrameForm form, const QvpiResizeChromaSpec* spec, const QvpiRect& dst, QvpiPoint* source,
                    QvpiSize* size) {
  if (spec == nullptr || source == nullptr || size == nullptr) return qvpStatusNullPointer;
  const auto& record = *RecordIn<FrameRecord>(spec);
  if (const QvpStatus failed = CheckRecord(form, record)) return failed;
  const Size asked(dst.width, dst.height);
  if (!IsFrameSize(form, asked)) return qvpStatusSize;
  const Point at(dst.x, dst.y);
  if (const QvpStatus failed = CheckOffset(record, at)) return failed;
  const Size clipped = Clipped(record, at, asked);
  const Point begin = FrameSource(record, at);
  const Point end = FrameEnd(record, {at.x + clipped.width, at.y + clipped.height});
  *source = Narrow(begin);
  *size = {static_cast<int>(std::max<ptrdiff_t>(end.x - begin.x, 1)),
           static_cast<int>(std::max<ptrdiff_t>(end.y - begin.y, 1))};
  return ClippingStatus(clipped, asked);
}

}  // namespace
}  // namespace qvp::resize

using namespace qvp;
using namespace qvp::resize;

#define QUERIES(form)                                                                                                 \
  QvpStatus qvpiResize##form##GetDstSize(QvpiSize srcSize, double xFactor, double yFactor, QvpiSize* pDstSize) {      \
    return GetDstSize(FrameForm::k##form, srcSize, xFactor, yFactor, pDstSize);                                       \
  }                                                                                                                   \
  QvpStatus qvpiResize##form##GetSize(QvpiSize srcSize, QvpiSize dstSize, QvpDataType dataType,                       \
                                      QvpiInterpolationType interpolation, Qvp32u antialiasing, int* pSpecSize,       \
                                      int* pInitBufSize) {                                                            \
    return GetSize(FrameForm::k##form, srcSize, dstSize, dataType, interpolation, antialiasing != 0, pSpecSize,       \
                   pInitBufSize);                                                                                     \
  }                                                                                                                   \
  QvpStatus qvpiResize##form##GetBufferSize(const QvpiResizeChromaSpec* pSpec, QvpiSize dstSize, int* pBufSize) {     \
    return GetBufferSize(FrameForm::k##form, pSpec, dstSize, pBufSize);                                               \
  }                                                                                                                   \
  QvpStatus qvpiResize##form##GetBorderSize(const QvpiResizeChromaSpec* pSpec, QvpiBorderSize* pBorderSize) {         \
    return GetBorderSize(FrameForm::k##form, pSpec, pBorderSize);                                                     \
  }                                                                                                                   \
  QvpStatus qvpiResize##form##GetSrcOffset(const QvpiResizeChromaSpec* pSpec, QvpiPoint dstOffset,                    \
                                           QvpiPoint* pSrcOffset) {                                                   \
    return GetSrcOffset(FrameForm::k##form, pSpec, dstOffset, pSrcOffset);                                            \
  }                                                                                                                   \
  QvpStatus qvpiResize##form##GetSrcRoi(const QvpiResizeChromaSpec* pSpec, QvpiRect dstRoi, QvpiPoint* pSrcRoiOffset, \
                                        QvpiSize* pSrcRoiSize) {                                                      \
    return GetSrcRoi(FrameForm::k##form, pSpec, dstRoi, pSrcRoiOffset, pSrcRoiSize);                                  \
  }
QUERIES(420)
QUERIES(422)
