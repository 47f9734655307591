// Binomial smoothing, sharpening by what it takes away, and the work buffer of all fixed kernels.
#include "filter/fixed.h"

using namespace qvp;
using namespace qvp::filter;

#define SMOOTH(type, layout)                                                          \
  QVP_FIXED(Binomial, type, type, layout, type, Binomial<Smooth3>, Binomial<Smooth5>) \
  QVP_FIXED(Sharpen, type, type, layout, type, Sharpen<Smooth3>, Sharpen<Smooth5>)
QVP_EACH_LAYOUT(SMOOTH, 8u)
QVP_EACH_LAYOUT(SMOOTH, 16u)
QVP_EACH_LAYOUT(SMOOTH, 16s)
QVP_EACH_LAYOUT(SMOOTH, 32f)

// Lines of gradients have two sums for each sample of three channels, which are twice as long as those of bytes.
QvpStatus qvpiFilterFixedBorderGetBufferSize(QvpiSize maskSize, QvpiSize roiSize, QvpDataType dataType, int numChannels,
                                             int* pBufferSize) {
  if (!pBufferSize) return qvpStatusNullPointer;
  if (roiSize.width < 1 || roiSize.height < 1) return qvpStatusSize;
  if (!IsMask(maskSize, 2, 2) && !IsMask(maskSize, 3, 3) && !IsMask(maskSize, 5, 5)) return qvpStatusMaskSize;
  if (!IsFilteredType(dataType)) return qvpStatusDataType;
  if (!IsFilteredChannelCount(numChannels)) return qvpStatusNumChannels;
  return WindowBytes(maskSize, roiSize.width, numChannels, dataType == qvp8u ? 4 : 8).StoreTo(pBufferSize);
}
