// Least and greatest values of a rectangle around each pixel.
#include "filter/extremes.h"
#include "filter/window_call.h"
#include "qvpi.h"

namespace qvp::filter {
namespace {

template <class Op, class T>
QvpStatus Extreme(const WindowCall<T>& call, QvpiSize mask, QvpiPoint anchor) {
  if (const QvpStatus failed = call.Check()) return failed;
  if (const QvpStatus failed = CheckAnchored(IsExtremeMask(mask), mask, anchor, call.border)) return failed;
  FilterRectangles<Op, T>(call.Reaching(ReachOf(mask, anchor)), mask.width, mask.height);
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

#define MIN_AND_MAX(type, layout)                        \
  QVP_ANCHORED_WINDOW(Min, type, layout, Extreme<Least>) \
  QVP_ANCHORED_WINDOW(Max, type, layout, Extreme<Greatest>)
QVP_EACH_LAYOUT(MIN_AND_MAX, 8u)
QVP_EACH_LAYOUT(MIN_AND_MAX, 16u)
QVP_EACH_LAYOUT(MIN_AND_MAX, 16s)
QVP_EACH_LAYOUT(MIN_AND_MAX, 32f)
