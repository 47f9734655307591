// Vector medians: checks, and the choice of a kernel.
#include "filter/median_vector.h"

#include "filter/window_call.h"
#include "qvpi.h"

namespace qvp::filter {
namespace {

template <class T, class F, bool kIsL2>
void FilterVectors(const Windows<BitsOf<T>>& windows, QvpiSize mask) {
  using Kernel = VectorKernel<T, F, kIsL2>;
  const typename Kernel::Context context{mask, windows.src.channels()};
  FilterWindows(windows, {.context = &context,
                          .across = nullptr,
                          .down = Kernel::Down,
                          .elementBytes = sizeof(T),
                          .rowsAtOnce = 1,
                          .kept = VectorRowsFor(mask),
                          .cacheBytes = kSecondCacheBytes});
}

template <class T>
QvpStatus MedianVector(const WindowCall<T>& on, QvpiSize mask, QvpNormType norm) {
  if (const QvpStatus failed = on.Check()) return failed;
  if (!IsOddUpTo(kLongestVectorSide, mask)) return qvpStatusMaskSize;
  if (norm != qvpNormL1 && norm != qvpNormL2) return qvpStatusNotSupportedMode;
  if (const QvpStatus failed = CheckMedianBorder(on.border)) return failed;
  const auto windows = on.Reaching(ReachAround(mask));
  if (norm == qvpNormL2) {
    FilterVectors<T, float, true>(windows, mask);
  } else {
    FilterVectors<T, std::conditional_t<sizeof(T) == 1, uint16_t, float>, false>(windows, mask);
  }
  return qvpStatusNoError;
}

}  // namespace
}  // namespace qvp::filter

using namespace qvp;
using namespace qvp::filter;

QvpStatus qvpiFilterMedianVectorBorderGetBufferSize(QvpiSize maskSize, QvpiSize roiSize, QvpDataType dataType,
                                                    int numChannels, int* pBufferSize) {
  const bool isMask = IsOddUpTo(kLongestVectorSide, maskSize);
  if (const QvpStatus failed = CheckQuery(pBufferSize, roiSize, isMask, dataType, 3)) return failed;
  if (dataType == qvp16s) return qvpStatusDataType;
  if (numChannels != 3 && numChannels != 4) return qvpStatusNumChannels;
  const int elementBytes = dataType == qvp8u ? 1 : dataType == qvp16u ? 2 : 4;
  return WindowBytes(maskSize, roiSize.width, numChannels, elementBytes, VectorRowsFor(maskSize), kSecondCacheBytes)
      .StoreTo(pBufferSize);
}

#define MEDIAN_VECTOR(type, layout)                                                                               \
  QVP_WINDOW(MedianVector, type, type, type, layout, MedianVector, (QvpiSize maskSize, QvpNormType normType), (), \
             (maskSize, normType))
MEDIAN_VECTOR(8u, C3)
MEDIAN_VECTOR(8u, AC4)
MEDIAN_VECTOR(16u, C3)
MEDIAN_VECTOR(16u, AC4)
MEDIAN_VECTOR(32f, C3)
MEDIAN_VECTOR(32f, AC4)
