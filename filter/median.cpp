// Medians of a rectangle around each pixel: checks, and the choice of a method.
#include "filter/median.h"

#include "filter/window_call.h"
#include "qvpi.h"

namespace qvp::filter {
namespace {

// By a mask of one pixel.
template <class T>
void CopyRow(const void*, const Window& window, const ResultRows& rows) {
  std::memcpy(rows.upper[0], window.lines[0], window.samples * sizeof(T));
}
template <class T>
void Copy(const MedianCall<T>& call) {
  FilterWindows(
      call.windows,
      {.context = nullptr, .across = nullptr, .down = CopyRow<T>, .elementBytes = sizeof(T), .rowsAtOnce = 1});
}

template <class T>
void FilterMedian(const MedianCall<T>& call) {
  if (call.mask.width * call.mask.height == 1) return Copy(call);
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
void FilterCentred(const WindowCall<T>& on, QvpiSize mask, int weight) {
  const int n = mask.width * mask.height;
  const bool isCopy = weight >= n;
  const QvpiSize used = isCopy ? QvpiSize{1, 1} : mask;
  FilterMedian(MedianCall<T>{on.Reaching(ReachAround(used)), used, isCopy ? MedianRanks{0, 0} : RanksFor(n, weight)});
}

template <class T>
QvpStatus MedianCenter(const WindowCall<T>& on, QvpiSize mask, int weight) {
  if (const QvpStatus failed = on.Check()) return failed;
  if (!IsOddUpTo(kLongestMedianSide, mask)) return qvpStatusMaskSize;
  if (weight < 1) return qvpStatusWeight;
  if (const QvpStatus failed = CheckMedianBorder(on.border)) return failed;
  FilterCentred(on, mask, weight);
  return qvpStatusNoError;
}

template <class T>
QvpStatus Median(const WindowCall<T>& on, QvpiSize mask) {
  return MedianCenter(on, mask, 1);
}

// Methods take turns with the mask's size, and each has to find its place in the buffer of a larger one.
ByteCount MedianBytes(QvpiSize mask, int64_t regionWidth, QvpDataType type, int channels) {
  if (type == qvp8u) {
    return WindowBytes(mask, regionWidth, channels, 1, kColumnCounts, kSecondCacheBytes) + NetworkBytes();
  }
  const ByteCount walk =
      WindowBytes(mask, regionWidth, channels, type == qvp32f ? 4 : 2, {}, kSecondCacheBytes) + NetworkBytes();
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

#define MEDIANS(type, layout)                                                                           \
  QVP_WINDOW(Median, type, type, type, layout, Median, (QvpiSize maskSize), (), (maskSize))             \
  QVP_WINDOW(MedianCenter, type, type, type, layout, MedianCenter, (QvpiSize maskSize, int weight), (), \
             (maskSize, weight))
QVP_EACH_LAYOUT(MEDIANS, 8u)
QVP_EACH_LAYOUT(MEDIANS, 16u)
QVP_EACH_LAYOUT(MEDIANS, 16s)
QVP_EACH_LAYOUT(MEDIANS, 32f)
