// Least and greatest values of a rectangle around each pixel.
#include "base/export.h"
#include "filter/extremes.h"
#include "filter/window_check.h"
#include "qvpi.h"

namespace qvp::filter {
namespace {

template <class Op, class T>
QvpStatus Extreme(const Image<const T>& src, const Image<T>& dst, Size roi, QvpiSize mask, QvpiPoint anchor,
                  QvpiBorderType border, const T* value, uint8_t* buffer) {
  if (const QvpStatus failed = CheckWindow(src, dst, roi, border, value, {buffer})) return failed;
  if (const QvpStatus failed = CheckAnchored(IsExtremeMask(mask), mask, anchor, border)) return failed;
  auto windows = WindowsOn(src, roi, border, value, ReachOf(mask, anchor), buffer);
  windows.outputs[0] = AsBytes(dst);
  FilterRectangles<Op, T>(windows, mask.width, mask.height);
  return qvpStatusNoError;
}

QvpStatus BufferSize(QvpiSize mask, QvpiSize roi, QvpDataType type, int channels, int* size) {
  if (const QvpStatus failed = CheckQuery(size, roi, IsExtremeMask(mask), type, channels)) return failed;
  return RectangleBytes(mask, roi.width, channels, ExtremeBytes(type)).StoreTo(size);
}

}  // namespace
}  // namespace qvp::filter

using namespace qvp;
using namespace qvp::filter;

QvpStatus qvpiFilterMinBorderGetBufferSize(QvpiSize maskSize, QvpiSize roiSize, QvpDataType dataType, int numChannels,
                                           int* pBufferSize) {
  return BufferSize(maskSize, roiSize, dataType, numChannels, pBufferSize);
}
QvpStatus qvpiFilterMaxBorderGetBufferSize(QvpiSize maskSize, QvpiSize roiSize, QvpDataType dataType, int numChannels,
                                           int* pBufferSize) {
  return BufferSize(maskSize, roiSize, dataType, numChannels, pBufferSize);
}

#define EXTREME(name, op, type, layout)                                                                            \
  QvpStatus qvpiFilter##name##Border_##type##_##layout##R(                                                         \
      const Qvp##type* pSrc, int srcStep, Qvp##type* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize,       \
      QvpiPoint anchor, QvpiBorderType borderType, const Qvp##type* borderValue, Qvp8u* pBuffer) {                 \
    return Extreme<op, Qvp##type>({pSrc, srcStep, Layout::k##layout}, {pDst, dstStep, Layout::k##layout}, roiSize, \
                                  maskSize, anchor, borderType, borderValue, pBuffer);                             \
  }
#define MIN_AND_MAX(type, layout)   \
  EXTREME(Min, Least, type, layout) \
  EXTREME(Max, Greatest, type, layout)
QVP_EACH_LAYOUT(MIN_AND_MAX, 8u)
QVP_EACH_LAYOUT(MIN_AND_MAX, 16u)
QVP_EACH_LAYOUT(MIN_AND_MAX, 16s)
QVP_EACH_LAYOUT(MIN_AND_MAX, 32f)
