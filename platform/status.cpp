// Texts for status codes.
#include "qvpcore.h"

namespace {

#define TEXT(name, sentence) \
  { name, #name ": " sentence }

constexpr struct {
  QvpStatus status;
  const char* text;
} kTexts[] = {
    TEXT(qvpStatusNoError, "The call succeeded."),
    TEXT(qvpStatusNoOperation, "Warning: there was nothing to do, and nothing was written."),
    TEXT(qvpStatusDivideByZero, "Warning: a divisor in the image was zero; every pixel was written all the same."),
    TEXT(qvpStatusNoIntersection, "Warning: the source region has no pixels, and nothing was written."),
    TEXT(qvpStatusAntialiasIgnored, "Warning: antialiasing has no effect here and was left out."),
    TEXT(qvpStatusSizeWarning, "Warning: a size was out of bounds, and what lies within them was done."),
    TEXT(qvpStatusAccurateModeNotSupported, "Warning: there is no accurate mode here, and the usual one was used."),
    TEXT(qvpStatusBadArgument, "A parameter is outside its domain."),
    TEXT(qvpStatusSize, "A width or height is below 1, or the size is not supported."),
    TEXT(qvpStatusRange, "The lower bound is greater than the upper bound."),
    TEXT(qvpStatusNullPointer, "A required pointer is null."),
    TEXT(qvpStatusMemoryAllocation, "Memory could not be allocated, or a work buffer is missing."),
    TEXT(qvpStatusDivideByZeroError, "The constant divisor is zero."),
    TEXT(qvpStatusOutOfRange, "A point, offset or bit count is out of range."),
    TEXT(qvpStatusScaleRange, "The upper value of the range is not greater than the lower."),
    TEXT(qvpStatusContextMatch, "The record was not made for this function, or its initialisation failed."),
    TEXT(qvpStatusNotSupportedMode, "This mode or combination of options is not supported."),
    TEXT(qvpStatusStep, "A row step is below 1, shorter than the row, or not a multiple of the element size."),
    TEXT(qvpStatusFftOrder, "The order of the transform is out of range."),
    TEXT(qvpStatusFftFlag, "The normalisation flag is none of 1, 2, 4 and 8."),
    TEXT(qvpStatusThreshold, "The lower threshold is greater than the upper threshold."),
    TEXT(qvpStatusMoment00Zero, "The zero-order moment is zero."),
    TEXT(qvpStatusMirrorFlip, "The mirror axis is unknown."),
    TEXT(qvpStatusInterpolation, "The interpolation kind is not supported."),
    TEXT(qvpStatusResizeFactor, "A resize factor is not greater than zero."),
    TEXT(qvpStatusMaskSize, "The mask size is not supported."),
    TEXT(qvpStatusAnchor, "The anchor is outside the mask."),
    TEXT(qvpStatusEps, "The tolerance is negative."),
    TEXT(qvpStatusStride, "A row step is shorter than the values that are read from a row."),
    TEXT(qvpStatusChannel, "The number of channels is not 1 to 4, or not allowed for the pixel type."),
    TEXT(qvpStatusAlphaType, "The alpha-compositing operation is unknown."),
    TEXT(qvpStatusDivisor, "The divisor is zero."),
    TEXT(qvpStatusNumChannels, "The number of channels is not supported."),
    TEXT(qvpStatusCoefficient, "The transform coefficients are degenerate."),
    TEXT(qvpStatusRect, "A side of the rectangle is below one pixel."),
    TEXT(qvpStatusQuad, "The quadrangle is degenerate or not convex."),
    TEXT(qvpStatusDataType, "The pixel type is not supported."),
    TEXT(qvpStatusChannelOrder, "An entry of the channel order names no channel."),
    TEXT(qvpStatusLutLevels, "The look-up table has fewer than 2 levels."),
    TEXT(qvpStatusHistoLevels, "The histogram has fewer than 2 levels."),
    TEXT(qvpStatusNotEvenStep, "A row step is not a multiple of 4 bytes."),
    TEXT(qvpStatusNoiseRange, "The noise level is below 0, or not below 1."),
    TEXT(qvpStatusQualityIndex, "The denominator of the quality index is zero; the result was written all the same."),
    TEXT(qvpStatusWeight, "A median weight is below 1."),
    TEXT(qvpStatusDecimateFraction, "The decimation fraction is not supported."),
    TEXT(qvpStatusRoundMode, "The rounding mode is not supported."),
    TEXT(qvpStatusBorder, "The border type is not supported."),
    TEXT(qvpStatusMisalignedOffset, "An offset is odd where chroma subsampling needs even ones."),
    TEXT(qvpStatusAlgType, "The algorithm is not supported."),
    TEXT(qvpStatusWarpDirection, "The transform direction is neither forward nor backward."),
    TEXT(qvpStatusSizeOverflow, "A size is greater than can be represented."),
};

}  // namespace

const char* qvpGetStatusString(QvpStatus status) {
  for (const auto& entry : kTexts) {
    if (entry.status == status) return entry.text;
  }
  return "Unknown status value.";
}
