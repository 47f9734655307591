// Medians of a rectangle around each pixel: checks, and the choice of a method.
#include "filter/median.h"

#include "base/export.h"
#include "filter/window_check.h"
#include "qvpi.h"

namespace qvp::filter {
namespace {

template <class T>
void FilterMedian(const MedianCall<T>& call) {
  if (FilterByNetworks(call)) return;
  if constexpr (std::is_same_v<T, float>) {
    FilterByRanks(call);
  } else if constexpr (std::is_same_v<T, uint8_t>) {
    FilterByColumnCounts(call);
  } else {
    FilterBySlidingCounts(call);
  }
}

// `weight` has been found to be 1 at least. A centre that counts as often as all values together stays.
template <class T>
void FilterCentred(const Image<const T>& src, const Image<T>& dst, Size roi, QvpiSize mask, int weight,
                   QvpiBorderType border, const T* value, uint8_t* buffer) {
  const bool isCopy = weight >= mask.width * mask.height;
  const QvpiSize used = isCopy ? QvpiSize{1, 1} : mask;
  const ptrdiff_t beside = used.width / 2, beyond = used.height / 2;
  MedianCall<T> call{WindowsOn(src, roi, border, value, {beside, beyond, beside, beyond}, buffer), used,
                     isCopy ? MedianRanks{0, 0} : RanksFor(mask.width * mask.height, weight)};
  call.windows.outputs[0] = AsBytes(dst);
  FilterMedian(call);
}

QvpStatus CheckMask(QvpiSize mask) {
  return IsOddUpTo(kLongestMedianSide, mask) ? qvpStatusNoError : qvpStatusMaskSize;
}

QvpStatus CheckBorder(QvpiBorderType border) {
  return IsBorderOf({BorderKind::kReplicate, BorderKind::kConst}, border) ? qvpStatusNoError : qvpStatusBorder;
}

template <class T>
QvpStatus Median(const Image<const T>& src, const Image<T>& dst, Size roi, QvpiSize mask, QvpiBorderType border,
                 const T* value, uint8_t* buffer) {
  if (const QvpStatus failed = CheckWindow(src, dst, roi, border, value, {buffer})) return failed;
  if (const QvpStatus failed = CheckMask(mask)) return failed;
  if (const QvpStatus failed = CheckBorder(border)) return failed;
  FilterCentred(src, dst, roi, mask, 1, border, value, buffer);
  return qvpStatusNoError;
}

template <class T>
QvpStatus MedianCenter(const Image<const T>& src, const Image<T>& dst, Size roi, QvpiSize mask, int weight,
                       QvpiBorderType border, const T* value, uint8_t* buffer) {
  if (const QvpStatus failed = CheckWindow(src, dst, roi, border, value, {buffer})) return failed;
  if (const QvpStatus failed = CheckMask(mask)) return failed;
  if (weight < 1) return qvpStatusWeight;
  if (const QvpStatus failed = CheckBorder(border)) return failed;
  FilterCentred(src, dst, roi, mask, weight, border, value, buffer);
  return qvpStatusNoError;
}

// Methods take turns with the mask's size, and each has to find its place in the buffer of a larger one.
ByteCount MedianBytes(QvpiSize mask, int64_t regionWidth, QvpDataType type, int channels) {
  if (type == qvp8u) {
    return WindowBytes(mask, regionWidth, channels, 1, kColumnCounts, kColumnCacheBytes) + NetworkBytes();
  }
  const ByteCount walk = WindowBytes(mask, regionWidth, channels, type == qvp32f ? 4 : 2) + NetworkBytes();
  return type == qvp32f ? std::max(walk.value(), RankBytes(mask).value()) : walk + SlidingBytes();
}

QvpStatus BufferSize(QvpiSize mask, QvpiSize roi, QvpDataType type, int channels, int* size) {
  if (const QvpStatus failed = CheckQuery(size, roi, IsOddUpTo(kLongestMedianSide, mask), type, channels))
    return failed;
  return MedianBytes(mask, roi.width, type, channels).StoreTo(size);
}

}  // namespace
}  // namespace qvp::filter

using namespace qvp;
using namespace qvp::filter;

QvpStatus qvpiFilterMedianBorderGetBufferSize(QvpiSize maskSize, QvpiSize roiSize, QvpDataType dataType,
                                              int numChannels, int* pBufferSize) {
  return BufferSize(maskSize, roiSize, dataType, numChannels, pBufferSize);
}
QvpStatus qvpiFilterMedianCenterBorderGetBufferSize(QvpiSize maskSize, QvpiSize roiSize, QvpDataType dataType,
                                                    int numChannels, int* pBufferSize) {
  return BufferSize(maskSize, roiSize, dataType, numChannels, pBufferSize);
}

#define MEDIAN(type, layout)                                                                                        \
  QvpStatus qvpiFilterMedianBorder_##type##_##layout##R(                                                            \
      const Qvp##type* pSrc, int srcStep, Qvp##type* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize,        \
      QvpiBorderType borderType, const Qvp##type* borderValue, Qvp8u* pBuffer) {                                    \
    return Median<Qvp##type>({pSrc, srcStep, Layout::k##layout}, {pDst, dstStep, Layout::k##layout}, roiSize,       \
                             maskSize, borderType, borderValue, pBuffer);                                           \
  }                                                                                                                 \
  QvpStatus qvpiFilterMedianCenterBorder_##type##_##layout##R(                                                      \
      const Qvp##type* pSrc, int srcStep, Qvp##type* pDst, int dstStep, QvpiSize roiSize, QvpiSize maskSize,        \
      int weight, QvpiBorderType borderType, const Qvp##type* borderValue, Qvp8u* pBuffer) {                        \
    return MedianCenter<Qvp##type>({pSrc, srcStep, Layout::k##layout}, {pDst, dstStep, Layout::k##layout}, roiSize, \
                                   maskSize, weight, borderType, borderValue, pBuffer);                             \
  }
QVP_EACH_LAYOUT(MEDIAN, 8u)
QVP_EACH_LAYOUT(MEDIAN, 16u)
QVP_EACH_LAYOUT(MEDIAN, 16s)
QVP_EACH_LAYOUT(MEDIAN, 32f)
